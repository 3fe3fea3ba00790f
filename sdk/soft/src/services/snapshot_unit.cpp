#include "services/snapshot_unit.hpp"

#include <algorithm>
#include <cstring>

#include "soft_snapshot.h"

namespace soft {
namespace {

constexpr uint32_t kSerials = 1u << 22;

void add_unit(Device &device) {
  if (device.program().snapshot_bytes == 0) return;
  device.add(std::make_unique<SnapshotUnit>(device));
}

const EngineSet snapshots{EngineOrder::kServices, add_unit};

}  // namespace

SnapshotUnit::SnapshotUnit(const Device &device)
    : Engine(kHandle),
      device_(device.id()),
      record_bytes_(device.program().snapshot_bytes),
      moves_{moves_of(device.program(), 0), moves_of(device.program(), 1)} {}

std::vector<SnapshotUnit::Move> SnapshotUnit::moves_of(const soft_program_t &program,
                                                       uint32_t direction) {
  if (program.snapshot_capture.field_count == 0) {
    return {{0, 0, static_cast<uint16_t>(program.snapshot_bytes)}};
  }
  std::vector<Move> moves;
  const soft_snapshot_layout_t &layout = program.snapshot_layouts[direction];
  for (const soft_snapshot_field_t &field : described(layout.fields, layout.field_count)) {
    if (field.captured_at == SOFT_NOT_CAPTURED) continue;
    moves.push_back({field.offset, field.captured_at, field.bytes});
  }
  return moves;
}

bf_status_t SnapshotUnit::create(bf_pipe_id_t pipe, StageRange stages, uint32_t direction,
                                 uint32_t *snapshot) {
  const std::lock_guard lock(mutex_);
  if (snapshots_.size() >= kSerials) return BF_TABLE_FULL;
  uint32_t handle = 0;
  do {
    last_serial_ = (last_serial_ + 1) % kSerials;
    handle = device_ << kDeviceAt | last_serial_ << 2 | direction << 1 | 1;
  } while (snapshots_.count(handle) != 0);
  snapshots_.emplace(handle, Snapshot{pipe, stages, direction, {}, {}, {}});
  *snapshot = handle;
  return BF_SUCCESS;
}

bf_status_t SnapshotUnit::erase(uint32_t snapshot) {
  const std::lock_guard lock(mutex_);
  return snapshots_.erase(snapshot) != 0 ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
}

template <class Body>
bf_status_t SnapshotUnit::on_snapshot(uint32_t snapshot, Body body) {
  const std::lock_guard lock(mutex_);
  const auto found = snapshots_.find(snapshot);
  return found == snapshots_.end() ? bf_status_t{BF_OBJECT_NOT_FOUND} : body(found->second);
}

bf_status_t SnapshotUnit::set_trigger(uint32_t snapshot, const uint8_t *value,
                                      const uint8_t *mask) {
  return on_snapshot(snapshot, [&](Snapshot &found) -> bf_status_t {
    std::vector<uint8_t> new_value(value, value + record_bytes_);
    std::vector<uint8_t> new_mask(mask, mask + record_bytes_);
    found.value.swap(new_value);
    found.mask.swap(new_mask);
    found.captures.clear();
    return BF_SUCCESS;
  });
}

bf_status_t SnapshotUnit::get_trigger(uint32_t snapshot, uint8_t *value, uint8_t *mask) {
  return on_snapshot(snapshot, [&](Snapshot &found) -> bf_status_t {
    if (found.value.empty()) return BF_NOT_READY;
    std::copy(found.value.begin(), found.value.end(), value);
    std::copy(found.mask.begin(), found.mask.end(), mask);
    return BF_SUCCESS;
  });
}

bf_status_t SnapshotUnit::sizes(uint32_t snapshot, uint32_t *total, uint32_t *stage) {
  return on_snapshot(snapshot, [&](Snapshot &found) -> bf_status_t {
    *total = static_cast<uint32_t>(found.stages.count() * record_bytes_);
    *stage = static_cast<uint32_t>(record_bytes_);
    return BF_SUCCESS;
  });
}

bf_status_t SnapshotUnit::read(uint32_t snapshot, bf_pipe_id_t pipe, uint8_t *fields,
                               bf_snapshot_control_t *control, uint32_t *captures) {
  return on_snapshot(snapshot, [&](Snapshot &found) -> bf_status_t {
    const auto &held = found.captures;
    const auto chosen = pipe == BF_ALL_PIPES ? held.begin() : held.find(pipe);
    if (chosen == held.end()) {
      *captures = 0;
      return BF_NOT_READY;
    }
    const Capture &capture = chosen->second;
    std::copy(capture.fields.begin(), capture.fields.end(), fields);
    if (control != nullptr) std::copy(capture.control.begin(), capture.control.end(), control);
    *captures = capture.stages;
    return BF_SUCCESS;
  });
}

bool SnapshotUnit::matches(const Snapshot &snapshot, const uint8_t *record) const {
  for (size_t at = 0; at < record_bytes_; ++at) {
    if (((record[at] ^ snapshot.value[at]) & snapshot.mask[at]) != 0) return false;
  }
  return true;
}

bool SnapshotUnit::capture(const Packet &packet, Snapshot &snapshot) const {
  if (snapshot.direction != packet.direction || snapshot.value.empty()) return false;
  if (snapshot.pipe != packet.pipe && snapshot.pipe != BF_ALL_PIPES) return false;
  if (snapshot.captures.count(packet.pipe) != 0) return false;

  Capture capture;
  capture.fields.resize(snapshot.stages.count() * record_bytes_);
  capture.control.resize(snapshot.stages.count());
  bool triggered = false;
  for (size_t at = 0; at < snapshot.stages.count(); ++at) {
    const auto stage = static_cast<uint8_t>(snapshot.stages.first + at);
    bf_snapshot_control_t &control = capture.control[at];
    control.stage = stage;
    if (stage < packet.stages.first || stage > packet.stages.last) continue;
    const uint8_t *record = packet.records + (stage - packet.stages.first) * record_bytes_;
    uint8_t *block = &capture.fields[at * record_bytes_];
    for (const Move &move : moves_[packet.direction]) {
      std::memcpy(block + move.to, record + move.from, move.bytes);
    }
    control.valid = true;
    control.triggered = matches(snapshot, record);
    triggered |= control.triggered;
    ++capture.stages;
  }
  if (triggered) snapshot.captures.emplace(packet.pipe, std::move(capture));
  return triggered;
}

uint32_t SnapshotUnit::inject(const Packet &packet) {
  const std::lock_guard lock(mutex_);
  uint32_t captured = 0;
  for (auto &[handle, snapshot] : snapshots_) {
    if (capture(packet, snapshot)) ++captured;
  }
  return captured;
}

uint64_t SnapshotUnit::held_bytes() const {
  uint64_t bytes = 0;
  for (const auto &[handle, snapshot] : snapshots_) {
    bytes += sizeof(snapshot) + snapshot.value.size() + snapshot.mask.size();
    for (const auto &[pipe, capture] : snapshot.captures) {
      bytes += sizeof(capture) + capture.fields.size() +
               capture.control.size() * sizeof(bf_snapshot_control_t);
    }
  }
  return bytes;
}

void SnapshotUnit::take_over(SnapshotUnit &other) {
  snapshots_.clear();
  for (const auto &[handle, snapshot] : other.snapshots_) {
    snapshots_.emplace(device_ << kDeviceAt | (handle & kBelowDevice), snapshot);
  }
  last_serial_ = other.last_serial_;
}

}  // namespace soft
