#include "placement.hpp"

#include "codec/bytes.hpp"
#include "codec/decode.hpp"
#include "device_state.hpp"

namespace pd {

namespace {

bool lacks_key_outputs(const Table &table, const void *match_spec, const uint32_t *priority) {
  return (table.kind != Kind::keyless && match_spec == nullptr) ||
         (table.kind == Kind::ternary && priority == nullptr);
}

void report_key(const Table &table, const ReadKey &key, void *match_spec, uint32_t *priority,
                bool *no_key) {
  *no_key = table.kind == Kind::keyless || !key.has_key();
  if (!*no_key) key.decode(match_spec);
  if (table.kind == Kind::ternary) *priority = key.spec.priority;
}

// A resource list lent by someone else.
struct Resources {
  const p4_pd_res_spec_t *items;
  uint32_t count;
};

void report_action(const Action &action, const uint8_t *bytes, Resources resources, void *out) {
  auto *specs = static_cast<uint8_t *>(out);
  store(specs, 4, action.value);
  if (action.param_count == 0) return;
  decode_action(action, bytes, resources.items, resources.count, specs + action_specs_union_offset);
}

// The action data and action of a placed member.
struct PlacedMember {
  uint8_t bytes[limits::action_data] = {};
  const Action *action = nullptr;

  p4_pd_status_t decode(const Profile &profile, const pipe_mgr_placement_t *placement) {
    pipe_mgr_action_data_t data = {0, 0, bytes};
    uint32_t handle = 0;
    const p4_pd_status_t status = pipe_mgr_plcmt_adt_data_get_entry(placement, &data, &handle);
    if (status != BF_SUCCESS) return status;
    action = find_action(profile.pairs, profile.pair_count, handle);
    if (action == nullptr) return P4_PD_FOREIGN_ACTION;
    return BF_SUCCESS;
  }
};

}  // namespace

p4_pd_status_t decode_placed_entry(const Table &table, const pipe_mgr_placement_t *placement,
                                   const PlacedEntryOut &out) {
  if (lacks_key_outputs(table, out.match_spec, out.priority) || out.action_specs == nullptr ||
      out.no_key == nullptr) {
    return P4_PD_NULL_ARGUMENT;
  }
  ReadKey key(table, false);
  ReadAction read(0);
  uint32_t handle = 0;
  p4_pd_status_t status =
      pipe_mgr_plcmt_mat_data_get_entry(placement, &key.spec, &read.spec, &handle);
  if (status != BF_SUCCESS) return status;
  const Action *action = find_action(table.pairs, table.pair_count, handle);
  if (action == nullptr) return P4_PD_FOREIGN_ACTION;
  ResourceList resources;
  if (action->param_count != 0) status = resources.build(read.spec);
  if (status != BF_SUCCESS) return status;
  report_key(table, key, out.match_spec, out.priority, out.no_key);
  report_action(*action, read.bytes, {resources.items(), resources.count()}, out.action_specs);
  return BF_SUCCESS;
}

p4_pd_status_t decode_placed_indirect_entry(const Table &table,
                                            const pipe_mgr_placement_t *placement,
                                            const IndirectOut &out) {
  if (lacks_key_outputs(table, out.match_spec, out.priority) || out.has_member == nullptr ||
      out.has_group == nullptr || out.member == nullptr || out.group == nullptr ||
      out.no_key == nullptr) {
    return P4_PD_NULL_ARGUMENT;
  }
  ReadKey key(table, false);
  ReadAction read(0);
  uint32_t handle = 0;
  const p4_pd_status_t status =
      pipe_mgr_plcmt_mat_data_get_entry(placement, &key.spec, &read.spec, &handle);
  if (status != BF_SUCCESS) return status;
  report_key(table, key, out.match_spec, out.priority, out.no_key);
  const bool member = read.spec.type == PIPE_ACTION_MEMBER;
  const bool group = read.spec.type == PIPE_ACTION_GROUP;
  if (member) *out.member = read.spec.member;
  if (group) *out.group = read.spec.group;
  if (member || group) {
    *out.has_member = member;
    *out.has_group = group;
  }
  return BF_SUCCESS;
}

p4_pd_status_t decode_placed_member(const Profile &profile, const pipe_mgr_placement_t *placement,
                                    void *action_specs) {
  if (action_specs == nullptr) return P4_PD_NULL_ARGUMENT;
  PlacedMember member;
  const p4_pd_status_t status = member.decode(profile, placement);
  if (status != BF_SUCCESS) return status;
  report_action(*member.action, member.bytes, {nullptr, 0}, action_specs);
  return BF_SUCCESS;
}

p4_pd_status_t decode_placed_member_with_resources(const Profile &profile, uint8_t device,
                                                   p4_pd_member_handle_t member,
                                                   const pipe_mgr_placement_t *placement,
                                                   void *action_specs) {
  if (action_specs == nullptr) return P4_PD_NULL_ARGUMENT;
  PlacedMember placed;
  const p4_pd_status_t status = placed.decode(profile, placement);
  if (status != BF_SUCCESS) return status;
  uint32_t count = 0;
  p4_pd_res_spec_t *resources = nullptr;
  if (placed.action->param_count != 0 && state_of(profile) != nullptr) {
    p4_pd_ms_mbr_get_res(state_of(profile), device, member, &count, &resources);
  }
  report_action(*placed.action, placed.bytes, {resources, count}, action_specs);
  return BF_SUCCESS;
}

p4_pd_status_t restore_virtual_device(p4_pd_session_handle_t session, uint32_t device,
                                      uint32_t virtual_device, uint32_t pipe, uint32_t flags) {
  return pipe_mgr_hitless_ha_restore_virtual_dev_state(session, device, virtual_device, pipe, flags,
                                                       replay);
}

}  // namespace pd
