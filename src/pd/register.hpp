// Registers: typed access to those of the program, and access by handle with the pipeline manager's
// own records. The typed value of a cell of at most 8 bits is a uint8_t, of 16 bits a uint16_t, of
// 32 bits a uint32_t.
#pragma once

#include "p4_pd_types.h"
#include "pipe_stful.h"

namespace pd {

struct Register {
  uint32_t handle;
  uint8_t width;  // bits of a cell: 1, 8, 16 or 32
};

// ---- Typed ----

// One value for each instance of the cell, in the pipeline manager's order. On any failure the
// outputs keep their contents.
p4_pd_status_t read_register(const Register &reg, p4_pd_session_handle_t session,
                             p4_pd_device_target_t target, uint32_t index, uint32_t flags,
                             void *values, uint32_t *value_count);

// The values of index_count cells, those of one index behind those of the index before it. The
// pipeline manager may read fewer indexes than asked. Reading none asks it all the same, so that a
// wrong handle is noticed, and allocates nothing.
p4_pd_status_t read_register_range(const Register &reg, p4_pd_session_handle_t session,
                                   p4_pd_device_target_t target, uint32_t first,
                                   uint32_t index_count, uint32_t flags, uint32_t *indexes_read,
                                   void *values, uint32_t *value_count);

// A 1-bit register stores 1 for any value but 0.
p4_pd_status_t write_register(const Register &reg, p4_pd_session_handle_t session,
                              p4_pd_device_target_t target, uint32_t index, const void *value);
p4_pd_status_t write_all_cells(const Register &reg, p4_pd_session_handle_t session,
                               p4_pd_device_target_t target, const void *value);

// ---- By handle ----

inline p4_pd_status_t reset_register(uint32_t reg, p4_pd_session_handle_t session,
                                     p4_pd_device_target_t target) {
  return pipe_stful_table_reset(session, target.device_id, target.pipe_id, reg, nullptr);
}

inline p4_pd_status_t reset_register_range(uint32_t reg, p4_pd_session_handle_t session,
                                           p4_pd_device_target_t target, uint32_t first,
                                           uint32_t index_count) {
  return pipe_stful_table_reset_range(session, target.device_id, target.pipe_id, reg, first,
                                      index_count, nullptr);
}

inline p4_pd_status_t sync_register(uint32_t reg, p4_pd_session_handle_t session,
                                    p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
                                    void *cookie) {
  return pipe_stful_database_sync(session, target.device_id, target.pipe_id, reg, callback, cookie);
}

p4_pd_status_t query_register(uint32_t reg, p4_pd_session_handle_t session,
                              p4_pd_device_target_t target, uint32_t index, uint32_t flags,
                              pipe_stful_query_t *query);
p4_pd_status_t set_register_cell(uint32_t reg, p4_pd_session_handle_t session,
                                 p4_pd_device_target_t target, uint32_t index,
                                 const pipe_stful_cell_t *cell);
p4_pd_status_t set_all_register_cells(uint32_t reg, p4_pd_session_handle_t session,
                                      p4_pd_device_target_t target, const pipe_stful_cell_t *cell);

// ---- Cells of the entries of a table ----

p4_pd_status_t query_entry_register(uint32_t table, p4_pd_session_handle_t session,
                                    p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
                                    uint32_t flags, pipe_stful_query_t *query);
// The table's handle stands for the register too.
p4_pd_status_t set_entry_register(uint32_t table, p4_pd_session_handle_t session, uint8_t device,
                                  p4_pd_entry_handle_t entry, const pipe_stful_cell_t *cell);

inline p4_pd_status_t sync_entry_register(uint32_t table, p4_pd_session_handle_t session,
                                          p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
                                          void *cookie) {
  return pipe_stful_direct_database_sync(session, target.device_id, target.pipe_id, table, callback,
                                         cookie);
}

}  // namespace pd
