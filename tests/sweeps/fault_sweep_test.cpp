// Every export on its bad days. Each SDK call and each allocation that a successful run makes fails
// in turn; each pointer argument is null in turn. Families that are new are swept like all others,
// once a scene can make them succeed.
#include <algorithm>

#include "expected_calls.hpp"
#include "scene_values.hpp"

namespace pd_test {
namespace {

constexpr bf_status_t kStruck = 0x5afe0000;

bool returns_status(const Export &exported) {
  return std::string_view(exported.result) == "p4_pd_status_t";
}

// Text functions answer a failure with a length of 0, comparisons with "not equal"; printing puts
// the status after a line that says so.
uint64_t answer_to(const Export &exported, uint64_t failure) {
  if (returns_status(exported)) return failure;
  return std::string_view(exported.family).ends_with("plcmt_data_print") ? failure : 0;
}

// Calls that record a change which the pipeline manager has made already, or that prepare a
// service; what they answer cannot change the result.
bool is_ignored(const std::string &function) {
  return function.starts_with("p4_pd_ms_") && !function.starts_with("p4_pd_ms_get") &&
         function != "p4_pd_ms_del_grp";
}

// Calls whose failure the library answers with a status of its own.
bool is_answered(const std::string &function) {
  return function == "bf_drv_register" || function == "pipe_mgr_hash_calc_input_get" ||
         function == "pipe_mgr_hash_calc_algorithm_get";
}

// Out-parameters that a failed call writes, and what it writes.
std::string writes_on_failure(std::string_view family) {
  if (family == "get_property") return "argument value ";
  if (family == "pvs_get_property") return "value ";
  if (family == "get_hit_state") return "hit_state ";
  if (family.ends_with("attribute_get") || family.ends_with("attribute_get_by_name")) {
    return "filled ";
  }
  if (family.ends_with("attribute_count_get") || family.ends_with("attribute_count_get_by_name")) {
    return "count ";
  }
  if (family == "snapshot_capture_data_get") return "captures ";
  return "";
}

// What the library keeps of the members and groups of the device.
std::string profile_state() {
  const Json document(cJSON_CreateObject());
  EXPECT_EQ(soft_device_log(kDevice, document.get()), BF_SUCCESS);
  return text_of(document.get());
}

class FaultSweep : public testing::Test {
 protected:
  size_t count_calls(const Export &exported) {
    Scene scene(exported);
    const uint64_t result = scene.play();
    if (returns_status(exported)) {
      EXPECT_EQ(result, expected_status(exported)) << exported.name << ": no scene, no sweep";
    }
    return scene.calls().size();
  }

  void fail_call(const Export &exported, size_t n) {
    SCOPED_TRACE(std::string(exported.name) + ", call " + std::to_string(n));
    Scene scene(exported);
    const bf_status_t status = kStruck + static_cast<bf_status_t>(n);
    const bool of_profile = scene.profile() != nullptr;
    const std::string before = of_profile ? profile_state() : "";
    soft::faults::fail_any_call(n, status);
    const uint64_t result = scene.play();
    ASSERT_EQ(soft::faults::pending(), 0u);
    const std::string &struck = scene.calls().at(n - 1).function;
    // What the device refused, the library has not recorded.
    if (of_profile && struck.starts_with("pipe_mgr_")) {
      EXPECT_EQ(profile_state(), before) << struck;
    }
    if (is_ignored(struck)) {
      EXPECT_TRUE(result == expected_status(exported) || result == scene.calls().back().status)
          << struck;
      return;
    }
    if (!is_answered(struck)) {
      EXPECT_EQ(result, answer_to(exported, status)) << struck;
    } else {
      EXPECT_NE(result, BF_SUCCESS) << struck;
    }
    // A configuration that cannot be read counts as none, and the pipeline manager is asked with
    // it.
    const bool asked_on = is_answered(struck) && scene.calls().size() == n + 1;
    EXPECT_TRUE(scene.calls().size() == n || asked_on) << "called on after " << struck;
    if (exported.family == std::string_view("snapshot_capture_data_get") && n > 1) return;
    const std::string written = scene.written_outputs();
    EXPECT_TRUE(written.empty() || written == writes_on_failure(exported.family))
        << written << "written after " << struck;
  }

