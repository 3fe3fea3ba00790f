// Placement data in scenarios: what decoders write, both printed forms and value strings to the
// letter, what cannot be decoded, unknown handles, and walks by handle.
#include <algorithm>

#include "placement_fixture.hpp"
#include "text_fixture.hpp"
#include "typed.hpp"

namespace pd_test {
namespace {

using ValueFunction = int (*)(const pipe_mgr_placement_t *, char *);
using PrintFunction = int (*)(int, int, const pipe_mgr_placement_t *);

constexpr uint32_t kEcmpMembers = 0x0200002f;
constexpr uint32_t kLagMembers = 0x02000046;

class PlacementText : public LibraryTest {
 protected:
  static std::string value(ValueFunction function, const Placement &placed) {
    TextBuffer buffer(P4_PD_TESSEL_SWITCH_VALUE_MAX);
    return buffer.text(static_cast<uint64_t>(function(placed.object, buffer.data())));
  }
  static std::string print(PrintFunction function, int indent, const Placement &placed) {
    return printed([&](int file) { EXPECT_EQ(function(file, indent, placed.object), 0); });
  }
  static Placement placed(uint32_t table, uint32_t entry) {
    return Placement::of_entry(kDevice, table, entry);
  }

  static uint32_t add_cpu_encap() {
    const PD(cpuEncap_match_spec_t) key = {1, 0, 1, 1, 5, 0xff, 1, 1};
    const PD(trapPktToCpuUntagged_action_spec_t) action = {0x40, 3};
    uint32_t entry = 0;
    EXPECT_EQ(PD(cpuEncap_table_add_with_trapPktToCpuUntagged)(session(), kTarget, &key, 10,
                                                               &action, &entry),
              BF_SUCCESS);
    return entry;
  }
  static uint32_t add_hop(uint32_t hop) {
    const PD(setEcmpNextHop_action_spec_t) action = {hop};
    uint32_t member = 0;
    EXPECT_EQ(PD(ecmpMemberActionProfile_add_member_with_setEcmpNextHop)(session(), kTarget,
                                                                         &action, &member),
              BF_SUCCESS);
    return member;
  }
};

TEST_F(PlacementText, TernaryEntry) {
  const Placement entry = placed(0x0100005e, add_cpu_encap());
  PD(cpuEncap_match_spec_t) match = {};
  PD(action_specs_t) specs = {};
  uint32_t priority = 0;
  bool no_key = true;
  EXPECT_EQ(
      PD(cpuEncap_get_entry_from_plcmt_data)(entry.object, &match, &priority, &specs, &no_key),
      BF_SUCCESS);
  const PD(cpuEncap_match_spec_t) wanted = {1, 0, 1, 1, 5, 0xff, 1, 1};
  EXPECT_EQ(std::memcmp(&match, &wanted, sizeof match), 0);
  EXPECT_EQ(priority, 10u);
  EXPECT_FALSE(no_key);
  EXPECT_EQ(specs.action, 0u);
  EXPECT_EQ(specs.spec.trapPktToCpuUntagged.action_cpuPort, 0x40);
  EXPECT_EQ(specs.spec.trapPktToCpuUntagged.action_trapPipelineQid, 3);
  EXPECT_EQ(value(PD(cpuEncap_plcmt_data_value), entry),
            "(( 0x1,0x0,0x1,0x1,0x05,0xff,0x1,0x1,),('trapPktToCpuUntagged',(0x040,0x03,)),)");
  EXPECT_EQ(print(PD(cpuEncap_plcmt_data_print), 2, entry),
            "  p4_pd_tessel_switch_cpuEncap_match_spec_t:\n"
            "   egrMd_trapToCpu: 0x1\n"
            "   ingMd_vlanHdrValid: 0x0\n"
            "   phase0_switchPort: 0x1\n"
            "   phase0_switchPort_mask: 0x1\n"
            "   egrMd_cpuReasonCode: 0x05\n"
            "   egrMd_cpuReasonCode_mask: 0xff\n"
            "   vlanHdr_0__valid: 0x1\n"
            "   vlanHdr_0__valid_mask: 0x1\n"
            "  p4_pd_tessel_switch_trapPktToCpuUntagged:\n"
            "   action_cpuPort: 0x040\n"
            "   action_trapPipelineQid: 0x03\n");
}

TEST_F(PlacementText, PrefixEntryOf128Bits) {
  PD(ipv6ShortMaskLpm_match_spec_t) key = {7, {0x20, 0x01, 0x0d, 0xb8, 0xfe}, 40};
  const PD(setNextHop_action_spec_t) action = {0x1234};
  uint32_t entry = 0;
  ASSERT_EQ(
      PD(ipv6ShortMaskLpm_table_add_with_setNextHop)(session(), kTarget, &key, &action, 0, &entry),
      BF_SUCCESS);
  const Placement route = placed(0x0100002d, entry);
  EXPECT_EQ(value(PD(ipv6ShortMaskLpm_plcmt_data_value), route),
            "(( 0x07,0x20010DB8FE0000000000000000000000,0x0028,),('setNextHop',(0x1234,)),)");
  EXPECT_EQ(print(PD(ipv6ShortMaskLpm_plcmt_data_print), 0, route),
            "p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t:\n"
            "  l3Info_vrfId: 0x07\n"
            "  ingIpv6_dip: 0x20010DB8FE0000000000000000000000\n"
            "  ingIpv6_dip_prefix_length: 0x0028\n"
            "p4_pd_tessel_switch_setNextHop:\n"
            "  action_nextHop: 0x1234\n");
}

TEST_F(PlacementText, EntriesWithoutAKey) {
  // Of a ternary table: the priority is written all the same.
  const PD(copyPktToCpuTagged_action_spec_t) action = {0x1f};
  uint32_t entry = 0;
  ASSERT_EQ(PD(cpuEncap_set_default_action_copyPktToCpuTagged)(session(), kTarget, &action, &entry),
            BF_SUCCESS);
  const Placement encap = placed(0x0100005e, entry);
  PD(cpuEncap_match_spec_t) match;
  std::memset(&match, 0xee, sizeof match);
  PD(action_specs_t) specs = {};
  uint32_t priority = kUnwritten;
  bool no_key = false;
  EXPECT_EQ(
      PD(cpuEncap_get_entry_from_plcmt_data)(encap.object, &match, &priority, &specs, &no_key),
      BF_SUCCESS);
  EXPECT_TRUE(no_key);
  EXPECT_EQ(match.egrMd_trapToCpu, 0xee);
  EXPECT_EQ(match.vlanHdr_0__valid_mask, 0xee);
  EXPECT_EQ(priority, 0u);
  EXPECT_EQ(value(PD(cpuEncap_plcmt_data_value), encap), "((),('copyPktToCpuTagged',(0x1f,)),)");
  EXPECT_EQ(print(PD(cpuEncap_plcmt_data_print), 3, encap),
            "   p4_pd_tessel_switch_copyPktToCpuTagged:\n"
            "    action_copyPipelineQid: 0x1f\n");

  // Of an exact table, without parameters.
  ASSERT_EQ(PD(cpuEncapFields_set_default_action_onMiss)(session(), kTarget, &entry), BF_SUCCESS);
  const Placement fields = placed(0x0100004e, entry);
  EXPECT_EQ(value(PD(cpuEncapFields_plcmt_data_value), fields), "((),('onMiss',()),)");
  EXPECT_EQ(print(PD(cpuEncapFields_plcmt_data_print), 0, fields), "p4_pd_tessel_switch_onMiss:\n");

  // Of tables that have none.
  ASSERT_EQ(PD(vlanDecap_table_get_default_entry_handle)(session(), kTarget, &entry), BF_SUCCESS);
  const Placement decap = placed(0x01000050, entry);
  EXPECT_EQ(value(PD(vlanDecap_plcmt_data_value), decap), "((),('removeVlanHdr',()),)");
  EXPECT_EQ(print(PD(vlanDecap_plcmt_data_print), 3, decap),
            "   p4_pd_tessel_switch_vlanDecap:\n"
            "   p4_pd_tessel_switch_removeVlanHdr:\n");
  // A line longer than an int can tell is not begun.
  EXPECT_EQ(print(PD(vlanDecap_plcmt_data_print), INT_MAX, decap), "");
  ASSERT_EQ(PD(egrStpCheck_table_get_default_entry_handle)(session(), kTarget, &entry), BF_SUCCESS);
  no_key = false;
  std::memset(&specs, 0xee, sizeof specs);
  EXPECT_EQ(
      PD(egrStpCheck_get_entry_from_plcmt_data)(placed(0x01000037, entry).object, &specs, &no_key),
      BF_SUCCESS);
  EXPECT_TRUE(no_key);
  EXPECT_EQ(specs.action, 32u);
  EXPECT_EQ(specs.spec.setEcmpNextHop.action_nextHop, 0xeeeeeeeeu);
}

TEST_F(PlacementText, EntriesThatPointAtAMemberOrGroup) {
  uint32_t member = 0;
  for (uint32_t hop = 1; hop <= 5; ++hop) member = add_hop(hop);
  ASSERT_EQ(member, 5u);
  PD(ecmpGroup_match_spec_t) key = {0x12};
  uint32_t entry = 0, group = 0;
  ASSERT_EQ(PD(ecmpGroup_add_entry)(session(), kTarget, &key, member, &entry), BF_SUCCESS);
  const Placement by_member = placed(0x0100002f, entry);
  EXPECT_EQ(value(PD(ecmpGroup_plcmt_data_value), by_member), "(( 0x0012,),('setMbrHdl',(0x5,)))");
  EXPECT_EQ(print(PD(ecmpGroup_plcmt_data_print), 2, by_member),
            "  p4_pd_tessel_switch_ecmpGroup_match_spec_t:\n"
            "   l3_ecmpGroup mask 0xff: 0x0012\n");

  // A ternary table, by a group; its default entry too.
  ASSERT_EQ(PD(lagPortActionProfile_add_member_with_setPhysicalPort)(session(), kTarget, &member),
            BF_SUCCESS);
  for (int i = 0; i < 2; ++i) {
    ASSERT_EQ(PD(lagPortActionProfile_create_group)(session(), kTarget, 4, &group), BF_SUCCESS);
  }
  ASSERT_EQ(PD(lagPortActionProfile_add_member_to_group)(session(), kDevice, group, member),
            BF_SUCCESS);
  ASSERT_EQ(group, 2u);
  const PD(lagGroup_match_spec_t) lag = {0xabc, 0xfffff};
  ASSERT_EQ(PD(lagGroup_add_entry_with_selector)(session(), kTarget, &lag, 9, group, &entry),
            BF_SUCCESS);
  const Placement by_group = placed(0x01000046, entry);
  EXPECT_EQ(value(PD(lagGroup_plcmt_data_value), by_group),
            "(( 0x00abc,0xfffff,),('setGrpHdl',(0x2,)))");
  EXPECT_EQ(print(PD(lagGroup_plcmt_data_print), 1, by_group),
            " p4_pd_tessel_switch_lagGroup_match_spec_t:\n"
            "  egrMd_egrL2AintfUnresolved: 0x00abc\n"
            "  egrMd_egrL2AintfUnresolved_mask: 0xfffff\n");
  ASSERT_EQ(PD(lagGroup_set_default_entry_with_selector)(session(), kTarget, group, &entry),
            BF_SUCCESS);
  const Placement by_default = placed(0x01000046, entry);
  EXPECT_EQ(value(PD(lagGroup_plcmt_data_value), by_default), "((),('setGrpHdl',(0x2,)))");
  EXPECT_EQ(print(PD(lagGroup_plcmt_data_print), 1, by_default), "");
}

// The device knows an action where the library knows none.
TEST_F(PlacementText, EntriesThatPointAtNothing) {
  std::vector<soft_table_t> tables(
      soft_program_tessel_switch.tables,
      soft_program_tessel_switch.tables + soft_program_tessel_switch.table_count);
  soft_table_t &table = *std::ranges::find(tables, 0x0100002fu, &soft_table_t::handle);
  const soft_action_t nowhere = {"nowhere", 0x20fffff0, 0, 0, true};
  table.action_data_table = 0;
  table.actions = &nowhere;
  table.action_count = 1;
  soft_program_t altered = soft_program_tessel_switch;
  altered.tables = tables.data();
  const Device device(12, false, altered);
  uint8_t key[] = {0, 0x12}, mask[] = {0xff, 0xff};
  const pipe_mgr_match_spec_t match = {0, 14, 2, key, mask, {}, 0};
  pipe_mgr_action_spec_t spec = {};
  spec.type = PIPE_ACTION_DATA;
  uint32_t lost = 0, entry = 0;
  ASSERT_EQ(pipe_mgr_mat_ent_add(session(), 12, kPipe, table.handle, &match, nowhere.handle, &spec,
                                 0, 0, &lost),
            BF_SUCCESS);
  const Placement at_nothing = Placement::of_entry(12, table.handle, lost);
  PD(ecmpGroup_match_spec_t) read = {};
  uint32_t member = kUnwritten, group = kUnwritten;
  bool has_member = true, has_group = true, no_key = true;
  EXPECT_EQ(PD(ecmpGroup_get_entry_from_plcmt_data)(at_nothing.object, &read, &member, &group,
                                                    &has_member, &has_group, &no_key),
            BF_SUCCESS);
  EXPECT_TRUE(read.l3_ecmpGroup == 0x12 && !no_key && has_member && has_group);
  EXPECT_TRUE(member == kUnwritten && group == kUnwritten);
  EXPECT_EQ(value(PD(ecmpGroup_plcmt_data_value), at_nothing), "(( 0x0012,),)");
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_VALUE_MAX);
  const int length = PD(ecmpGroup_value)(session(), 12, lost, false, buffer.data());
  EXPECT_EQ(buffer.text(static_cast<uint64_t>(length)), "((( 0x0012,),),(0,True))");

