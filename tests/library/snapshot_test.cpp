// Snapshots: triggers in network order, captures cut into records, sizes that make no sense.
#include <algorithm>
#include <cstring>

#include "soft_snapshot.h"
#include "stateful_fixture.hpp"

namespace {

using namespace stateful_test;

using Ingress = p4_pd_tessel_switch_snapshot_ingress_trigger_t;
using Egress = p4_pd_tessel_switch_snapshot_egress_trigger_t;
using Capture = p4_pd_tessel_switch_snapshot_capture_t;

constexpr size_t kRecord = 634;
static_assert(sizeof(Ingress) == kRecord && sizeof(Egress) == kRecord &&
              sizeof(Capture) == kRecord);

// While on, the service has captured total bytes in stages of a size of its own: byte i is i % 251.
struct OddService {
  bool on = false;
  uint32_t total = 0;
  uint32_t stage = 0;
} odd_service;

}  // namespace

using stateful_test::soft_function;

extern "C" bf_status_t bf_snapshot_capture_phv_fields_dict_size(uint32_t snapshot,
                                                                uint32_t *total_size,
                                                                uint32_t *stage_size) {
  if (!odd_service.on) {
    return soft_function(bf_snapshot_capture_phv_fields_dict_size,
                         "bf_snapshot_capture_phv_fields_dict_size")(snapshot, total_size,
                                                                     stage_size);
  }
  *total_size = odd_service.total;
  *stage_size = odd_service.stage;
  return BF_SUCCESS;
}

extern "C" bf_status_t bf_snapshot_capture_get(uint32_t snapshot, uint16_t pipe, void *fields,
                                               bf_snapshot_control_t *control, uint32_t *captures) {
  if (!odd_service.on) {
    return soft_function(bf_snapshot_capture_get, "bf_snapshot_capture_get")(snapshot, pipe, fields,
                                                                             control, captures);
  }
  for (uint32_t i = 0; i < odd_service.total; ++i) {
    static_cast<uint8_t *>(fields)[i] = static_cast<uint8_t>(i % 251);
  }
  *captures = 21;
  return BF_SUCCESS;
}

namespace {

class Snapshots : public StatefulTest {
 protected:
  void TearDown() override {
    odd_service.on = false;
    StatefulTest::TearDown();
  }

  uint32_t create(uint32_t direction, uint8_t first_stage, uint8_t last_stage) {
    uint32_t snapshot = 0;
    EXPECT_EQ(p4_pd_tessel_switch_snapshot_create(kDevice, 1, first_stage, last_stage, direction,
                                                  &snapshot),
              BF_SUCCESS);
    return snapshot;
  }

  // Triggers on any packet and sends one through the stages from 0 on; byte i of the record of
  // stage s is s + i. The fields of ingress packets are the first 404 bytes of a record and of a
  // capture.
  static void capture_all(uint32_t snapshot, uint32_t stages) {
    const Ingress anything = {};
    ASSERT_EQ(p4_pd_tessel_switch_snapshot_capture_trigger_set(snapshot, &anything, &anything),
              BF_SUCCESS);
    Bytes records(stages * kRecord);
    for (size_t i = 0; i < records.size(); ++i) {
      records[i] = static_cast<uint8_t>(i / kRecord + i % kRecord);
    }
    ASSERT_EQ(soft_snapshot_inject(kDevice, 1, 0, 0, records.data(), stages,
                                   static_cast<uint32_t>(records.size()), nullptr),
              BF_SUCCESS);
  }

  static Bytes untouched() { return Bytes(kRecord, 0xa5); }
};

// A capture read into room for 22 records, filled with 0xa5 before.
struct Read {
  std::vector<Bytes> records;
  uint32_t captures = 99;
  uint32_t status = 0;

