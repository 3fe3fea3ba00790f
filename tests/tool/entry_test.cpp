// Commands on entries: what reaches the device, and what comes back.
#include <random>

#include "soft_journal.hpp"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/value.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

using soft::journal::Bytes;

TEST_F(ToolTest, AddHandsOverKeyPriorityTtlMeterAndParameters) {
  soft::journal::start();
  run("add ipv4ShortMaskLpm vrfId=7 dip=10.1.0.0/16 ttl=5000 action=setNextHop nextHop=0x1234");
  run("add l2LookupMiss ingressPort=3 dmac=01:00:5e:00:00:00&ff:ff:ff:80:00:00 priority=9 "
      "meter=10,20,30,40 action=l2LookupUnknownMcastAction");
  soft::journal::stop();
  const auto calls = soft::journal::calls("pipe_mgr_mat_ent_add");
  ASSERT_EQ(calls.size(), 2u);
  const auto &route = calls[0].get<soft::journal::MatchSpec>("match");
  EXPECT_EQ(*route.value, (Bytes{7, 10, 1, 0, 0}));
  EXPECT_EQ(*route.mask, (Bytes{0xff, 0xff, 0xff, 0, 0}));
  EXPECT_EQ(calls[0].scalar("ttl"), 5000u);
  const auto &next = calls[0].get<soft::journal::ActionSpec>("action_spec");
  ASSERT_TRUE(next.data.bytes);
  const Bytes &data = *next.data.bytes;
  ASSERT_GE(data.size(), 2u);
  EXPECT_EQ(Bytes(data.end() - 2, data.end()), (Bytes{0x12, 0x34}));

  const auto &storm = calls[1].get<soft::journal::MatchSpec>("match");
  EXPECT_EQ(*storm.value, (Bytes{0, 3, 0x01, 0x00, 0x5e, 0, 0, 0}));
  EXPECT_EQ(storm.priority, 9u);
  const auto &action = calls[1].get<soft::journal::ActionSpec>("action_spec");
  ASSERT_EQ(action.resources.size(), 1u);
  EXPECT_EQ(action.resources[0].data.meter.committed_rate.value, 10u);
  EXPECT_EQ(action.resources[0].data.meter.peak_burst, 40u);
}

TEST_F(ToolTest, HashValuesAreLaidEndToEnd) {
  soft::journal::start();
  run("hash compute hashOuterIpv4Hdr 10.0.0.1/32 00:11:22:33:44:55/48 6/8");
  soft::journal::stop();
  const auto calls = soft::journal::calls("pipe_mgr_hash_calc_calculate_hash_value");
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].get<Bytes>("stream"),
            (Bytes{10, 0, 0, 1, 0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 6}));
}

// A line that adds an entry with random values to the table.
std::string random_record(const bindings::Record &record, std::mt19937 &engine) {
  const auto random = [&] { return static_cast<uint32_t>(engine()); };
  std::string text;
  for (const Field &field : record.shown()) {
    Number mask = low_ones(field.width);
    if (field.match == Match::lpm) mask = prefix_mask(random() % (field.width + 1), field.width);
    if (field.match == Match::ternary) mask = mask & Number(random()) << (random() % 8);
    Number bits = {uint64_t{random()} << 32 | random(), uint64_t{random()} << 32 | random()};
    // Cells that every counter and meter of the device has.
    if (field.label.ends_with("Index")) bits = bits & low_ones(22);
    text += fmt::format(" {}={}", field.label, format_value(field, {bits & mask, mask}));
  }
  return text;
}

TEST_F(ToolTest, EveryActionOfEveryTableIsAddedFoundShownAndDeleted) {
  std::mt19937 random(2026);
  size_t pairs = 0;
  for_each_export("table_add", [&](const bindings::Export &add) {
    const std::string table = add.object;
    const TableInfo info = resolve_table({table, 0});
    std::string key = table + random_record(*info.record, random);
    if (info.has_priority()) key += " priority=77";
    std::string line = "add " + key;
    if (info.ages()) line += " ttl=0";
    const bool metered = Call(add).takes("meter_spec");
    if (metered) line += " meter=1,2,3,4";
    const std::string outcome =
        " action=" + std::string(add.action) + random_record(action_record(add.action), random);
    line += outcome + " as=it";
    ASSERT_EQ(run(line), "") << line;
    const std::string handle = std::to_string(context_.labels["it"]);
    EXPECT_EQ(run("find " + key), table + " entry=" + handle + "\n") << line;
    const std::string shown = run("show " + table);
    EXPECT_TRUE(shown.starts_with(table + " entry=" + handle + " ")) << shown;
    EXPECT_TRUE(shown.ends_with(outcome + "\n")) << line << "\n" << shown;
    EXPECT_EQ(run("modify " + table + " entry=" + handle + outcome), "");
    EXPECT_EQ(run("modify " + key + outcome), "");
    EXPECT_EQ(run("delete " + key), "") << line;
    ++pairs;
  });
  EXPECT_EQ(pairs, 221u);
  EXPECT_EQ(run("count"), "all tables are empty\n");
}

}  // namespace
}  // namespace tesselctl
