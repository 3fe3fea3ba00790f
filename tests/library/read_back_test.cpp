// Entries and default entries read back: what is written, what is left alone, and what the library
// makes of entries that the program does not know.
#include <algorithm>
#include <cstring>
#include <vector>

#include "soft_placement.h"
#include "typed.hpp"

namespace pd_test {
namespace {

class ReadBack : public LibraryTest {
 protected:
  // An entry of nextHop with its one action.
  p4_pd_entry_handle_t add_hop(uint32_t hop, uint32_t oui) {
    const PD(nextHop_match_spec_t) key = {hop};
    const PD(setNextHopDetails_action_spec_t) details = {oui, 0x334455, 9};
    p4_pd_entry_handle_t entry = 0;
    EXPECT_EQ(
        PD(nextHop_table_add_with_setNextHopDetails)(session(), kTarget, &key, &details, &entry),
        BF_SUCCESS);
    return entry;
  }
};

TEST_F(ReadBack, ReportsTheActionInThreeWays) {
  const p4_pd_entry_handle_t entry = add_hop(7, 0x001122);
  PD(nextHop_match_spec_t) key = {};
  PD(setNextHopDetails_action_spec_t) details = {};
  char name[61];
  uint32_t action = 0;
  bool no_key = true;
  ASSERT_EQ(PD(nextHop_get_entry)(session(), kDevice, entry, true, &key, name, &details, &action,
                                  &no_key),
            BF_SUCCESS);
  EXPECT_EQ(key.l3_nextHop, 7u);
  EXPECT_STREQ(name, "p4_pd_tessel_switch_setNextHopDetails");
  EXPECT_EQ(action, 185u);
  EXPECT_EQ(details.action_dmacOui, 0x001122u);
  EXPECT_EQ(details.action_dmacStation, 0x334455u);
  EXPECT_EQ(details.action_domain, 9);
  EXPECT_FALSE(no_key);

  // Name and number are optional.
  details = {};
  ASSERT_EQ(PD(nextHop_get_entry)(session(), kDevice, entry, true, &key, nullptr, &details, nullptr,
                                  &no_key),
            BF_SUCCESS);
  EXPECT_EQ(details.action_dmacOui, 0x001122u);
  // The record is mandatory when the action has parameters.
  EXPECT_EQ(
      PD(nextHop_get_entry)(session(), kDevice, entry, true, &key, name, nullptr, &action, &no_key),
      P4_PD_NULL_ARGUMENT);
}

TEST_F(ReadBack, TheLongestNameTakes61Bytes) {
  PD(globalFields_match_spec_t) key = {};
  PD(setGlobalFieldsForVxlanTunnelIpv4UseDipB_action_spec_t) spec = {};
  p4_pd_entry_handle_t entry = 0;
  ASSERT_EQ(PD(globalFields_table_add_with_setGlobalFieldsForVxlanTunnelIpv4UseDipB)(
                session(), kTarget, &key, 5, &spec, &entry),
            BF_SUCCESS);
  char name[63];
  std::memset(name, '#', sizeof name);
  uint32_t priority = 0;
  bool no_key = true;
  ASSERT_EQ(PD(globalFields_get_entry)(session(), kDevice, entry, false, &key, &priority, name + 1,
                                       &spec, nullptr, &no_key),
            BF_SUCCESS);
  EXPECT_EQ(name[0], '#');
  EXPECT_EQ(std::string(name + 1, 61),
            std::string("p4_pd_tessel_switch_setGlobalFieldsForVxlanTunnelIpv4UseDipB") + '\0');
  EXPECT_EQ(name[62], '#');
}

TEST_F(ReadBack, AnActionWithoutParametersLeavesTheRecordAlone) {
  PD(hashComputeInnerIpHdr_match_spec_t) key = {};
  p4_pd_entry_handle_t entry = 0;
  ASSERT_EQ(PD(hashComputeInnerIpHdr_table_add_with_hashComputeInnerIpv6HdrAction)(
                session(), kTarget, &key, &entry),
            BF_SUCCESS);
  uint64_t spec = 0x1122334455667788;
  bool no_key = true;
  EXPECT_EQ(PD(hashComputeInnerIpHdr_get_entry)(session(), kDevice, entry, false, &key, nullptr,
                                                &spec, nullptr, &no_key),
            BF_SUCCESS);
  EXPECT_EQ(spec, 0x1122334455667788u);
  EXPECT_EQ(PD(hashComputeInnerIpHdr_get_entry)(session(), kDevice, entry, false, &key, nullptr,
                                                nullptr, nullptr, &no_key),
            BF_SUCCESS);
}

TEST_F(ReadBack, ADefaultEntryHasNoKey) {
  p4_pd_entry_handle_t entry = 0;
  const PD(kiteFlowDontFlow_action_spec_t) given = {};
  ASSERT_EQ(PD(kiteFlow1_set_default_action_kiteFlowDontFlow)(session(), kTarget, &given, &entry),
            BF_SUCCESS);
  PD(kiteFlow1_match_spec_t) key;
  std::memset(&key, 0x5a, sizeof key);
  uint32_t priority = kUnwritten;
  bool no_key = false;
  char name[61];
  PD(kiteFlowDontFlow_action_spec_t) spec = {};
  EXPECT_EQ(PD(kiteFlow1_get_entry)(session(), kDevice, entry, false, &key, &priority, name, &spec,
                                    nullptr, &no_key),
            BF_SUCCESS);
  EXPECT_TRUE(no_key);
  EXPECT_STREQ(name, "p4_pd_tessel_switch_kiteFlowDontFlow");
  EXPECT_EQ(key.phase0_ingVPort, 0x5a5a);
  EXPECT_EQ(priority, 0u);

  ASSERT_EQ(PD(dipHash_set_default_action_dipHashCompute)(session(), kTarget, &entry), BF_SUCCESS);
  PD(action_specs_t) specs;
  std::memset(&specs, 0x5a, sizeof specs);
  ASSERT_EQ(PD(dipHash_table_get_default_entry)(session(), kTarget, false, &specs), BF_SUCCESS);
  EXPECT_EQ(specs.action, 14u);
  EXPECT_EQ(specs.spec.setNextHop.action_nextHop, 0x5a5a5a5au);
  uint32_t action = 0;
  EXPECT_EQ(PD(dipHash_get_entry)(session(), kDevice, entry, false, nullptr, nullptr, &action),
            BF_SUCCESS);
  EXPECT_EQ(action, 14u);
}

// Default actions are few, but an entry that became the default with another one is understood.
TEST_F(ReadBack, RecognisesEveryActionOfTheTable) {
  size_t unmarked = 0;
  std::vector<soft_table_t> tables(
      soft_program_tessel_switch.tables,
      soft_program_tessel_switch.tables + soft_program_tessel_switch.table_count);
  const auto kite = std::ranges::find_if(
      tables, [](auto &table) { return table.handle == table_named("kiteFlow1").handle; });
  std::vector<soft_action_t> actions(kite->actions, kite->actions + kite->action_count);
  for (soft_action_t &action : actions) {
    if (!action.may_be_default) ++unmarked;
    action.may_be_default = true;
  }
  kite->actions = actions.data();
  soft_program_t generous = soft_program_tessel_switch;
  generous.tables = tables.data();
  const Device device(11, false, generous);
  const p4_pd_device_target_t target = {11, 0};
  for (const soft_action_t &action : actions) {
    const Bytes data(action.data_bytes + 1u);
    pipe_mgr_action_spec_t spec = {};
    spec.type = PIPE_ACTION_DATA;
    spec.data = {action.data_bits, action.data_bytes, const_cast<uint8_t *>(data.data())};
    uint32_t entry = 0;
    ASSERT_EQ(pipe_mgr_mat_default_entry_set(session(), 11, 0, kite->handle, action.handle, &spec,
                                             0, &entry),
              BF_SUCCESS);
    PD(action_specs_t) specs = {};
    EXPECT_EQ(PD(kiteFlow1_table_get_default_entry)(session(), target, false, &specs), BF_SUCCESS);
    EXPECT_EQ(specs.action, action_named(action.name).value) << action.name;
  }
  EXPECT_EQ(unmarked, 3u);
}

// ---- Cells from the list of what is attached ----

struct Attached {
  std::vector<pipe_mgr_resource_t> resources;
  uint32_t cell;
};

pipe_mgr_resource_t attach(uint32_t handle, uint32_t index, uint32_t tag = PIPE_RESOURCE_ATTACH) {
  pipe_mgr_resource_t resource = {};
  resource.handle = handle;
  resource.index = index;
  resource.tag = tag;
  return resource;
}

constexpr uint32_t kClassCount = 0x04000007;
constexpr uint32_t kPolicyCount = 0x04000005;
constexpr uint32_t kPdpMeter = 0x05000001;

TEST_F(ReadBack, TheMeterOverridesTheCounterInWhateverOrder) {
  const Attached cases[] = {
      {{}, 0xffffffff},
      {{attach(kClassCount, 0, PIPE_RESOURCE_DETACH)}, 0xffffffff},
      {{attach(kPolicyCount, 9)}, 0},
      {{attach(kClassCount, 5)}, 5},
      {{attach(kPdpMeter, 6)}, 6},
      {{attach(kClassCount, 5), attach(kPdpMeter, 6)}, 6},
      {{attach(kPdpMeter, 6), attach(kClassCount, 5)}, 6},
      {{attach(kPdpMeter, 0), attach(kPolicyCount, 3), attach(kClassCount, 5)}, 0},
  };
  uint8_t key[3] = {};
  uint8_t mask[3] = {0xff, 0xff, 0xff};
  uint8_t data[4] = {0x11, 0x22, 0x33, 0x44};  // not what the cell is read from
  const pipe_mgr_match_spec_t match = {0, 14, 3, key, mask, {}, 0};
  for (const Attached &attached : cases) {
    pipe_mgr_action_spec_t spec = {};
    spec.type = PIPE_ACTION_DATA;
    spec.data = {32, 4, data};
    std::ranges::copy(attached.resources, spec.resources);
    spec.resource_count = static_cast<uint32_t>(attached.resources.size());
    const uint32_t police = pair_of(table_named("pdpPolicy"), "pdpPolice")->handle;
    uint32_t entry = 0;
    ++key[2];
    ASSERT_EQ(pipe_mgr_mat_ent_add(session(), kDevice, kPipe, table_named("pdpPolicy").handle,
                                   &match, police, &spec, 0, 0, &entry),
              BF_SUCCESS);
    PD(pdpPolicy_match_spec_t) read_key = {};
    PD(pdpPolice_action_spec_t) read = {};
    bool no_key = true;
    const uint64_t allocations = soft_allocations_made();
    const uint64_t frees_before = frees().made;
    const Call call = only_call([&] {
      EXPECT_EQ(PD(pdpPolicy_get_entry)(session(), kDevice, entry, false, &read_key, nullptr, &read,
                                        nullptr, &no_key),
                BF_SUCCESS);
    });
    EXPECT_EQ(call.function, "pipe_mgr_get_entry");
    const uint64_t lists = attached.cell == 0xffffffff ? 0 : 1;  // none without a resource
    EXPECT_EQ(soft_allocations_made() - allocations, lists);
    EXPECT_EQ(frees().made - frees_before, lists);
    EXPECT_EQ(read.action_pdpResourceIndex, attached.cell) << int{key[2]};
  }
}

TEST_F(ReadBack, AMirrorWithoutMeterHasNoCell) {
  uint8_t key[2] = {0, 1};
  uint8_t mask[2] = {0xff, 0xff};
  uint8_t data[4] = {};
  const pipe_mgr_match_spec_t match = {0, 10, 2, key, mask, {}, 0};
  pipe_mgr_action_spec_t spec = {};
  spec.type = PIPE_ACTION_DATA;
  spec.data = {32, 4, data};
  const pdgen::Table &table = table_named("egressMirrorRate");
  uint32_t entry = 0;
  ASSERT_EQ(
      pipe_mgr_mat_ent_add(session(), kDevice, kPipe, table.handle, &match,
                           pair_of(table, "setEgressMirrorColor")->handle, &spec, 0, 0, &entry),
      BF_SUCCESS);
  PD(egressMirrorRate_match_spec_t) read_key = {};
  PD(setEgressMirrorColor_action_spec_t) read = {};
  bool no_key = true;
  ASSERT_EQ(PD(egressMirrorRate_get_entry)(session(), kDevice, entry, false, &read_key, nullptr,
                                           &read, nullptr, &no_key),
            BF_SUCCESS);
  EXPECT_EQ(read.action_meterIndex, 0xffffffffu);
}

// ---- Another program in the device than in the library ----

// A copy of the program in which one table is described otherwise.
class Altered {
 public:
  explicit Altered(uint32_t table)
      : tables_(soft_program_tessel_switch.tables,
                soft_program_tessel_switch.tables + soft_program_tessel_switch.table_count),
        altered_(&*std::ranges::find(tables_, table, &soft_table_t::handle)),
        program_(soft_program_tessel_switch) {
    program_.tables = tables_.data();
  }
  const soft_program_t &program() const { return program_; }
  soft_table_t &table() { return *altered_; }