  void fail_each_allocation(const Export &exported) {
    uint64_t allocations = 0;
    {
      Scene scene(exported);
      const uint64_t before = soft_allocations_made();
      scene.arguments().call();
      allocations = soft_allocations_made() - before;
    }
    for (uint64_t n = 1; n <= allocations; ++n) {
      SCOPED_TRACE(std::string(exported.name) + ", allocation " + std::to_string(n));
      Scene scene(exported);
      soft::faults::fail_allocation(n);
      EXPECT_EQ(scene.play(), answer_to(exported, P4_PD_NO_MEMORY));
      EXPECT_EQ(soft::faults::pending(), 0u);
      soft::faults::clear();
      const std::string written = scene.written_outputs();
      EXPECT_TRUE(written.empty() || written == writes_on_failure(exported.family)) << written;
    }
  }
};

TEST_F(FaultSweep, AFailedCallIsTheLastAndGivesTheStatus) {
  for (const Export *exported : exports_with_scene()) {
    const size_t calls = count_calls(*exported);
    for (size_t n = 1; n <= calls; ++n) fail_call(*exported, n);
    ASSERT_FALSE(HasFatalFailure());
  }
}

TEST_F(FaultSweep, AFailedAllocationLeavesNothing) {
  for (const Export *exported : exports_with_scene()) fail_each_allocation(*exported);
}

// ---- Null pointers ----

// Arguments that may be null in the families of the list of calls.
bool may_be_null(std::string_view family, std::string_view name) {
  if (name == "cookie" || name == "client_data") return true;
  if (name == "callback") return family != "digest_register";
  if (name == "handle") return true;  // nothing is written then
  if (name == "control") return true;
  if (name == "action_name" || name == "action") return family == "get_entry";
  return name == "meter_spec" &&
         (family.starts_with("table_modify") || family == "set_default_action");
}

// Without a status there is no text, "not equal", or what decoding nothing gives. The size of a
// digest's field is optional.
void expect_nothing(const Export &exported, std::string_view name, p4_pd_status_t answer,
                    const std::string &written) {
  const std::string_view family = exported.family;
  const bool size = name == "size";
  EXPECT_EQ(written, family == "get_digest_entry_field" && !size ? "size " : "");
  uint64_t none = family == "action_string_to_enum" ? binding().action_count : 0;
  if (name == "placement") none = answer_to(exported, BF_INVALID_ARGUMENT);
  EXPECT_TRUE(size || answer == none);
}

bool writes(const Export &exported, std::string_view output) {
  Scene scene(exported);
  scene.play();
  return scene.written_outputs().find(output) != std::string::npos;
}

void spoil(const Export &exported, std::string_view name) {
  SCOPED_TRACE(std::string(exported.name) + ", null " + std::string(name));
  const std::string_view family = exported.family;
  // Needed as soon as the entry's action is known to have parameters.
  const bool of_action = family == "get_entry" && name == "action_spec";
  const bool unused = of_action && !writes(exported, name);
  Scene scene(exported);
  scene.arguments().set(name, nullptr);
  const auto status = static_cast<p4_pd_status_t>(scene.play());
  const std::string written = scene.written_outputs();
  if (!returns_status(exported)) return expect_nothing(exported, name, status, written);
  if (unused || may_be_null(family, name)) {
    EXPECT_EQ(status, expected_status(exported));
    return;
  }
  EXPECT_EQ(written, "");
  // Members and groups are recorded under their handles.
  const bool recorded = family == "add_member" || family == "create_group";
  if (hands_on(family, name) && !recorded) {
    // The pipeline manager is the judge, after the action was looked up.
    const bool looked_up =
        family.starts_with("add_entry") || family.starts_with("set_default_entry");
    ASSERT_EQ(scene.calls().size(), looked_up ? 2u : 1u);
    EXPECT_EQ(status, scene.calls().back().status);
    EXPECT_NE(status, BF_SUCCESS);
    return;
  }
  const bool meter = family == "table_add" && name == "meter_spec";
  EXPECT_EQ(status, meter ? P4_PD_METER_SPEC_MISSING : P4_PD_NULL_ARGUMENT);
  EXPECT_TRUE(of_action || scene.calls().empty()) << scene.calls().front().function;
}

TEST(NullSweep, ANullPointerIsRefusedBeforeAnyCall) {
  for (const Export *exported : exports_with_scene()) {
    for (const bindings::Parameter &parameter : exported->parameter_list()) {
      const bool callback = std::string_view(parameter.type).ends_with("_cb_t");
      if (!callback && !is_pointer(parameter)) continue;
      spoil(*exported, parameter.name);
    }
  }
}

}  // namespace
}  // namespace pd_test
