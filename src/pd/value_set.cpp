#include "value_set.hpp"

namespace pd {

p4_pd_status_t get_value_set_property(uint32_t set, p4_pd_session_handle_t session, uint32_t device,
                                      uint32_t property, uint32_t *value, uint32_t argument) {
  if (value == nullptr) return P4_PD_NULL_ARGUMENT;
  uint32_t read = 0;
  const p4_pd_status_t status =
      pipe_mgr_pvs_get_property(session, device, set, property, &read, argument, 0);
  *value = status == BF_SUCCESS ? read : 0xffffffffu;
  return status;
}

p4_pd_status_t add_value(uint32_t set, p4_pd_session_handle_t session, p4_pd_parser_target_t target,
                         uint32_t value, uint32_t mask, p4_pd_entry_handle_t *entry) {
  if (entry == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_mgr_pvs_entry_add(session, target.device_id, set, target.direction, target.pipe_id,
                                target.parser_id, value, mask, entry);
}

p4_pd_status_t get_value(uint32_t set, p4_pd_session_handle_t session, uint32_t device,
                         p4_pd_entry_handle_t entry, uint32_t *value, uint32_t *mask) {
  if (value == nullptr || mask == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_mgr_pvs_entry_get(session, device, set, entry, value, mask);
}

p4_pd_status_t find_value(uint32_t set, p4_pd_session_handle_t session,
                          p4_pd_parser_target_t target, uint32_t value, uint32_t mask,
                          p4_pd_entry_handle_t *entry) {
  if (entry == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_mgr_pvs_entry_handle_get(session, target.device_id, set, target.direction,
                                       target.pipe_id, target.parser_id, value, mask, entry);
}

p4_pd_status_t first_value(uint32_t set, p4_pd_session_handle_t session,
                           p4_pd_parser_target_t target, p4_pd_entry_handle_t *entry) {
  if (entry == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_mgr_pvs_entry_get_first(session, target.device_id, set, target.direction,
                                      target.pipe_id, target.parser_id, entry);
}

p4_pd_status_t next_values(uint32_t set, p4_pd_session_handle_t session,
                           p4_pd_parser_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
                           p4_pd_entry_handle_t *entries) {
  if (count != 0 && entries == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_mgr_pvs_entry_get_next(session, target.device_id, set, target.direction,
                                     target.pipe_id, target.parser_id, entry, count, entries);
}

p4_pd_status_t count_values(uint32_t set, p4_pd_session_handle_t session,
                            p4_pd_parser_target_t target, uint8_t read_from_hardware,
                            uint32_t *count) {
  if (count == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_mgr_pvs_entry_get_count(session, target.device_id, set, target.direction,
                                      target.pipe_id, target.parser_id, read_from_hardware, count);
}

}  // namespace pd