  ASSERT_EQ(PD(ecmpGroup_add_entry)(session(), kTarget, &read, add_hop(1), &entry), BF_SUCCESS);
  const auto equal = PD(ecmpGroup_plcmt_data_eq_to_hw);
  EXPECT_EQ(equal(session(), 12, table.handle, lost, at_nothing.object), 1);
  EXPECT_EQ(equal(session(), kDevice, table.handle, entry, at_nothing.object), 0);
  EXPECT_EQ(equal(session(), 12, table.handle, lost, placed(table.handle, entry).object), 0);
}

TEST_F(PlacementText, Members) {
  const Placement hop = Placement::of_member(kDevice, kEcmpMembers, add_hop(0x12));
  EXPECT_EQ(value(PD(ecmpMemberActionProfile_plcmt_data_value), hop),
            "('setEcmpNextHop',(0x0012,)),");
  EXPECT_EQ(print(PD(ecmpMemberActionProfile_adt_plcmt_data_print), 1, hop),
            " p4_pd_tessel_switch_setEcmpNextHop:\n"
            "  action_nextHop: 0x0012\n");

  uint32_t member = 0;
  ASSERT_EQ(PD(lagPortActionProfile_add_member_with_setPhysicalPort)(session(), kTarget, &member),
            BF_SUCCESS);
  const Placement port = Placement::of_member(kDevice, kLagMembers, member);
  EXPECT_EQ(value(PD(lagPortActionProfile_plcmt_data_value), port), "('setPhysicalPort',()),");
  EXPECT_EQ(print(PD(lagPortActionProfile_adt_plcmt_data_print), 0, port),
            "p4_pd_tessel_switch_setPhysicalPort:\n");
  PD(action_specs_t) specs;
  std::memset(&specs, 0xee, sizeof specs);
  EXPECT_EQ(PD(lagPortActionProfile_get_member_from_plcmt_data)(port.object, &specs), BF_SUCCESS);
  EXPECT_EQ(specs.action, 162u);
  EXPECT_EQ(specs.spec.setLagPort.action_egrL2AintfPort, 0xeeee);
}

// ---- What cannot be decoded ----

class Undecodable : public PlacementText {
 protected:
  // An entry as the data of cpuEncap's entry.
  static void expect_refused(const pipe_mgr_placement_t *placement, p4_pd_status_t status) {
    TextBuffer buffer(P4_PD_TESSEL_SWITCH_VALUE_MAX);
    EXPECT_EQ(PD(cpuEncap_plcmt_data_value)(placement, buffer.data()), 0);
    EXPECT_TRUE(buffer.is_untouched());
    EXPECT_EQ(printed([&](int file) {
                EXPECT_EQ(
                    static_cast<p4_pd_status_t>(PD(cpuEncap_plcmt_data_print)(file, 6, placement)),
                    status);
              }),
              "cannot decode plcmt_data for p4_pd_tessel_switch_cpuEncap\n");
    PD(cpuEncap_match_spec_t) match;
    PD(action_specs_t) specs;
    std::memset(&match, 0xee, sizeof match);
    std::memset(&specs, 0xee, sizeof specs);
    uint32_t priority = kUnwritten;
    bool no_key = true;
    EXPECT_EQ(PD(cpuEncap_get_entry_from_plcmt_data)(placement, &match, &priority, &specs, &no_key),
              status);
    EXPECT_EQ(match.egrMd_trapToCpu, 0xee);
    EXPECT_EQ(specs.action, kUnwritten);
    EXPECT_EQ(priority, kUnwritten);
    EXPECT_TRUE(no_key);
    EXPECT_EQ(PD(cpuEncap_plcmt_data_eq_to_hw)(session(), kDevice, 0x0100005e, 1, placement), 0);
  }
};

TEST_F(Undecodable, CorruptMissingAndOfAnotherKind) {
  Placement entry = placed(0x0100005e, add_cpu_encap());
  const std::vector<Call> calls = recorded([&] {
    EXPECT_EQ(PD(cpuEncap_plcmt_data_eq_to_hw)(session(), kDevice, 0, 1, entry.object), 1);
  });
  EXPECT_EQ(calls.back().scalar("read_from_hardware"), 1u);
  soft_placement_corrupt(entry.object);
  expect_refused(entry.object, BF_CORRUPT_DATA);
  expect_refused(nullptr, BF_INVALID_ARGUMENT);
  Placement member = Placement::of_member(kDevice, kEcmpMembers, add_hop(1));
  expect_refused(member.object, BF_INVALID_ARGUMENT);

  soft_placement_corrupt(member.object);
  PD(action_specs_t) specs = {kUnwritten, {}};
  EXPECT_EQ(PD(ecmpMemberActionProfile_get_member_from_plcmt_data)(member.object, &specs),
            BF_CORRUPT_DATA);
  EXPECT_EQ(specs.action, kUnwritten);
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_VALUE_MAX);
  EXPECT_EQ(PD(ecmpMemberActionProfile_plcmt_data_value)(member.object, buffer.data()), 0);
  EXPECT_TRUE(buffer.is_untouched());
  EXPECT_EQ(printed([&](int file) {
              EXPECT_EQ(PD(ecmpMemberActionProfile_adt_plcmt_data_print)(file, 6, member.object),
                        int{BF_CORRUPT_DATA});
            }),
            "cannot decode plcmt_data for "
            "p4_pd_tessel_switch_ecmpMemberActionProfile_adt_plcmt_data_print\n");
}

