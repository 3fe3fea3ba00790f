// The caller's meter spec as the pipeline manager takes it.
#pragma once

#include "codec/bytes.hpp"
#include "p4_pd_types.h"

namespace pd {

// Fills meter from a bytes or packets meter spec. A colour-aware meter needs a pre-colour input.
// meter must be cleared before; nothing is written on failure.
template <class Spec>
PD_INLINE p4_pd_status_t convert_meter(const Spec &spec, uint32_t rate_unit, bool has_pre_color,
                                       pipe_mgr_meter_spec_t &meter) {
  const bool aware = spec.meter_type == PD_METER_TYPE_COLOR_AWARE;
  if (!aware && spec.meter_type != PD_METER_TYPE_COLOR_UNAWARE) return P4_PD_METER_TYPE_REFUSED;
  if (aware && !has_pre_color) return P4_PD_METER_TYPE_REFUSED;
  meter.type = aware ? PIPE_METER_COLOR_AWARE : PIPE_METER_COLOR_UNAWARE;
  meter.committed_rate.unit = rate_unit;
  meter.committed_rate.value = spec.committed_rate;
  meter.committed_burst = spec.committed_burst;
  meter.peak_rate.unit = rate_unit;
  meter.peak_rate.value = spec.peak_rate;
  meter.peak_burst = spec.peak_burst;
  return BF_SUCCESS;
}

}  // namespace pd
