// Counters, meters, registers and digests: the order and the size of what is exchanged, the units
// and types of meters, and where the fields of an entry lie.
#include "pipe_stful.h"
#include "scene.hpp"
#include "soft_learning.h"
#include "soft_state.h"
#include "soft_traffic.h"
#include "typed.hpp"

namespace pd_test {
namespace {

constexpr p4_pd_device_target_t kAllPipes = {kDevice, BF_ALL_PIPES};

class Stateful : public LibraryTest {};

// ---- Counters ----

// The first count of the caller's record is the second one of the device's, and the other way
// round, in the memory of either.
TEST_F(Stateful, CountersExchangeTheirTwoCounts) {
  const uint64_t given[2] = {0x1111222233334444, 0x5555666677778888};
  p4_pd_counter_values_t values, read = {};
  std::memcpy(&values, given, sizeof values);
  const PD(l2DmacClassify_match_spec_t) key = {};
  const uint32_t entry =
      make("table_add", "l2DmacClassify", "setUcast", with("match_spec", &key, "priority", 1));
  const auto expect_exchanged = [&](const Call &call, const char *name) {
    uint64_t seen[2];
    std::memcpy(seen, &call.get<pipe_mgr_counter_t>(name), sizeof seen);
    EXPECT_TRUE(seen[0] == given[1] && seen[1] == given[0]);
    EXPECT_EQ(std::memcmp(&read, given, sizeof read), 0);
  };
  const Call of_entry = only_call([&] {
    PD(counter_write_l2DmacClassifyCount)(session(), kAllPipes, entry, values);
  });
  PD(counter_read_l2DmacClassifyCount)(session(), kAllPipes, entry, 0, &read);
  expect_exchanged(of_entry, "counter");
  EXPECT_EQ(of_entry.scalar("table"), 0x01000002u);
  read = {};
  const Call of_cell = only_call([&] {
    PD(counter_write_pdpClassCount)
    (session(), kTarget, 9, values);
  });
  PD(counter_read_pdpClassCount)(session(), kTarget, 9, 0, &read);
  expect_exchanged(of_cell, "value");

  // The device is asked for what it counted by one flag alone.
  const Call plain = only_call([&] {
    PD(counter_read_pdpClassCount)
    (session(), kTarget, 9, ~P4_PD_READ_FROM_HARDWARE, &read);
  });
  EXPECT_EQ(plain.function, "pipe_mgr_stat_ent_query");
}

// ---- Meters ----

// Meters that are aware of colours, with a colour input. Sweeps see the others.
TEST_F(Stateful, MetersAreSentInTheirUnitAndType) {
  const p4_pd_bytes_meter_spec_t bytes = {1, 2, 3, 4, PD_METER_TYPE_COLOR_AWARE};
  const p4_pd_packets_meter_spec_t packets = {1, 2, 3, 4, PD_METER_TYPE_COLOR_AWARE};
  const auto calls = recorded([&] {
    PD(bytes_meter_set)(session(), kTarget, 0x05000003, 1, &bytes, 7);
    PD(packets_meter_set)(session(), kTarget, 0x05000002, 2, &packets, 1);
  });
  for (const uint32_t unit : {0u, 1u}) {
    const auto &meter = calls.at(unit).get<pipe_mgr_meter_spec_t>("spec");
    EXPECT_EQ(meter.type, 0u);
    EXPECT_TRUE(meter.committed_rate.unit == unit && meter.peak_rate.unit == unit);
  }
}

// By every function that takes one.
TEST(Meters, OfOtherTypesAreRefused) {
  size_t refused = 0;
  for (const Export *exported : all_exports()) {
    const bool reads = std::string_view(exported->family).ends_with("meter_read");
    if (reads || !Arguments(*exported).takes("meter_spec")) continue;
    for (const uint32_t type : {uint32_t{PD_METER_TYPE_COLOR_AWARE}, 2u, ~0u}) {
      const p4_pd_bytes_meter_spec_t spec = {1, 2, 3, 4, type};
      Scene scene(*exported);
      scene.arguments().set("meter_spec", &spec);
      EXPECT_EQ(scene.play(), P4_PD_METER_TYPE_REFUSED) << exported->name << " " << type;
      EXPECT_TRUE(scene.calls().empty());
      ++refused;
    }
  }
  EXPECT_GE(refused, 3u * 12);
}

// The device may hold more than 32 bits say.
TEST_F(Stateful, MetersReadTheirLowHalves) {
  pipe_mgr_meter_spec_t held = {0, {0, 0x100000005}, 0x200000006, {0, 0x300000007}, 0x400000008};
  ASSERT_EQ(pipe_mgr_meter_ent_set(session(), kDevice, kPipe, 0x05000006, 3, &held, 0), BF_SUCCESS);
  const uint32_t wanted[5] = {5, 6, 7, 8, 0};
  for (const char *family : {"meter_read", "bytes_meter_read", "packets_meter_read"}) {
    uint32_t read[5] = {9, 9, 9, 9, 9};
    const char *object = family == std::string_view("meter_read") ? "ingressMirrorMeter" : "";
    EXPECT_EQ(run(family, object, with("meter", 0x05000006, "index", 3, "meter_spec", read)),
              BF_SUCCESS);
    EXPECT_EQ(std::memcmp(read, wanted, sizeof read), 0) << family;
  }
}

// ---- Registers ----

constexpr uint32_t kWide = 0x06000005;  // the one of 32 bits
constexpr uint32_t kBit = 0x06000001;

// What the data plane keeps in a cell: another number in each pipe.
void count_in_pipes(uint32_t reg, uint32_t index, std::initializer_list<uint32_t> values) {
  bf_pipe_id_t pipe = 0;
  for (const uint32_t value : values) {
    EXPECT_EQ(soft_register_write(kDevice, pipe++, reg, index, value), BF_SUCCESS);
  }
}

TEST_F(Stateful, RegistersAreReadByIndexAndThenByPipe) {
  std::vector<uint32_t> words(2);
  uint32_t indexes = 99, count = 99;
  count_in_pipes(kBit, 20, {1, 0, 0, 1});
  count_in_pipes(kBit, 21, {0, 0, 1, 0});
  Bytes bits(9, 7);
  ASSERT_EQ(PD(register_range_read_flowStateRegisterFirst)(session(), kAllPipes, 20, 2, 1, &indexes,
                                                           bits.data(), &count),
            BF_SUCCESS);
  EXPECT_EQ(bits, (Bytes{1, 0, 0, 1, 0, 0, 1, 0, 7}));
  // One pipe yields one value, and only bit 0 of the flags reaches the device.
  count_in_pipes(kWide, 22, {1, 2, 0x80000102, 4});
  const auto read_one = [&](uint32_t flags) {
    words[1] = 7;
    EXPECT_EQ(
        PD(register_read_flowDigestCountReg)(session(), kTarget, 22, flags, words.data(), &count),
        BF_SUCCESS);
    EXPECT_TRUE(count == 1 && words[1] == 7);
    return words[0];
  };
  EXPECT_EQ(read_one(0xfffffffe), 0u);
  EXPECT_EQ(read_one(0xffffffff), 0x80000102u);
}

TEST_F(Stateful, RegistersByHandleTakeTheDevicesRecords) {
  pipe_stful_cell_t cell = {}, read = {};
  for (uint8_t i = 0; i < sizeof cell.bytes; ++i) cell.bytes[i] = static_cast<uint8_t>(0xa0 + i);
  const Call written = only_call([&] {
    PD(register_write_indirect)
    (session(), kTarget, kWide, 8, &cell);
  });
  EXPECT_EQ(
      std::memcmp(&written.get<std::vector<pipe_stful_cell_t>>("cell")[0], &cell, sizeof cell), 0);
  pipe_stful_query_t query = {1, &read};
  PD(register_read_indirect)(session(), kTarget, kWide, 8, 3, &query);
  EXPECT_EQ(read.word, cell.word);
  // No table of the program has a register, so the device refuses.
  constexpr uint32_t table = 0x01000002;
  const Call refused = only_call([&] {
    PD(register_write_direct)
    (session(), kDevice, table, 5, &cell);
  });
  const auto resources = refused.get<std::vector<pipe_mgr_resource_t>>("resources");
  ASSERT_EQ(resources.size(), 1u);
  EXPECT_TRUE(resources[0].handle == table && resources[0].index == 0);
  EXPECT_EQ(resources[0].data.cell.word, cell.word);
  EXPECT_EQ(resources[0].tag, uint32_t{PIPE_RESOURCE_ATTACH});
}

// ---- Digests ----

TEST_F(Stateful, UnknownNamesOfDigestsLeadNowhere) {
  for (const char *name : {"", "MacLearningDigest", "macLearningDigest ", "macLearning"}) {
    EXPECT_EQ(PD(get_digest_entry_size)(name), 0u) << name;
  }
  const uint8_t entry[64] = {};
  for (const auto &[digest, field] :
       {std::pair{"macLearningDigest", "ingMd_protocol"},  // a field of the other digest
        {"macLearningDigest", "IngMd_smacOui"},
        {"macLearningDigest ", "ingMd_smacOui"}}) {
    uint32_t size = 99;
    EXPECT_EQ(PD(get_digest_entry_field)(entry, digest, field, &size), nullptr);
    EXPECT_EQ(size, 0u);
  }
}

}  // namespace
}  // namespace pd_test
