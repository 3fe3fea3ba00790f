// Members, groups and the tables that point at them, step by step.
#include <dlfcn.h>

#include "typed.hpp"

namespace {

// While it is not 0, the device answers every question for a member's state with this one.
uint32_t odd_member_state = 0;

}  // namespace

extern "C" bf_status_t pipe_mgr_sel_grp_mbr_state_get(
    pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t selector,
    pipe_group_handle_t group, pipe_member_handle_t member, uint32_t *state) {
  static const auto soft_function = reinterpret_cast<decltype(&pipe_mgr_sel_grp_mbr_state_get)>(
      dlsym(RTLD_NEXT, "pipe_mgr_sel_grp_mbr_state_get"));
  const bf_status_t status = soft_function(session, device, selector, group, member, state);
  if (odd_member_state != 0) *state = odd_member_state;
  return status;
}

namespace pd_test {
namespace {

constexpr uint32_t kSetLagPort = 0x200001be;
constexpr uint32_t kSetTunnelInfo = 0x200001c4;

class LagProfile : public LibraryTest {
 protected:
  p4_pd_member_handle_t add_lag_port(uint16_t port = 0x1ff) {
    const PD(setLagPort_action_spec_t) spec = {port};
    p4_pd_member_handle_t member = 0;
    EXPECT_EQ(
        PD(lagPortActionProfile_add_member_with_setLagPort)(session(), kTarget, &spec, &member),
        BF_SUCCESS);
    return member;
  }
  p4_pd_member_handle_t add_tunnel() {
    p4_pd_member_handle_t member = 0;
    EXPECT_EQ(PD(lagPortActionProfile_add_member_with_setTunnelInfo)(session(), kTarget, &member),
              BF_SUCCESS);
    return member;
  }
  p4_pd_group_handle_t create_group(uint32_t max_size = 0) {
    p4_pd_group_handle_t group = 0;
    EXPECT_EQ(PD(lagPortActionProfile_create_group)(session(), kTarget, max_size, &group),
              BF_SUCCESS);
    return group;
  }
  static p4_pd_status_t join(p4_pd_group_handle_t group, p4_pd_member_handle_t member) {
    return PD(lagPortActionProfile_add_member_to_group)(session(), kDevice, group, member);
  }
  static p4_pd_status_t leave(p4_pd_group_handle_t group, p4_pd_member_handle_t member) {
    return PD(lagPortActionProfile_del_member_from_group)(session(), kDevice, group, member);
  }
  p4_pd_status_t add_entry_of_group(p4_pd_group_handle_t group) {
    return PD(lagGroup_add_entry_with_selector)(session(), kTarget, &key_, 9, group, &entry_);
  }

