/* Counters, meters and WRED profiles. */
#ifndef PIPE_MGR_STATS_H
#define PIPE_MGR_STATS_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Counters ----
 * The SDK keeps a software copy of the counts in the device. A query reads the copy; a
 * synchronisation adds to it what the device has counted since. */
bf_status_t pipe_mgr_direct_stat_ent_database_sync(pipe_session_handle_t session,
                                                   bf_device_id_t device, bf_pipe_id_t pipe,
                                                   pipe_object_handle_t table,
                                                   pipe_entry_handle_t entry);
bf_status_t pipe_mgr_stat_ent_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                            bf_pipe_id_t pipe, pipe_object_handle_t counter,
                                            uint32_t index);
bf_status_t pipe_mgr_direct_stat_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                               bf_pipe_id_t pipe, pipe_object_handle_t table,
                                               pipe_mgr_sync_cb_t callback, void *cookie);
bf_status_t pipe_mgr_stat_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                        bf_pipe_id_t pipe, pipe_object_handle_t counter,
                                        pipe_mgr_sync_cb_t callback, void *cookie);
bf_status_t pipe_mgr_mat_ent_direct_stat_query(pipe_session_handle_t session, bf_device_id_t device,
                                               pipe_object_handle_t table,
                                               pipe_entry_handle_t entry,
                                               pipe_mgr_counter_t *counter);
bf_status_t pipe_mgr_stat_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                    bf_pipe_id_t pipe, pipe_object_handle_t counter, uint32_t index,
                                    pipe_mgr_counter_t *value);
bf_status_t pipe_mgr_mat_ent_direct_stat_set(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t table, pipe_entry_handle_t entry,
                                             const pipe_mgr_counter_t *counter);
bf_status_t pipe_mgr_stat_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                  bf_pipe_id_t pipe, pipe_object_handle_t counter, uint32_t index,
                                  const pipe_mgr_counter_t *value);
/* ---- Meters ---- */
bf_status_t pipe_mgr_meter_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                   bf_pipe_id_t pipe, pipe_object_handle_t meter, uint32_t index,
                                   const pipe_mgr_meter_spec_t *spec, uint32_t flags);
/* Reads the meter of an entry (by the table that carries it) or the cell of an indirect meter. */
bf_status_t pipe_mgr_meter_read_entry(pipe_session_handle_t session, bf_device_id_t device,
                                      bf_pipe_id_t pipe, pipe_object_handle_t table,
                                      pipe_entry_handle_t entry, pipe_mgr_meter_spec_t *spec);
bf_status_t pipe_mgr_meter_read_entry_idx(pipe_session_handle_t session, bf_device_id_t device,
                                          bf_pipe_id_t pipe, pipe_object_handle_t meter,
                                          uint32_t index, pipe_mgr_meter_spec_t *spec);
/* Bytes added to the length of every packet that a meter sees. */
bf_status_t pipe_mgr_meter_set_bytecount_adjust(pipe_session_handle_t session,
                                                bf_device_id_t device, bf_pipe_id_t pipe,
                                                pipe_object_handle_t meter, uint32_t adjustment);
bf_status_t pipe_mgr_meter_get_bytecount_adjust(pipe_session_handle_t session,
                                                bf_device_id_t device, bf_pipe_id_t pipe,
                                                pipe_object_handle_t meter, uint32_t *adjustment);
/* ---- WRED ---- */
bf_status_t pipe_mgr_wred_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                  bf_pipe_id_t pipe, pipe_object_handle_t wred, uint32_t index,
                                  const pipe_mgr_wred_spec_t *spec, uint32_t flags);

#ifdef __cplusplus
}
#endif

#endif
