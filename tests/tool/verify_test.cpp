// The state of an old device against a new one: equal, and with things changed, missing and extra.
#include "tesselctl/state/verify.hpp"

#include <algorithm>

#include "p4_pd_tessel_switch.h"
#include "pipe_mgr_types.h"
#include "soft_journal.hpp"
#include "soft_sdk.h"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

// A device that is filled by script lines.
class Side {
 public:
  Side(uint32_t id, bool is_virtual) : device_({.id = id, .pipes = 2, .is_virtual = is_virtual}) {}

  void run(std::string_view text) {
    EXPECT_EQ(run_script(runner_, "side", text, {}).faults, 0u) << errors_.take();
  }
  const Device &device() const { return device_; }

 private:
  Device device_;
  Output out_;
  Output errors_;
  LocalRunner runner_{device_, out_, errors_, {}};
};

constexpr const char *kState =
    "member add lagPortActionProfile action=setPhysicalPort\n"
    "member add ecmpMemberActionProfile action=setEcmpNextHop nextHop=0x21\n"
    "member add ecmpMemberActionProfile action=setEcmpNextHop nextHop=0x22\n"
    "member add ecmpMemberActionProfile action=setEcmpNextHop nextHop=0x23\n"
    "group add ecmpMemberActionProfile size=4\n"
    "group join ecmpMemberActionProfile group=1 member=2\n"
    "group join ecmpMemberActionProfile group=1 member=1\n"
    "add ecmpGroup ecmpGroup=7 group=1\n"
    "add ecmpGroup ecmpGroup=8 member=2\n"
    "add lagGroup egrL2AintfUnresolved=5 priority=1 member=1\n"
    "default set lagGroup member=1\n"
    "add ipv4ShortMaskLpm vrfId=1 dip=10.0.1.0/24 ttl=0 action=setNextHop nextHop=0x11\n"
    "add ipv4ShortMaskLpm vrfId=1 dip=10.0.2.0/24 ttl=0 action=setNextHop nextHop=0x12\n"
    "add ipv4ShortMaskLpm vrfId=1 dip=10.0.3.0/24 ttl=0 action=setNextHop nextHop=0x13\n";

class VerifyTest : public ::testing::Test {
 protected:
  VerifyTest() {
    old_.run(kState);
    new_.run(kState);
  }

  // Differences, one a line.
  std::string differences(uint64_t entries = 6) {
    constexpr const char *names[] = {"entry", "default", "member", "group", "membership"};
    std::string lines;
    const VerifyCounts counts = verify(old_.device(), new_.device(), [&](const Finding &one) {
      lines += fmt::format("{} {} of {}: {} {} / {} {}\n", difference_text(one.difference),
                           names[static_cast<size_t>(one.what)], one.object, one.old_handle,
                           one.old_text, one.new_handle, one.new_text);
    });
    EXPECT_EQ(counts.entries, entries);
    EXPECT_EQ(counts.members, 4u);
    EXPECT_EQ(counts.groups, 1u);
    EXPECT_EQ(counts.memberships, 2u);
    EXPECT_EQ(counts.differences, static_cast<uint64_t>(std::ranges::count(lines, '\n')));
    return lines;
  }

  Side old_{3, true};
  Side new_{4, false};
};

TEST_F(VerifyTest, EqualDevices) {
  EXPECT_EQ(differences(), "");
  // Nor does a replay change that, on to a third one.
  Side third(5, false);
  Call restore = old_.device().prepare("restore_virtual_dev_state", "");
  restore.set("device", uint64_t{5}).set("virtual_device", uint64_t{3});
  restore.set("pipe", uint64_t{BF_ALL_PIPES}).set("flags", uint64_t{0});
  ASSERT_EQ(restore.run(), BF_SUCCESS);
  const auto none = [](const Finding &one) { ADD_FAILURE() << one.object << one.old_text; };
  EXPECT_EQ(verify(old_.device(), third.device(), none).differences, 0u);
}

