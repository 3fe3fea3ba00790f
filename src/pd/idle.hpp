// Ageing of the entries of a table, by the table's handle.
#pragma once

#include "p4_pd_types.h"
#include "pipe_mgr_match.h"

namespace pd {

inline p4_pd_status_t enable_idle_timeout(uint32_t table, p4_pd_session_handle_t session,
                                          uint8_t device, p4_pd_idle_time_params_t params) {
  return pipe_mgr_idle_tmo_enable(session, device, table, params);
}

inline p4_pd_status_t disable_idle_timeout(uint32_t table, p4_pd_session_handle_t session,
                                           uint8_t device) {
  return pipe_mgr_idle_tmo_disable(session, device, table);
}

inline p4_pd_status_t register_idle_callback(uint32_t table, p4_pd_session_handle_t session,
                                             uint8_t device, pipe_mgr_idle_cb_t callback,
                                             void *client_data) {
  return pipe_mgr_idle_register_tmo_cb(session, device, table, callback, client_data);
}

// Writes the mode, and the other words only in the mode that has them.
inline p4_pd_status_t get_idle_params(uint32_t table, p4_pd_session_handle_t session,
                                      uint8_t device, p4_pd_idle_time_params_t *params) {
  if (params == nullptr) return P4_PD_NULL_ARGUMENT;
  pipe_mgr_idle_params_t read = {};
  const p4_pd_status_t status = pipe_mgr_idle_params_get(session, device, table, &read);
  if (status != BF_SUCCESS) return status;
  if (read.mode == PIPE_IDLE_NOTIFY) {
    *params = read;
  } else {
    params->mode = read.mode;
  }
  return BF_SUCCESS;
}

inline p4_pd_status_t set_ttl(uint32_t table, p4_pd_session_handle_t session, uint8_t device,
                              p4_pd_entry_handle_t entry, uint32_t ttl) {
  return pipe_mgr_mat_ent_set_idle_ttl(session, device, table, entry, ttl, 0);
}

inline p4_pd_status_t get_ttl(uint32_t table, p4_pd_session_handle_t session, uint8_t device,
                              p4_pd_entry_handle_t entry, uint32_t *ttl) {
  return pipe_mgr_mat_ent_get_idle_ttl(session, device, table, entry, ttl);
}

inline p4_pd_status_t update_hit_state(uint32_t table, p4_pd_session_handle_t session,
                                       uint8_t device, p4_pd_entry_handle_t entry,
                                       uint32_t hit_state) {
  return pipe_mgr_idle_time_update_hit_state(session, device, table, entry, hit_state);
}

// Stores a state on failure too; it carries no meaning then.
inline p4_pd_status_t get_hit_state(uint32_t table, p4_pd_session_handle_t session, uint8_t device,
                                    p4_pd_entry_handle_t entry, uint32_t *hit_state) {
  if (hit_state == nullptr) return P4_PD_NULL_ARGUMENT;
  uint32_t read = PIPE_ENTRY_IDLE;
  const p4_pd_status_t status =
      pipe_mgr_idle_time_get_hit_state(session, device, table, entry, &read);
  *hit_state = read;
  return status;
}

}  // namespace pd
