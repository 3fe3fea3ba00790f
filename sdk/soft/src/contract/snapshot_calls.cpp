// Snapshots: the contract and the data plane's side. A snapshot handle names its device.
#include "bf_snapshot.h"
#include "contract/resolve.hpp"
#include "services/snapshot_unit.hpp"
#include "soft_snapshot.h"

using namespace soft;

namespace {

// A program without snapshots has no unit for them.
bf_status_t or_unsupported(bf_status_t status) {
  return status == BF_INVALID_HANDLE ? bf_status_t{BF_NOT_SUPPORTED} : status;
}

bf_status_t create(SnapshotUnit &unit, bf_pipe_id_t pipe, StageRange stages, uint32_t direction,
                   uint32_t *snapshot) {
  if (stages.first > stages.last || stages.last >= SOFT_STAGE_LIMIT || direction > 1) {
    return BF_INVALID_ARGUMENT;
  }
  return unit.create(pipe, stages, direction, snapshot);
}

// body(SnapshotUnit &) with the unit of a snapshot, which does not exist where its device does not.
template <class Body>
bf_status_t with_snapshot(uint32_t snapshot, Body body) {
  const DeviceHold device(SnapshotUnit::device_of(snapshot));
  auto *unit = device ? device->find<SnapshotUnit>(SnapshotUnit::kHandle) : nullptr;
  return unit == nullptr ? bf_status_t{BF_OBJECT_NOT_FOUND} : body(*unit);
}

bf_status_t get_sizes(uint32_t snapshot, uint32_t *total_size, uint32_t *stage_size) {
  if (total_size == nullptr || stage_size == nullptr) return BF_INVALID_ARGUMENT;
  return with_snapshot(
      snapshot, [&](SnapshotUnit &unit) { return unit.sizes(snapshot, total_size, stage_size); });
}

// Records and captures for the journal: a pointer to nothing known as the bytes that it leads to.
List<const uint8_t> record_of(const void *record, uint32_t snapshot) {
  uint32_t total = 0;
  uint32_t stage = 0;
  get_sizes(snapshot, &total, &stage);
  return {static_cast<const uint8_t *>(record), stage};
}

List<uint8_t> capture_of(void *fields, uint32_t snapshot) {
  uint32_t total = 0;
  uint32_t stage = 0;
  get_sizes(snapshot, &total, &stage);
  return {static_cast<uint8_t *>(fields), total};
}

bf_status_t set_trigger(uint32_t snapshot, const void *value, const void *mask) {
  return with_snapshot(snapshot, [&](SnapshotUnit &unit) -> bf_status_t {
    if (value == nullptr || mask == nullptr) return BF_INVALID_ARGUMENT;
    return unit.set_trigger(snapshot, static_cast<const uint8_t *>(value),
                            static_cast<const uint8_t *>(mask));
  });
}

bf_status_t read_capture(uint32_t snapshot, bf_pipe_id_t pipe, void *fields,
                         bf_snapshot_control_t *control, uint32_t *captures) {
  return with_snapshot(snapshot, [&](SnapshotUnit &unit) -> bf_status_t {
    if (fields == nullptr || captures == nullptr) return BF_INVALID_ARGUMENT;
    return unit.read(snapshot, pipe, static_cast<uint8_t *>(fields), control, captures);
  });
}

bf_status_t inject_packet(SnapshotUnit &unit, const SnapshotUnit::Packet &packet, uint32_t bytes,
                          uint32_t *captures) {
  if (packet.records == nullptr) return BF_INVALID_ARGUMENT;
  if (packet.stages.count() * unit.record_bytes() != bytes) return BF_WRONG_LENGTH;
  const uint32_t captured = unit.inject(packet);
  if (captures != nullptr) *captures = captured;
  return BF_SUCCESS;
}

}  // namespace

bf_status_t bf_snapshot_create(bf_device_id_t device, uint16_t pipe, uint8_t first_stage,
                               uint8_t last_stage, uint32_t direction, uint32_t *snapshot) {
  return SOFT_CALL(
      (device, pipe, first_stage, last_stage, direction, snapshot),
      or_unsupported(on<create>(InAnyPipe{{device, pipe, SnapshotUnit::kHandle}}, pipe,
                                StageRange{first_stage, last_stage}, direction, given(snapshot))));
}

bf_status_t bf_snapshot_delete(uint32_t snapshot) {
  return SOFT_CALL((snapshot), with_snapshot(snapshot, [&](SnapshotUnit &unit) {
                     return unit.erase(snapshot);
                   }));
}

bf_status_t bf_snapshot_capture_trigger_set(uint32_t snapshot, const void *value,
                                            const void *mask) {
  return SOFT_CALL((snapshot, record_of(value, snapshot), record_of(mask, snapshot)),
                   set_trigger(snapshot, value, mask));
}

bf_status_t bf_snapshot_capture_phv_fields_dict_size(uint32_t snapshot, uint32_t *total_size,
                                                     uint32_t *stage_size) {
  return SOFT_CALL((snapshot, total_size, stage_size), get_sizes(snapshot, total_size, stage_size));
}

bf_status_t bf_snapshot_capture_get(uint32_t snapshot, uint16_t pipe, void *fields,
                                    bf_snapshot_control_t *control, uint32_t *captures) {
  return SOFT_CALL((snapshot, pipe, capture_of(fields, snapshot), control, captures),
                   read_capture(snapshot, pipe, fields, control, captures));
}

bf_status_t soft_snapshot_inject(bf_device_id_t device, bf_pipe_id_t pipe, uint32_t direction,
                                 uint8_t first_stage, const uint8_t *records, uint32_t stage_count,
                                 uint32_t bytes, uint32_t *captures) {
  const bool is_packet = direction <= 1 && stage_count != 0 && stage_count <= SOFT_STAGE_LIMIT &&
                         first_stage <= SOFT_STAGE_LIMIT - stage_count;
  const StageRange stages{first_stage, static_cast<uint8_t>(first_stage + stage_count - 1)};
  return or_unsupported(control<inject_packet>(
      InPipe{device, pipe, SnapshotUnit::kHandle},
      SnapshotUnit::Packet{pipe, direction, stages, is_packet ? records : nullptr}, bytes,
      captures));
}

bf_status_t soft_snapshot_trigger_get(uint32_t snapshot, uint8_t *value, uint8_t *mask) {
  return with_snapshot(snapshot, [&](SnapshotUnit &unit) -> bf_status_t {
    if (value == nullptr || mask == nullptr) return BF_INVALID_ARGUMENT;
    return unit.get_trigger(snapshot, value, mask);
  });
}
