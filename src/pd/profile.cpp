#include "profile.hpp"

#include <string.h>

#include "codec/decode.hpp"

namespace pd {

p4_pd_status_t delete_member(const Profile &profile, p4_pd_session_handle_t session, uint8_t device,
                             p4_pd_member_handle_t member) {
  const p4_pd_status_t status =
      pipe_mgr_adt_ent_del(session, device, profile.action_data_table, member, 0);
  if (status != BF_SUCCESS) return status;
  p4_pd_ms_del_mbr(session, state_of(profile), device, member);
  return BF_SUCCESS;
}

p4_pd_status_t create_group(const Profile &profile, p4_pd_session_handle_t session,
                            p4_pd_device_target_t target, uint32_t max_size,
                            p4_pd_group_handle_t *group) {
  if (group == nullptr) return P4_PD_NULL_ARGUMENT;
  const p4_pd_status_t status = pipe_mgr_sel_grp_add(session, target.device_id, target.pipe_id,
                                                     profile.selector, max_size, group, 0);
  if (status != BF_SUCCESS) return status;
  p4_pd_ms_new_grp(session, state_of(profile), static_cast<uint8_t>(target.device_id), *group);
  return BF_SUCCESS;
}

p4_pd_status_t delete_group(const Profile &profile, p4_pd_session_handle_t session, uint8_t device,
                            p4_pd_group_handle_t group) {
  const p4_pd_status_t status = pipe_mgr_sel_grp_del(session, device, profile.selector, group, 0);
  if (status != BF_SUCCESS) return status;
  return p4_pd_ms_del_grp(session, state_of(profile), device, group);
}

p4_pd_status_t add_member_to_group(const Profile &profile, p4_pd_session_handle_t session,
                                   uint8_t device, p4_pd_group_handle_t group,
                                   p4_pd_member_handle_t member) {
  p4_pd_ms_state_t *state = state_of(profile);
  uint32_t action = 0;
  p4_pd_status_t status = p4_pd_ms_get_mbr_act(state, device, member, &action);
  if (status != BF_SUCCESS) return status;
  status = pipe_mgr_sel_grp_mbr_add(session, device, profile.selector, group, action, member, 0);
  if (status != BF_SUCCESS) return status;
  p4_pd_ms_add_mbr_to_grp(session, state, device, member, group);
  p4_pd_ms_set_grp_act(state, device, group, action);
  return BF_SUCCESS;
}

p4_pd_status_t delete_member_from_group(const Profile &profile, p4_pd_session_handle_t session,
                                        uint8_t device, p4_pd_group_handle_t group,
                                        p4_pd_member_handle_t member) {
  const p4_pd_status_t status =
      pipe_mgr_sel_grp_mbr_del(session, device, profile.selector, group, member, 0);
  if (status != BF_SUCCESS) return status;
  p4_pd_ms_del_mbr_from_grp(session, state_of(profile), device, member, group);
  return BF_SUCCESS;
}

p4_pd_status_t set_member_state(const Profile &profile, p4_pd_session_handle_t session,
                                uint8_t device, p4_pd_group_handle_t group,
                                p4_pd_member_handle_t member, uint32_t state) {
  switch (state) {
    case P4_PD_GRP_MBR_STATE_ACTIVE:
      return pipe_mgr_sel_grp_mbr_enable(session, device, profile.selector, group, member, 0);
    case P4_PD_GRP_MBR_STATE_INACTIVE:
      return pipe_mgr_sel_grp_mbr_disable(session, device, profile.selector, group, member, 0);
    default:
      return P4_PD_MEMBER_STATE_REFUSED;
  }
}

p4_pd_status_t get_member_state(const Profile &profile, p4_pd_session_handle_t session,
                                uint8_t device, p4_pd_group_handle_t group,
                                p4_pd_member_handle_t member, uint32_t *state) {
  if (state == nullptr) return P4_PD_NULL_ARGUMENT;
  uint32_t read = 0;
  const p4_pd_status_t status =
      pipe_mgr_sel_grp_mbr_state_get(session, device, profile.selector, group, member, &read);
  if (status != BF_SUCCESS) return status;
  if (read == PIPE_MEMBER_ACTIVE) *state = P4_PD_GRP_MBR_STATE_ACTIVE;
  if (read == PIPE_MEMBER_INACTIVE) *state = P4_PD_GRP_MBR_STATE_INACTIVE;
  return BF_SUCCESS;
}

p4_pd_status_t get_member(const Profile &profile, p4_pd_session_handle_t, uint8_t device,
                          p4_pd_member_handle_t member, bool read_from_hardware,
                          void *action_specs) {
  if (action_specs == nullptr) return P4_PD_NULL_ARGUMENT;
  uint8_t bytes[limits::action_data] = {};
  pipe_mgr_action_data_t data = {0, limits::action_data, bytes};
  uint32_t handle = 0;
  const p4_pd_status_t status = pipe_mgr_get_action_data_entry(
      profile.action_data_table, device, member, &data, &handle, read_from_hardware);
  if (status != BF_SUCCESS) return status;
  const Action *action = find_action(profile.pairs, profile.pair_count, handle);
  if (action == nullptr) return P4_PD_FOREIGN_ACTION;
  auto *out = static_cast<uint8_t *>(action_specs);
  store(out, 4, action->value);
  if (action->param_count != 0) {
    uint32_t count = 0;
    p4_pd_res_spec_t *resources = nullptr;
    p4_pd_ms_mbr_get_res(state_of(profile), device, member, &count, &resources);
    decode_action(*action, bytes, resources, count, out + action_specs_union_offset);
  }
  return BF_SUCCESS;
}

}  // namespace pd
