// The functions of the contract that change, find and read entries of match tables.
#include "contract_call.hpp"
#include "match_engine.hpp"
#include "pipe_mgr_match.h"
#include "resolve.hpp"

using soft::MatchEngine;

bf_status_t pipe_mgr_mat_ent_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t table,
                                 const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec, uint32_t ttl,
                                 uint32_t flags, pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, pipe, table, match, action, action_spec, ttl, flags, entry), {
    return soft::with_piped_object<MatchEngine>(
        session, device, pipe, table, [&](MatchEngine &engine) {
          return engine.add(session, pipe, match, action, action_spec, ttl, entry);
        });
  });
}

bf_status_t pipe_mgr_mat_ent_set_action(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table, pipe_entry_handle_t entry,
                                        pipe_object_handle_t action,
                                        const pipe_mgr_action_spec_t *action_spec, uint32_t flags) {
  return SOFT_CALL((session, device, table, entry, action, action_spec, flags), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.set_action(session, {entry}, action, action_spec);
    });
  });
}

bf_status_t pipe_mgr_mat_ent_set_action_by_match_spec(
    pipe_session_handle_t session, bf_device_id_t device, bf_pipe_id_t pipe,
    pipe_object_handle_t table, const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
    const pipe_mgr_action_spec_t *action_spec, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, table, match, action, action_spec, flags), {
    return soft::with_piped_object<MatchEngine>(
        session, device, pipe, table, [&](MatchEngine &engine) {
          return engine.set_action(session, {0, match, pipe}, action, action_spec);
        });
  });
}

bf_status_t pipe_mgr_mat_ent_set_resource(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_entry_handle_t entry,
                                          const pipe_mgr_resource_t *resources, uint32_t count,
                                          uint32_t flags) {
  return SOFT_CALL((session, device, table, entry, soft::list(resources, count), count, flags), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.set_resources(session, entry, resources, count);
    });
  });
}

bf_status_t pipe_mgr_mat_ent_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t table, pipe_entry_handle_t entry,
                                 uint32_t flags) {
  return SOFT_CALL((session, device, table, entry, flags), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
      return engine.remove(session, {entry});
    });
  });
}

bf_status_t pipe_mgr_mat_ent_del_by_match_spec(pipe_session_handle_t session, bf_device_id_t device,
                                               bf_pipe_id_t pipe, pipe_object_handle_t table,
                                               const pipe_mgr_match_spec_t *match, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, table, match, flags), {
    return soft::with_piped_object<MatchEngine>(session, device, pipe, table,
                                                [&](MatchEngine &engine) {
                                                  return engine.remove(session, {0, match, pipe});
                                                });
  });
}

bf_status_t pipe_mgr_match_spec_to_ent_hdl(pipe_session_handle_t session, bf_device_id_t device,
                                           bf_pipe_id_t pipe, pipe_object_handle_t table,
                                           const pipe_mgr_match_spec_t *match,
                                           pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, pipe, table, match, entry), {
    return soft::with_piped_object<MatchEngine>(
        session, device, pipe, table,
        [&](MatchEngine &engine) { return engine.find(pipe, match, entry); });
  });
}

bf_status_t pipe_mgr_get_entry(pipe_session_handle_t session, pipe_object_handle_t table,
                               bf_device_id_t device, pipe_entry_handle_t entry,
                               pipe_mgr_match_spec_t *match, pipe_mgr_action_spec_t *action_spec,
                               pipe_object_handle_t *action, bool read_from_hardware) {
  return SOFT_CALL(
      (session, table, device, entry, match, action_spec, action, read_from_hardware), {
        return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &engine) {
          return engine.read(entry, match, action_spec, action);
        });
      });
}
