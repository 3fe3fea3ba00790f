// Registers: the contract and the data plane's side.
#include "contract_call.hpp"
#include "pipe_stful.h"
#include "register_engine.hpp"
#include "resolve.hpp"
#include "soft_state.h"

namespace {

using soft::RegisterEngine;

// A register whose cells belong to the entries of a table is none that a program can describe.
bf_status_t refuse_direct(const soft::Device &device, pipe_object_handle_t table) {
  const soft_program_t &program = device.program();
  for (const soft_table_t &known : soft::described(program.tables, program.table_count)) {
    if (known.handle == table) return BF_NOT_SUPPORTED;
  }
  return BF_INVALID_HANDLE;
}

}  // namespace

bf_status_t pipe_stful_query_get_sizes(pipe_session_handle_t session, bf_device_id_t device,
                                       pipe_object_handle_t reg, uint32_t *instances) {
  return SOFT_CALL((session, device, reg, instances), {
    return soft::with_object<RegisterEngine>(session, device, reg,
                                             [&](RegisterEngine &found) -> bf_status_t {
                                               if (instances == nullptr) return BF_INVALID_ARGUMENT;
                                               *instances = found.instances();
                                               return BF_SUCCESS;
                                             });
  });
}

bf_status_t pipe_stful_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t index,
                                 pipe_stful_query_t *query, bool read_from_hardware) {
  return SOFT_CALL((session, device, pipe, reg, index, query, read_from_hardware), {
    return soft::with_piped_object<RegisterEngine>(
        session, device, pipe, reg,
        [&](RegisterEngine &found) { return found.query(pipe, index, query, read_from_hardware); });
  });
}

bf_status_t pipe_stful_ent_query_range(pipe_session_handle_t session, bf_device_id_t device,
                                       bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t first,
                                       uint32_t count, pipe_stful_query_t *queries,
                                       uint32_t *filled, bool read_from_hardware) {
  return SOFT_CALL((session, device, pipe, reg, first, count, soft::list(queries, count), filled,
                    read_from_hardware),
                   {
                     return soft::with_piped_object<RegisterEngine>(
                         session, device, pipe, reg, [&](RegisterEngine &found) {
                           return found.query_range(pipe, first, count, queries, filled,
                                                    read_from_hardware);
                         });
                   });
}

bf_status_t pipe_stful_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                               bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t index,
                               const pipe_stful_cell_t *cell, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, reg, index, cell, flags), {
    return soft::with_piped_object<RegisterEngine>(session, device, pipe, reg,
                                                   [&](RegisterEngine &found) -> bf_status_t {
                                                     if (cell == nullptr)
                                                       return BF_INVALID_ARGUMENT;
                                                     return found.reset_range(pipe, index, 1, cell);
                                                   });
  });
}

bf_status_t pipe_stful_table_reset(pipe_session_handle_t session, bf_device_id_t device,
                                   bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                   const pipe_stful_cell_t *cell) {
  return SOFT_CALL((session, device, pipe, reg, cell), {
    return soft::with_piped_object<RegisterEngine>(
        session, device, pipe, reg, [&](RegisterEngine &found) { return found.reset(pipe, cell); });
  });
}

bf_status_t pipe_stful_table_reset_range(pipe_session_handle_t session, bf_device_id_t device,
                                         bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                         uint32_t first, uint32_t count,
                                         const pipe_stful_cell_t *cell) {
  return SOFT_CALL((session, device, pipe, reg, first, count, cell), {
    return soft::with_piped_object<RegisterEngine>(
        session, device, pipe, reg,
        [&](RegisterEngine &found) { return found.reset_range(pipe, first, count, cell); });
  });
}

bf_status_t pipe_stful_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                     bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                     pipe_mgr_sync_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, pipe, reg, callback, cookie), {
    return soft::with_piped_object<RegisterEngine>(session, device, pipe, reg,
                                                   [&](RegisterEngine &found) -> bf_status_t {
                                                     found.sync(pipe);
                                                     if (callback != nullptr) {
                                                       callback(device, cookie);
                                                     }
                                                     return BF_SUCCESS;
                                                   });
  });
}

bf_status_t pipe_stful_direct_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table, pipe_entry_handle_t entry,
                                        pipe_stful_query_t *query, bool read_from_hardware) {
  return SOFT_CALL((session, device, table, entry, query, read_from_hardware), {
    return soft::with_session(session, device,
                              [&](soft::Device &found) { return refuse_direct(found, table); });
  });
}

bf_status_t pipe_stful_direct_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                            bf_pipe_id_t pipe, pipe_object_handle_t table,
                                            pipe_mgr_sync_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, pipe, table, callback, cookie), {
    return soft::with_session(session, device, [&](soft::Device &found) -> bf_status_t {
      if (!found.has_pipe(pipe)) return BF_INVALID_PIPE;
      return refuse_direct(found, table);
    });
  });
}

bf_status_t soft_register_write(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                uint32_t index, uint32_t value) {
  auto write = [&] {
    return soft::with_device(device, [&](soft::Device &found) -> bf_status_t {
      if (!found.has_pipe(pipe)) return BF_INVALID_PIPE;
      return soft::on_object<RegisterEngine>(found, reg, [&](RegisterEngine &object) {
        return object.write_hardware(pipe, index, value);
      });
    });
  };
  return soft::guarded(write);
}
