// The functions of the contract that concern counters, meters and WRED profiles. Flags are not
// looked at.
//
// The cells of a direct counter or meter are the entry's, whatever pipe traffic comes in: a pipe is
// checked and then of no account. A synchronisation is complete when its callback, which may be
// null, runs: on the calling thread, before the call returns.
#include "contract/resolve.hpp"
#include "pipe_mgr_stats.h"
#include "stateful/counter.hpp"
#include "stateful/meter.hpp"
#include "stateful/wred.hpp"
#include "tables/match_engine.hpp"

using namespace soft;

namespace {

bf_status_t when_done(bf_status_t status, bf_device_id_t device, pipe_mgr_sync_cb_t callback,
                      void *cookie) {
  if (status == BF_SUCCESS && callback != nullptr) callback(device, cookie);
  return status;
}

bf_status_t sync_entry(MatchEngine &table, pipe_entry_handle_t entry) {
  return table.change_counters(entry, synchronise);
}

bf_status_t sync_table(MatchEngine &table, bf_device_id_t device, pipe_mgr_sync_cb_t callback,
                       void *cookie) {
  return when_done(table.change_all_counters(synchronise), device, callback, cookie);
}

bf_status_t sync_counter(Counter &counter, bf_device_id_t device, bf_pipe_id_t pipe,
                         pipe_mgr_sync_cb_t callback, void *cookie) {
  return when_done(counter.sync_all(pipe), device, callback, cookie);
}

bf_status_t read_software(MatchEngine &table, pipe_entry_handle_t entry,
                          pipe_mgr_counter_t *counter) {
  return table.change_counters(entry, [&](EntryCounters &cell) { *counter = cell.software; });
}

bf_status_t write_software(MatchEngine &table, pipe_entry_handle_t entry,
                           const pipe_mgr_counter_t *counter) {
  return table.change_counters(entry, [&](EntryCounters &cell) { cell = {{}, *counter}; });
}

}  // namespace

// ---- Direct counters ----

bf_status_t pipe_mgr_direct_stat_ent_database_sync(pipe_session_handle_t session,
                                                   bf_device_id_t device, bf_pipe_id_t pipe,
                                                   pipe_object_handle_t table,
                                                   pipe_entry_handle_t entry) {
  return SOFT_CALL((session, device, pipe, table, entry),
                   on<sync_entry>(InPipes{session, device, pipe, table}, entry));
}

bf_status_t pipe_mgr_direct_stat_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                               bf_pipe_id_t pipe, pipe_object_handle_t table,
                                               pipe_mgr_sync_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, pipe, table, callback, cookie),
                   on<sync_table>(InPipes{session, device, pipe, table}, device, callback, cookie));
}

bf_status_t pipe_mgr_mat_ent_direct_stat_query(pipe_session_handle_t session, bf_device_id_t device,
                                               pipe_object_handle_t table,
                                               pipe_entry_handle_t entry,
                                               pipe_mgr_counter_t *counter) {
  return SOFT_CALL((session, device, table, entry, counter),
                   on<read_software>(ByHandle{session, device, table}, entry, given(counter)));
}

bf_status_t pipe_mgr_mat_ent_direct_stat_set(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t table, pipe_entry_handle_t entry,
                                             const pipe_mgr_counter_t *counter) {
  return SOFT_CALL((session, device, table, entry, counter),
                   on<write_software>(ByHandle{session, device, table}, entry, given(counter)));
}

// ---- Indirect counters ----

bf_status_t pipe_mgr_stat_ent_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                            bf_pipe_id_t pipe, pipe_object_handle_t counter,
                                            uint32_t index) {
  return SOFT_CALL((session, device, pipe, counter, index),
                   on<&Counter::sync>(InPipes{session, device, pipe, counter}, pipe, index));
}

bf_status_t pipe_mgr_stat_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                        bf_pipe_id_t pipe, pipe_object_handle_t counter,
                                        pipe_mgr_sync_cb_t callback, void *cookie) {
  return SOFT_CALL(
      (session, device, pipe, counter, callback, cookie),
      on<sync_counter>(InPipes{session, device, pipe, counter}, device, pipe, callback, cookie));
}

bf_status_t pipe_mgr_stat_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                    bf_pipe_id_t pipe, pipe_object_handle_t counter, uint32_t index,
                                    pipe_mgr_counter_t *value) {
  return SOFT_CALL(
      (session, device, pipe, counter, index, value),
      on<&Counter::query>(InPipes{session, device, pipe, counter}, pipe, index, value));
}

bf_status_t pipe_mgr_stat_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                  bf_pipe_id_t pipe, pipe_object_handle_t counter, uint32_t index,
                                  const pipe_mgr_counter_t *value) {
  return SOFT_CALL((session, device, pipe, counter, index, value),
                   on<&Counter::set>(InPipes{session, device, pipe, counter}, pipe, index, value));
}

// ---- Meters ----

bf_status_t pipe_mgr_meter_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                   bf_pipe_id_t pipe, pipe_object_handle_t meter, uint32_t index,
                                   const pipe_mgr_meter_spec_t *spec, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, meter, index, spec, flags),
                   on<&Meter::set>(InPipes{session, device, pipe, meter}, pipe, index, spec));
}

bf_status_t pipe_mgr_meter_read_entry(pipe_session_handle_t session, bf_device_id_t device,
                                      bf_pipe_id_t pipe, pipe_object_handle_t table,
                                      pipe_entry_handle_t entry, pipe_mgr_meter_spec_t *spec) {
  return SOFT_CALL(
      (session, device, pipe, table, entry, spec),
      on<&MatchEngine::get_meter>(InPipes{session, device, pipe, table}, entry, given(spec)));
}

bf_status_t pipe_mgr_meter_read_entry_idx(pipe_session_handle_t session, bf_device_id_t device,
                                          bf_pipe_id_t pipe, pipe_object_handle_t meter,
                                          uint32_t index, pipe_mgr_meter_spec_t *spec) {
  return SOFT_CALL((session, device, pipe, meter, index, spec),
                   on<&Meter::get>(InPipes{session, device, pipe, meter}, pipe, index, spec));
}

bf_status_t pipe_mgr_meter_set_bytecount_adjust(pipe_session_handle_t session,
                                                bf_device_id_t device, bf_pipe_id_t pipe,
                                                pipe_object_handle_t meter, uint32_t adjustment) {
  return SOFT_CALL((session, device, pipe, meter, adjustment),
                   on<&Meter::set_adjustment>(InPipes{session, device, pipe, meter}, adjustment));
}

bf_status_t pipe_mgr_meter_get_bytecount_adjust(pipe_session_handle_t session,
                                                bf_device_id_t device, bf_pipe_id_t pipe,
                                                pipe_object_handle_t meter, uint32_t *adjustment) {
  return SOFT_CALL((session, device, pipe, meter, adjustment),
                   read<&Meter::adjustment>(InPipes{session, device, pipe, meter}, adjustment));
}

// ---- WRED ----

bf_status_t pipe_mgr_wred_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                  bf_pipe_id_t pipe, pipe_object_handle_t wred, uint32_t index,
                                  const pipe_mgr_wred_spec_t *spec, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, wred, index, spec, flags),
                   on<&WredUnit::set>(InPipes{session, device, pipe, WredUnit::kHandle}, pipe, wred,
                                      index, spec));
}
