// Entries of a device as value strings and labels.
#include <algorithm>
#include <cstdio>

#include "text_fixture.hpp"
#include "typed.hpp"

namespace pd_test {
namespace {

using ValueFunction = int (*)(p4_pd_session_handle_t, uint8_t, p4_pd_entry_handle_t, bool, char *);
using LabelFunction = int (*)(p4_pd_session_handle_t, uint8_t, p4_pd_entry_handle_t, char *);

class EntryText : public LibraryTest {
 protected:
  static std::string value(ValueFunction function, p4_pd_entry_handle_t entry) {
    TextBuffer buffer(P4_PD_TESSEL_SWITCH_VALUE_MAX);
    const int length = function(session(), kDevice, entry, false, buffer.data());
    return buffer.text(static_cast<uint64_t>(length));
  }
  static std::string label(LabelFunction function, p4_pd_entry_handle_t entry) {
    TextBuffer buffer(P4_PD_TESSEL_SWITCH_LABEL_MAX);
    const int length = function(session(), kDevice, entry, buffer.data());
    return buffer.text(static_cast<uint64_t>(length));
  }

  static p4_pd_entry_handle_t add_cpu_encap(uint32_t priority) {
    const PD(cpuEncap_match_spec_t) key = {1, 0, 1, 1, 5, 0xff, 1, 1};
    const PD(trapPktToCpuUntagged_action_spec_t) action = {0x40, 3};
    p4_pd_entry_handle_t entry = 0;
    EXPECT_EQ(PD(cpuEncap_table_add_with_trapPktToCpuUntagged)(session(), kTarget, &key, priority,
                                                               &action, &entry),
              BF_SUCCESS);
    return entry;
  }
};

TEST_F(EntryText, TernaryEntriesHaveASignedPriority) {
  const std::string key = "((( 0x1,0x0,0x1,0x1,0x05,0xff,0x1,0x1,),";
  const std::string action = "('trapPktToCpuUntagged',(0x040,0x03,)),),";
  EXPECT_EQ(value(PD(cpuEncap_value), add_cpu_encap(10)), key + action + "(10,True))");
  EXPECT_EQ(value(PD(cpuEncap_value), add_cpu_encap(0x80000000)),
            key + action + "(-2147483648,True))");
  EXPECT_EQ(value(PD(cpuEncap_value), add_cpu_encap(0xffffffff)), key + action + "(-1,True))");
}

TEST_F(EntryText, DefaultEntriesHaveNoKey) {
  p4_pd_entry_handle_t entry = 0;
  ASSERT_EQ(PD(vlanDecap_table_get_default_entry_handle)(session(), kTarget, &entry), BF_SUCCESS);
  EXPECT_EQ(value(PD(vlanDecap_value), entry), "(((),('removeVlanHdr',()),),(0,True))");
  ASSERT_EQ(PD(cpuEncapFields_set_default_action_onMiss)(session(), kTarget, &entry), BF_SUCCESS);
  EXPECT_EQ(value(PD(cpuEncapFields_value), entry), "(((),('onMiss',()),),(0,True))");
}

TEST_F(EntryText, BoundTablesShowWhatTheirEntriesPointAt) {
  const PD(setEcmpNextHop_action_spec_t) hop = {9};
  p4_pd_member_handle_t member = 0;
  p4_pd_group_handle_t group = 0;
  ASSERT_EQ(
      PD(ecmpMemberActionProfile_add_member_with_setEcmpNextHop)(session(), kTarget, &hop, &member),
      BF_SUCCESS);
  ASSERT_EQ(PD(ecmpMemberActionProfile_create_group)(session(), kTarget, 4, &group), BF_SUCCESS);
  ASSERT_EQ(PD(ecmpMemberActionProfile_add_member_to_group)(session(), kDevice, group, member),
            BF_SUCCESS);
  PD(ecmpGroup_match_spec_t) key = {0x12};
  p4_pd_entry_handle_t entry = 0;
  char handle[16];
  std::snprintf(handle, sizeof handle, "0x%x", member);
  ASSERT_EQ(PD(ecmpGroup_add_entry)(session(), kTarget, &key, member, &entry), BF_SUCCESS);
  EXPECT_EQ(value(PD(ecmpGroup_value), entry),
            "((( 0x0012,),('setMbrHdl',(" + std::string(handle) + ",))),(0,True))");
  key.l3_ecmpGroup = 0x13;
  std::snprintf(handle, sizeof handle, "0x%x", group);
  ASSERT_EQ(PD(ecmpGroup_add_entry_with_selector)(session(), kTarget, &key, group, &entry),
            BF_SUCCESS);
  EXPECT_EQ(value(PD(ecmpGroup_value), entry),
            "((( 0x0013,),('setGrpHdl',(" + std::string(handle) + ",))),(0,True))");
}

TEST_F(EntryText, FailedReadsLeaveTheBuffer) {
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_VALUE_MAX);
  const p4_pd_entry_handle_t entry = add_cpu_encap(1);
  EXPECT_EQ(PD(cpuEncap_value)(session(), kDevice, entry + 1000, false, buffer.data()), 0);
  EXPECT_EQ(PD(cpuEncap_value)(session(), kDevice + 1, entry, false, buffer.data()), 0);
  EXPECT_EQ(PD(trapToCpu_stringify_counter_match_spec)(session(), kDevice, 4711, buffer.data()), 0);
  EXPECT_TRUE(buffer.is_untouched());
  EXPECT_EQ(PD(cpuEncap_value)(session(), kDevice, entry, false, nullptr), 0);
}

// ---- Labels ----

TEST_F(EntryText, LabelsAreReadFromTheHardware) {
  PD(finalDropControl_match_spec_t) key = {};
  key.ingMd_bcast = key.ingMd_bcast_mask = 1;
  p4_pd_entry_handle_t entry = 0;
  ASSERT_EQ(PD(finalDropControl_table_add_with_dropCount)(session(), kTarget, &key, 1, &entry),
            BF_SUCCESS);
  const Call read = only_call([&] {
    EXPECT_EQ(label(PD(finalDropControl_stringify_counter_match_spec), entry), "bcast ");
  });
  EXPECT_EQ(read.function, "pipe_mgr_get_entry");
  EXPECT_EQ(read.scalar("table"), 0x0100006au);
  EXPECT_EQ(read.scalar("entry"), entry);
  EXPECT_EQ(read.scalar("read_from_hardware"), 1u);

  // By the handle of the table, as tools do.
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_LABEL_MAX);
  const auto by_handle = PD(stringify_counter_matchspec);
  const int length = by_handle(session(), kDevice, 0x0100006a, entry, buffer.data());
  EXPECT_EQ(buffer.text(static_cast<uint64_t>(length)), "bcast ");
}

