// What the library keeps for a device, through the driver framework: logged, restored, removed, and
// rebuilt from the replay of a virtual device.
#include <cjson/cJSON.h>

#include <regex>

#include "typed.hpp"

namespace pd_test {
namespace {

bf_drv_client_callbacks_t callbacks() {
  bf_drv_client_callbacks_t held = {};
  EXPECT_EQ(soft_client_get("p4_pd_tessel_switch_pd", nullptr, nullptr, &held), BF_SUCCESS);
  return held;
}

std::string state_text(uint8_t device = kDevice) {
  const Json document(cJSON_CreateObject());
  EXPECT_EQ(callbacks().device_log(device, document.get()), BF_SUCCESS);
  return text_of(document.get());
}

// Returns the calls that it makes. The result says nothing of the document.
std::vector<Call> restore(const std::string &text) {
  const Json document(cJSON_Parse(text.c_str()));
  EXPECT_NE(document, nullptr) << text;
  return recorded(
      [&] { EXPECT_EQ(callbacks().device_restore(kDevice, document.get()), BF_SUCCESS); });
}

std::string with_profiles(const std::string &profiles) {
  return R"({"act_profs":[)" + profiles + "]}";
}

// Forgets what the library knows of the device, but nothing of the device itself.
std::vector<Call> forget() {
  return recorded([] { EXPECT_EQ(callbacks().device_remove(kDevice), BF_SUCCESS); });
}

class DeviceState : public LibraryTest {
 protected:
  // Members of each action of each profile in a group, and a group with the first of them.
  static void fill(bf_device_id_t device = kDevice) {
    const p4_pd_device_target_t target = {device, BF_ALL_PIPES};
    const Bytes spec(64, 0x12);
    for (const pdgen::Profile &profile : program().profiles) {
      const Given sized = with("target", &target, "max_size", 0);
      uint32_t group = make("create_group", profile.name, "", sized);
      const auto join = [&](uint32_t member) {
        EXPECT_EQ(run("add_member_to_group", profile.name,
                      with("device", device, "group", group, "member", member)),
                  BF_SUCCESS);
      };
      uint32_t member = 0;
      for (const pdgen::ProfileAction &pair : profile.actions) {
        member = make("add_member", profile.name, pair.action->name,
                      with("target", &target, "action_spec", spec.data()));
        join(member);
      }
      group = make("create_group", profile.name, "", sized);
      join(member);
    }
  }
};

TEST_F(DeviceState, RemovingForgetsEveryProfile) {
  const std::string empty = state_text();
  EXPECT_TRUE(empty.starts_with(R"({"name":"tessel_switch","act_profs":[{"name":"ecmpMember)"))
      << empty;
  const Device other(9);
  fill();
  fill(9);
  const std::string of_other = state_text(9);
  EXPECT_NE(state_text(), empty);
  std::vector<std::string> wanted(4, "p4_pd_ms_destroy_state_for_dev");
  wanted.push_back("p4_pd_ms_destroy_txn_state_for_dev");
  const auto calls = forget();
  EXPECT_EQ(names_of(calls), wanted);
  for (const Call &call : calls) EXPECT_EQ(call.scalar("device"), kDevice);
  EXPECT_EQ(state_text(), empty);
  EXPECT_EQ(state_text(9), of_other);
}

// The states of the helper are not the library's to judge: whatever they answer, the result is 0.
TEST_F(DeviceState, ReportsNothing) {
  fill();
  const std::string full = state_text();
  soft::faults::fail_call("p4_pd_ms_log_state", 2, BF_NO_MEMORY);
  EXPECT_NE(state_text().find("lagPortActionProfile"), std::string::npos);
  soft::faults::fail_call("p4_pd_ms_restore_state", 1, BF_CORRUPT_DATA);
  EXPECT_EQ(restore(full).size(), 4u);
  soft::faults::fail_call("p4_pd_ms_destroy_state_for_dev", 1, BF_INVALID_ARGUMENT);
  EXPECT_EQ(forget().size(), 5u);
}

// ---- Restore ----

// Profiles in another order and one of them twice, between what is none.
TEST_F(DeviceState, WhatIsValidIsRestoredFromBetweenWhatIsNot) {
  fill();
  const std::string full = state_text();
  const Json logged(cJSON_Parse(full.c_str()));
  const cJSON *profiles = cJSON_GetObjectItem(logged.get(), "act_profs");
  std::string document = "null";
  for (const int i : {3, 1, 0, 2, 2}) {
    document += R"(,"lagPortActionProfile",)" + text_of(cJSON_GetArrayItem(profiles, i));
  }
  forget();
  EXPECT_EQ(restore(with_profiles(document + ",{}")).size(), 5u);
  EXPECT_EQ(state_text(), full);
}

TEST_F(DeviceState, AnyDocumentIsTakenWithoutHarm) {
  fill();
  const std::string full = state_text();
  // As deep as the parser goes.
  const std::string deep = std::string(900, '[') + std::string(900, ']');
  const std::string lag = R"({"name":"lagPortActionProfile")";
  const std::vector<std::string> documents = {
      R"({"act_profs":{"x":)" + lag + R"(,"members":[]}}})",
      with_profiles(R"({"name":null},{"name":1},{"name":["lagPortActionProfile"]},{"name":{}})"),
      with_profiles(lag + R"(,"members":1,"groups":"x"})"),
      with_profiles(R"({"name":)" + deep + "}," + lag + R"(,"x":)" + deep + "}"),
      with_profiles(R"({"name":"lagPortActionProfil","members":[{"handle":7}]})")};
  for (const std::string &document : documents) {
    restore(document);
    EXPECT_EQ(state_text(), full) << document.substr(0, 200);
  }
}

// ---- Out of memory ----

size_t allocations_left = 0;

void *limited_malloc(size_t bytes) {
  if (allocations_left == 0) return nullptr;
  --allocations_left;
  return std::malloc(bytes);
}

// Every allocation of the document fails in turn: the profiles that fit are logged whole, the
// result is 0, and nothing is lost (which AddressSanitizer sees).
TEST_F(DeviceState, ALogWithoutMemoryIsShorter) {
  fill();
  const std::string full = state_text();
  cJSON_Hooks hooks = {limited_malloc, std::free};
  size_t allowed = 0;
  std::string logged;
  for (; logged != full && allowed < 10000; ++allowed) {
    const Json document(cJSON_CreateObject());
    allocations_left = allowed;
    cJSON_InitHooks(&hooks);
    EXPECT_EQ(callbacks().device_log(kDevice, document.get()), BF_SUCCESS);
    cJSON_InitHooks(nullptr);
    logged = text_of(document.get());
    const std::regex end_and_empty_profile(R"((,?\{("name":"\w+")?\})?\]?\}$)");
    EXPECT_TRUE(full.starts_with(std::regex_replace(logged, end_and_empty_profile, ""))) << logged;
  }
  EXPECT_EQ(logged, full);
  EXPECT_GT(allowed, 20u);
}

// ---- Replay ----

class Replay : public DeviceState {
 protected:
  // The address of the callback leaves the library only as an argument.
  Replay() : virtual_device_(9, true) {
    fill(9);
    const auto calls = recorded([] {
      EXPECT_EQ(PD(restore_virtual_dev_state)(session(), kDevice, 9, BF_ALL_PIPES, 0), BF_SUCCESS);
    });
    callback_ = reinterpret_cast<pipe_mgr_replay_cb_t>(
        calls.at(0).get<soft::journal::Opaque>("callback").address);
  }

  std::vector<Call> report(p4_pd_status_t wanted, uint32_t action, uint32_t group, uint32_t member,
                           uint32_t has_resources = 0, uint32_t table = 0x02000046) {
    return recorded([&] {
      EXPECT_EQ(callback_(session(), kDevice, table, action, group, member, has_resources), wanted);
    });
  }

 private:
  Device virtual_device_;
  pipe_mgr_replay_cb_t callback_ = nullptr;
};

constexpr uint32_t kSetLagPort = 0x200001be;

TEST_F(Replay, RebuildsTheSameState) { EXPECT_EQ(state_text(), state_text(9)); }

TEST_F(Replay, AMembershipTakesTheActionOfTheMember) {
  report(BF_SUCCESS, kSetLagPort, 0, 27);
  report(BF_SUCCESS, 0, 23, 0);
  const auto calls = report(BF_SUCCESS, kSetLagPort + 6, 23, 27);
  EXPECT_EQ(names_of(calls),
            (std::vector<std::string>{"p4_pd_ms_add_mbr_to_grp", "p4_pd_ms_get_mbr_act",
                                      "p4_pd_ms_set_grp_act"}));
  EXPECT_EQ(calls.back().scalar("action"), kSetLagPort);
  EXPECT_EQ(calls.back().scalar("group"), 23u);
  report(BF_OBJECT_NOT_FOUND, kSetLagPort, 23, 28);  // of a member that is not known
}

TEST_F(Replay, ResourcesGoToTheGroupsOfTheMember) {
  const auto calls = report(BF_SUCCESS, kSetLagPort, 0, 28, 1);
  EXPECT_EQ(calls.back().function, "p4_pd_ms_mbr_apply_to_grps");
  EXPECT_EQ(calls.back().scalar("member"), 28u);
  soft::faults::fail_call("p4_pd_ms_mbr_apply_to_grps", 1, 4711);
  report(4711, kSetLagPort, 0, 29, 1);
}

TEST_F(Replay, WhatBelongsToNoProfileIsNotRecorded) {
  EXPECT_TRUE(report(P4_PD_UNKNOWN_HANDLE, kSetLagPort, 0, 7, 0, 0x02000047).empty());
  EXPECT_TRUE(report(P4_PD_FOREIGN_ACTION, 0x2000015a, 0, 7, 1).empty());  // of another profile
}

}  // namespace
}  // namespace pd_test
