// Snapshots: triggers, what is captured, and how it is read.
#include "program.hpp"

namespace {

using namespace soft_test;

class Snapshots : public SoftTest {
 protected:
  uint32_t create(uint8_t first, uint8_t last, uint32_t direction = 0,
                  uint16_t pipe = BF_ALL_PIPES) {
    uint32_t snapshot = 0;
    OK(bf_snapshot_create(kDevice, pipe, first, last, direction, &snapshot));
    return snapshot;
  }
  // Triggers on a first byte.
  static bf_status_t trigger(uint32_t snapshot, uint8_t byte) {
    const uint8_t value[kSnapshotBytes] = {byte, 0x11, 0x22, 0x33};
    const uint8_t mask[kSnapshotBytes] = {0xff, 0, 0, 0};
    return bf_snapshot_capture_trigger_set(snapshot, value, mask);
  }
  // How many snapshots captured a packet; a record for each stage.
  static uint32_t packet(uint8_t first, const Bytes &records, bf_pipe_id_t pipe = 0,
                         uint32_t direction = 0) {
    uint32_t captures = 99;
    const auto bytes = static_cast<uint32_t>(records.size());
    OK(soft_snapshot_inject(kDevice, pipe, direction, first, records.data(), bytes / kSnapshotBytes,
                            bytes, &captures));
    return captures;
  }
  struct Read {
    bf_status_t status;
    Bytes fields;
    std::vector<bf_snapshot_control_t> control;
    uint32_t captures;
  };
  static Read read(uint32_t snapshot, size_t stages, uint16_t pipe = BF_ALL_PIPES) {
    Read made{0, Bytes(stages * kSnapshotBytes, 0xa5), {}, 99};
    made.control.resize(stages);
    made.status = bf_snapshot_capture_get(snapshot, pipe, made.fields.data(), made.control.data(),
                                          &made.captures);
    return made;
  }
};

TEST_F(Snapshots, CaptureTheFirstPacketThatTheTriggerMatches) {
  const uint32_t snapshot = create(2, 4);
  EXPECT_EQ(snapshot, 0x04000005u);
  EXPECT_EQ(packet(2, {0x77, 1, 2, 3}), 0u) << "no trigger yet";
  OK(trigger(snapshot, 0x77));
  EXPECT_EQ(packet(2, {0x76, 1, 2, 3}), 0u);
  EXPECT_EQ(read(snapshot, 3).status, BF_NOT_READY);
  EXPECT_EQ(read(snapshot, 3).captures, 0u);
  EXPECT_EQ(packet(5, {0x77, 1, 2, 3}), 0u) << "outside its stages";

  // Stages 1 to 3: the snapshot sees 2 and 3, and triggers at 3.
  EXPECT_EQ(packet(1, {0x77, 1, 1, 1, 0x10, 2, 2, 2, 0x77, 3, 3, 3}), 1u);
  EXPECT_EQ(packet(2, {0x77, 9, 9, 9}), 0u) << "it holds a capture already";
  const Read captured = read(snapshot, 3);
  OK(captured.status);
  EXPECT_EQ(captured.captures, 2u);
  EXPECT_EQ(captured.fields, (Bytes{0x10, 2, 2, 2, 0x77, 3, 3, 3, 0, 0, 0, 0}));
  for (size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(captured.control[i].stage, i + 2);
    EXPECT_EQ(captured.control[i].valid, i < 2);
    EXPECT_EQ(captured.control[i].triggered, i == 1);
  }

  OK(trigger(snapshot, 0x78));
  EXPECT_EQ(read(snapshot, 3).status, BF_NOT_READY) << "a new trigger drops the capture";
  EXPECT_EQ(packet(3, {0x78, 3, 3, 3, 0x10, 4, 4, 4}), 1u);
  const Read anew = read(snapshot, 3);
  EXPECT_EQ(anew.fields, (Bytes{0, 0, 0, 0, 0x78, 3, 3, 3, 0x10, 4, 4, 4}));
  EXPECT_TRUE(anew.control[1].triggered && !anew.control[2].triggered);
}

TEST_F(Snapshots, OfAllPipesHoldACaptureOfEach) {
  const uint32_t egress = create(0, 1, 1);
  EXPECT_EQ(egress & 2, 2u);
  OK(trigger(egress, 5));
  const uint32_t all = create(0, 0);
  const uint32_t one = create(0, 0, 0, 1);
  OK(trigger(all, 5));
  OK(trigger(one, 5));
  EXPECT_EQ(packet(0, {5, 1, 1, 1}, 1), 2u);
  EXPECT_EQ(packet(0, {5, 0, 0, 0}, 0), 1u);
  EXPECT_EQ(read(all, 1, 0).fields, (Bytes{5, 0, 0, 0}));
  EXPECT_EQ(read(all, 1, 1).fields, (Bytes{5, 1, 1, 1}));
  EXPECT_EQ(read(one, 1, 0).status, BF_NOT_READY);
  EXPECT_EQ(read(one, 1).fields, (Bytes{5, 1, 1, 1}));
  EXPECT_EQ(read(egress, 2).status, BF_NOT_READY) << "of the other direction";
  EXPECT_EQ(packet(0, {5, 0, 0, 0}, 0, 1), 1u);
  OK(read(egress, 2).status);
}

TEST_F(Snapshots, LiveUntilTheyAreDeletedOrTheirDeviceGoes) {
  const uint32_t snapshot = create(0, 31);
  uint32_t total = 0, stage = 0, other = 0;
  OK(bf_snapshot_capture_phv_fields_dict_size(snapshot, &total, &stage));
  EXPECT_EQ(std::pair(total, stage), std::pair(128u, 4u));
  OK(bf_snapshot_delete(snapshot));
  EXPECT_EQ(bf_snapshot_delete(snapshot), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(trigger(snapshot, 1), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(read(snapshot, 1).status, BF_OBJECT_NOT_FOUND);
  EXPECT_NE(create(0, 0), snapshot);

  OK(soft_device_create(255, 1, &small_program(), false));
  OK(bf_snapshot_create(255, 0, 0, 0, 1, &other));
  OK(trigger(other, 1));
  EXPECT_EQ(packet(0, {1, 0, 0, 0}, 0, 1), 0u) << "a snapshot of another device";
  OK(soft_device_remove(255));
  EXPECT_EQ(bf_snapshot_delete(other), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(bf_snapshot_delete(0), BF_OBJECT_NOT_FOUND);
}

TEST_F(Snapshots, RefusedCallsWriteNothing) {
  uint32_t snapshot = kNowhere;
  EXPECT_EQ(bf_snapshot_create(kDevice, 0, 2, 1, 0, &snapshot), BF_INVALID_ARGUMENT);
  EXPECT_EQ(bf_snapshot_create(kDevice, 0, 0, 32, 0, &snapshot), BF_INVALID_ARGUMENT);
  EXPECT_EQ(bf_snapshot_create(kDevice, 0, 0, 0, 2, &snapshot), BF_INVALID_ARGUMENT);
  EXPECT_EQ(snapshot, kNowhere);
  const uint8_t records[8] = {};
  EXPECT_EQ(soft_snapshot_inject(kDevice, 0, 0, 0, records, 2, 7, nullptr), BF_WRONG_LENGTH);
  EXPECT_EQ(soft_snapshot_inject(kDevice, 0, 0, 31, records, 2, 8, nullptr), BF_INVALID_ARGUMENT);

  // A program without snapshots.
  OK(soft_device_create(9, 1, &other_program, false));
  EXPECT_EQ(bf_snapshot_create(9, 0, 0, 0, 0, &snapshot), BF_NOT_SUPPORTED);
  OK(soft_device_remove(9));
}

}  // namespace
