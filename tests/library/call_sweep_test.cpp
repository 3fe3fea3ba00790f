// Every export makes exactly the SDK calls that its family promises, with its own handles and with
// the bytes of the caller's records.
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

// The handles, constants and answers that need no SDK are the catalogue's.
TEST(Handles, AreThoseOfTheCatalogue) {
  const auto handle = [](const char *family, const std::string &object) {
    return make(family, object, "", {});
  };
  for (const pdgen::Table &table : program().tables) {
    EXPECT_EQ(handle("get_mat_table_handle", table.name), table.handle);
  }
  for (const pdgen::Profile &profile : program().profiles) {
    EXPECT_EQ(handle("get_adt_table_handle", profile.name), profile.action_data_handle);
    EXPECT_EQ(handle("get_sel_table_handle", profile.name), profile.selector_handle);
  }
}

TEST(Handles, PrioritiesBelongToTernaryTables) {
  for (const pdgen::Table &table : program().tables) {
    EXPECT_EQ(Arguments(*find_export("supports_entry_priority", table.name)).call(),
              table.has_priority() ? 1u : 0u);
  }
}

}  // namespace
}  // namespace pd_test
