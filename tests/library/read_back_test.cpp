// Read-back of what no program of the library's own makes: resource lists in any order, foreign
// actions, entries that point elsewhere; and the words that are written on failure.
#include "texts.hpp"

namespace pd_test {
namespace {

constexpr uint32_t kClassCount = 0x04000007;
constexpr uint32_t kPolicyCount = 0x04000005;
constexpr uint32_t kPdpMeter = 0x05000001;

pipe_mgr_resource_t attach(uint32_t handle, uint32_t index, uint32_t tag = PIPE_RESOURCE_ATTACH) {
  pipe_mgr_resource_t resource = {};
  resource.handle = handle;
  resource.index = index;
  resource.tag = tag;
  return resource;
}

class ReadBack : public LibraryTest {
 protected:
  // An entry of pdpPolicy, with a key of its own.
  uint32_t add_policy(bf_device_id_t device, uint32_t action, const pipe_mgr_action_spec_t &spec) {
    uint8_t mask[3] = {0xff, 0xff, 0xff};
    ++key_[2];
    const pipe_mgr_match_spec_t match = {0, 14, 3, key_, mask, {}, 0};
    uint32_t entry = 0;
    EXPECT_EQ(pipe_mgr_mat_ent_add(session(), device, kPipe, kPolicy, &match, action, &spec, 0, 0,
                                   &entry),
              BF_SUCCESS);
    return entry;
  }
  pipe_mgr_action_spec_t data_spec() {
    pipe_mgr_action_spec_t spec = {};
    spec.type = PIPE_ACTION_DATA;
    spec.data = {32, 4, data_};
    return spec;
  }

  // The entry and the default entry of the other device read as these statuses, and nothing else.
  void expect_nothing_read(uint32_t action, const pipe_mgr_action_spec_t &spec,
                           p4_pd_status_t entry_status) {
    const uint32_t entry = add_policy(kOther, action, spec);
    uint32_t by_default = 0;
    EXPECT_EQ(pipe_mgr_mat_default_entry_set(session(), kOther, kPipe, kPolicy, action, &spec, 0,
                                             &by_default),
              BF_SUCCESS);
    for (const uint32_t each : {entry, by_default}) {
      Bytes room(100, 9);
      EXPECT_EQ(run("get_entry", "pdpPolicy",
                    with("device", kOther, "entry", each, "read_from_hardware", 0, "match_spec",
                         &room[0], "action_name", &room[20], "action_spec", &room[84], "action",
                         &room[92], "no_key", &room[99])),
                entry_status);
      EXPECT_EQ(room, Bytes(100, 9));
    }
    PD(action_specs_t) specs = {kUnwritten, {}};
    EXPECT_EQ(PD(pdpPolicy_table_get_default_entry)(session(), {kOther, kPipe}, false, &specs),
              P4_PD_FOREIGN_ACTION);
    const Placement placed = Placement::of_entry(kOther, kPolicy, entry);
    PD(pdpPolicy_match_spec_t) key = {1, 2};
    bool no_key = true;
    EXPECT_EQ(PD(pdpPolicy_get_entry_from_plcmt_data)(placed.object, &key, &specs, &no_key),
              P4_PD_FOREIGN_ACTION);
    EXPECT_TRUE(key.ig_intr_md_ingress_port == 1 && specs.action == kUnwritten && no_key);
  }

