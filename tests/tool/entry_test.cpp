// Commands on entries: what reaches the device, and what comes back.
#include <random>

#include "soft_journal.hpp"
#include "tesselctl/library.hpp"
#include "tesselctl/read_back.hpp"
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

TEST_F(ToolTest, EntriesAreFoundModifiedAndDeletedByKeyAndByHandle) {
  EXPECT_EQ(run("add l2Lookup dmac=02:00:00:00:00:01 egrL2Domain=10 as=one "
                "action=l2LookupKnownUcast egrL2Aintf=4"),
            "");
  const std::string found = run("find l2Lookup dmac=02:00:00:00:00:01 egrL2Domain=10");
  EXPECT_EQ(found, "l2Lookup entry=" + std::to_string(context_.labels["one"]) + "\n");
  EXPECT_EQ(run("modify l2Lookup entry=$one action=l2LookupKnownMcast l2McastId=0xffff"), "");
  EXPECT_EQ(run("show l2Lookup entry=$one"),
            "l2Lookup entry=" + std::to_string(context_.labels["one"]) +
                " dmac=02:00:00:00:00:01 egrL2Domain=10 action=l2LookupKnownMcast "
                "l2McastId=65535\n");
  EXPECT_EQ(run("modify l2Lookup dmac=02:00:00:00:00:01 egrL2Domain=10 action=onMiss"), "");
  EXPECT_EQ(run("count l2Lookup"), "l2Lookup entries=1\n");
  EXPECT_EQ(run("delete l2Lookup entry=$one"), "");
  EXPECT_EQ(run("count l2Lookup"), "l2Lookup entries=0\n");
  EXPECT_EQ(run("show l2Lookup"), "");
}

TEST_F(ToolTest, VerboseCommandsTellTheHandle) {
  context_.defaults.verbose = true;
  const std::string added =
      run("add nextHop nextHop=1 action=setNextHopDetails dmac=2 domain=0 as=x");
  EXPECT_EQ(added, "nextHop entry=" + std::to_string(context_.labels["x"]) + " added\n");
}

TEST_F(ToolTest, MetersKeepWhatTheyAreGiven) {
  run("meter set newFlowMeter index=5 cir=1 cbs=2 pir=3 pbs=4");
  EXPECT_EQ(run("meter get newFlowMeter index=5"),
            "newFlowMeter cir=1 packets/s cbs=2 packets pir=3 packets/s pbs=4 packets "
            "type=unaware\n");
  run("add l2LookupMiss priority=1 meter=1,2,3,4 as=m action=l2LookupBcastHit");
  run("meter set stormControlMeter entry=$m cir=4294967295 cbs=0 pir=3 pbs=4");
  EXPECT_EQ(run("meter get stormControlMeter entry=$m"),
            "stormControlMeter cir=4294967295 kbit/s cbs=0 kbit pir=3 kbit/s pbs=4 kbit "
            "type=unaware\n");
}

// A line that adds an entry with random values to the table.
std::string random_record(const Shape &shape, std::mt19937 &engine) {
  const auto random = [&] { return static_cast<uint32_t>(engine()); };
  std::string text;
  for (const Field *field : shape.shown()) {
    Number mask = low_ones(field->width);
    if (field->match == Match::lpm) mask = prefix_mask(random() % (field->width + 1), field->width);
    if (field->match == Match::ternary) mask = mask & Number(random()) << (random() % 8);
    Number bits = {uint64_t{random()} << 32 | random(), uint64_t{random()} << 32 | random()};
    // Cells that every counter and meter of the device has.
    if (field->label.ends_with("Index")) bits = bits & low_ones(22);
    text += " " + field->label + "=" + format_value(*field, {bits & mask, mask});
  }
  return text;
}

