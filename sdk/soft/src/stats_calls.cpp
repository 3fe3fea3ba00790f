// The functions of the contract that concern counters, meters and WRED profiles. Flags are not
// looked at.
//
// The cells of a direct counter or meter are the entry's, whatever pipe traffic comes in: a pipe is
// checked and then of no account. A synchronisation is complete when its callback, which may be
// null, runs: on the calling thread, before the call returns.
#include "pipe_mgr_stats.h"

#include "contract_call.hpp"
#include "counter.hpp"
#include "match_engine.hpp"
#include "meter.hpp"
#include "resolve.hpp"
#include "wred.hpp"

using soft::Counter;
using soft::EntryCounters;
using soft::MatchEngine;
using soft::Meter;

namespace {

bf_status_t when_done(bf_status_t status, bf_device_id_t device, pipe_mgr_sync_cb_t callback,
                      void *cookie) {
  if (status == BF_SUCCESS && callback != nullptr) callback(device, cookie);
  return status;
}

bf_status_t read_software(MatchEngine &table, pipe_entry_handle_t entry,
                          pipe_mgr_counter_t *counter) {
  if (counter == nullptr) return BF_INVALID_ARGUMENT;
  return table.change_counters(entry, [&](EntryCounters &cell) { *counter = cell.software; });
}

bf_status_t write_software(MatchEngine &table, pipe_entry_handle_t entry,
                           const pipe_mgr_counter_t *counter) {
  if (counter == nullptr) return BF_INVALID_ARGUMENT;
  return table.change_counters(entry, [&](EntryCounters &cell) { cell = {{}, *counter}; });
}

}  // namespace

// ---- Direct counters ----

bf_status_t pipe_mgr_direct_stat_ent_database_sync(pipe_session_handle_t session,
                                                   bf_device_id_t device, bf_pipe_id_t pipe,
                                                   pipe_object_handle_t table,
                                                   pipe_entry_handle_t entry) {
  return SOFT_CALL((session, device, pipe, table, entry), {
    return soft::with_piped_object<MatchEngine>(
        session, device, pipe, table,
        [&](MatchEngine &found) { return found.change_counters(entry, soft::synchronise); });
  });
}

bf_status_t pipe_mgr_direct_stat_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                               bf_pipe_id_t pipe, pipe_object_handle_t table,
                                               pipe_mgr_sync_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, pipe, table, callback, cookie), {
    return soft::with_piped_object<MatchEngine>(
        session, device, pipe, table, [&](MatchEngine &found) {
          const bf_status_t status = found.change_all_counters(soft::synchronise);
          return when_done(status, device, callback, cookie);
        });
  });
}

bf_status_t pipe_mgr_mat_ent_direct_stat_query(pipe_session_handle_t session, bf_device_id_t device,
                                               pipe_object_handle_t table,
                                               pipe_entry_handle_t entry,
                                               pipe_mgr_counter_t *counter) {
  return SOFT_CALL((session, device, table, entry, counter), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &found) {
      return read_software(found, entry, counter);
    });
  });
}

bf_status_t pipe_mgr_mat_ent_direct_stat_set(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t table, pipe_entry_handle_t entry,
                                             const pipe_mgr_counter_t *counter) {
  return SOFT_CALL((session, device, table, entry, counter), {
    return soft::with_object<MatchEngine>(session, device, table, [&](MatchEngine &found) {
      return write_software(found, entry, counter);
    });
  });
}

// ---- Indirect counters ----

bf_status_t pipe_mgr_stat_ent_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                            bf_pipe_id_t pipe, pipe_object_handle_t counter,
                                            uint32_t index) {
  return SOFT_CALL((session, device, pipe, counter, index), {
    return soft::with_piped_object<Counter>(
        session, device, pipe, counter, [&](Counter &found) { return found.sync(pipe, index); });
  });
}

bf_status_t pipe_mgr_stat_database_sync(pipe_session_handle_t session, bf_device_id_t device,
                                        bf_pipe_id_t pipe, pipe_object_handle_t counter,
                                        pipe_mgr_sync_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, pipe, counter, callback, cookie), {
    return soft::with_piped_object<Counter>(session, device, pipe, counter, [&](Counter &found) {
      return when_done(found.sync_all(pipe), device, callback, cookie);
    });
  });
}

