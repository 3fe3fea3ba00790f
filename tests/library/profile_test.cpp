// Members and groups: the action that the library keeps for each, and what it does with it.
#include "typed.hpp"

namespace pd_test {
namespace {

constexpr uint32_t kSetLagPort = 0x200001be;
constexpr uint32_t kSetTunnelInfo = 0x200001c4;
const std::string kProfile = "lagPortActionProfile";

class LagProfile : public LibraryTest {
 protected:
  static uint32_t add_port() {
    const PD(setLagPort_action_spec_t) spec = {0x1ff};
    return make("add_member", kProfile, "setLagPort", with("action_spec", &spec));
  }
  static p4_pd_status_t on_group(const char *family, uint32_t group, uint32_t member) {
    return run(family, kProfile, with("group", group, "member", member));
  }
  // The calls that point an entry at a group.
  std::vector<Call> point_at(uint32_t group, p4_pd_status_t wanted) {
    return recorded([&] {
      EXPECT_EQ(PD(lagGroup_add_entry_with_selector)(session(), kTarget, &key_, 9, group, &entry_),
                wanted);
      ++key_.egrMd_egrL2AintfUnresolved;
    });
  }

  PD(lagGroup_match_spec_t) key_ = {0xabc0, 0xfffff};
  p4_pd_entry_handle_t entry_ = 0;
};

TEST_F(LagProfile, AGroupHasTheActionOfItsLastMember) {
  const uint32_t group = make("create_group", kProfile, "", with("max_size", 0));
  EXPECT_EQ(names_of(point_at(group, BF_OBJECT_NOT_FOUND)),
            std::vector<std::string>{"p4_pd_ms_get_grp_act"})
      << "an empty group has none";
  const uint32_t port = add_port();
  const uint32_t tunnel = make("add_member", kProfile, "setTunnelInfo", {});
  ASSERT_EQ(on_group("add_member_to_group", group, port), BF_SUCCESS);
  ASSERT_EQ(on_group("add_member_to_group", group, tunnel), BF_SUCCESS);
  const auto calls = point_at(group, BF_SUCCESS);
  EXPECT_EQ(calls.at(1).scalar("action"), kSetTunnelInfo);
  EXPECT_EQ(calls[1].scalar("table"), 0x01000046u);
  // Leaving changes nothing, joining does.
  ASSERT_EQ(on_group("del_member_from_group", group, tunnel), BF_SUCCESS);
  EXPECT_EQ(point_at(group, BF_SUCCESS).at(1).scalar("action"), kSetTunnelInfo);
  ASSERT_EQ(on_group("del_member_from_group", group, port), BF_SUCCESS);
  ASSERT_EQ(on_group("add_member_to_group", group, port), BF_SUCCESS);
  EXPECT_EQ(point_at(group, BF_SUCCESS).at(1).scalar("action"), kSetLagPort);
}

// The states know devices by the low 8 bits of their ids.
TEST_F(LagProfile, TheStateIsAskedForTheLowByteOfTheDevice) {
  const uint32_t member = add_port();
  const p4_pd_device_target_t far = {0x100 + kDevice, kPipe};
  const auto calls = recorded([&] {
    EXPECT_EQ(PD(lagGroup_add_entry)(session(), far, &key_, 9, member, &entry_), BF_INVALID_DEVICE);
  });
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[0].scalar("device"), kDevice);
  EXPECT_EQ(calls[0].status, BF_SUCCESS);
  EXPECT_EQ(calls[1].scalar("device"), 0x100 + kDevice);
}

}  // namespace
}  // namespace pd_test
