/* Registers: arrays of stateful cells, one instance of each cell per pipe. */
#ifndef PIPE_STFUL_H
#define PIPE_STFUL_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Number of instances that one index yields. */
bf_status_t pipe_stful_query_get_sizes(pipe_session_handle_t session, bf_device_id_t device,
                                       pipe_object_handle_t reg, uint32_t *instances);
/* Reads the instances of one cell, or of count cells from first on, each into a query record of its
 * own; filled is the number of cells read. */
bf_status_t pipe_stful_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t index,
                                 pipe_stful_query_t *query, bool read_from_hardware);
bf_status_t pipe_stful_ent_query_range(pipe_session_handle_t session, bf_device_id_t device,
                                       bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t first,
                                       uint32_t count, pipe_stful_query_t *queries,
                                       uint32_t *filled, bool read_from_hardware);
/* Writes one cell. */
bf_status_t pipe_stful_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                               bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t index,
                               const pipe_stful_cell_t *cell, uint32_t flags);
/* Sets every cell, or count cells from first on, to cell; to zero when cell is null. */
bf_status_t pipe_stful_table_reset(pipe_session_handle_t session, bf_device_id_t device,
                                   bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                   const pipe_stful_cell_t *cell);
bf_status_t pipe_stful_table_reset_range(pipe_session_handle_t session, bf_device_id_t device,
                                         bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                         uint32_t first, uint32_t count,
                                         const pipe_stful_cell_t *cell);
/* Brings the software copy of a register up to date. */
bf_status_t pipe_stful_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                     bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                     pipe_mgr_sync_cb_t callback, void *cookie);
/* The same for a register whose cells belong to the entries of a table. */
bf_status_t pipe_stful_direct_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table, pipe_entry_handle_t entry,
                                        pipe_stful_query_t *query, bool read_from_hardware);
bf_status_t pipe_stful_direct_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                            bf_pipe_id_t pipe, pipe_object_handle_t table,
                                            pipe_mgr_sync_cb_t callback, void *cookie);

#ifdef __cplusplus
}
#endif

#endif
