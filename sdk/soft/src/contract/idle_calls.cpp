// The functions of the contract that concern ageing.
#include "contract/resolve.hpp"
#include "pipe_mgr_match.h"
#include "tables/match_engine.hpp"

using namespace soft;

bf_status_t pipe_mgr_idle_tmo_enable(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t table, pipe_mgr_idle_params_t params) {
  return SOFT_CALL((session, device, table, params),
                   on<&MatchEngine::start_ageing>(ByHandle{session, device, table}, params));
}

bf_status_t pipe_mgr_idle_tmo_disable(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t table) {
  return SOFT_CALL((session, device, table),
                   on<&MatchEngine::stop_ageing>(ByHandle{session, device, table}));
}

bf_status_t pipe_mgr_idle_register_tmo_cb(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_mgr_idle_cb_t callback,
                                          void *client_data) {
  return SOFT_CALL(
      (session, device, table, callback, client_data),
      on<&MatchEngine::listen_to_expiry>(ByHandle{session, device, table}, callback, client_data));
}

bf_status_t pipe_mgr_idle_params_get(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t table, pipe_mgr_idle_params_t *params) {
  return SOFT_CALL((session, device, table, params),
                   on<&MatchEngine::ageing>(ByHandle{session, device, table}, params));
}

bf_status_t pipe_mgr_mat_ent_set_idle_ttl(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_entry_handle_t entry,
                                          uint32_t ttl, uint32_t reset) {
  return SOFT_CALL(
      (session, device, table, entry, ttl, reset),
      on<&MatchEngine::set_ttl>(ByHandle{session, device, table}, entry, ttl, reset != 0));
}

bf_status_t pipe_mgr_mat_ent_get_idle_ttl(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_entry_handle_t entry,
                                          uint32_t *ttl) {
  return SOFT_CALL((session, device, table, entry, ttl),
                   on<&MatchEngine::get_ttl>(ByHandle{session, device, table}, entry, ttl));
}

bf_status_t pipe_mgr_idle_time_update_hit_state(pipe_session_handle_t session,
                                                bf_device_id_t device, pipe_object_handle_t table,
                                                pipe_entry_handle_t entry, uint32_t hit_state) {
  return SOFT_CALL(
      (session, device, table, entry, hit_state),
      on<&MatchEngine::set_hit_state>(ByHandle{session, device, table}, entry, hit_state));
}

bf_status_t pipe_mgr_idle_time_get_hit_state(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t table, pipe_entry_handle_t entry,
                                             uint32_t *hit_state) {
  return SOFT_CALL(
      (session, device, table, entry, hit_state),
      on<&MatchEngine::get_hit_state>(ByHandle{session, device, table}, entry, hit_state));
}
