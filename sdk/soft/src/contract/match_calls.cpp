// The functions of the contract that change, find and read entries of match tables.
#include "contract/resolve.hpp"
#include "pipe_mgr_match.h"
#include "tables/match_engine.hpp"

using namespace soft;

bf_status_t pipe_mgr_mat_ent_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t table,
                                 const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec, uint32_t ttl,
                                 uint32_t flags, pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, pipe, table, match, action, action_spec, ttl, flags, entry),
                   on<&MatchEngine::add>(InPipes{session, device, pipe, table}, session, pipe,
                                         match, action, action_spec, ttl, given(entry)));
}

bf_status_t pipe_mgr_mat_ent_set_action(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table, pipe_entry_handle_t entry,
                                        pipe_object_handle_t action,
                                        const pipe_mgr_action_spec_t *action_spec, uint32_t flags) {
  return SOFT_CALL((session, device, table, entry, action, action_spec, flags),
                   on<&MatchEngine::set_action>(ByHandle{session, device, table}, session,
                                                MatchEngine::Name{entry}, action, action_spec));
}

bf_status_t pipe_mgr_mat_ent_set_action_by_match_spec(
    pipe_session_handle_t session, bf_device_id_t device, bf_pipe_id_t pipe,
    pipe_object_handle_t table, const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
    const pipe_mgr_action_spec_t *action_spec, uint32_t flags) {
  return SOFT_CALL(
      (session, device, pipe, table, match, action, action_spec, flags),
      on<&MatchEngine::set_action>(InPipes{session, device, pipe, table}, session,
                                   MatchEngine::Name{{}, match, pipe}, action, action_spec));
}

bf_status_t pipe_mgr_mat_ent_set_resource(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_entry_handle_t entry,
                                          const pipe_mgr_resource_t *resources, uint32_t count,
                                          uint32_t flags) {
  return SOFT_CALL((session, device, table, entry, list(resources, count), count, flags),
                   on<&MatchEngine::set_resources>(ByHandle{session, device, table}, session, entry,
                                                   list(resources, count)));
}

bf_status_t pipe_mgr_mat_ent_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t table, pipe_entry_handle_t entry,
                                 uint32_t flags) {
  return SOFT_CALL((session, device, table, entry, flags),
                   on<&MatchEngine::remove>(ByHandle{session, device, table}, session,
                                            MatchEngine::Name{entry}));
}

bf_status_t pipe_mgr_mat_ent_del_by_match_spec(pipe_session_handle_t session, bf_device_id_t device,
                                               bf_pipe_id_t pipe, pipe_object_handle_t table,
                                               const pipe_mgr_match_spec_t *match, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, table, match, flags),
                   on<&MatchEngine::remove>(InPipes{session, device, pipe, table}, session,
                                            MatchEngine::Name{{}, match, pipe}));
}

bf_status_t pipe_mgr_match_spec_to_ent_hdl(pipe_session_handle_t session, bf_device_id_t device,
                                           bf_pipe_id_t pipe, pipe_object_handle_t table,
                                           const pipe_mgr_match_spec_t *match,
                                           pipe_entry_handle_t *entry) {
  return SOFT_CALL(
      (session, device, pipe, table, match, entry),
      on<&MatchEngine::find>(InPipes{session, device, pipe, table}, pipe, match, given(entry)));
}

bf_status_t pipe_mgr_get_entry(pipe_session_handle_t session, pipe_object_handle_t table,
                               bf_device_id_t device, pipe_entry_handle_t entry,
                               pipe_mgr_match_spec_t *match, pipe_mgr_action_spec_t *action_spec,
                               pipe_object_handle_t *action, bool read_from_hardware) {
  return SOFT_CALL((session, table, device, entry, match, action_spec, action, read_from_hardware),
                   on<&MatchEngine::read>(ByHandle{session, device, table}, entry, given(match),
                                          given(action_spec), given(action)));
}
