// Registers: the contract and the data plane's side.
#include "contract/resolve.hpp"
#include "pipe_stful.h"
#include "soft_state.h"
#include "stateful/register_engine.hpp"
#include "tables/match_engine.hpp"

using namespace soft;

namespace {

// A register whose cells belong to the entries of a table is none that a program can describe.
bf_status_t refuse_direct(const Device &device, bf_pipe_id_t pipe, pipe_object_handle_t table) {
  if (!device.has_pipe(pipe)) return BF_INVALID_PIPE;
  return device.find<MatchEngine>(table) != nullptr ? BF_NOT_SUPPORTED : BF_INVALID_HANDLE;
}

void sync_register(RegisterEngine &found, bf_device_id_t device, bf_pipe_id_t pipe,
                   pipe_mgr_sync_cb_t callback, void *cookie) {
  found.sync(pipe);
  if (callback != nullptr) callback(device, cookie);
}

}  // namespace

bf_status_t pipe_stful_query_get_sizes(pipe_session_handle_t session, bf_device_id_t device,
                                       pipe_object_handle_t reg, uint32_t *instances) {
  return SOFT_CALL((session, device, reg, instances),
                   read<&RegisterEngine::instances>(ByHandle{session, device, reg}, instances));
}

bf_status_t pipe_stful_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t index,
                                 pipe_stful_query_t *query, bool read_from_hardware) {
  return SOFT_CALL((session, device, pipe, reg, index, query, read_from_hardware),
                   on<&RegisterEngine::query>(InPipes{session, device, pipe, reg}, pipe, index,
                                              given(query), read_from_hardware));
}

bf_status_t pipe_stful_ent_query_range(pipe_session_handle_t session, bf_device_id_t device,
                                       bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t first,
                                       uint32_t count, pipe_stful_query_t *queries,
                                       uint32_t *filled, bool read_from_hardware) {
  return SOFT_CALL(
      (session, device, pipe, reg, first, count, list(queries, count), filled, read_from_hardware),
      on<&RegisterEngine::query_range>(InPipes{session, device, pipe, reg}, pipe, first,
                                       list(queries, count), given(filled), read_from_hardware));
}

bf_status_t pipe_stful_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                               bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t index,
                               const pipe_stful_cell_t *cell, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, reg, index, cell, flags),
                   on<&RegisterEngine::reset_range>(InPipes{session, device, pipe, reg}, pipe,
                                                    index, 1u, given(cell)));
}

bf_status_t pipe_stful_table_reset(pipe_session_handle_t session, bf_device_id_t device,
                                   bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                   const pipe_stful_cell_t *cell) {
  return SOFT_CALL((session, device, pipe, reg, cell),
                   on<&RegisterEngine::reset>(InPipes{session, device, pipe, reg}, pipe, cell));
}

bf_status_t pipe_stful_table_reset_range(pipe_session_handle_t session, bf_device_id_t device,
                                         bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                         uint32_t first, uint32_t count,
                                         const pipe_stful_cell_t *cell) {
  return SOFT_CALL((session, device, pipe, reg, first, count, cell),
                   on<&RegisterEngine::reset_range>(InPipes{session, device, pipe, reg}, pipe,
                                                    first, count, cell));
}

bf_status_t pipe_stful_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                     bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                     pipe_mgr_sync_cb_t callback, void *cookie) {
  return SOFT_CALL(
      (session, device, pipe, reg, callback, cookie),
      on<sync_register>(InPipes{session, device, pipe, reg}, device, pipe, callback, cookie));
}

bf_status_t pipe_stful_direct_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table, pipe_entry_handle_t entry,
                                        pipe_stful_query_t *query, bool read_from_hardware) {
  return SOFT_CALL((session, device, table, entry, query, read_from_hardware),
                   with_session(session, device, [&](Device &found) {
                     return refuse_direct(found, BF_ALL_PIPES, table);
                   }));
}

bf_status_t pipe_stful_direct_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                            bf_pipe_id_t pipe, pipe_object_handle_t table,
                                            pipe_mgr_sync_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, pipe, table, callback, cookie),
                   with_session(session, device,
                                [&](Device &found) { return refuse_direct(found, pipe, table); }));
}

bf_status_t soft_register_write(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                uint32_t index, uint32_t value) {
  return control<&RegisterEngine::write_hardware>(InAnyPipe{{device, pipe, reg}}, pipe, index,
                                                  value);
}