  PD(lagGroup_match_spec_t) key_ = {0xabcde, 0xfffff};
  p4_pd_entry_handle_t entry_ = 0;
};

TEST_F(LagProfile, AMemberTravelsAsBareData) {
  const PD(setLagPort_action_spec_t) spec = {0xffab};
  p4_pd_member_handle_t member = 0;
  const auto calls = recorded([&] {
    PD(lagPortActionProfile_add_member_with_setLagPort)(session(), kTarget, &spec, &member);
  });
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[0].scalar("action_data_table"), 0x02000046u);
  EXPECT_EQ(calls[0].scalar("action"), kSetLagPort);
  const auto &sent = calls[0].get<soft::journal::ActionSpec>("action_spec");
  EXPECT_EQ(sent.type, 0u);
  EXPECT_EQ(sent.data.valid_bit_count, 9);
  EXPECT_EQ(data_of(sent), "ff ab");
  EXPECT_EQ(sent.resource_count, 0u);
}

TEST_F(LagProfile, AMemberKeepsItsAction) {
  const p4_pd_member_handle_t member = add_lag_port();
  const auto refused = recorded([&] {
    EXPECT_EQ(
        PD(lagPortActionProfile_modify_member_with_setPhysicalPort)(session(), kDevice, member),
        0xffffffffu);
  });
  ASSERT_EQ(refused.size(), 1u);
  EXPECT_EQ(refused[0].function, "p4_pd_ms_get_mbr_act");
  const PD(setLagPort_action_spec_t) spec = {3};
  EXPECT_EQ(
      PD(lagPortActionProfile_modify_member_with_setLagPort)(session(), kDevice, member, &spec),
      BF_SUCCESS);
  PD(action_specs_t) read = {};
  ASSERT_EQ(PD(lagPortActionProfile_get_member)(session(), kDevice, member, false, &read),
            BF_SUCCESS);
  EXPECT_EQ(read.action, 161u);
  EXPECT_EQ(read.spec.setLagPort.action_egrL2AintfPort, 3);
}

TEST_F(LagProfile, AMemberWithoutParametersReadsAsItsValueAlone) {
  p4_pd_member_handle_t member = 0;
  ASSERT_EQ(PD(lagPortActionProfile_add_member_with_setPhysicalPort)(session(), kTarget, &member),
            BF_SUCCESS);
  PD(action_specs_t) read;
  std::memset(&read, 0x5a, sizeof read);
  const Call call = only_call([&] {
    EXPECT_EQ(PD(lagPortActionProfile_get_member)(session(), kDevice, member, true, &read),
              BF_SUCCESS);
  });
  EXPECT_EQ(call.function, "pipe_mgr_get_action_data_entry");
  EXPECT_EQ(call.scalar("read_from_hardware"), 1u);
  EXPECT_EQ(read.action, 162u);
  EXPECT_EQ(read.spec.setLagPort.action_egrL2AintfPort, 0x5a5a);
}

TEST_F(LagProfile, AnUnknownMemberReachesNoSelector) {
  const p4_pd_member_handle_t member = add_lag_port();
  const p4_pd_group_handle_t group = create_group();
  ASSERT_EQ(PD(lagPortActionProfile_del_member)(session(), kDevice, member), BF_SUCCESS);
  const auto calls = recorded([&] {
    EXPECT_EQ(join(group, member), BF_OBJECT_NOT_FOUND);
    EXPECT_EQ(join(group, 4711), BF_OBJECT_NOT_FOUND);
    EXPECT_EQ(PD(lagPortActionProfile_modify_member_with_setTunnelInfo)(session(), kDevice, member),
              BF_OBJECT_NOT_FOUND);
  });
  for (const Call &call : calls) EXPECT_EQ(call.function, "p4_pd_ms_get_mbr_act");
  EXPECT_EQ(calls.size(), 3u);
}

TEST_F(LagProfile, AGroupHasTheActionOfItsLastMember) {
  const p4_pd_group_handle_t group = create_group();
  const auto refused = recorded([&] { EXPECT_NE(add_entry_of_group(group), BF_SUCCESS); });
  ASSERT_EQ(refused.size(), 1u);  // an empty group has none
  EXPECT_EQ(refused[0].function, "p4_pd_ms_get_grp_act");

  const p4_pd_member_handle_t port = add_lag_port();
  const p4_pd_member_handle_t tunnel = add_tunnel();
  ASSERT_EQ(join(group, port), BF_SUCCESS);
  ASSERT_EQ(join(group, tunnel), BF_SUCCESS);
  auto calls = recorded([&] { EXPECT_EQ(add_entry_of_group(group), BF_SUCCESS); });
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[1].scalar("action"), kSetTunnelInfo);
  EXPECT_EQ(calls[1].scalar("table"), 0x01000046u);
  EXPECT_EQ(calls[1].get<soft::journal::MatchSpec>("match").priority, 9u);

  // Leaving changes nothing, joining does.
  ASSERT_EQ(leave(group, tunnel), BF_SUCCESS);
  calls = recorded([&] {
    EXPECT_EQ(PD(lagGroup_modify_entry_with_selector)(session(), kDevice, entry_, group),
              BF_SUCCESS);
  });
  EXPECT_EQ(calls.at(1).scalar("action"), kSetTunnelInfo);
  ASSERT_EQ(leave(group, port), BF_SUCCESS);
  ASSERT_EQ(join(group, port), BF_SUCCESS);
  calls = recorded([&] {
    EXPECT_EQ(
        PD(lagGroup_modify_entry_with_selector_by_match_spec)(session(), kTarget, &key_, 9, group),
        BF_SUCCESS);
  });
  EXPECT_EQ(calls.at(1).scalar("action"), kSetLagPort);
}

