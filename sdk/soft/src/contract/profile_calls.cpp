// The functions of the contract that concern action profiles: members, groups, update callbacks.
//
// Members and groups are in all pipes; a pipe is checked and then of no account. Flags are not
// looked at.
#include "contract/resolve.hpp"
#include "pipe_mgr_profile.h"
#include "profiles/selector.hpp"

using namespace soft;

namespace {

using Word = std::array<pipe_member_handle_t, SelectorSlots::kWordSlots>;

bf_status_t count_in_word(Selector &selector, uint32_t word, uint32_t *count) {
  Word members;
  *count = selector.active_in_word(word, &members);
  return BF_SUCCESS;
}

// As many members of a word as there is room for; the slots behind them hold 0xffffffff.
bf_status_t copy_word(Selector &selector, uint32_t word, std::span<pipe_member_handle_t> members) {
  Word held;
  const size_t count = selector.active_in_word(word, &held);
  const auto rest = std::copy_n(held.begin(), std::min(count, members.size()), members.begin());
  std::fill(rest, members.end(), SlotStore::kNoHandle);
  return BF_SUCCESS;
}

bf_status_t member_state_of(Selector &selector, pipe_group_handle_t group,
                            pipe_member_handle_t member, uint32_t *state) {
  bool active = false;
  const bf_status_t status = selector.is_active(group, member, &active);
  if (status == BF_SUCCESS) *state = active ? PIPE_MEMBER_ACTIVE : PIPE_MEMBER_INACTIVE;
  return status;
}

}  // namespace

// ---- Members ----

bf_status_t pipe_mgr_adt_ent_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t action_data_table,
                                 pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec,
                                 pipe_member_handle_t *member, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, action_data_table, action, action_spec, member, flags),
                   on<&ActionDataTable::add>(InPipes{session, device, pipe, action_data_table},
                                             session, action, action_spec, given(member)));
}

bf_status_t pipe_mgr_adt_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t action_data_table,
                                 pipe_member_handle_t member, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec, uint32_t flags) {
  return SOFT_CALL((session, device, action_data_table, member, action, action_spec, flags),
                   on<&ActionDataTable::set>(ByHandle{session, device, action_data_table}, session,
                                             member, action, action_spec));
}

bf_status_t pipe_mgr_adt_ent_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t action_data_table,
                                 pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL(
      (session, device, action_data_table, member, flags),
      on<&ActionDataTable::remove>(ByHandle{session, device, action_data_table}, session, member));
}

bf_status_t pipe_mgr_get_action_data_entry(pipe_object_handle_t action_data_table,
                                           bf_device_id_t device, pipe_member_handle_t member,
                                           pipe_mgr_action_data_t *data,
                                           pipe_object_handle_t *action, bool read_from_hardware) {
  return SOFT_CALL((action_data_table, device, member, data, action, read_from_hardware),
                   on<&ActionDataTable::get>(Inside{device, action_data_table}, member, given(data),
                                             given(action)));
}

// ---- Groups ----

bf_status_t pipe_mgr_sel_grp_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t selector,
                                 uint32_t max_size, pipe_group_handle_t *group, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, selector, max_size, group, flags),
                   on<&Selector::add>(InPipes{session, device, pipe, selector}, session, max_size,
                                      given(group)));
}

bf_status_t pipe_mgr_sel_grp_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t selector, pipe_group_handle_t group,
                                 uint32_t flags) {
  return SOFT_CALL((session, device, selector, group, flags),
                   on<&Selector::remove>(ByHandle{session, device, selector}, session, group));
}

bf_status_t pipe_mgr_sel_grp_mbr_add(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t selector, pipe_group_handle_t group,
                                     pipe_object_handle_t action, pipe_member_handle_t member,
                                     uint32_t flags) {
  return SOFT_CALL(
      (session, device, selector, group, action, member, flags),
      on<&Selector::join>(ByHandle{session, device, selector}, session, group, action, member));
}

bf_status_t pipe_mgr_sel_grp_mbr_del(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t selector, pipe_group_handle_t group,
                                     pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL(
      (session, device, selector, group, member, flags),
      on<&Selector::leave>(ByHandle{session, device, selector}, session, group, member));
}

bf_status_t pipe_mgr_sel_grp_mbr_enable(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t selector, pipe_group_handle_t group,
                                        pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL(
      (session, device, selector, group, member, flags),
      on<&Selector::set_active>(ByHandle{session, device, selector}, session, group, member, true));
}

bf_status_t pipe_mgr_sel_grp_mbr_disable(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t selector, pipe_group_handle_t group,
                                         pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL((session, device, selector, group, member, flags),
                   on<&Selector::set_active>(ByHandle{session, device, selector}, session, group,
                                             member, false));
}

