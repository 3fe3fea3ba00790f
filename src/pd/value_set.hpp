// Parser value sets: entries of value and mask in the parsers of a device.
#pragma once

#include "p4_pd_types.h"
#include "pipe_mgr_pvs.h"

namespace pd {

inline p4_pd_status_t set_value_set_property(uint32_t set, p4_pd_session_handle_t session,
                                             uint32_t device, uint32_t property, uint32_t value,
                                             uint32_t argument) {
  return pipe_mgr_pvs_set_property(session, device, set, property, value, argument, 0);
}

// Unlike other read-backs this writes on failure too: value reads 0xffffffff then.
p4_pd_status_t get_value_set_property(uint32_t set, p4_pd_session_handle_t session, uint32_t device,
                                      uint32_t property, uint32_t *value, uint32_t argument);

p4_pd_status_t add_value(uint32_t set, p4_pd_session_handle_t session, p4_pd_parser_target_t target,
                         uint32_t value, uint32_t mask, p4_pd_entry_handle_t *entry);

inline p4_pd_status_t modify_value(uint32_t set, p4_pd_session_handle_t session, uint32_t device,
                                   p4_pd_entry_handle_t entry, uint32_t value, uint32_t mask) {
  return pipe_mgr_pvs_entry_modify(session, device, set, entry, value, mask);
}

inline p4_pd_status_t delete_value(uint32_t set, p4_pd_session_handle_t session, uint32_t device,
                                   p4_pd_entry_handle_t entry) {
  return pipe_mgr_pvs_entry_delete(session, device, set, entry);
}

p4_pd_status_t get_value(uint32_t set, p4_pd_session_handle_t session, uint32_t device,
                         p4_pd_entry_handle_t entry, uint32_t *value, uint32_t *mask);

p4_pd_status_t find_value(uint32_t set, p4_pd_session_handle_t session,
                          p4_pd_parser_target_t target, uint32_t value, uint32_t mask,
                          p4_pd_entry_handle_t *entry);
p4_pd_status_t first_value(uint32_t set, p4_pd_session_handle_t session,
                           p4_pd_parser_target_t target, p4_pd_entry_handle_t *entry);
// Fills entries with up to count handles behind entry.
p4_pd_status_t next_values(uint32_t set, p4_pd_session_handle_t session,
                           p4_pd_parser_target_t target, p4_pd_entry_handle_t entry, uint32_t count,
                           p4_pd_entry_handle_t *entries);
p4_pd_status_t count_values(uint32_t set, p4_pd_session_handle_t session,
                            p4_pd_parser_target_t target, uint8_t read_from_hardware,
                            uint32_t *count);

}  // namespace pd