  const uint32_t kPolicy = table_named("pdpPolicy").handle;
  uint8_t key_[3] = {};
  uint8_t data_[4] = {0x11, 0x22, 0x33, 0x44};  // not what a cell is read from
};

TEST_F(ReadBack, TheMeterOverridesTheCounterInWhateverOrder) {
  const struct {
    std::vector<pipe_mgr_resource_t> resources;
    uint32_t cell;
  } cases[] = {
      {{}, 0xffffffff},
      {{attach(kClassCount, 0, PIPE_RESOURCE_DETACH)}, 0xffffffff},
      {{attach(kPolicyCount, 9)}, 0},
      {{attach(kClassCount, 5)}, 5},
      {{attach(kPdpMeter, 6)}, 6},
      {{attach(kClassCount, 5), attach(kPdpMeter, 6)}, 6},
      {{attach(kPdpMeter, 6), attach(kClassCount, 5)}, 6},
      {{attach(kPdpMeter, 0), attach(kPolicyCount, 3), attach(kClassCount, 5)}, 0},
  };
  for (const auto &attached : cases) {
    pipe_mgr_action_spec_t spec = data_spec();
    std::ranges::copy(attached.resources, spec.resources);
    spec.resource_count = static_cast<uint32_t>(attached.resources.size());
    const uint32_t entry =
        add_policy(kDevice, pair_of(table_named("pdpPolicy"), "pdpPolice")->handle, spec);
    PD(pdpPolicy_match_spec_t) key = {};
    PD(pdpPolice_action_spec_t) read = {};
    bool no_key = true;
    const uint64_t allocations = soft_allocations_made();
    const uint64_t frees_before = frees().made;
    EXPECT_EQ(PD(pdpPolicy_get_entry)(session(), kDevice, entry, false, &key, nullptr, &read,
                                      nullptr, &no_key),
              BF_SUCCESS);
    const uint64_t lists = attached.cell == 0xffffffff ? 0 : 1;  // none without a resource
    EXPECT_EQ(soft_allocations_made() - allocations, lists);
    EXPECT_EQ(frees().made - frees_before, lists);
    EXPECT_EQ(read.action_pdpResourceIndex, attached.cell) << int{key_[2]};
  }
}

// ---- Another program in the device than in the library ----

TEST_F(ReadBack, AnEntryThatPointsElsewhereHasNoActionData) {
  const pdgen::Profile &profile = program().profiles.front();
  Altered altered("pdpPolicy");
  altered.table().action_data_table = profile.action_data_handle;
  altered.use({});
  const Device device(kOther, false, altered.program());
  const p4_pd_device_target_t target = {kOther, kPipe};
  const PD(setEcmpNextHop_action_spec_t) hop = {1};
  pipe_mgr_action_spec_t spec = {};
  spec.type = PIPE_ACTION_MEMBER;
  spec.member = make("add_member", profile.name, "setEcmpNextHop",
                     with("target", &target, "action_spec", &hop));
  expect_nothing_read(profile.actions.front().handle, spec, P4_PD_NO_ACTION_DATA);
}

TEST_F(ReadBack, AForeignActionIsTheSameStatusEverywhere) {
  Altered altered("pdpPolicy");
  std::vector<soft_action_t> actions = altered.actions();
  for (soft_action_t &action : actions) {
    action.handle += 0x10000;
    action.may_be_default = true;
  }
  altered.use(actions);
  const Device device(kOther, false, altered.program());
  pipe_mgr_action_spec_t spec = data_spec();
  spec.resources[0] = attach(kPdpMeter, 1);  // so that there is something to give back
  spec.resource_count = 1;
  expect_nothing_read(actions.front().handle, spec, P4_PD_FOREIGN_ACTION);
}

TEST_F(ReadBack, AForeignActionOfAMemberIsThatStatusToo) {
  soft_profile_t profile = soft_program_tessel_switch.profiles[0];
  soft_action_t foreign = profile.actions[0];
  foreign.handle += 0x10000;
  profile.actions = &foreign;
  profile.action_count = 1;
  soft_program_t altered = soft_program_tessel_switch;
  altered.profiles = &profile;
  altered.profile_count = 1;
  altered.table_count = 0;
  const Device device(kOther, false, altered);
  const uint32_t members = profile.action_data_table;
  pipe_mgr_action_spec_t spec = data_spec();
  spec.type = 0;
  spec.data = {foreign.data_bits, foreign.data_bytes, data_};
  uint32_t member = 0;
  ASSERT_EQ(pipe_mgr_adt_ent_add(session(), kOther, BF_ALL_PIPES, members, foreign.handle, &spec,
                                 &member, 0),
            BF_SUCCESS);
  const Placement placed = Placement::of_member(kOther, members, member);
  const auto &owner =
      *std::ranges::find(program().profiles, members, &pdgen::Profile::action_data_handle);
  PD(action_specs_t) specs = {kUnwritten, {}};
  for (const char *family :
       {"get_member", "get_member_from_plcmt_data", "get_full_member_info_from_plcmt_data"}) {
    EXPECT_EQ(run(family, owner.name,
                  with("device", kOther, "member", member, "placement", placed.object,
                       "read_from_hardware", 0, "action_specs", &specs)),
              P4_PD_FOREIGN_ACTION);
  }
  EXPECT_EQ(specs.action, kUnwritten);
}

TEST_F(ReadBack, AnIndirectDefaultEntryPointsSomewhere) {
  Altered altered("ecmpGroup");
  altered.table().action_data_table = 0;
  altered.use({{"noPointer", 0x20fffff0, 0, 0, true}});
  const Device device(kOther, false, altered.program());
  bool has_member = true, has_group = true;
  uint32_t group = kUnwritten, member = kUnwritten;
  EXPECT_EQ(PD(ecmpGroup_table_get_default_entry)(session(), {kOther, 0}, false, &has_member,
                                                  &has_group, &group, &member),
            P4_PD_FOREIGN_ACTION);
  EXPECT_TRUE(has_member && has_group && group == kUnwritten && member == kUnwritten);
}

// ---- Properties and ageing ----

TEST_F(ReadBack, AFailedPropertyReadsAllOnes) {
  uint32_t value = 1, argument = 2;
  const auto get = PD(cpuEncap_get_property);
  EXPECT_EQ(get(session(), kDevice, 4711, &value, &argument), BF_INVALID_ARGUMENT);
  EXPECT_TRUE(value == 0xffffffff && argument == 0xffffffff);
  EXPECT_EQ(PD(cpuEncap_set_property)(session(), kDevice, PIPE_TABLE_CAPACITY, 99, 0), BF_SUCCESS);
  EXPECT_EQ(get(session(), kDevice, PIPE_TABLE_CAPACITY, &value, &argument), BF_SUCCESS);
  EXPECT_TRUE(value == 99 && argument == 0);
  soft::faults::fail_call("pipe_mgr_pvs_get_property", 1, BF_HARDWARE_FAULT);
  EXPECT_EQ(PD(pvs_fabric_port_get_property)(session(), kDevice, PIPE_PVS_CAPACITY, &value, 0),
            BF_HARDWARE_FAULT);
  EXPECT_EQ(value, 0xffffffffu);
}

TEST_F(ReadBack, OnlyOneModeOfAgeingHasFurtherWords) {
  const p4_pd_idle_time_params_t notify = {PIPE_IDLE_NOTIFY, 10, 20, 5, 15, 77};
  const p4_pd_idle_time_params_t poll = {PIPE_IDLE_POLL, 1, 2, 3, 4, 5};
  p4_pd_idle_time_params_t read = {9, 9, 9, 9, 9, 9};
  const auto set = PD(ipv6ShortMaskLpm_idle_tmo_enable);
  const auto get = PD(ipv6ShortMaskLpm_idle_params_get);
  ASSERT_EQ(set(session(), kDevice, notify), BF_SUCCESS);
  ASSERT_EQ(get(session(), kDevice, &read), BF_SUCCESS);
  EXPECT_EQ(std::memcmp(&read, &notify, sizeof read), 0);
  ASSERT_EQ(set(session(), kDevice, poll), BF_SUCCESS);
  ASSERT_EQ(get(session(), kDevice, &read), BF_SUCCESS);
  EXPECT_EQ(read.mode, uint32_t{PIPE_IDLE_POLL});
  EXPECT_EQ(std::memcmp(&read.sweep_interval_ms, &notify.sweep_interval_ms, 20), 0);
}

}  // namespace
}  // namespace pd_test