  // The table's actions go by other handles.
  void rename_actions() {
    actions_.assign(altered_->actions, altered_->actions + altered_->action_count);
    for (soft_action_t &action : actions_) {
      action.handle += 0x10000;
      action.may_be_default = true;
    }
    altered_->actions = actions_.data();
  }
  const std::vector<soft_action_t> &actions() const { return actions_; }

 private:
  std::vector<soft_table_t> tables_;
  soft_table_t *altered_;
  std::vector<soft_action_t> actions_;
  soft_program_t program_;
};

constexpr bf_device_id_t kOther = 12;
constexpr p4_pd_device_target_t kOtherTarget = {kOther, 0};

// Where the other device has an entry or a member.
class Placed {
 public:
  template <class Place>
  Placed(Place place, uint32_t table, uint32_t handle) {
    EXPECT_EQ(place(kOther, table, handle, &data_), BF_SUCCESS);
  }
  Placed(const Placed &) = delete;
  Placed &operator=(const Placed &) = delete;
  ~Placed() { soft_placement_free(data_); }
  const pipe_mgr_placement_t *data() const { return data_; }

 private:
  pipe_mgr_placement_t *data_ = nullptr;
};

void expect_nothing_read(uint32_t entry, p4_pd_status_t entry_status) {
  PD(pdpPolicy_match_spec_t) key = {1, 2};
  uint64_t spec = 3;
  char name[61] = "as it was";
  uint32_t action = 4;
  bool no_key = true;
  EXPECT_EQ(
      PD(pdpPolicy_get_entry)(session(), kOther, entry, false, &key, name, &spec, &action, &no_key),
      entry_status);
  EXPECT_EQ(key.ig_intr_md_ingress_port, 1);
  EXPECT_EQ(spec, 3u);
  EXPECT_STREQ(name, "as it was");
  EXPECT_EQ(action, 4u);
  EXPECT_TRUE(no_key);
  PD(action_specs_t) specs = {};
  specs.action = kUnwritten;
  EXPECT_EQ(PD(pdpPolicy_table_get_default_entry)(session(), kOtherTarget, false, &specs), 15u);
  EXPECT_EQ(specs.action, kUnwritten);
}

TEST_F(ReadBack, AnEntryThatPointsElsewhereHasNoActionData) {
  const pdgen::Profile &profile = program().profiles.front();
  Altered altered(table_named("pdpPolicy").handle);
  altered.table().action_data_table = profile.action_data_handle;
  altered.table().actions = nullptr;
  altered.table().action_count = 0;
  const Device device(kOther, false, altered.program());
  const PD(setEcmpNextHop_action_spec_t) hop = {1};
  p4_pd_member_handle_t member = 0;
  ASSERT_EQ(PD(ecmpMemberActionProfile_add_member_with_setEcmpNextHop)(session(), kOtherTarget,
                                                                       &hop, &member),
            BF_SUCCESS);
  pipe_mgr_action_spec_t spec = {};
  spec.type = PIPE_ACTION_MEMBER;
  spec.member = member;
  uint8_t key[3] = {};
  const pipe_mgr_match_spec_t match = {0, 14, 3, key, key, {}, 0};
  uint32_t entry = 0;
  uint32_t by_default = 0;
  const uint32_t handle = profile.actions.front().handle;
  ASSERT_EQ(pipe_mgr_mat_ent_add(session(), kOther, 0, altered.table().handle, &match, handle,
                                 &spec, 0, 0, &entry),
            BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_mat_default_entry_set(session(), kOther, 0, altered.table().handle, handle,
                                           &spec, 0, &by_default),
            BF_SUCCESS);
  expect_nothing_read(entry, 6);
  expect_nothing_read(by_default, 6);
}

TEST_F(ReadBack, AForeignActionIsTheSameStatusEverywhere) {
  Altered altered(table_named("pdpPolicy").handle);
  altered.rename_actions();
  const Device device(kOther, false, altered.program());
  uint8_t data[4] = {};
  pipe_mgr_action_spec_t spec = {};
  spec.type = PIPE_ACTION_DATA;
  spec.data = {32, 4, data};
  spec.resources[0] = attach(kPdpMeter, 1);  // so that there is something to give back
  spec.resource_count = 1;
  uint8_t key[3] = {};
  const pipe_mgr_match_spec_t match = {0, 14, 3, key, key, {}, 0};
  const uint32_t foreign = altered.actions().front().handle;
  uint32_t entry = 0;
  uint32_t by_default = 0;
  ASSERT_EQ(pipe_mgr_mat_ent_add(session(), kOther, 0, altered.table().handle, &match, foreign,
                                 &spec, 0, 0, &entry),
            BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_mat_default_entry_set(session(), kOther, 0, altered.table().handle, foreign,
                                           &spec, 0, &by_default),
            BF_SUCCESS);
  expect_nothing_read(entry, 15);
  expect_nothing_read(by_default, 15);
  const Placed placed(soft_placement_of_entry, altered.table().handle, entry);
  PD(pdpPolicy_match_spec_t) read_key = {1, 2};
  PD(action_specs_t) specs = {};
  specs.action = kUnwritten;
  bool no_key = true;
  EXPECT_EQ(PD(pdpPolicy_get_entry_from_plcmt_data)(placed.data(), &read_key, &specs, &no_key),
            15u);
  EXPECT_EQ(read_key.ig_intr_md_ingress_port, 1);
  EXPECT_EQ(specs.action, kUnwritten);
  EXPECT_TRUE(no_key);
}

TEST_F(ReadBack, AForeignActionOfAMemberIsThatStatusToo) {
  std::vector<soft_profile_t> profiles(
      soft_program_tessel_switch.profiles,
      soft_program_tessel_switch.profiles + soft_program_tessel_switch.profile_count);
  const auto ecmp = std::ranges::find(profiles, 0x0200002fu, &soft_profile_t::action_data_table);
  soft_action_t foreign = ecmp->actions[0];
  foreign.handle = 0x2001015a;
  ecmp->actions = &foreign;
  soft_program_t other = soft_program_tessel_switch;
  other.profiles = profiles.data();
  const Device device(kOther, false, other);
  uint8_t data[2] = {};
  pipe_mgr_action_spec_t spec = {};
  spec.data = {foreign.data_bits, foreign.data_bytes, data};
  uint32_t member = 0;
  ASSERT_EQ(pipe_mgr_adt_ent_add(session(), kOther, BF_ALL_PIPES, 0x0200002f, 0x2001015a, &spec,
                                 &member, 0),
            BF_SUCCESS);
  PD(action_specs_t) specs = {};
  specs.action = kUnwritten;
  EXPECT_EQ(PD(ecmpMemberActionProfile_get_member)(session(), kOther, member, false, &specs), 15u);
  const Placed placed(soft_placement_of_member, 0x0200002f, member);
  EXPECT_EQ(PD(ecmpMemberActionProfile_get_member_from_plcmt_data)(placed.data(), &specs), 15u);
  EXPECT_EQ(PD(ecmpMemberActionProfile_get_full_member_info_from_plcmt_data)(kOther, member,
                                                                             placed.data(), &specs),
            15u);
  EXPECT_EQ(specs.action, kUnwritten);
}

TEST_F(ReadBack, AnIndirectDefaultEntryPointsSomewhere) {
  Altered altered(table_named("ecmpGroup").handle);
  const soft_action_t data_action = {"noPointer", 0x20fffff0, 0, 0, true};
  altered.table().action_data_table = 0;
  altered.table().actions = &data_action;
  altered.table().action_count = 1;
  const Device device(kOther, false, altered.program());
  bool has_member = true;
  bool has_group = true;
  uint32_t group = kUnwritten;
  uint32_t member = kUnwritten;
  EXPECT_EQ(PD(ecmpGroup_table_get_default_entry)(session(), kOtherTarget, false, &has_member,
                                                  &has_group, &group, &member),
            15u);
  EXPECT_TRUE(has_member && has_group);
  EXPECT_EQ(group, kUnwritten);
  EXPECT_EQ(member, kUnwritten);
}

// ---- Enumeration and properties ----

TEST_F(ReadBack, AFailedPropertyReadsAllOnes) {
  uint32_t value = 1;
  uint32_t argument = 2;
  EXPECT_EQ(PD(cpuEncap_get_property)(session(), kDevice, 4711, &value, &argument),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(value, 0xffffffffu);
  EXPECT_EQ(argument, 0xffffffffu);
  EXPECT_EQ(PD(cpuEncap_set_property)(session(), kDevice, PIPE_TABLE_CAPACITY, 99, 0), BF_SUCCESS);
  EXPECT_EQ(PD(cpuEncap_get_property)(session(), kDevice, PIPE_TABLE_CAPACITY, &value, &argument),
            BF_SUCCESS);
  EXPECT_EQ(value, 99u);
  EXPECT_EQ(argument, 0u);
}

// ---- Ageing ----

TEST_F(ReadBack, OnlyOneModeOfAgeingHasFurtherWords) {
  const p4_pd_idle_time_params_t notify = {PIPE_IDLE_NOTIFY, 10, 20, 5, 15, 77};
  p4_pd_idle_time_params_t read = {9, 9, 9, 9, 9, 9};
  ASSERT_EQ(PD(ipv6ShortMaskLpm_idle_tmo_enable)(session(), kDevice, notify), BF_SUCCESS);
  ASSERT_EQ(PD(ipv6ShortMaskLpm_idle_params_get)(session(), kDevice, &read), BF_SUCCESS);
  EXPECT_EQ(std::memcmp(&read, &notify, sizeof read), 0);

  const p4_pd_idle_time_params_t poll = {PIPE_IDLE_POLL, 1, 2, 3, 4, 5};
  ASSERT_EQ(PD(ipv6ShortMaskLpm_idle_tmo_enable)(session(), kDevice, poll), BF_SUCCESS);
  ASSERT_EQ(PD(ipv6ShortMaskLpm_idle_params_get)(session(), kDevice, &read), BF_SUCCESS);
  EXPECT_EQ(read.mode, uint32_t{PIPE_IDLE_POLL});
  EXPECT_EQ(std::memcmp(&read.sweep_interval_ms, &notify.sweep_interval_ms, 20), 0);

  // The other tables do not age, and each table is itself.
  EXPECT_EQ(PD(ipv4ShortMaskLpm_idle_params_get)(session(), kDevice, &read), BF_NOT_READY);
  EXPECT_EQ(read.mode, uint32_t{PIPE_IDLE_POLL});
}

}  // namespace
}  // namespace pd_test
