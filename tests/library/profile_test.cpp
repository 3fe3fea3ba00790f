// Members of devices whose ids are longer than the library's states have them.
#include "typed.hpp"

namespace pd_test {
namespace {

class LagProfile : public LibraryTest {};

// The states know devices by the low 8 bits of their ids.
TEST_F(LagProfile, TheStateIsAskedForTheLowByteOfTheDevice) {
  const PD(setLagPort_action_spec_t) port = {0x1ff};
  const PD(lagGroup_match_spec_t) key = {0xabc0, 0xfffff};
  const uint32_t member =
      make("add_member", "lagPortActionProfile", "setLagPort", with("action_spec", &port));
  const p4_pd_device_target_t far = {0x100 + kDevice, kPipe};
  p4_pd_entry_handle_t entry = 0;
  const auto calls = recorded([&] {
    EXPECT_EQ(PD(lagGroup_add_entry)(session(), far, &key, 9, member, &entry), BF_INVALID_DEVICE);
  });
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[0].scalar("device"), kDevice);
  EXPECT_EQ(calls[0].status, BF_SUCCESS);
  EXPECT_EQ(calls[1].scalar("device"), 0x100 + kDevice);
}

}  // namespace
}  // namespace pd_test