TEST_F(ToolTest, EveryActionOfEveryTableIsAddedFoundShownAndDeleted) {
  std::mt19937 random(2026);
  size_t pairs = 0;
  for_each_export("table_add", [&](const bindings::Export &add) {
    const std::string table = add.object;
    const TableInfo info = resolve_table({table, 0});
    std::string key = table + random_record(info.shape(), random);
    if (info.has_priority()) key += " priority=77";
    std::string line = "add " + key;
    if (info.ages()) line += " ttl=0";
    const bool metered = Call(add).takes("meter_spec");
    if (metered) line += " meter=1,2,3,4";
    const std::string outcome =
        " action=" + std::string(add.action) + random_record(action_shape(add.action), random);
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

TEST_F(ToolTest, DefaultEntriesAreSetShownAndReset) {
  const std::string before = run("default get l2LookupMiss");
  EXPECT_EQ(run("default set l2LookupMiss meter=1,2,3,4 action=l2LookupUnknownUcastAction"), "");
  EXPECT_EQ(run("default get l2LookupMiss"),
            "l2LookupMiss default action=l2LookupUnknownUcastAction\n");
  EXPECT_EQ(run("default reset l2LookupMiss"), "");
  EXPECT_EQ(run("default get l2LookupMiss"), before);
}

TEST_F(ToolTest, MembersAndGroupsServeIndirectEntries) {
  run("member add ecmpMemberActionProfile as=a action=setEcmpNextHop nextHop=1");
  run("member add ecmpMemberActionProfile as=b action=setEcmpNextHop nextHop=2");
  run("group add ecmpMemberActionProfile size=4 as=g");
  EXPECT_EQ(run("group join ecmpMemberActionProfile group=$g member=$a"), "");
  EXPECT_EQ(run("group join ecmpMemberActionProfile group=$g member=$b"), "");
  EXPECT_EQ(run("group disable ecmpMemberActionProfile group=$g member=$b"), "");
  const auto handle = [&](const char *name) { return std::to_string(context_.labels[name]); };
  EXPECT_EQ(run("group show ecmpMemberActionProfile"),
            "ecmpMemberActionProfile group=" + handle("g") + " members=" + handle("a") + "," +
                handle("b") + " inactive=" + handle("b") + "\n");
  EXPECT_EQ(run("group choose ecmpMemberActionProfile group=$g hash=12345"),
            "ecmpMemberActionProfile member=" + handle("a") + " action=setEcmpNextHop nextHop=1\n");
  EXPECT_EQ(run("add ecmpGroup ecmpGroup=7 group=$g as=e"), "");
  EXPECT_EQ(run("show ecmpGroup"),
            "ecmpGroup entry=" + handle("e") + " ecmpGroup=7 group=" + handle("g") + "\n");
  EXPECT_EQ(run("modify ecmpGroup entry=$e member=$b"), "");
  EXPECT_EQ(run("show ecmpGroup"),
            "ecmpGroup entry=" + handle("e") + " ecmpGroup=7 member=" + handle("b") + "\n");
  EXPECT_EQ(run("member modify ecmpMemberActionProfile member=$b action=setEcmpNextHop nextHop=3"),
            "");
  EXPECT_EQ(run("member show ecmpMemberActionProfile member=$b"),
            "ecmpMemberActionProfile member=" + handle("b") + " action=setEcmpNextHop nextHop=3\n");
  EXPECT_EQ(run("member delete ecmpMemberActionProfile member=$b"),
            "15: 'ecmpMemberActionProfile': BF_IN_USE (9): Other objects still refer to this "
            "one.");
}

TEST_F(ToolTest, EntriesExpireOnTheVirtualClock) {
  EXPECT_EQ(run("age enable ipv4ShortMaskLpm sweep=100"), "");
  run("add ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 ttl=1000 action=setNextHop nextHop=1 as=short");
  run("add ipv4ShortMaskLpm vrfId=1 dip=11.0.0.0/8 ttl=9000 action=setNextHop nextHop=1");
  EXPECT_EQ(run("age advance 500"), "");
  EXPECT_EQ(run("age advance 1000"),
            "ipv4ShortMaskLpm entry=" + std::to_string(context_.labels["short"]) +
                " expired vrfId=1 dip=10.0.0.0/8 ttl=1000 action=setNextHop nextHop=1\n");
  EXPECT_EQ(run("age disable ipv4ShortMaskLpm"), "");
}

}  // namespace
}  // namespace tesselctl