TEST_F(EntryText, TheDefaultEntryHasAnEmptyLabel) {
  p4_pd_entry_handle_t entry = 0;
  ASSERT_EQ(PD(l2DmacClassify_set_default_action_onMiss)(session(), kTarget, &entry), BF_SUCCESS);
  EXPECT_EQ(label(PD(l2DmacClassify_stringify_counter_match_spec), entry), "");
}

TEST_F(EntryText, LabelsByHandleGoToTheirTables) {
  const uint32_t labelled[] = {0x01000002, 0x01000008, 0x01000009, 0x0100000a,
                               0x0100003f, 0x0100006a, 0x0100006d, 0x01000078};
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_LABEL_MAX);
  size_t read = 0;
  for (uint32_t handle = 0x01000000; handle <= 0x0100007a; ++handle) {
    const std::vector<Call> calls = recorded([&] {
      EXPECT_EQ(PD(stringify_counter_matchspec)(session(), kDevice, handle, 9999, buffer.data()),
                0);
    });
    const bool has_label = std::ranges::find(labelled, handle) != std::end(labelled);
    ASSERT_EQ(calls.size(), has_label ? 1u : 0u) << handle;
    if (!has_label) continue;
    EXPECT_EQ(calls[0].scalar("table"), handle);
    ++read;
  }
  EXPECT_EQ(read, 8u);
  EXPECT_TRUE(buffer.is_untouched());
}

}  // namespace
}  // namespace pd_test