TEST_F(Undecodable, ActionsOfOtherTablesAndProfiles) {
  uint32_t entry = 0;
  ASSERT_EQ(PD(vlanDecap_table_get_default_entry_handle)(session(), kTarget, &entry), BF_SUCCESS);
  expect_refused(placed(0x01000050, entry).object, P4_PD_FOREIGN_ACTION);
  const Placement hop = Placement::of_member(kDevice, kEcmpMembers, add_hop(1));
  PD(action_specs_t) specs = {kUnwritten, {}};
  EXPECT_EQ(PD(lagPortActionProfile_get_member_from_plcmt_data)(hop.object, &specs),
            P4_PD_FOREIGN_ACTION);
  EXPECT_EQ(specs.action, kUnwritten);
}

// ---- By handle ----

TEST_F(PlacementText, UnknownHandlesAreAnsweredWithoutACall) {
  const Placement entry = placed(0x0100005e, add_cpu_encap());
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_VALUE_MAX);
  const std::vector<Call> calls = recorded([&] {
    EXPECT_EQ(printed([&](int file) {
                EXPECT_EQ(PD(plcmt_data_print)(file, 4, 0x01000079, entry.object), 27);
                EXPECT_EQ(PD(plcmt_data_print)(file, 4, kEcmpMembers, entry.object), 27);
                EXPECT_EQ(PD(adt_plcmt_data_print)(file, 4, 0x31, entry.object), 27);
              }),
              "0x01000079 table not found\n"
              "0x0200002f table not found\n"
              "0x00000031 table not found\n");
    for (const uint32_t unknown : {0u, 0x01000000u, 0x01000079u, 0x02000045u, 0xffffffffu}) {
      EXPECT_EQ(PD(plcmt_data_value)(unknown, entry.object, buffer.data()), 0);
      EXPECT_EQ(PD(adt_plcmt_data_value)(unknown, entry.object, buffer.data()), 0);
      EXPECT_EQ(PD(plcmt_data_eq_to_hw)(session(), kDevice, unknown, 1, entry.object), 0);
      EXPECT_EQ(PD(entry_value)(session(), kDevice, unknown, 1, 0, buffer.data()), 0);
      uint32_t handles[2] = {1, 1};
      EXPECT_EQ(PD(entry_hdl_first)(session(), kTarget, unknown, handles), 0u);
      EXPECT_EQ(handles[0], 0xffffffffu);
      handles[0] = 1;
      EXPECT_EQ(PD(entry_hdl_next)(session(), kTarget, unknown, 1, 2, handles), 0u);
      EXPECT_EQ(handles[0], 0xffffffffu);
      handles[0] = 1;
      EXPECT_EQ(PD(entry_hdl_default)(session(), kTarget, unknown, handles), 0u);
      EXPECT_EQ(handles[0], 0xffffffffu);
      handles[0] = 1;
      EXPECT_EQ(PD(member_hdl_next)(session(), kTarget, unknown, 1, 2, handles), 0xffffffffu);
      EXPECT_EQ(handles[0], 0xffffffffu);
      EXPECT_EQ(handles[1], 1u);
      // No room at all.
      handles[0] = 1;
      EXPECT_EQ(PD(entry_hdl_next)(session(), kTarget, unknown, 1, 0, handles), 0u);
      EXPECT_EQ(PD(member_hdl_next)(session(), kTarget, unknown, 1, 0, handles), 0xffffffffu);
      EXPECT_EQ(handles[0], 1u);
    }
  });
  EXPECT_TRUE(buffer.is_untouched());
  EXPECT_TRUE(calls.empty());
}

