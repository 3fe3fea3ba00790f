// Meters, registers, counters and digests: units and types, flags, records by handle and names.
#include "pipe_stful.h"
#include "scene.hpp"
#include "soft_learning.h"
#include "soft_state.h"
#include "soft_traffic.h"
#include "typed.hpp"

namespace pd_test {
namespace {

class Stateful : public LibraryTest {};

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