bf_status_t pipe_mgr_sel_grp_mbr_state_get(pipe_session_handle_t session, bf_device_id_t device,
                                           pipe_object_handle_t selector, pipe_group_handle_t group,
                                           pipe_member_handle_t member, uint32_t *state) {
  return SOFT_CALL(
      (session, device, selector, group, member, state),
      on<member_state_of>(ByHandle{session, device, selector}, group, member, given(state)));
}

bf_status_t pipe_mgr_sel_grp_mbr_get_from_hash(pipe_session_handle_t session, bf_device_id_t device,
                                               pipe_object_handle_t selector,
                                               pipe_group_handle_t group, const uint8_t *hash,
                                               uint32_t hash_length, pipe_member_handle_t *member) {
  return SOFT_CALL((session, device, selector, group, list(hash, hash_length), hash_length, member),
                   on<&Selector::choose>(ByHandle{session, device, selector}, group, given(hash),
                                         hash_length, given(member)));
}

bf_status_t pipe_mgr_sel_fallback_mbr_set(pipe_session_handle_t session, bf_device_id_t device,
                                          bf_pipe_id_t pipe, pipe_object_handle_t selector,
                                          pipe_member_handle_t member, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, selector, member, flags),
                   on<&Selector::set_fallback>(InPipes{session, device, pipe, selector}, member));
}

bf_status_t pipe_mgr_sel_fallback_mbr_reset(pipe_session_handle_t session, bf_device_id_t device,
                                            bf_pipe_id_t pipe, pipe_object_handle_t selector,
                                            uint32_t flags) {
  return SOFT_CALL((session, device, pipe, selector, flags),
                   on<&Selector::reset_fallback>(InPipes{session, device, pipe, selector}));
}

bf_status_t pipe_mgr_get_first_group_member(pipe_session_handle_t session,
                                            pipe_object_handle_t selector, bf_device_id_t device,
                                            pipe_group_handle_t group,
                                            pipe_member_handle_t *member) {
  return SOFT_CALL(
      (session, selector, device, group, member),
      on<&Selector::first_member>(ByHandle{session, device, selector}, group, given(member)));
}

bf_status_t pipe_mgr_get_next_group_members(pipe_session_handle_t session,
                                            pipe_object_handle_t selector, bf_device_id_t device,
                                            pipe_group_handle_t group, pipe_member_handle_t member,
                                            uint32_t count, pipe_member_handle_t *members) {
  return SOFT_CALL((session, selector, device, group, member, count, list(members, count)),
                   on<&Selector::next_members>(ByHandle{session, device, selector}, group, member,
                                               list(members, count)));
}

bf_status_t pipe_mgr_get_sel_grp_mbr_count(pipe_session_handle_t session, bf_device_id_t device,
                                           pipe_object_handle_t selector, pipe_group_handle_t group,
                                           uint32_t *count) {
  return SOFT_CALL(
      (session, device, selector, group, count),
      on<&Selector::member_count>(ByHandle{session, device, selector}, group, given(count)));
}

bf_status_t pipe_mgr_get_word_llp_active_member_count(pipe_session_handle_t session,
                                                      bf_device_id_t device, bf_pipe_id_t pipe,
                                                      pipe_object_handle_t selector, uint32_t word,
                                                      uint32_t *count) {
  return SOFT_CALL((session, device, pipe, selector, word, count),
                   on<count_in_word>(InPipes{session, device, pipe, selector}, word, given(count)));
}

bf_status_t pipe_mgr_get_word_llp_active_members(pipe_session_handle_t session,
                                                 bf_device_id_t device, bf_pipe_id_t pipe,
                                                 pipe_object_handle_t selector, uint32_t word,
                                                 uint32_t count, pipe_member_handle_t *members) {
  return SOFT_CALL(
      (session, device, pipe, selector, word, count, list(members, count)),
      on<copy_word>(InPipes{session, device, pipe, selector}, word, list(members, count)));
}

// ---- Callbacks ----

// Session 0 stands for none: a listener may be there before the first session is.
bf_status_t pipe_mgr_sel_tbl_register_cb(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t selector,
                                         pipe_mgr_sel_update_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, selector, callback, cookie),
                   on<&Selector::listen>(MaybeSession{{session, device, selector}},
                                         Selector::Ear::kOwner, callback, cookie));
}

bf_status_t pipe_register_adt_update_cb(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t action_data_table,
                                        pipe_mgr_adt_update_cb_t callback, void *cookie) {
  return SOFT_CALL(
      (session, device, action_data_table, callback, cookie),
      on<&ActionDataTable::listen>(ByHandle{session, device, action_data_table}, callback, cookie));
}

bf_status_t pipe_register_sel_update_cb(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t selector,
                                        pipe_mgr_sel_update_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, selector, callback, cookie),
                   on<&Selector::listen>(ByHandle{session, device, selector},
                                         Selector::Ear::kFurther, callback, cookie));
}
