// Operations on a match table as a whole. Each makes at most one SDK call with the table's handle.
#pragma once

#include "p4_pd_types.h"
#include "pipe_mgr_match.h"

namespace pd {

inline p4_pd_status_t get_handle(uint32_t handle, uint32_t *out) {
  if (out != nullptr) *out = handle;
  return BF_SUCCESS;
}

inline p4_pd_status_t get_entry_count(uint32_t table, p4_pd_session_handle_t session,
                                      p4_pd_device_target_t target, uint32_t *count) {
  return pipe_mgr_get_entry_count(session, target.device_id, target.pipe_id, table, 0, count);
}

inline p4_pd_status_t set_property(uint32_t table, p4_pd_session_handle_t session, uint8_t device,
                                   uint32_t property, uint32_t value, uint32_t argument) {
  return pipe_mgr_tbl_set_property(session, device, table, property, value, argument);
}

// Unlike other read-backs this writes on failure too: both outputs read 0xffffffff then.
p4_pd_status_t get_property(uint32_t table, p4_pd_session_handle_t session, uint8_t device,
                            uint32_t property, uint32_t *value, uint32_t *argument);

inline p4_pd_status_t register_update_callback(uint32_t table, p4_pd_session_handle_t session,
                                               uint32_t device, pipe_mgr_mat_update_cb_t callback,
                                               void *cookie) {
  return pipe_register_mat_update_cb(session, device, table, callback, cookie);
}

inline p4_pd_status_t reset_default_entry(uint32_t table, p4_pd_session_handle_t session,
                                          p4_pd_device_target_t target) {
  return pipe_mgr_mat_tbl_default_entry_reset(session, target.device_id, target.pipe_id, table, 0);
}

}  // namespace pd