TEST_F(VerifyTest, EntriesChangedMissingAndExtra) {
  new_.run(
      "modify ipv4ShortMaskLpm entry=3 action=setNextHop nextHop=0x33\n"
      "delete ipv4ShortMaskLpm entry=1\n"
      "add ipv4ShortMaskLpm vrfId=2 dip=10.0.0.0/8 ttl=0 action=setNextHop nextHop=0x44\n");
  EXPECT_EQ(differences(),
            "missing entry of ipv4ShortMaskLpm: "
            "1 (( 0x01,0x0a000100,0x0018,),('setNextHop',(0x0011,)),) / 0 \n"
            "different entry of ipv4ShortMaskLpm: "
            "3 (( 0x01,0x0a000300,0x0018,),('setNextHop',(0x0013,)),) / "
            "3 (( 0x01,0x0a000300,0x0018,),('setNextHop',(0x0033,)),)\n"
            "extra entry of ipv4ShortMaskLpm: "
            "0  / 4 (( 0x02,0x0a000000,0x0008,),('setNextHop',(0x0044,)),)\n");
}

TEST_F(VerifyTest, AnEntryUnderAnotherHandleIsTheSameEntry) {
  new_.run(
      "delete ipv4ShortMaskLpm entry=1\n"
      "add ipv4ShortMaskLpm vrfId=1 dip=10.0.1.0/24 ttl=9 action=setNextHop nextHop=0x11\n"
      "delete lagGroup egrL2AintfUnresolved=5 priority=1\n");
  EXPECT_EQ(differences(),
            "missing entry of lagGroup: 1 (( 0x00005,0xfffff,),('setMbrHdl',(0x1,))) / 0 \n");
  // As many entries as before; its priority is part of what a ternary entry is.
  new_.run("add lagGroup egrL2AintfUnresolved=5 priority=2 member=1\n");
  EXPECT_EQ(differences(),
            "missing entry of lagGroup: 1 (( 0x00005,0xfffff,),('setMbrHdl',(0x1,))) / 0 \n"
            "extra entry of lagGroup: 0  / 2 (( 0x00005,0xfffff,),('setMbrHdl',(0x1,)))\n");
}

TEST_F(VerifyTest, DefaultEntries) {
  old_.run("default set ipv4ShortMaskLpm action=ipv4ShortMaskLpmMiss\n");
  new_.run(
      "default reset lagGroup\n"
      "default set ecmpGroup member=3\n"
      "default set cpuEncap action=copyPktToCpuTagged copyPipelineQid=3\n");
  EXPECT_EQ(differences(),
            "extra default of ecmpGroup: 0  / 2147483648 ((),('setMbrHdl',(0x3,)))\n"
            "missing default of lagGroup: 2147483648 ((),('setMbrHdl',(0x1,))) / 0 \n"
            "different default of cpuEncap: 2147483648 ((),('copyPktToCpuTagged',(0x00,)),) / "
            "2147483648 ((),('copyPktToCpuTagged',(0x03,)),)\n");
}

// Of a table whose entries go to single pipes: the same key twice, in another order on each device.
TEST_F(VerifyTest, EntriesOfSinglePipes) {
  // In pipe N the entry leads to domain N + 1.
  const auto run_in = [](const Side &side, const char *family, uint32_t pipe, uint16_t domain) {
    const p4_pd_device_target_t target = side.device().target_of(pipe);
    const p4_pd_tessel_switch_nextHop_match_spec_t key = {1};
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t action = {0, 0, domain};
    uint32_t entry = 0;
    Call call = side.device().prepare(family, "nextHop", "setNextHopDetails");
    call.set("target", &target).set("action_spec", &action).set("entry", &entry);
    ASSERT_EQ(call.set_if_taken("match_spec", static_cast<const void *>(&key)).run(), BF_SUCCESS);
  };
  for (Side *side : {&old_, &new_}) {
    Call scope = side->device().prepare("set_property", "nextHop");
    scope.set("property", uint64_t{PIPE_TABLE_ENTRY_SCOPE}).set("value", uint64_t{1});
    ASSERT_EQ(scope.set("argument", uint64_t{0}).run(), BF_SUCCESS);
    for (const uint32_t pipe : {side == &old_ ? 0u : 1u, side == &old_ ? 1u : 0u}) {
      run_in(*side, "table_add", pipe, static_cast<uint16_t>(pipe + 1));
    }
  }
  EXPECT_EQ(differences(8), "");
  run_in(new_, "set_default_action", 1, 7);
  EXPECT_EQ(differences(8),
            "different default of nextHop: "
            "2147483648 ((),('setNextHopDetails',(0x000000,0x000000,0x000,)),) / "
            "2281701376 ((),('setNextHopDetails',(0x000000,0x000000,0x007,)),)\n");
}

