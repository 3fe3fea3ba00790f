// The functions of the contract that concern ageing.
#include "contract_call.hpp"
#include "match_engine.hpp"
#include "pipe_mgr_match.h"
#include "resolve.hpp"

using soft::MatchEngine;

bf_status_t pipe_mgr_idle_tmo_enable(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t table, pipe_mgr_idle_params_t params) {
  return SOFT_CALL((session, device, table, params), {
    return soft::with_object<MatchEngine>(
        session, device, table, [&](MatchEngine &engine) { return engine.start_ageing(params); });
  });
}

bf_status_t pipe_mgr_idle_tmo_disable(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t table) {
  return SOFT_CALL((session, device, table), {
    return soft::with_object<MatchEngine>(
        session, device, table, [&](MatchEngine &engine) { return engine.stop_ageing(); });
  });
}

bf_status_t pipe_mgr_idle_register_tmo_cb(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_mgr_idle_cb_t callback,
                                          void *client_data) {
  return SOFT_CALL((session, device, table, callback, client_data), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.listen_to_expiry(callback, client_data);
    });
  });
}

bf_status_t pipe_mgr_idle_params_get(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t table, pipe_mgr_idle_params_t *params) {
  return SOFT_CALL((session, device, table, params), {
    return soft::with_object<MatchEngine>(
        session, device, table, [&](MatchEngine &engine) { return engine.ageing(params); });
  });
}

bf_status_t pipe_mgr_mat_ent_set_idle_ttl(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_entry_handle_t entry,
                                          uint32_t ttl, uint32_t reset) {
  return SOFT_CALL((session, device, table, entry, ttl, reset), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.set_ttl(entry, ttl, reset != 0);
    });
  });
}

bf_status_t pipe_mgr_mat_ent_get_idle_ttl(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_entry_handle_t entry,
                                          uint32_t *ttl) {
  return SOFT_CALL((session, device, table, entry, ttl), {
    return soft::with_object<MatchEngine>(
        session, device, table, [&](MatchEngine &engine) { return engine.get_ttl(entry, ttl); });
  });
}

bf_status_t pipe_mgr_idle_time_update_hit_state(pipe_session_handle_t session,
                                                bf_device_id_t device, pipe_object_handle_t table,
                                                pipe_entry_handle_t entry, uint32_t hit_state) {
  return SOFT_CALL((session, device, table, entry, hit_state), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.set_hit_state(entry, hit_state);
    });
  });
}

bf_status_t pipe_mgr_idle_time_get_hit_state(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t table, pipe_entry_handle_t entry,
                                             uint32_t *hit_state) {
  return SOFT_CALL((session, device, table, entry, hit_state), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.get_hit_state(entry, hit_state);
    });
  });
}
