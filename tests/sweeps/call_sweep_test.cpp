// Every export makes exactly the SDK calls that its family promises, with its own handles and with
// the bytes of the caller's records.
#include <set>

#include "expected_calls.hpp"

namespace pd_test {
namespace {

// Several scenes an export: records differ.
constexpr const char *kVariations[] = {"first", "second", "third"};

TEST(CallSweep, ExportsMakeTheCallsOfTheirFamily) {
  std::map<std::string_view, StatesSeen> states;
  for (const Export *exported : exports_with_scene()) {
    for (const char *variation : kVariations) {
      SCOPED_TRACE(std::string(exported->name) + ", " + variation + " scene");
      Scene scene(*exported, variation);
      const uint64_t result = scene.play();
      if (exported->result == std::string_view("p4_pd_status_t")) {
        EXPECT_EQ(result, expected_status(*exported));
      }
      compare_calls(scene, calls_of(exported->family), states[exported->family]);
      if (testing::Test::HasFailure()) return;
    }
  }
}

// Functions that every program has take handles and names of objects that this one may lack.
class Lacking : public LibraryTest {};

TEST_F(Lacking, WhatIsNotThereIsRefusedByTheLibraryOrTheDevice) {
  for (const Export *exported : exports_without_scene()) {
    SCOPED_TRACE(exported->name);
    Bytes room(1 << 16);
    Arguments arguments(*exported);
    for (const bindings::Parameter &parameter : exported->parameter_list()) {
      const std::string_view type = parameter.type;
      if (arguments.has(parameter.name)) continue;
      arguments.set(parameter.name, type.ends_with("*") ? room.data() : nullptr);
    }
    for (const Call &call : recorded([&] { arguments.call(); })) {
      EXPECT_NE(call.status, BF_SUCCESS) << call.function;
    }
  }
}

// The handles, constants and answers that need no SDK are the catalogue's.
TEST(Handles, AreThoseOfTheCatalogue) {
  const auto handle = [](const char *family, const std::string &object) {
    return make(family, object, "", {});
  };
  for (const pdgen::Table &table : program().tables) {
    EXPECT_EQ(handle("get_mat_table_handle", table.name), table.handle);
    EXPECT_EQ(Arguments(*find_export("supports_entry_priority", table.name)).call(),
              table.has_priority() ? 1u : 0u);
  }
  for (const pdgen::Profile &profile : program().profiles) {
    EXPECT_EQ(handle("get_adt_table_handle", profile.name), profile.action_data_handle);
    EXPECT_EQ(handle("get_sel_table_handle", profile.name), profile.selector_handle);
  }
}

// Without the state of its last profile the library goes no further; the next start makes that one
// alone.
TEST(Frame, InitMakesAStatePerProfileAndRegisters) {
  const size_t profiles = program().profiles.size();
  std::vector<std::string> wanted = {"p4_pd_ms_init"};
  if (profiles != 0) {
    wanted.insert(wanted.end(), profiles, "p4_pd_ms_init_state");
    EXPECT_EQ(first_init().failed_status, P4_PD_NO_MEMORY);
    EXPECT_EQ(names_of(first_init().failed_calls), wanted);
    wanted.resize(2);
  }
  wanted.insert(wanted.end(), {"bf_drv_register", "bf_drv_client_register_callbacks"});
  EXPECT_EQ(names_of(first_init().calls), wanted);
}

}  // namespace
}  // namespace pd_test
