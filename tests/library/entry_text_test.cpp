// Texts of entries and members where something is odd: data that cannot be decoded, actions of
// other tables, entries that point at nothing, handles that nobody has; and which hardware is
// asked.
#include <algorithm>

#include "texts.hpp"
#include "typed.hpp"

namespace pd_test {
namespace {

constexpr uint32_t kCpuEncap = 0x0100005e;
constexpr uint32_t kEcmpMembers = 0x0200002f;

class EntryText : public LibraryTest {
 protected:
  static uint32_t add_cpu_encap() {
    const Spec key = key_spec("cpuEncap"), spec = action_spec("trapPktToCpuUntagged");
    return make("table_add", "cpuEncap", "trapPktToCpuUntagged",
                with("match_spec", key.data(), "action_spec", spec.data(), "priority", 1));
  }
};

TEST_F(EntryText, PlacementDataThatCannotBeDecoded) {
  const Placement entry = Placement::of_entry(kDevice, kCpuEncap, add_cpu_encap());
  soft_placement_corrupt(entry.object);
  EXPECT_EQ(printed([&](int file) {
              EXPECT_EQ(PD(cpuEncap_plcmt_data_print)(file, 6, entry.object), int{BF_CORRUPT_DATA});
            }),
            "cannot decode plcmt_data for p4_pd_tessel_switch_cpuEncap\n");
  const Spec hop = action_spec("setEcmpNextHop");
  const Placement member =
      Placement::of_member(kDevice, kEcmpMembers,
                           make("add_member", "ecmpMemberActionProfile", "setEcmpNextHop",
                                with("action_spec", hop.data())));
  soft_placement_corrupt(member.object);
  EXPECT_EQ(printed([&](int file) {
              EXPECT_EQ(PD(ecmpMemberActionProfile_adt_plcmt_data_print)(file, 6, member.object),
                        int{BF_CORRUPT_DATA});
            }),
            "cannot decode plcmt_data for "
            "p4_pd_tessel_switch_ecmpMemberActionProfile_adt_plcmt_data_print\n");
}

// ---- By handle ----

TEST_F(EntryText, UnknownHandlesAreAnsweredWithoutACall) {
  const Placement entry = Placement::of_entry(kDevice, kCpuEncap, add_cpu_encap());
  const auto calls = recorded([&] {
    EXPECT_EQ(printed([&](int file) {
                EXPECT_EQ(PD(plcmt_data_print)(file, 4, kEcmpMembers, entry.object), 27);
                EXPECT_EQ(PD(adt_plcmt_data_print)(file, 4, 0x31, entry.object), 27);
              }),
              "0x0200002f table not found\n0x00000031 table not found\n");
    for (const uint64_t unknown : {0u, 0x01000000u, 0x01000079u, 0x02000045u, 0xffffffffu}) {
      for (const char *family :
           {"plcmt_data_value", "adt_plcmt_data_value", "plcmt_data_eq_to_hw", "entry_value",
            "entry_hdl_first", "entry_hdl_next", "entry_hdl_default", "member_hdl_next"}) {
        SCOPED_TRACE(family);
        TextBuffer buffer;
        uint32_t handles[2] = {1, 1};
        Arguments asked(*find_export("by_handle_" + std::string(family)));
        asked.give(with("table_handle", unknown, "profile_handle", unknown, "entry", 1, "member", 1,
                        "placement", entry.object, "read_from_hardware", 0, "buffer", buffer.data(),
                        "count", 0, "entries", handles, "members", handles));
        const bool walks = asked.takes("count");
        const bool yields_handle = asked.takes("target") && !walks;
        if (yields_handle) asked.set("entry", handles);
        const uint64_t answer = family == std::string_view("member_hdl_next") ? 0xffffffffu : 0u;
        EXPECT_EQ(asked.call(), answer);
        EXPECT_EQ(handles[0], yields_handle ? 0xffffffffu : 1u);  // of a walk without room nothing
        asked.give(with("count", 2));
        EXPECT_EQ(asked.call(), answer);
        EXPECT_EQ(handles[0], yields_handle || walks ? 0xffffffffu : 1u);
        EXPECT_EQ(handles[1], 1u);
        EXPECT_TRUE(buffer.is_untouched());
      }
    }
  });
  EXPECT_TRUE(calls.empty());
}

// Where a whole word is taken, only its low 8 bits count.
TEST_F(EntryText, DeviceAndOriginAreCut) {
  const uint32_t entry = add_cpu_encap();
  for (const uint32_t from_hardware : {0x100u, 0x101u}) {
    TextBuffer buffer;
    const Call read = only_call([&] {
      EXPECT_NE(PD(entry_value)(session(), 0x300 + kDevice, kCpuEncap, entry, from_hardware,
                                buffer.data()),
                0);
    });
    EXPECT_EQ(read.scalar("read_from_hardware"), from_hardware & 1);
  }
}

// ---- Labels ----

TEST_F(EntryText, LabelsOfEntries) {
  const Spec key = key_spec("finalDropControl", "ingMd_bcast=1/1");
  const uint32_t entry = make("table_add", "finalDropControl", "dropCount",
                              with("match_spec", key.data(), "priority", 1));
  TextBuffer buffer, none;
  EXPECT_EQ(buffer.text(PD(stringify_counter_matchspec)(session(), kDevice, 0x0100006a, entry,
                                                        buffer.data())),
            "bcast ");
  const uint32_t by_default = make("set_default_action", "l2DmacClassify", "onMiss", {});
  EXPECT_EQ(none.text(PD(l2DmacClassify_stringify_counter_match_spec)(session(), kDevice,
                                                                      by_default, none.data())),
            "");
}

TEST_F(EntryText, LabelsByHandleGoToTheirTables) {
  std::map<uint32_t, size_t> labels = {{0x01000000, 0}, {0x01000079, 0}};
  for (const pdgen::Table &table : program().tables) labels[table.handle] = 0;
  for (const Export *exported : exports_of("match_spec_stringify_for_counter")) {
    labels[table_named(exported->object).handle] = 1;
  }
  TextBuffer buffer;
  for (const auto &[handle, calls] : labels) {
    const auto made = recorded([&, table = handle] {
      EXPECT_EQ(PD(stringify_counter_matchspec)(session(), kDevice, table, 9999, buffer.data()), 0);
    });
    ASSERT_EQ(made.size(), calls) << handle;
    for (const Call &call : made) EXPECT_EQ(call.scalar("table"), handle);
  }
  EXPECT_TRUE(buffer.is_untouched());
}

}  // namespace
}  // namespace pd_test
