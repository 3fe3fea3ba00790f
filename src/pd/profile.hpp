// Members and groups of an action profile. A change goes to the pipeline manager first and, once it
// has succeeded there, into the profile's member-selector state.
#pragma once

#include "codec/action_encode.hpp"
#include "device_state.hpp"
#include "pipe_mgr_profile.h"

namespace pd {

// A is a type of a profile's descriptor: the action and its function handle in the profile.
template <class A>
p4_pd_status_t add_member(const Profile &profile, p4_pd_session_handle_t session,
                          p4_pd_device_target_t target, const void *action_spec,
                          p4_pd_member_handle_t *member) {
  if (member == nullptr) return P4_PD_NULL_ARGUMENT;
  if (A::ActionType::action.param_count != 0 && action_spec == nullptr) return P4_PD_NULL_ARGUMENT;
  ActionBytes<typename A::ActionType> data;
  pipe_mgr_action_spec_t spec;
  encode_action_data<typename A::ActionType>(action_spec, data, spec);
  const p4_pd_status_t status =
      pipe_mgr_adt_ent_add(session, target.device_id, target.pipe_id, profile.action_data_table,
                           A::handle, &spec, member, 0);
  if (status != BF_SUCCESS) return status;
  const auto device = static_cast<uint8_t>(target.device_id);
  p4_pd_ms_new_mbr(session, state_of(profile), device, *member);
  p4_pd_ms_set_mbr_act(state_of(profile), device, *member, A::handle);
  return BF_SUCCESS;
}

template <class A>
p4_pd_status_t modify_member(const Profile &profile, p4_pd_session_handle_t session, uint8_t device,
                             p4_pd_member_handle_t member, const void *action_spec) {
  if (A::ActionType::action.param_count != 0 && action_spec == nullptr) return P4_PD_NULL_ARGUMENT;
  uint32_t action = 0;
  const p4_pd_status_t status = p4_pd_ms_get_mbr_act(state_of(profile), device, member, &action);
  if (status != BF_SUCCESS) return status;
  if (action != A::handle) return P4_PD_MEMBER_KEEPS_ACTION;
  ActionBytes<typename A::ActionType> data;
  pipe_mgr_action_spec_t spec;
  encode_action_data<typename A::ActionType>(action_spec, data, spec);
  return pipe_mgr_adt_ent_set(session, device, profile.action_data_table, member, A::handle, &spec,
                              0);
}

p4_pd_status_t delete_member(const Profile &profile, p4_pd_session_handle_t session, uint8_t device,
                             p4_pd_member_handle_t member);

p4_pd_status_t create_group(const Profile &profile, p4_pd_session_handle_t session,
                            p4_pd_device_target_t target, uint32_t max_size,
                            p4_pd_group_handle_t *group);

// The status is that of the member-selector state once the pipeline manager has succeeded.
p4_pd_status_t delete_group(const Profile &profile, p4_pd_session_handle_t session, uint8_t device,
                            p4_pd_group_handle_t group);

// The group's recorded action becomes that of the member.
p4_pd_status_t add_member_to_group(const Profile &profile, p4_pd_session_handle_t session,
                                   uint8_t device, p4_pd_group_handle_t group,
                                   p4_pd_member_handle_t member);
p4_pd_status_t delete_member_from_group(const Profile &profile, p4_pd_session_handle_t session,
                                        uint8_t device, p4_pd_group_handle_t group,
                                        p4_pd_member_handle_t member);

// P4_PD_MEMBER_STATE_REFUSED for a state other than the two.
p4_pd_status_t set_member_state(const Profile &profile, p4_pd_session_handle_t session,
                                uint8_t device, p4_pd_group_handle_t group,
                                p4_pd_member_handle_t member, uint32_t state);
// A state of the pipeline manager other than the two leaves the output as it was.
p4_pd_status_t get_member_state(const Profile &profile, p4_pd_session_handle_t session,
                                uint8_t device, p4_pd_group_handle_t group,
                                p4_pd_member_handle_t member, uint32_t *state);

// Fills an action specs record. P4_PD_FOREIGN_ACTION for an action that the profile does not have.
p4_pd_status_t get_member(const Profile &profile, p4_pd_session_handle_t session, uint8_t device,
                          p4_pd_member_handle_t member, bool read_from_hardware,
                          void *action_specs);

}  // namespace pd
