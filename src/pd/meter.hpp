// Meters: set and read by index or by entry, byte-count adjustment, WRED profiles.
#pragma once

#include "codec/bytes.hpp"
#include "codec/meter_spec.hpp"
#include "pipe_mgr_match.h"
#include "pipe_mgr_stats.h"

namespace pd {

// A cell of an indirect meter.
template <class Spec>
p4_pd_status_t set_meter(uint32_t meter, uint32_t rate_unit, p4_pd_session_handle_t session,
                         p4_pd_device_target_t target, uint32_t index, const Spec *spec,
                         bool has_pre_color) {
  if (spec == nullptr) return P4_PD_NULL_ARGUMENT;
  pipe_mgr_meter_spec_t record;
  clear(record);
  const p4_pd_status_t status = convert_meter(*spec, rate_unit, has_pre_color, record);
  if (status != BF_SUCCESS) return status;
  return pipe_mgr_meter_ent_set(session, target.device_id, target.pipe_id, meter, index, &record,
                                0);
}

// The meter of an entry; the meter has no pre-colour input.
template <class Spec>
p4_pd_status_t set_entry_meter(uint32_t meter, uint32_t table, uint32_t rate_unit,
                               p4_pd_session_handle_t session, p4_pd_device_target_t target,
                               p4_pd_entry_handle_t entry, const Spec *spec) {
  if (spec == nullptr) return P4_PD_NULL_ARGUMENT;
  pipe_mgr_resource_t resource;
  clear(resource);
  const p4_pd_status_t status = convert_meter(*spec, rate_unit, false, resource.data.meter);
  if (status != BF_SUCCESS) return status;
  resource.handle = meter;
  resource.tag = PIPE_RESOURCE_ATTACH;
  return pipe_mgr_mat_ent_set_resource(session, target.device_id, table, entry, &resource, 1, 0);
}

// The caller's spec from the low 32 bits of what the device holds.
template <class Spec>
void report_meter(const pipe_mgr_meter_spec_t &record, Spec &spec) {
  spec.committed_rate = static_cast<uint32_t>(record.committed_rate.value);
  spec.committed_burst = static_cast<uint32_t>(record.committed_burst);
  spec.peak_rate = static_cast<uint32_t>(record.peak_rate.value);
  spec.peak_burst = static_cast<uint32_t>(record.peak_burst);
  spec.meter_type = record.type;
}

template <class Spec>
p4_pd_status_t read_meter(uint32_t meter, p4_pd_session_handle_t session,
                          p4_pd_device_target_t target, uint32_t index, Spec *spec) {
  if (spec == nullptr) return P4_PD_NULL_ARGUMENT;
  pipe_mgr_meter_spec_t record;
  clear(record);
  const p4_pd_status_t status = pipe_mgr_meter_read_entry_idx(
      session, target.device_id, target.pipe_id, meter, index, &record);
  if (status == BF_SUCCESS) report_meter(record, *spec);
  return status;
}

template <class Spec>
p4_pd_status_t read_entry_meter(uint32_t table, p4_pd_session_handle_t session,
                                p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
                                Spec *spec) {
  if (spec == nullptr) return P4_PD_NULL_ARGUMENT;
  pipe_mgr_meter_spec_t record;
  clear(record);
  const p4_pd_status_t status =
      pipe_mgr_meter_read_entry(session, target.device_id, target.pipe_id, table, entry, &record);
  if (status == BF_SUCCESS) report_meter(record, *spec);
  return status;
}

inline p4_pd_status_t set_bytecount_adjust(uint32_t meter, p4_pd_session_handle_t session,
                                           p4_pd_device_target_t target, uint32_t adjustment) {
  return pipe_mgr_meter_set_bytecount_adjust(session, target.device_id, target.pipe_id, meter,
                                             adjustment);
}

inline p4_pd_status_t get_bytecount_adjust(uint32_t meter, p4_pd_session_handle_t session,
                                           p4_pd_device_target_t target, uint32_t *adjustment) {
  return pipe_mgr_meter_get_bytecount_adjust(session, target.device_id, target.pipe_id, meter,
                                             adjustment);
}

inline p4_pd_status_t set_wred(p4_pd_session_handle_t session, p4_pd_device_target_t target,
                               uint32_t wred, uint32_t index, const p4_pd_wred_params_t *params) {
  if (params == nullptr) return P4_PD_NULL_ARGUMENT;
  const pipe_mgr_wred_spec_t spec = *params;
  return pipe_mgr_wred_ent_set(session, target.device_id, target.pipe_id, wred, index, &spec, 0);
}

}  // namespace pd
