// The members of an action profile: action data under a handle, with a count of who uses it.
//
// A member is the same in all pipes of its device. It is in use while an entry, a group or the
// fallback of the selector refers to it; the action and data of one in use may be changed.
#pragma once

#include "pipe_mgr_types.h"
#include "profiles/profile_store.hpp"

namespace soft {

// Action data must be of exactly the length of the action. BF_WRONG_LENGTH; BF_INVALID_ARGUMENT:
// there is none where there should be.
bf_status_t check_data(const pipe_mgr_action_data_t &data, const soft_action_t &action);

// Functions that add something may throw std::bad_alloc, and then nothing has changed.
class ActionDataTable : public Engine<ActionDataTable, ProfileStore> {
 public:
  ActionDataTable(const Device &device, const soft_profile_t &profile);

  // The session is the one that the listener hears of.
  // The action spec holds data of exactly the action's length, type 0 or PIPE_ACTION_DATA and no
  // resources. BF_FOREIGN_ACTION, BF_WRONG_LENGTH, BF_INVALID_ARGUMENT; add: BF_TABLE_FULL;
  // set: BF_OBJECT_NOT_FOUND.
  bf_status_t add(pipe_session_handle_t session, pipe_object_handle_t action,
                  const pipe_mgr_action_spec_t *spec, pipe_member_handle_t *member);
  bf_status_t set(pipe_session_handle_t session, pipe_member_handle_t member,
                  pipe_object_handle_t action, const pipe_mgr_action_spec_t *spec);
  // BF_OBJECT_NOT_FOUND; BF_IN_USE.
  bf_status_t remove(pipe_session_handle_t session, pipe_member_handle_t member);

  // Fills data as far as its bytes are not null. BF_WRONG_LENGTH: they have less room than there is
  // data; BF_OBJECT_NOT_FOUND.
  bf_status_t get(pipe_member_handle_t member, pipe_mgr_action_data_t *data,
                  pipe_object_handle_t *action);
  bf_status_t action_of(pipe_member_handle_t member, pipe_object_handle_t *action);

  std::span<const soft_action_t> actions() const { return actions_; }
  // The action of the profile with this handle, or null.
  const soft_action_t *action(pipe_object_handle_t handle) const;

  // As acquire, for a member that must have this action: BF_INVALID_ARGUMENT when it has another.
  bf_status_t acquire_with_action(pipe_member_handle_t member, pipe_object_handle_t action);

  // When it throws, nothing has changed.
  void take_over(ActionDataTable &other);
  void inherit(Object &predecessor) noexcept override;

  void listen(pipe_mgr_adt_update_cb_t callback, void *cookie);

  bf_status_t acquire(uint32_t member) override;
  void release(uint32_t member) override;

 private:
  // Offsets in the record of a member, behind the header of the store.
  static constexpr size_t kLength = 6;  // u16, of the data
  static constexpr size_t kAction = 8;  // u32
  static constexpr size_t kUses = 12;   // u32
  static constexpr size_t kData = 16;   // as long as the longest data of an action

  bf_status_t check(pipe_object_handle_t action, const pipe_mgr_action_spec_t *spec) const;
  bf_status_t acquire_if(pipe_member_handle_t member, const pipe_object_handle_t *action);
  // All below under the lock. Null for an unknown member.
  uint8_t *record_of(pipe_member_handle_t member);
  static void write(uint8_t *record, pipe_object_handle_t action,
                    const pipe_mgr_action_data_t &data);
  template <class Body>
  bf_status_t update(pipe_session_handle_t session, uint32_t what,
                     const pipe_member_handle_t &member, Body body);

  std::span<const soft_action_t> actions_;
  Listener<pipe_mgr_adt_update_cb_t> listener_;
};

}  // namespace soft
