// The snapshots of a device. soft_snapshot.h says what they capture.
#pragma once

#include <map>
#include <vector>

#include "bf_snapshot.h"
#include "device/engine.hpp"

namespace soft {

// Some stages, both ends included.
struct StageRange {
  uint8_t first;
  uint8_t last;

  size_t count() const { return size_t{last} - first + 1; }
};

// A member function that takes a snapshot says BF_OBJECT_NOT_FOUND when there is no such one.
class SnapshotUnit : public Engine<SnapshotUnit> {
 public:
  static constexpr pipe_object_handle_t kHandle = kServiceHandles | 1;

  explicit SnapshotUnit(const Device &device);

  static bf_device_id_t device_of(uint32_t snapshot) { return snapshot >> kDeviceAt; }

  // Size of a record of one stage, not 0: a unit without records is never created.
  size_t record_bytes() const { return record_bytes_; }

  // BF_TABLE_FULL: there are 4,194,304 snapshots.
  bf_status_t create(bf_pipe_id_t pipe, StageRange stages, uint32_t direction, uint32_t *snapshot);
  bf_status_t erase(uint32_t snapshot);

  // value and mask are record_bytes() long. get: BF_NOT_READY without a trigger.
  bf_status_t set_trigger(uint32_t snapshot, const uint8_t *value, const uint8_t *mask);
  bf_status_t get_trigger(uint32_t snapshot, uint8_t *value, uint8_t *mask);

  // Of the whole capture and of one stage.
  bf_status_t sizes(uint32_t snapshot, uint32_t *total, uint32_t *stage);
  // control may be null. BF_NOT_READY: nothing is captured; only captures is written.
  bf_status_t read(uint32_t snapshot, bf_pipe_id_t pipe, uint8_t *fields,
                   bf_snapshot_control_t *control, uint32_t *captures);

  // A packet with its record at each stage; returns how many snapshots captured it.
  struct Packet {
    bf_pipe_id_t pipe;
    uint32_t direction;
    StageRange stages;
    const uint8_t *records;
  };
  uint32_t inject(const Packet &packet);

  uint64_t held_bytes() const;
  // The copies bear the number of this device in their handles.
  void take_over(SnapshotUnit &other);

 private:
  static constexpr uint32_t kDeviceAt = 24;  // its lowest bit in a handle
  static constexpr uint32_t kBelowDevice = (1u << kDeviceAt) - 1;

  struct Capture {
    std::vector<uint8_t> fields;                 // a block for each stage of the snapshot
    std::vector<bf_snapshot_control_t> control;  // the same
    uint32_t stages = 0;                         // that are valid
  };
  struct Snapshot {
    bf_pipe_id_t pipe;
    StageRange stages;
    uint32_t direction;
    std::vector<uint8_t> value;  // empty without a trigger
    std::vector<uint8_t> mask;
    std::map<bf_pipe_id_t, Capture> captures;
  };

  // Fields of a packet and where a capture has them.
  struct Move {
    uint16_t from;
    uint16_t to;
    uint16_t bytes;
  };
  static std::vector<Move> moves_of(const soft_program_t &program, uint32_t direction);

  template <class Body>
  bf_status_t on_snapshot(uint32_t snapshot, Body body);

  // Called under the lock.
  bool matches(const Snapshot &snapshot, const uint8_t *record) const;
  bool capture(const Packet &packet, Snapshot &snapshot) const;

  bf_device_id_t device_;
  size_t record_bytes_;
  std::vector<Move> moves_[2];  // by direction
  uint32_t last_serial_ = 0;
  std::map<uint32_t, Snapshot> snapshots_;
};

}  // namespace soft
