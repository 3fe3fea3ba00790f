// Snapshots: triggers in network order, captures cut into one record a stage.
#pragma once

#include "bf_snapshot.h"
#include "descriptor.hpp"

namespace pd {

inline p4_pd_status_t create_snapshot(uint32_t device, uint16_t pipe, uint8_t first_stage,
                                      uint8_t last_stage, uint32_t direction, uint32_t *snapshot) {
  if (snapshot == nullptr) return P4_PD_NULL_ARGUMENT;
  return bf_snapshot_create(device, pipe, first_stage, last_stage, direction, snapshot);
}

inline p4_pd_status_t delete_snapshot(uint32_t snapshot) { return bf_snapshot_delete(snapshot); }

// Bit 1 of the handle of a snapshot selects the layout of its trigger records.
inline const TriggerLayout &trigger_layout(const Snapshots &snapshots, uint32_t snapshot) {
  return snapshots.layouts[snapshot >> 1 & 1];
}

// Copies a trigger record in host order and turns its fields into network order.
void convert_trigger(const TriggerLayout &layout, uint32_t record_bytes, const void *record,
                     uint8_t *converted);

// value and mask are records of the snapshot's layout.
template <const Snapshots &S>
p4_pd_status_t set_trigger(uint32_t snapshot, const void *value, const void *mask) {
  if (value == nullptr || mask == nullptr) return P4_PD_NULL_ARGUMENT;
  const TriggerLayout &layout = trigger_layout(S, snapshot);
  uint8_t converted_value[S.record_bytes];
  uint8_t converted_mask[S.record_bytes];
  convert_trigger(layout, S.record_bytes, value, converted_value);
  convert_trigger(layout, S.record_bytes, mask, converted_mask);
  return bf_snapshot_capture_trigger_set(snapshot, converted_value, converted_mask);
}

// records has room for capture_limit records, control (null: not wanted) for one entry a stage. A
// record is written for each whole stage in the service's total size, also when the service failed
// to fill it (zeroes then); a stage that is shorter than a record leaves the rest of it zero, and a
// stage size of 0 is no stage at all. captures reads 0 on every failure in front of the capture,
// and never more than capture_limit.
p4_pd_status_t get_captures(const Snapshots &snapshots, uint32_t snapshot, uint16_t pipe,
                            void *records, bf_snapshot_control_t *control, uint32_t *captures);

}  // namespace pd
