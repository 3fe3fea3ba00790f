// The functions of the contract that concern a table as a whole: properties, default entries,
// enumeration, the update callback.
#include "contract_call.hpp"
#include "match_engine.hpp"
#include "pipe_mgr_match.h"
#include "resolve.hpp"

using soft::MatchEngine;
using soft::Object;

// ---- Tables ----

bf_status_t pipe_mgr_get_entry_count(pipe_session_handle_t session, bf_device_id_t device,
                                     bf_pipe_id_t pipe, pipe_object_handle_t table,
                                     uint32_t read_from_hardware, uint32_t *count) {
  return SOFT_CALL((session, device, pipe, table, read_from_hardware, count), {
    return soft::with_piped_object<Object>(session, device, pipe, table,
                                           [&](Object &object) -> bf_status_t {
                                             if (count == nullptr) return BF_INVALID_ARGUMENT;
                                             return object.entry_count(pipe, count);
                                           });
  });
}

bf_status_t pipe_mgr_tbl_set_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t table, uint32_t property, uint32_t value,
                                      uint32_t argument) {
  return SOFT_CALL((session, device, table, property, value, argument), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.set_property(property, value, argument);
    });
  });
}

bf_status_t pipe_mgr_tbl_get_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t table, uint32_t property,
                                      uint32_t *value, uint32_t *argument) {
  return SOFT_CALL((session, device, table, property, value, argument), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.get_property(property, value, argument);
    });
  });
}

bf_status_t pipe_register_mat_update_cb(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table,
                                        pipe_mgr_mat_update_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, table, callback, cookie), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.listen(callback, cookie);
    });
  });
}

// ---- Default entries ----

bf_status_t pipe_mgr_mat_default_entry_set(pipe_session_handle_t session, bf_device_id_t device,
                                           bf_pipe_id_t pipe, pipe_object_handle_t table,
                                           pipe_object_handle_t action,
                                           const pipe_mgr_action_spec_t *action_spec,
                                           uint32_t flags, pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, pipe, table, action, action_spec, flags, entry), {
    return soft::with_piped_object<MatchEngine>(
        session, device, pipe, table, [&](MatchEngine &engine) {
          return engine.set_default(session, pipe, action, action_spec, entry);
        });
  });
}

bf_status_t pipe_mgr_mat_tbl_default_entry_reset(pipe_session_handle_t session,
                                                 bf_device_id_t device, bf_pipe_id_t pipe,
                                                 pipe_object_handle_t table, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, table, flags), {
    return soft::with_piped_object<MatchEngine>(
        session, device, pipe, table,
        [&](MatchEngine &engine) { return engine.reset_default(session, pipe); });
  });
}

bf_status_t pipe_mgr_table_get_default_entry_handle(pipe_session_handle_t session,
                                                    bf_device_id_t device, bf_pipe_id_t pipe,
                                                    pipe_object_handle_t table,
                                                    pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, pipe, table, entry), {
    return soft::with_piped_object<MatchEngine>(
        session, device, pipe, table,
        [&](MatchEngine &engine) { return engine.default_handle(pipe, entry); });
  });
}

bf_status_t pipe_mgr_table_get_default_entry(pipe_session_handle_t session, bf_device_id_t device,
                                             bf_pipe_id_t pipe, pipe_object_handle_t table,
                                             pipe_mgr_action_spec_t *action_spec,
                                             pipe_object_handle_t *action,
                                             bool read_from_hardware) {
  return SOFT_CALL((session, device, pipe, table, action_spec, action, read_from_hardware), {
    return soft::with_piped_object<MatchEngine>(
        session, device, pipe, table,
        [&](MatchEngine &engine) { return engine.read_default(pipe, action_spec, action); });
  });
}

// ---- Enumeration ----

bf_status_t pipe_mgr_get_first_entry_handle(pipe_session_handle_t session,
                                            pipe_object_handle_t table, bf_device_id_t device,
                                            bf_pipe_id_t pipe, uint32_t *entry) {
  return SOFT_CALL((session, table, device, pipe, entry), {
    return soft::with_piped_object<Object>(session, device, pipe, table,
                                           [&](Object &object) -> bf_status_t {
                                             if (entry == nullptr) return BF_INVALID_ARGUMENT;
                                             return object.first_entry(pipe, entry);
                                           });
  });
}

bf_status_t pipe_mgr_get_next_entry_handles(pipe_session_handle_t session,
                                            pipe_object_handle_t table, bf_device_id_t device,
                                            bf_pipe_id_t pipe, uint32_t entry, uint32_t count,
                                            uint32_t *entries) {
  return SOFT_CALL((session, table, device, pipe, entry, count, soft::list(entries, count)), {
    return soft::with_piped_object<Object>(
        session, device, pipe, table, [&](Object &object) -> bf_status_t {
          if (entries == nullptr) return BF_INVALID_ARGUMENT;
          return object.next_entries(pipe, entry, count, entries);
        });
  });
}