TEST_F(VerifyTest, MembersGroupsAndMemberships) {
  new_.run(
      "member modify ecmpMemberActionProfile member=1 action=setEcmpNextHop nextHop=0x31\n"
      "member delete ecmpMemberActionProfile member=3\n"
      "member add ecmpMemberActionProfile action=setEcmpNextHop nextHop=0x32\n"
      "group disable ecmpMemberActionProfile group=1 member=1\n"
      "group leave ecmpMemberActionProfile group=1 member=2\n"
      "group join ecmpMemberActionProfile group=1 member=4\n"
      "group add ecmpMemberActionProfile size=4\n"
      "modify ecmpGroup entry=2 member=4\n");
  EXPECT_EQ(differences(),
            "different entry of ecmpGroup: 2 (( 0x0008,),('setMbrHdl',(0x2,))) / "
            "2 (( 0x0008,),('setMbrHdl',(0x4,)))\n"
            "different member of ecmpMemberActionProfile: 1 ('setEcmpNextHop',(0x0021,)), / "
            "1 ('setEcmpNextHop',(0x0031,)),\n"
            "missing member of ecmpMemberActionProfile: 3 ('setEcmpNextHop',(0x0023,)), / 0 \n"
            "extra member of ecmpMemberActionProfile: 0  / 4 ('setEcmpNextHop',(0x0032,)),\n"
            "different membership of ecmpMemberActionProfile: 1 group=#1 member=#1 / "
            "1 group=#1 member=#1(inactive)\n"
            "missing membership of ecmpMemberActionProfile: 1 group=#1 member=#2 / 0 \n"
            "extra membership of ecmpMemberActionProfile: 0  / 1 group=#1 member=#4\n"
            "extra group of ecmpMemberActionProfile: 0  / 2 group=#2\n");
}

TEST_F(VerifyTest, AGroupThatIsGone) {
  new_.run(
      "delete ecmpGroup entry=1\n"
      "group leave ecmpMemberActionProfile group=1 member=1\n"
      "group leave ecmpMemberActionProfile group=1 member=2\n"
      "group delete ecmpMemberActionProfile group=1\n");
  EXPECT_EQ(differences(),
            "missing entry of ecmpGroup: 1 (( 0x0007,),('setGrpHdl',(0x1,))) / 0 \n"
            "missing group of ecmpMemberActionProfile: 1 group=#1 / 0 \n");
}

TEST_F(VerifyTest, ADeviceThatCannotBeWalked) {
  soft::faults::fail_call("pipe_mgr_get_next_entry_handles", 1, BF_NOT_READY);
  try {
    differences();
    ADD_FAILURE() << "took a part of the entries for all";
  } catch (const Fault &fault) {
    EXPECT_EQ(fault.sentence().substr(0, 32), "'ipv4ShortMaskLpm': BF_NOT_READY");
  }
  soft::faults::clear();
}

// The library lives as long as any device does, and a device may go before one that was made later.
TEST(Devices, ShareTheLibrary) {
  const uint32_t before = soft_client_count();
  auto first = std::make_unique<Device>(DeviceOptions{.id = 1, .pipes = 1});
  auto second = std::make_unique<Device>(DeviceOptions{.id = 2, .pipes = 1, .is_virtual = true});
  EXPECT_EQ(soft_client_count(), before + 1);
  EXPECT_THROW(Device(DeviceOptions{.id = 2, .pipes = 1}), Fault);
  first.reset();
  EXPECT_EQ(soft_client_count(), before + 1);
  EXPECT_FALSE(soft_device_exists(1));
  second.reset();
  EXPECT_EQ(soft_client_count(), before);
}

}  // namespace
}  // namespace tesselctl
