#include "read_back.hpp"

#include <string.h>

#include "codec/bytes.hpp"
#include "codec/decode.hpp"

namespace pd {

namespace {

void report_member_or_group(const pipe_mgr_action_spec_t &spec, const IndirectOut &out) {
  *out.has_member = spec.type == PIPE_ACTION_MEMBER;
  *out.has_group = spec.type == PIPE_ACTION_GROUP;
  if (*out.has_member) *out.member = spec.member;
  if (*out.has_group) *out.group = spec.group;
}

bool lacks_indirect_outputs(const IndirectOut &out) {
  return out.has_member == nullptr || out.has_group == nullptr || out.group == nullptr ||
         out.member == nullptr;
}

bool names_member_or_group(const pipe_mgr_action_spec_t &spec) {
  return spec.type == PIPE_ACTION_MEMBER || spec.type == PIPE_ACTION_GROUP;
}

}  // namespace

p4_pd_status_t get_entry(const Table &table, p4_pd_session_handle_t session, uint8_t device,
                         p4_pd_entry_handle_t entry, bool read_from_hardware, const EntryOut &out) {
  const auto decode = [&](uint32_t handle, const uint8_t *data, const ResourceList &resources,
                          void *action_spec, uint32_t &value) -> p4_pd_status_t {
    const Action *action = find_action(table.pairs, table.pair_count, handle);
    if (action == nullptr) return P4_PD_FOREIGN_ACTION;
    if (action->param_count != 0) {
      if (action_spec == nullptr) return P4_PD_NULL_ARGUMENT;
      decode_action(*action, data, resources.items(), resources.count(), action_spec);
    }
    value = action->value;
    return BF_SUCCESS;
  };
  ReadKey key(table, true);
  return get_entry_with(table, key, decode, session, device, entry, read_from_hardware, out);
}

p4_pd_status_t get_default_entry(const Table &table, p4_pd_session_handle_t session,
                                 p4_pd_device_target_t target, bool read_from_hardware,
                                 void *action_specs) {
  if (action_specs == nullptr) return P4_PD_NULL_ARGUMENT;
  ReadAction read(limits::action_data);
  uint32_t handle = 0;
  p4_pd_status_t status =
      pipe_mgr_table_get_default_entry(session, target.device_id, target.pipe_id, table.handle,
                                       &read.spec, &handle, read_from_hardware);
  if (status != BF_SUCCESS) return status;
  if (read.spec.type != PIPE_ACTION_DATA) return P4_PD_FOREIGN_ACTION;
  ResourceList resources;
  status = resources.build(read.spec);
  if (status != BF_SUCCESS) return status;
  const Action *action = find_action(table.pairs, table.pair_count, handle);
  if (action == nullptr) return P4_PD_FOREIGN_ACTION;
  auto *out = static_cast<uint8_t *>(action_specs);
  store(out, 4, action->value);
  if (action->param_count != 0) {
    decode_action(*action, read.bytes, resources.items(), resources.count(),
                  out + action_specs_union_offset);
  }
  return BF_SUCCESS;
}

p4_pd_status_t get_indirect_entry(const Table &table, p4_pd_session_handle_t session,
                                  uint8_t device, p4_pd_entry_handle_t entry,
                                  bool read_from_hardware, const IndirectOut &out) {
  if (lacks_key_outputs(table, out.match_spec, out.priority, out.no_key) ||
      lacks_indirect_outputs(out)) {
    return P4_PD_NULL_ARGUMENT;
  }
  ReadKey key(table, true);
  pipe_mgr_action_spec_t spec;
  clear(spec);
  uint32_t handle = 0;
  const p4_pd_status_t status = pipe_mgr_get_entry(session, table.handle, device, entry, &key.spec,
                                                   &spec, &handle, read_from_hardware);
  if (status != BF_SUCCESS) return status;
  report_member_or_group(spec, out);
  report_key(table, key, out.match_spec, out.priority, out.no_key);
  return BF_SUCCESS;
}

p4_pd_status_t get_indirect_default_entry(const Table &table, p4_pd_session_handle_t session,
                                          p4_pd_device_target_t target, bool read_from_hardware,
                                          const IndirectOut &out) {
  if (lacks_indirect_outputs(out)) return P4_PD_NULL_ARGUMENT;
  pipe_mgr_action_spec_t spec;
  clear(spec);
  uint32_t handle = 0;
  const p4_pd_status_t status = pipe_mgr_table_get_default_entry(
      session, target.device_id, target.pipe_id, table.handle, &spec, &handle, read_from_hardware);
  if (status != BF_SUCCESS) return status;
  if (!names_member_or_group(spec)) return P4_PD_FOREIGN_ACTION;
  report_member_or_group(spec, out);
  return BF_SUCCESS;
}

}  // namespace pd
