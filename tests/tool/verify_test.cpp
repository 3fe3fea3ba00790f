// The state of an old device against a new one, where no command leads to it.
#include "tesselctl/state/verify.hpp"

#include "p4_pd_tessel_switch.h"
#include "pipe_mgr_types.h"
#include "soft_journal.hpp"
#include "soft_sdk.h"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

class VerifyTest : public ::testing::Test {
 protected:
  // Differences, one a line.
  std::string differences() {
    std::string lines;
    verify(old_, new_, [&](const Finding &one) {
      lines += fmt::format("{} of {}: {} {} / {} {}\n", difference_text(one.difference), one.object,
                           one.old_handle, one.old_text, one.new_handle, one.new_text);
    });
    return lines;
  }

  static void run_in(const Device &device, const char *family, uint32_t pipe, uint16_t domain) {
    const p4_pd_device_target_t target = device.target_of(pipe);
    const p4_pd_tessel_switch_nextHop_match_spec_t key = {1};
    const p4_pd_tessel_switch_setNextHopDetails_action_spec_t action = {0, 0, domain};
    uint32_t entry = 0;
    Call call = device.prepare(family, "nextHop", "setNextHopDetails");
    call.set("target", &target).set("action_spec", &action).set("entry", &entry);
    ASSERT_EQ(call.set_if_taken("match_spec", static_cast<const void *>(&key)).run(), BF_SUCCESS);
  }

  Device old_{DeviceOptions{.id = 3, .pipes = 2, .is_virtual = true}};
  Device new_{DeviceOptions{.id = 4, .pipes = 2}};
};

// Of a table whose entries go to single pipes: the same key twice, in another order on each device.
TEST_F(VerifyTest, EntriesOfSinglePipes) {
  for (Device *side : {&old_, &new_}) {
    Call scope = side->prepare("set_property", "nextHop");
    scope.set("property", uint64_t{PIPE_TABLE_ENTRY_SCOPE}).set("value", uint64_t{1});
    ASSERT_EQ(scope.set("argument", uint64_t{0}).run(), BF_SUCCESS);
    for (const uint32_t pipe : {side == &old_ ? 0u : 1u, side == &old_ ? 1u : 0u}) {
      // In pipe N the entry leads to domain N + 1.
      run_in(*side, "table_add", pipe, static_cast<uint16_t>(pipe + 1));
    }
  }
  EXPECT_EQ(differences(), "");
  run_in(new_, "set_default_action", 1, 7);
  EXPECT_EQ(differences(),
            "different of nextHop: "
            "2147483648 ((),('setNextHopDetails',(0x000000,0x000000,0x000,)),) / "
            "2281701376 ((),('setNextHopDetails',(0x000000,0x000000,0x007,)),)\n");
}

TEST_F(VerifyTest, ADeviceThatCannotBeWalked) {
  run_in(old_, "table_add", BF_ALL_PIPES, 1);
  soft::faults::fail_call("pipe_mgr_get_next_entry_handles", 1, BF_NOT_READY);
  EXPECT_EQ(fault_of([&] { differences(); }).substr(0, 23), "'nextHop': BF_NOT_READY");
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
