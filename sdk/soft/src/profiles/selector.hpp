// The selector of an action profile: groups of members, of which a hash chooses one.
//
// Groups are the same in all pipes of their device. Members are in use while they are in a group or
// are the fallback. A group may be removed while it has members: its memberships end with it. One
// that an entry refers to may not be removed.
//
// The choice. The hash is one big-endian number; of a group with n active members it chooses the
// one with the (hash modulo n)-th smallest handle, counted from 0. Without an active member the
// fallback stands in.
#pragma once

#include "profiles/action_data_table.hpp"
#include "profiles/selector_slots.hpp"
#include "store/handle_set.hpp"

namespace soft {

// Functions that add something may throw std::bad_alloc, and then nothing has changed. The session
// is the one that the listeners hear of. BF_OBJECT_NOT_FOUND: no such group, member or membership.
class Selector : public Engine<Selector, ProfileStore> {
 public:
  // members must live as long as the selector is used.
  Selector(const Device &device, const soft_profile_t &profile, ActionDataTable &members);
  ~Selector() override;

  // ---- Groups ----

  // max_size is the greatest number of members, 0 unlimited. BF_TABLE_FULL at the capacity.
  bf_status_t add(pipe_session_handle_t session, uint32_t max_size, pipe_group_handle_t *group);
  // BF_IN_USE.
  bf_status_t remove(pipe_session_handle_t session, pipe_group_handle_t group);

  // ---- Memberships: active at first ----

  // BF_FOREIGN_ACTION; BF_INVALID_ARGUMENT: not the action of the member; BF_ALREADY_EXISTS;
  // BF_TABLE_FULL.
  bf_status_t join(pipe_session_handle_t session, pipe_group_handle_t group,
                   pipe_object_handle_t action, pipe_member_handle_t member);
  bf_status_t leave(pipe_session_handle_t session, pipe_group_handle_t group,
                    pipe_member_handle_t member);
  // Listeners hear of it only when the state changes.
  bf_status_t set_active(pipe_session_handle_t session, pipe_group_handle_t group,
                         pipe_member_handle_t member, bool active);
  bf_status_t is_active(pipe_group_handle_t group, pipe_member_handle_t member, bool *active);
  bf_status_t member_count(pipe_group_handle_t group, uint32_t *count);

  // Members in ascending order of handles: a walk meets every member that stays once, and goes on
  // from any handle, also of a member that has left.
  bf_status_t first_member(pipe_group_handle_t group, pipe_member_handle_t *member);
  bf_status_t next_members(pipe_group_handle_t group, pipe_member_handle_t previous,
                           std::span<pipe_member_handle_t> members);

  // ---- Choice ----

  // BF_WRONG_LENGTH: an empty hash. BF_OBJECT_NOT_FOUND also when there is nothing to choose.
  bf_status_t choose(pipe_group_handle_t group, const uint8_t *hash, uint32_t length,
                     pipe_member_handle_t *member);
  bf_status_t set_fallback(pipe_member_handle_t member);
  // Also when there is none.
  void reset_fallback();
  // As SelectorSlots::active. A member that is active in several groups is there as often.
  uint32_t active_in_word(uint32_t word,
                          std::array<pipe_member_handle_t, SelectorSlots::kWordSlots> *members);

  // ---- The selector ----

  // The members follow by their own copy. When it throws, nothing has changed.
  void take_over(Selector &other);
  void inherit(Object &predecessor) noexcept override;

  enum class Ear { kOwner, kFurther };
  void listen(Ear ear, pipe_mgr_sel_update_cb_t callback, void *cookie);

  bf_status_t acquire(uint32_t group) override;
  void release(uint32_t group) override;
  // BF_OBJECT_NOT_FOUND: no such group; no fallback.
  bf_status_t max_size(pipe_group_handle_t group, uint32_t *max_size);
  bf_status_t fallback(pipe_member_handle_t *member);

 private:
  static constexpr size_t kPointer = 8;  // Group *, in a record, behind the store's header

  struct Membership {
    pipe_member_handle_t member;
    uint32_t slot;
  };
  struct Group {
    Group(uint32_t max, std::pmr::memory_resource *memory)
        : max_size(max), members(memory), active(memory) {}

    uint32_t max_size;
    uint32_t uses = 0;                     // by entries
    std::pmr::vector<Membership> members;  // in ascending order of handles
    HandleSet active;
  };
  struct Place {
    Group *group;
    Membership *membership;
  };
  struct Listeners {
    Listener<pipe_mgr_sel_update_cb_t> owner;
    Listener<pipe_mgr_sel_update_cb_t> further;

    template <class... Args>
    void notify(Args... args) const {
      owner.notify(args...);
      further.notify(args...);
    }
  };

  // Runs body(Group &) under the lock. BF_OBJECT_NOT_FOUND: there is no such group.
  template <class Body>
  bf_status_t on_group(pipe_group_handle_t group, Body body);
  // All below under the lock. Null for an unknown group or membership.
  Group *group_of(pipe_group_handle_t group);
  Group *group_at(uint32_t slot);
  Place find(pipe_group_handle_t group, pipe_member_handle_t member);
  static Membership *membership_of(Group &group, pipe_member_handle_t member);
  bf_status_t begin_membership(pipe_group_handle_t group, pipe_object_handle_t action,
                               pipe_member_handle_t member);
  void drop(uint32_t slot);

  template <class Body>
  bf_status_t update(pipe_session_handle_t session, uint32_t what, const pipe_group_handle_t &group,
                     pipe_member_handle_t member, Body body);

  ActionDataTable &members_;
  SelectorSlots slots_;
  pipe_member_handle_t fallback_ = 0;  // 0: none
  Listeners listeners_;
};

}  // namespace soft
