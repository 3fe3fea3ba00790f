// Every export makes exactly the SDK calls that its family promises, with its own handles and with
// the bytes of the caller's records.
#include <algorithm>
#include <cstring>
#include <set>

#include "expected_calls.hpp"

namespace pd_test {

void PrintTo(const FamilyCalls &row, std::ostream *out) { *out << row.calls; }

namespace {

// Several scenes an export: records differ.
constexpr const char *kVariations[] = {"first", "second", "third"};

class CallSweep : public testing::TestWithParam<FamilyCalls> {};

TEST_P(CallSweep, MakesTheseCalls) {
  const FamilyCalls &row = GetParam();
  const auto exports = exports_of(row.family);
  EXPECT_EQ(exports.size(), row.count);
  StatesSeen states;
  for (const Export *exported : exports) {
    for (const char *variation : kVariations) {
      SCOPED_TRACE(std::string(exported->name) + ", " + variation + " scene");
      Scene scene(*exported, variation);
      const uint64_t result = scene.play();
      if (exported->result == std::string_view("p4_pd_status_t")) {
        EXPECT_EQ(result, expected_status(*exported));
      }
      compare_calls(scene, row.calls, states);
      if (testing::Test::HasFailure()) return;
    }
  }
}

std::string family_name(const testing::TestParamInfo<FamilyCalls> &info) {
  return info.param.family;
}

INSTANTIATE_TEST_SUITE_P(Exports, CallSweep, testing::ValuesIn(family_calls()), family_name);

// A family is listed once, and the handles, constants and answers that need no SDK are the
// catalogue's.
TEST(CallSweepList, FamiliesAreListedOnce) {
  std::set<std::string_view> seen;
  for (const FamilyCalls &row : family_calls()) EXPECT_TRUE(seen.insert(row.family).second);
}

TEST(Handles, AreThoseOfTheCatalogue) {
  size_t checked = 0;
  const auto expect_handle = [&](const char *family, const std::string &object, uint32_t handle) {
    uint32_t out = 0;
    EXPECT_EQ(Arguments(*find_export(family, object)).set("handle", &out).status(), BF_SUCCESS);
    EXPECT_EQ(out, handle) << object;
    ++checked;
  };
  for (const pdgen::Table &table : program().tables) {
    expect_handle("get_mat_table_handle", table.name, table.handle);
  }
  for (const pdgen::Profile &profile : program().profiles) {
    expect_handle("get_adt_table_handle", profile.name, profile.action_data_handle);
    expect_handle("get_sel_table_handle", profile.name, profile.selector_handle);
  }
  EXPECT_EQ(checked, 128u);
}

TEST(Handles, PrioritiesBelongToTernaryTables) {
  size_t with_priority = 0;
  for (const pdgen::Table &table : program().tables) {
    const Export &answer = *find_export("supports_entry_priority", table.name);
    const bool takes_priority =
        table.keyed() &&
        Arguments(*find_export("match_spec_to_entry_hdl", table.name)).takes("priority");
    EXPECT_EQ(Arguments(answer).call(), takes_priority ? 1u : 0u) << table.name;
    if (takes_priority) ++with_priority;
  }
  EXPECT_EQ(with_priority, 39u);
}

// The tables and the enumeration in numbers, as a reader of the header counts them.
TEST(Handles, AddUpToTheProgram) {
  EXPECT_EQ(p4_pd_tessel_switch_trapPktToCpuUntagged, 0);
  EXPECT_EQ(p4_pd_tessel_switch_setVlanProperties, 231);
  std::set<std::string> names;
  size_t longest = 0;
  for (const char *name : p4_pd_tessel_switch_action_name_strings) {
    EXPECT_TRUE(names.insert(name).second) << name;
    longest = std::max(longest, std::strlen(name));
  }
  EXPECT_EQ(names.size(), 232u);
  EXPECT_EQ(longest, 60u);
  EXPECT_STREQ(p4_pd_tessel_switch_action_name_strings[0],
               "p4_pd_tessel_switch_trapPktToCpuUntagged");
  EXPECT_STREQ(p4_pd_tessel_switch_action_name_strings[14], "p4_pd_tessel_switch_dipHashCompute");
  EXPECT_STREQ(p4_pd_tessel_switch_action_name_strings[231],
               "p4_pd_tessel_switch_setVlanProperties");
}

}  // namespace
}  // namespace pd_test