bf_status_t pipe_mgr_stat_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                    bf_pipe_id_t pipe, pipe_object_handle_t counter, uint32_t index,
                                    pipe_mgr_counter_t *value) {
  return SOFT_CALL((session, device, pipe, counter, index, value), {
    return soft::with_piped_object<Counter>(session, device, pipe, counter, [&](Counter &found) {
      return found.query(pipe, index, value);
    });
  });
}

bf_status_t pipe_mgr_stat_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                  bf_pipe_id_t pipe, pipe_object_handle_t counter, uint32_t index,
                                  const pipe_mgr_counter_t *value) {
  return SOFT_CALL((session, device, pipe, counter, index, value), {
    return soft::with_piped_object<Counter>(session, device, pipe, counter, [&](Counter &found) {
      return found.set(pipe, index, value);
    });
  });
}

// ---- Meters ----

bf_status_t pipe_mgr_meter_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                   bf_pipe_id_t pipe, pipe_object_handle_t meter, uint32_t index,
                                   const pipe_mgr_meter_spec_t *spec, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, meter, index, spec, flags), {
    return soft::with_piped_object<Meter>(
        session, device, pipe, meter, [&](Meter &found) { return found.set(pipe, index, spec); });
  });
}

bf_status_t pipe_mgr_meter_read_entry(pipe_session_handle_t session, bf_device_id_t device,
                                      bf_pipe_id_t pipe, pipe_object_handle_t table,
                                      pipe_entry_handle_t entry, pipe_mgr_meter_spec_t *spec) {
  return SOFT_CALL((session, device, pipe, table, entry, spec), {
    return soft::with_piped_object<MatchEngine>(session, device, pipe, table,
                                                [&](MatchEngine &found) -> bf_status_t {
                                                  if (spec == nullptr) return BF_INVALID_ARGUMENT;
                                                  return found.get_meter(entry, spec);
                                                });
  });
}

bf_status_t pipe_mgr_meter_read_entry_idx(pipe_session_handle_t session, bf_device_id_t device,
                                          bf_pipe_id_t pipe, pipe_object_handle_t meter,
                                          uint32_t index, pipe_mgr_meter_spec_t *spec) {
  return SOFT_CALL((session, device, pipe, meter, index, spec), {
    return soft::with_piped_object<Meter>(
        session, device, pipe, meter, [&](Meter &found) { return found.get(pipe, index, spec); });
  });
}

bf_status_t pipe_mgr_meter_set_bytecount_adjust(pipe_session_handle_t session,
                                                bf_device_id_t device, bf_pipe_id_t pipe,
                                                pipe_object_handle_t meter, uint32_t adjustment) {
  return SOFT_CALL((session, device, pipe, meter, adjustment), {
    return soft::with_piped_object<Meter>(session, device, pipe, meter,
                                          [&](Meter &found) -> bf_status_t {
                                            found.set_adjustment(adjustment);
                                            return BF_SUCCESS;
                                          });
  });
}

bf_status_t pipe_mgr_meter_get_bytecount_adjust(pipe_session_handle_t session,
                                                bf_device_id_t device, bf_pipe_id_t pipe,
                                                pipe_object_handle_t meter, uint32_t *adjustment) {
  return SOFT_CALL((session, device, pipe, meter, adjustment), {
    return soft::with_piped_object<Meter>(session, device, pipe, meter,
                                          [&](Meter &found) -> bf_status_t {
                                            if (adjustment == nullptr) return BF_INVALID_ARGUMENT;
                                            *adjustment = found.adjustment();
                                            return BF_SUCCESS;
                                          });
  });
}

// ---- WRED ----

bf_status_t pipe_mgr_wred_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                  bf_pipe_id_t pipe, pipe_object_handle_t wred, uint32_t index,
                                  const pipe_mgr_wred_spec_t *spec, uint32_t flags) {
  return SOFT_CALL((session, device, pipe, wred, index, spec, flags), {
    return soft::with_piped_object<soft::WredUnit>(
        session, device, pipe, soft::WredUnit::kHandle,
        [&](soft::WredUnit &unit) { return unit.set(pipe, wred, index, spec); });
  });
}
