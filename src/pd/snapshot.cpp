#include "snapshot.hpp"

#include <string.h>

#include "codec/bytes.hpp"
#include "scratch.hpp"

namespace pd {

namespace {

// Cuts the stages of a capture into records. Nothing outside of the stage is read.
void cut_stages(const Snapshots &snapshots, const uint8_t *stages, uint32_t total_size,
                uint32_t stage_size, uint8_t *records) {
  if (stage_size == 0) return;
  const uint32_t count = held(total_size / stage_size, snapshots.capture_limit);
  const uint32_t filled = stage_size < snapshots.record_bytes ? stage_size : snapshots.record_bytes;
  for (uint32_t i = 0; i < count; ++i) {
    uint8_t *record = records + size_t{i} * snapshots.record_bytes;
    memcpy(record, stages + size_t{i} * stage_size, filled);
    memset(record + filled, 0, snapshots.record_bytes - filled);
  }
}

}  // namespace

void convert_trigger(const TriggerLayout &layout, uint32_t record_bytes, const void *record,
                     uint8_t *converted) {
  memcpy(converted, record, record_bytes);
  for (uint32_t i = 0; i < layout.field_count; ++i) {
    uint8_t *field = converted + layout.fields[i].offset;
    if (layout.fields[i].bytes == 2) {
      store_big_endian<2>(field, load<2>(field));
    } else {
      store_big_endian<4>(field, load<4>(field));
    }
  }
}

p4_pd_status_t get_captures(const Snapshots &snapshots, uint32_t snapshot, uint16_t pipe,
                            void *records, bf_snapshot_control_t *control, uint32_t *captures) {
  if (records == nullptr || captures == nullptr) return P4_PD_NULL_ARGUMENT;
  *captures = 0;
  uint32_t total_size = 0;
  uint32_t stage_size = 0;
  // Without sizes nobody knows how much the service would write.
  p4_pd_status_t status =
      bf_snapshot_capture_phv_fields_dict_size(snapshot, &total_size, &stage_size);
  if (status != BF_SUCCESS) return status;
  const Scratch<uint8_t> stages(total_size);
  if (!stages.ok()) return P4_PD_NO_MEMORY;
  status = bf_snapshot_capture_get(snapshot, pipe, stages.items(), control, captures);
  *captures = held(*captures, snapshots.capture_limit);
  cut_stages(snapshots, stages.items(), total_size, stage_size, static_cast<uint8_t *>(records));
  return status;
}

}  // namespace pd
