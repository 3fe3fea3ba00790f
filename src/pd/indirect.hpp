// Entries of tables that are bound to an action profile: they point at a member or at a group, and
// the action that the pipeline manager wants with them comes from the member-selector state.
#pragma once

#include "codec/key_encode.hpp"
#include "device_state.hpp"
#include "pipe_mgr_match.h"

namespace pd {

// What an entry points at.
struct Member {
  p4_pd_member_handle_t handle;
};
struct Group {
  p4_pd_group_handle_t handle;
};

// The action function handle of the member or group; the state's status when it knows none.
PD_INLINE p4_pd_status_t recorded_action(p4_pd_ms_state_t *state, uint32_t device, Member member,
                                         uint32_t *action) {
  return p4_pd_ms_get_mbr_act(state, static_cast<uint8_t>(device), member.handle, action);
}
PD_INLINE p4_pd_status_t recorded_action(p4_pd_ms_state_t *state, uint32_t device, Group group,
                                         uint32_t *action) {
  return p4_pd_ms_get_grp_act(state, static_cast<uint8_t>(device), group.handle, action);
}

PD_INLINE void point_at(pipe_mgr_action_spec_t &spec, Member member) {
  clear(spec);
  spec.type = PIPE_ACTION_MEMBER;
  spec.member = member.handle;
}
PD_INLINE void point_at(pipe_mgr_action_spec_t &spec, Group group) {
  clear(spec);
  spec.type = PIPE_ACTION_GROUP;
  spec.group = group.handle;
}

template <class T, class Target>
PD_INLINE p4_pd_status_t add_indirect_entry(p4_pd_session_handle_t session,
                                            const p4_pd_device_target_t &target,
                                            const typename T::Record *match_spec, uint32_t priority,
                                            Target pointee, p4_pd_entry_handle_t *entry) {
  if (match_spec == nullptr) return P4_PD_NULL_ARGUMENT;
  KeyBytes<T> key;
  pipe_mgr_match_spec_t match;
  pipe_mgr_action_spec_t spec;
  encode_key<T>(*match_spec, priority, key, match);
  point_at(spec, pointee);
  uint32_t action = 0;
  const p4_pd_status_t status =
      recorded_action(profile_states[T::table.profile], target.device_id, pointee, &action);
  if (status != BF_SUCCESS) return status;
  return pipe_mgr_mat_ent_add(session, target.device_id, target.pipe_id, T::table.handle, &match,
                              action, &spec, 0, 0, entry);
}

template <class T, class Target>
PD_INLINE p4_pd_status_t modify_indirect_entry(p4_pd_session_handle_t session, uint8_t device,
                                               p4_pd_entry_handle_t entry, Target pointee) {
  pipe_mgr_action_spec_t spec;
  point_at(spec, pointee);
  uint32_t action = 0;
  const p4_pd_status_t status =
      recorded_action(profile_states[T::table.profile], device, pointee, &action);
  if (status != BF_SUCCESS) return status;
  return pipe_mgr_mat_ent_set_action(session, device, T::table.handle, entry, action, &spec, 0);
}

template <class T, class Target>
PD_INLINE p4_pd_status_t modify_indirect_entry_by_match_spec(p4_pd_session_handle_t session,
                                                             const p4_pd_device_target_t &target,
                                                             const typename T::Record *match_spec,
                                                             uint32_t priority, Target pointee) {
  if (match_spec == nullptr) return P4_PD_NULL_ARGUMENT;
  KeyBytes<T> key;
  pipe_mgr_match_spec_t match;
  pipe_mgr_action_spec_t spec;
  encode_key<T>(*match_spec, priority, key, match);
  point_at(spec, pointee);
  uint32_t action = 0;
  const p4_pd_status_t status =
      recorded_action(profile_states[T::table.profile], target.device_id, pointee, &action);
  if (status != BF_SUCCESS) return status;
  return pipe_mgr_mat_ent_set_action_by_match_spec(session, target.device_id, target.pipe_id,
                                                   T::table.handle, &match, action, &spec, 0);
}

template <class T, class Target>
PD_INLINE p4_pd_status_t set_indirect_default_entry(p4_pd_session_handle_t session,
                                                    const p4_pd_device_target_t &target,
                                                    Target pointee, p4_pd_entry_handle_t *entry) {
  pipe_mgr_action_spec_t spec;
  point_at(spec, pointee);
  uint32_t action = 0;
  const p4_pd_status_t status =
      recorded_action(profile_states[T::table.profile], target.device_id, pointee, &action);
  if (status != BF_SUCCESS) return status;
  return pipe_mgr_mat_default_entry_set(session, target.device_id, target.pipe_id, T::table.handle,
                                        action, &spec, 0, entry);
}

}  // namespace pd