TEST_F(PlacementText, HandlesLeadAlongEntriesAndMembers) {
  uint32_t entries[3] = {};
  for (uint32_t i = 0; i < 3; ++i) {
    const PD(ipv4ShortMaskLpm_match_spec_t) key = {7, 0x0a010200 + (i << 8), 24};
    const PD(setNextHop_action_spec_t) action = {i};
    ASSERT_EQ(PD(ipv4ShortMaskLpm_table_add_with_setNextHop)(session(), kTarget, &key, &action, 0,
                                                             &entries[i]),
              BF_SUCCESS);
  }
  uint32_t handles[3] = {};
  EXPECT_EQ(PD(entry_hdl_first)(session(), kTarget, 0x0100002c, handles), BF_SUCCESS);
  EXPECT_EQ(handles[0], entries[0]);
  EXPECT_EQ(PD(entry_hdl_next)(session(), kTarget, 0x0100002c, entries[0], 3, handles), BF_SUCCESS);
  EXPECT_EQ(handles[0], entries[1]);
  EXPECT_EQ(handles[1], entries[2]);
  EXPECT_EQ(handles[2], 0xffffffffu);
  EXPECT_EQ(PD(entry_hdl_next)(session(), kTarget, 0x0100002c, entries[2], 3, handles),
            BF_OBJECT_NOT_FOUND);
  const uint32_t members[] = {add_hop(1), add_hop(2)};
  EXPECT_EQ(PD(member_hdl_next)(session(), kTarget, kEcmpMembers, members[0], 3, handles),
            BF_SUCCESS);
  EXPECT_EQ(handles[0], members[1]);
  EXPECT_EQ(handles[1], 0xffffffffu);
  const Call asked = only_call([&] {
    EXPECT_EQ(PD(entry_hdl_default)(session(), kTarget, 0x0100002c, handles), BF_SUCCESS);
  });
  EXPECT_EQ(asked.scalar("pipe"), kPipe);

  // Device and origin are cut to 8 bits.
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_VALUE_MAX);
  const auto read = [&](uint32_t from_hardware) {
    return only_call([&] {
      const int length = PD(entry_value)(session(), 0x300 + kDevice, 0x0100002c, entries[1],
                                         from_hardware, buffer.data());
      EXPECT_EQ(buffer.text(static_cast<uint64_t>(length)),
                "((( 0x07,0x0a010300,0x0018,),('setNextHop',(0x0001,)),),(0,True))");
    });
  };
  EXPECT_EQ(read(0x100).scalar("read_from_hardware"), 0u);
  EXPECT_EQ(read(0x101).scalar("read_from_hardware"), 1u);
}

}  // namespace
}  // namespace pd_test
