// Counters: cells that belong to the entries of a table (direct, named by the table's handle) and
// arrays of cells (named by the counter's handle and an index). The pipeline manager's record holds
// the two counts the other way round.
#pragma once

#include "p4_pd_types.h"
#include "pipe_mgr_stats.h"

namespace pd {

// Of the flags only P4_PD_READ_FROM_HARDWARE is looked at: the cell is synchronised before it is
// queried. values keeps its contents on any failure.
p4_pd_status_t read_direct_counter(uint32_t table, p4_pd_session_handle_t session,
                                   p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
                                   uint32_t flags, p4_pd_counter_values_t *values);
p4_pd_status_t read_counter(uint32_t counter, p4_pd_session_handle_t session,
                            p4_pd_device_target_t target, uint32_t index, uint32_t flags,
                            p4_pd_counter_values_t *values);

inline p4_pd_status_t write_direct_counter(uint32_t table, p4_pd_session_handle_t session,
                                           p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
                                           p4_pd_counter_values_t values) {
  const pipe_mgr_counter_t record = {values.bytes, values.packets};
  return pipe_mgr_mat_ent_direct_stat_set(session, target.device_id, table, entry, &record);
}

inline p4_pd_status_t write_counter(uint32_t counter, p4_pd_session_handle_t session,
                                    p4_pd_device_target_t target, uint32_t index,
                                    p4_pd_counter_values_t values) {
  const pipe_mgr_counter_t record = {values.bytes, values.packets};
  return pipe_mgr_stat_ent_set(session, target.device_id, target.pipe_id, counter, index, &record);
}

inline p4_pd_status_t sync_direct_counter(uint32_t table, p4_pd_session_handle_t session,
                                          p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
                                          void *cookie) {
  return pipe_mgr_direct_stat_database_sync(session, target.device_id, target.pipe_id, table,
                                            callback, cookie);
}

inline p4_pd_status_t sync_counter(uint32_t counter, p4_pd_session_handle_t session,
                                   p4_pd_device_target_t target, pipe_mgr_sync_cb_t callback,
                                   void *cookie) {
  return pipe_mgr_stat_database_sync(session, target.device_id, target.pipe_id, counter, callback,
                                     cookie);
}

}  // namespace pd