  explicit Read(uint32_t snapshot) {
    std::vector<Capture> room(22);
    std::memset(static_cast<void *>(room.data()), 0xa5, room.size() * kRecord);
    bf_snapshot_control_t control[32] = {};
    status =
        p4_pd_tessel_switch_snapshot_capture_data_get(snapshot, 1, room.data(), control, &captures);
    for (const Capture &record : room) {
      const auto *bytes = reinterpret_cast<const uint8_t *>(&record);
      records.emplace_back(bytes, bytes + kRecord);
    }
  }
};

// The bytes of a trigger as the device gets them.
TEST_F(Snapshots, TriggersReachTheDeviceInNetworkOrder) {
  Ingress value = {};
  Ingress mask = {};
  value.ig_intr_md_ingress_port = 0x1234;
  mask.ig_intr_md_ingress_port = 0x01ff;
  value.phase0_portType = 0x56;
  value.outerEthHdr_dmacOui = 0x00abcdef;
  mask.outerEthHdr_dmacOui = 0x00fffe00;
  const Ingress value_before = value;
  const Ingress mask_before = mask;
  const uint32_t snapshot = create(0, 0, 3);
  ASSERT_EQ(snapshot & 2, 0u);
  take();
  ASSERT_EQ(p4_pd_tessel_switch_snapshot_capture_trigger_set(snapshot, &value, &mask), BF_SUCCESS);
  const Call call = take_one();
  EXPECT_EQ(call.scalar("snapshot"), snapshot);
  Bytes sent(kRecord);
  Bytes sent_mask(kRecord);
  ASSERT_EQ(soft_snapshot_trigger_get(snapshot, sent.data(), sent_mask.data()), BF_SUCCESS);
  Bytes expected(kRecord);
  expected[0] = 0x12;
  expected[1] = 0x34;
  expected[19] = 0x56;
  expected[22] = 0xab;  // 21 to 24, the OUI of the destination
  expected[23] = 0xcd;
  expected[24] = 0xef;
  EXPECT_EQ(sent, expected);
  Bytes expected_mask(kRecord);
  expected_mask[0] = 0x01;
  expected_mask[1] = 0xff;
  expected_mask[22] = 0xff;
  expected_mask[23] = 0xfe;
  EXPECT_EQ(sent_mask, expected_mask);
  EXPECT_EQ(std::memcmp(&value, &value_before, kRecord), 0);
  EXPECT_EQ(std::memcmp(&mask, &mask_before, kRecord), 0);
}

TEST_F(Snapshots, TurnEveryFieldOfTheirOwnLayoutRound) {
  Bytes value(kRecord);
  Bytes mask(kRecord);
  for (size_t i = 0; i < kRecord; ++i) {
    value[i] = static_cast<uint8_t>(i % 251);
    mask[i] = static_cast<uint8_t>(~value[i]);
  }
  const size_t halves[] = {74, 49};
  const size_t words[] = {40, 32};
  for (const uint32_t direction : {0, 1}) {
    const soft_snapshot_layout_t &layout = soft_program_tessel_switch.snapshot_layouts[direction];
    Bytes expected = value;
    Bytes expected_mask = mask;
    size_t found[5] = {};
    for (uint32_t i = 0; i < layout.field_count; ++i) {
      const soft_snapshot_field_t &field = layout.fields[i];
      ++found[field.bytes];
      for (Bytes *record : {&expected, &expected_mask}) {
        std::reverse(record->begin() + field.offset, record->begin() + field.offset + field.bytes);
      }
    }
    EXPECT_EQ(found[2], halves[direction]);
    EXPECT_EQ(found[4], words[direction]);
    const uint32_t snapshot = create(direction, 0, 3);
    EXPECT_EQ(snapshot >> 1 & 1, direction);
    ASSERT_EQ(p4_pd_tessel_switch_snapshot_capture_trigger_set(snapshot, value.data(), mask.data()),
              BF_SUCCESS);
    Bytes sent(kRecord);
    Bytes sent_mask(kRecord);
    ASSERT_EQ(soft_snapshot_trigger_get(snapshot, sent.data(), sent_mask.data()), BF_SUCCESS);
    EXPECT_EQ(sent, expected);
    EXPECT_EQ(sent_mask, expected_mask);
  }
}

TEST_F(Snapshots, YieldOneRecordAStage) {
  const uint32_t snapshot = create(0, 1, 3);
  capture_all(snapshot, 4);
  const Read read(snapshot);
  EXPECT_EQ(read.status, BF_SUCCESS);
  EXPECT_EQ(read.captures, 3u);
  for (size_t stage = 1; stage <= 3; ++stage) {
    Bytes expected(kRecord);
    for (size_t i = 0; i < 404; ++i) expected[i] = static_cast<uint8_t>(stage + i);
    EXPECT_EQ(read.records[stage - 1], expected) << stage;
  }
  EXPECT_EQ(read.records[3], untouched());
}

// Egress packets have their fields in another order than captures.
TEST_F(Snapshots, YieldTheFieldsOfEgressPacketsUnderTheirNames) {
  const uint32_t snapshot = create(1, 5, 5);
  Egress port = {};
  Egress port_mask = {};
  port.eg_intr_md_egress_port = 0x0123;
  port_mask.eg_intr_md_egress_port = 0xffff;
  ASSERT_EQ(p4_pd_tessel_switch_snapshot_capture_trigger_set(snapshot, &port, &port_mask),
            BF_SUCCESS);
  Bytes packet(kRecord);
  packet[0] = 0x01;  // egress port
  packet[1] = 0x23;
  packet[5] = 0xab;   // 4 to 7, the OUI of the destination
  packet[48] = 0x51;  // 44 to 49, three parts of the hardware address of the ARP sender
  packet[49] = 0x52;
  packet[257] = 0x01;  // the last field: sender dropped by the firewall
  ASSERT_EQ(soft_snapshot_inject(kDevice, 1, 1, 5, packet.data(), 1, kRecord, nullptr), BF_SUCCESS);
  Capture capture = {};
  uint32_t captures = 0;
  ASSERT_EQ(
      p4_pd_tessel_switch_snapshot_capture_data_get(snapshot, 1, &capture, nullptr, &captures),
      BF_SUCCESS);
  EXPECT_EQ(captures, 1u);
  EXPECT_EQ(capture.eg_intr_md_egress_port[0], 0x01);
  EXPECT_EQ(capture.eg_intr_md_egress_port[1], 0x23);
  EXPECT_EQ(capture.outerEthHdr_dmacOui[1], 0xab);
  EXPECT_EQ(capture.arpHdr_smac[4], 0x51);
  EXPECT_EQ(capture.arpHdr_smac[5], 0x52);
  EXPECT_EQ(capture.fwMd_sipDrop, 0x01);
  const auto *bytes = reinterpret_cast<const uint8_t *>(&capture);
  EXPECT_EQ(std::count_if(bytes, bytes + kRecord, [](uint8_t byte) { return byte != 0; }), 6);
}

TEST_F(Snapshots, YieldTwentyRecordsAtMost) {
  const uint32_t snapshot = create(0, 0, 20);
  capture_all(snapshot, 21);
  const Read read(snapshot);
  EXPECT_EQ(read.status, BF_SUCCESS);
  EXPECT_EQ(read.records[19][0], 19);
  EXPECT_EQ(read.records[20], untouched());
}

TEST_F(Snapshots, WriteWhatThereIsOnFailure) {
  const uint32_t snapshot = create(0, 0, 1);
  const Read none(snapshot);
  EXPECT_EQ(none.status, uint32_t{BF_NOT_READY}) << "nothing captured";
  EXPECT_EQ(none.captures, 0u);
  EXPECT_EQ(none.records[1], Bytes(kRecord));
  EXPECT_EQ(none.records[2], untouched());

  capture_all(snapshot, 2);
  soft::faults::fail_allocation(1);
  take();
  const Read no_memory(snapshot);
  EXPECT_EQ(no_memory.status, 2u);
  EXPECT_EQ(no_memory.captures, 0u);
  EXPECT_EQ(no_memory.records[0], untouched());
  EXPECT_EQ(take_one().function, "bf_snapshot_capture_phv_fields_dict_size");

  const Read unknown(snapshot + 0x100);
  EXPECT_EQ(unknown.status, uint32_t{BF_OBJECT_NOT_FOUND});
  EXPECT_EQ(unknown.captures, 0u);
  EXPECT_EQ(unknown.records[0], untouched());
  EXPECT_EQ(take().size(), 1u) << "no capture without its size";
}

TEST_F(Snapshots, SurviveOddSizes) {
  const auto read = [](uint32_t total, uint32_t stage) {
    odd_service = {true, total, stage};
    const Read made(0);
    EXPECT_EQ(made.status, BF_SUCCESS);
    EXPECT_EQ(made.captures, 20u) << "as many as there is room for";
    return made.records;
  };
  // Bytes from first on, and zeroes behind count of them.
  const auto block = [](size_t first, size_t count) {
    Bytes made(kRecord);
    for (size_t i = 0; i < count; ++i) made[i] = static_cast<uint8_t>((first + i) % 251);
    return made;
  };
  EXPECT_EQ(read(1000, 0)[0], untouched());
  EXPECT_EQ(read(0, 0)[0], untouched());
  EXPECT_EQ(read(699, 700)[0], untouched());

  std::vector<Bytes> records = read(25, 10);
  EXPECT_EQ(records[0], block(0, 10));
  EXPECT_EQ(records[1], block(10, 10));
  EXPECT_EQ(records[2], untouched());

  records = read(1400, 700);
  EXPECT_EQ(records[0], block(0, kRecord));
  EXPECT_EQ(records[1], block(700, kRecord));
  EXPECT_EQ(records[2], untouched());

  records = read(1000, 1);
  EXPECT_EQ(records[19], block(19, 1));
  EXPECT_EQ(records[20], untouched());
}

}  // namespace
