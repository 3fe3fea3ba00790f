// The functions of the contract that concern a table as a whole: properties, default entries,
// enumeration, the update callback.
#include "contract/resolve.hpp"
#include "pipe_mgr_match.h"
#include "tables/match_engine.hpp"

using namespace soft;

// ---- Tables ----

bf_status_t pipe_mgr_get_entry_count(pipe_session_handle_t session, bf_device_id_t device,
                                     bf_pipe_id_t pipe, pipe_object_handle_t table,
                                     uint32_t read_from_hardware, uint32_t *count) {
  return SOFT_CALL(
      (session, device, pipe, table, read_from_hardware, count),
      on<&Object::entry_count>(InPipes{session, device, pipe, table}, pipe, given(count)));
}

bf_status_t pipe_mgr_tbl_set_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t table, uint32_t property, uint32_t value,
                                      uint32_t argument) {
  return SOFT_CALL(
      (session, device, table, property, value, argument),
      on<&MatchEngine::set_property>(ByHandle{session, device, table}, property, value, argument));
}

bf_status_t pipe_mgr_tbl_get_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t table, uint32_t property,
                                      uint32_t *value, uint32_t *argument) {
  return SOFT_CALL((session, device, table, property, value, argument),
                   on<&MatchEngine::get_property>(ByHandle{session, device, table}, property,
                                                  given(value), given(argument)));
}

bf_status_t pipe_register_mat_update_cb(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table,
                                        pipe_mgr_mat_update_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, table, callback, cookie),
                   on<&MatchEngine::listen>(ByHandle{session, device, table}, callback, cookie));
}

// ---- Default entries ----

bf_status_t pipe_mgr_mat_default_entry_set(pipe_session_handle_t session, bf_device_id_t device,
                                           bf_pipe_id_t pipe, pipe_object_handle_t table,
                                           pipe_object_handle_t action,
                                           const pipe_mgr_action_spec_t *action_spec,
                                           uint32_t flags, pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, pipe, table, action, action_spec, flags, entry),
                   on<&MatchEngine::set_default>(InPipes{session, device, pipe, table}, session,
                                                 pipe, action, action_spec, given(entry)));
}

bf_status_t pipe_mgr_mat_tbl_default_entry_reset(pipe_session_handle_t session,
                                                 bf_device_id_t device, bf_pipe_id_t pipe,
                                                 pipe_object_handle_t table, uint32_t flags) {
  return SOFT_CALL(
      (session, device, pipe, table, flags),
      on<&MatchEngine::reset_default>(InPipes{session, device, pipe, table}, session, pipe));
}

bf_status_t pipe_mgr_table_get_default_entry_handle(pipe_session_handle_t session,
                                                    bf_device_id_t device, bf_pipe_id_t pipe,
                                                    pipe_object_handle_t table,
                                                    pipe_entry_handle_t *entry) {
  return SOFT_CALL(
      (session, device, pipe, table, entry),
      on<&MatchEngine::default_handle>(InPipes{session, device, pipe, table}, pipe, given(entry)));
}

bf_status_t pipe_mgr_table_get_default_entry(pipe_session_handle_t session, bf_device_id_t device,
                                             bf_pipe_id_t pipe, pipe_object_handle_t table,
                                             pipe_mgr_action_spec_t *action_spec,
                                             pipe_object_handle_t *action,
                                             bool read_from_hardware) {
  return SOFT_CALL((session, device, pipe, table, action_spec, action, read_from_hardware),
                   on<&MatchEngine::read_default>(InPipes{session, device, pipe, table}, pipe,
                                                  given(action_spec), given(action)));
}

// ---- Enumeration ----

bf_status_t pipe_mgr_get_first_entry_handle(pipe_session_handle_t session,
                                            pipe_object_handle_t table, bf_device_id_t device,
                                            bf_pipe_id_t pipe, uint32_t *entry) {
  return SOFT_CALL(
      (session, table, device, pipe, entry),
      on<&Object::first_entry>(InPipes{session, device, pipe, table}, pipe, given(entry)));
}

bf_status_t pipe_mgr_get_next_entry_handles(pipe_session_handle_t session,
                                            pipe_object_handle_t table, bf_device_id_t device,
                                            bf_pipe_id_t pipe, uint32_t entry, uint32_t count,
                                            uint32_t *entries) {
  return SOFT_CALL((session, table, device, pipe, entry, count, list(entries, count)),
                   on<&Object::next_entries>(InPipes{session, device, pipe, table}, pipe, entry,
                                             count, given(entries)));
}