TEST_F(LagProfile, MemberStates) {
  const p4_pd_group_handle_t group = create_group();
  const p4_pd_member_handle_t member = add_lag_port();
  ASSERT_EQ(join(group, member), BF_SUCCESS);
  const auto set = [&](uint32_t state) {
    return PD(lagPortActionProfile_group_member_state_set)(session(), kDevice, group, member,
                                                           state);
  };
  uint32_t state = kUnwritten;
  for (const uint32_t wanted : {1u, 0u, 1u}) {
    EXPECT_EQ(set(wanted), BF_SUCCESS);
    EXPECT_EQ(
        PD(lagPortActionProfile_group_member_state_get)(session(), kDevice, group, member, &state),
        BF_SUCCESS);
    EXPECT_EQ(state, wanted);
  }
  state = kUnwritten;
  odd_member_state = 2;
  EXPECT_EQ(
      PD(lagPortActionProfile_group_member_state_get)(session(), kDevice, group, member, &state),
      BF_SUCCESS);
  odd_member_state = 0;
  EXPECT_EQ(state, kUnwritten) << "neither of the two states";
  const auto refused = recorded([&] {
    EXPECT_EQ(set(2), P4_PD_MEMBER_STATE_REFUSED);
    EXPECT_EQ(set(0xffffffff), P4_PD_MEMBER_STATE_REFUSED);
  });
  EXPECT_TRUE(refused.empty());
  const Call call = only_call([&] { set(0); });
  EXPECT_EQ(call.function, "pipe_mgr_sel_grp_mbr_enable");
}

// The states know devices by the low 8 bits of their ids.
TEST_F(LagProfile, TheStateIsAskedForTheLowByteOfTheDevice) {
  const p4_pd_member_handle_t member = add_lag_port();
  const p4_pd_device_target_t far = {0x100 + kDevice, kPipe};
  const auto calls = recorded([&] {
    EXPECT_EQ(PD(lagGroup_add_entry)(session(), far, &key_, 9, member, &entry_), BF_INVALID_DEVICE);
  });
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[0].scalar("device"), kDevice);
  EXPECT_EQ(calls[0].status, BF_SUCCESS);
  EXPECT_EQ(calls[1].scalar("device"), 0x100 + kDevice);
}

TEST_F(LagProfile, DefaultEntriesPointAtMembersAndGroups) {
  const p4_pd_group_handle_t group = create_group();
  const p4_pd_member_handle_t member = add_lag_port();
  ASSERT_EQ(join(group, member), BF_SUCCESS);
  struct Read {
    bool has_member = false;
    bool has_group = false;
    uint32_t group = kUnwritten;
    uint32_t member = kUnwritten;
  };
  const auto read_default = [&] {
    Read read;
    EXPECT_EQ(PD(lagGroup_table_get_default_entry)(session(), kTarget, false, &read.has_member,
                                                   &read.has_group, &read.group, &read.member),
              BF_SUCCESS);
    return read;
  };
  ASSERT_EQ(PD(lagGroup_set_default_entry)(session(), kTarget, member, &entry_), BF_SUCCESS);
  Read read = read_default();
  EXPECT_TRUE(read.has_member && !read.has_group);
  EXPECT_EQ(read.member, member);
  EXPECT_EQ(read.group, kUnwritten);
  ASSERT_EQ(PD(lagGroup_set_default_entry_with_selector)(session(), kTarget, group, &entry_),
            BF_SUCCESS);
  read = read_default();
  EXPECT_TRUE(!read.has_member && read.has_group);
  EXPECT_EQ(read.group, group);
  EXPECT_EQ(read.member, kUnwritten);

  // By its handle it is an entry without a key.
  PD(lagGroup_match_spec_t) key = {1, 2};
  uint32_t priority = kUnwritten;
  bool no_key = false;
  EXPECT_EQ(
      PD(lagGroup_get_entry)(session(), kDevice, entry_, false, &key, &priority, &read.has_member,
                             &read.has_group, &read.group, &read.member, &no_key),
      BF_SUCCESS);
  EXPECT_TRUE(no_key);
  EXPECT_EQ(key.egrMd_egrL2AintfUnresolved, 1u);
  EXPECT_EQ(priority, 0u);
}

}  // namespace
}  // namespace pd_test
