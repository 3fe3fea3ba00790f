// What the library keeps for a device, through the driver framework: logged, restored, removed, and
// rebuilt from the replay of a virtual device.
#include <cjson/cJSON.h>

#include <memory>

#include "typed.hpp"

namespace pd_test {
namespace {

struct JsonDelete {
  void operator()(cJSON *item) const { cJSON_Delete(item); }
  void operator()(char *text) const { cJSON_free(text); }
};
using Json = std::unique_ptr<cJSON, JsonDelete>;

const char *const kProfiles[] = {"ecmpMemberActionProfile", "egrMirrorLagPortActionProfile",
                                 "mirrorLagPortActionProfile", "lagPortActionProfile"};

bf_drv_client_callbacks_t callbacks() {
  bf_drv_client_callbacks_t held = {};
  EXPECT_EQ(soft_client_get("p4_pd_tessel_switch_pd", nullptr, nullptr, &held), BF_SUCCESS);
  return held;
}

Json log_device(uint8_t device = kDevice) {
  Json document(cJSON_CreateObject());
  EXPECT_EQ(callbacks().device_log(device, document.get()), BF_SUCCESS);
  return document;
}

std::string text_of(const cJSON *item) {
  const std::unique_ptr<char, JsonDelete> text(cJSON_PrintUnformatted(item));
  return text == nullptr ? "" : text.get();
}

std::string state_text(uint8_t device = kDevice) { return text_of(log_device(device).get()); }

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
  // Members of each profile, with its actions in turn, dealt to groups in turn.
  static void fill(bf_device_id_t device = kDevice, uint32_t members = 1, uint32_t groups = 1) {
    const p4_pd_device_target_t target = {device, BF_ALL_PIPES};
    const Bytes spec(64, 0x12);
    for (const char *name : kProfiles) {
      const auto &actions = pdgen::find_row(program().profiles, name)->actions;
      std::vector<uint32_t> made;
      for (uint32_t i = 0; i < groups; ++i) {
        made.push_back(make("create_group", name, "", with("target", &target, "max_size", 0)));
      }
      for (uint32_t i = 0; i < members; ++i) {
        const uint32_t member = make("add_member", name, actions[i % actions.size()].action->name,
                                     with("target", &target, "action_spec", spec.data()));
        EXPECT_EQ(run("add_member_to_group", name,
                      with("device", device, "group", made[i % groups], "member", member)),
                  BF_SUCCESS);
      }
    }
  }
};

TEST_F(DeviceState, RemovingForgetsEveryProfile) {
  const std::string empty = state_text();
  EXPECT_TRUE(empty.starts_with(R"({"name":"tessel_switch","act_profs":[{"name":"ecmpMember)"))
      << empty;
  size_t at = 0;
  for (const char *name : kProfiles) {
    at = empty.find("{\"name\":\"" + std::string(name), at);
    EXPECT_NE(at, std::string::npos) << name << " in " << empty;
  }
  fill();
  EXPECT_NE(state_text(), empty);
  std::vector<std::string> wanted(4, "p4_pd_ms_destroy_state_for_dev");
  wanted.push_back("p4_pd_ms_destroy_txn_state_for_dev");
  const auto calls = forget();
  EXPECT_EQ(names_of(calls), wanted);
  for (const Call &call : calls) EXPECT_EQ(call.scalar("device"), kDevice);
  EXPECT_EQ(state_text(), empty);
}

// The states of the helper are not the library's to judge: whatever they answer, the result is 0.
TEST_F(DeviceState, ReportsNothing) {
  fill();
  const std::string full = state_text();
  soft::faults::fail_call("p4_pd_ms_log_state", 2, BF_NO_MEMORY);
  EXPECT_EQ(cJSON_GetArraySize(cJSON_GetObjectItem(log_device().get(), "act_profs")), 4);
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
  const Json logged = log_device();
  const cJSON *profiles = cJSON_GetObjectItem(logged.get(), "act_profs");
  std::string document = "null";
  for (const int i : {3, 1, 0, 2, 2}) {
    document += R"(,"lagPortActionProfile",)" + text_of(cJSON_GetArrayItem(profiles, i));
  }
  forget();
  EXPECT_EQ(restore(with_profiles(document + ",{}")).size(), 5u);
  EXPECT_EQ(state_text(), full);
}

TEST_F(DeviceState, OnlyTheExactNameIsRestored) {
  const std::string empty = state_text();
  const auto restored = [](const std::string &name) {
    return restore(with_profiles(R"({"name":")" + name +
                                 R"(","members":[{"handle":7,"action":536871358}],"groups":[]})"));
  };
  for (const char *name : {"lagPortActionProfil", "lagPortActionProfiles", "agPortActionProfile",
                           "LagPortActionProfile", ""}) {
    EXPECT_TRUE(restored(name).empty()) << name;
    EXPECT_EQ(state_text(), empty) << name;
  }
  EXPECT_EQ(restored("lagPortActionProfile").size(), 1u);
  uint32_t entry = 0;
  const PD(lagGroup_match_spec_t) key = {};
  const auto added = recorded([&] {
    PD(lagGroup_add_entry)
    (session(), kTarget, &key, 1, 7, &entry);
  });
  EXPECT_EQ(added.at(1).scalar("action"), 536871358u);
}

TEST_F(DeviceState, AnyDocumentIsTakenWithoutHarm) {
  fill();
  const std::string full = state_text();
  // As deep as the parser goes.
  const std::string deep = std::string(900, '[') + std::string(900, ']');
  const std::string lag = R"({"name":"lagPortActionProfile")";
  for (const std::string &document :
       {std::string("{}"), std::string("[]"), std::string("null"), std::string("7"),
        std::string(R"("act_profs")"), std::string(R"({"act_profs":null})"),
        R"({"act_profs":)" + lag + "}}", std::string(R"({"act_profs":"lagPortActionProfile"})"),
        with_profiles(R"(null,1,true,"lagPortActionProfile",[],{})"),
        with_profiles(R"({"name":null},{"name":1},{"name":["lagPortActionProfile"]},{"name":{}})"),
        with_profiles("[" + lag + "}]"), with_profiles(lag + "}"),
        with_profiles(lag + R"(,"members":1,"groups":"x"})"),
        with_profiles(R"({"name":)" + deep + "}," + lag + R"(,"x":)" + deep + "}"),
        R"({"act_profs":)" + deep + "}"}) {
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

// Every allocation of the document fails in turn: what fits is logged, the result is 0, and nothing
// is lost (which AddressSanitizer sees).
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
    EXPECT_TRUE(allocations_left == 0 || logged == full);
  }
  EXPECT_EQ(logged, full);
  EXPECT_GT(allowed, 50u);
}

// ---- Replay ----

class Replay : public DeviceState {
 protected:
  // The address of the callback leaves the library only as an argument.
  Replay() : virtual_device_(9, true) {
    const Call call = only_call([] {
      EXPECT_EQ(PD(restore_virtual_dev_state)(session(), kDevice, 9, BF_ALL_PIPES, 0), BF_SUCCESS);
    });
    callback_ =
        reinterpret_cast<pipe_mgr_replay_cb_t>(call.get<soft::journal::Opaque>("callback").address);
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
constexpr uint32_t kSetTunnelInfo = 0x200001c4;

TEST_F(Replay, RebuildsTheSameState) {
  fill(9, 2500, 125);
  EXPECT_EQ(PD(restore_virtual_dev_state)(session(), kDevice, 9, BF_ALL_PIPES, 0), BF_SUCCESS);
  EXPECT_EQ(state_text(), state_text(9));
}

TEST_F(Replay, AMembershipTakesTheActionOfTheMember) {
  report(BF_SUCCESS, kSetLagPort, 0, 7);
  report(BF_SUCCESS, 0, 3, 0);
  const auto calls = report(BF_SUCCESS, kSetTunnelInfo, 3, 7);
  EXPECT_EQ(names_of(calls),
            (std::vector<std::string>{"p4_pd_ms_add_mbr_to_grp", "p4_pd_ms_get_mbr_act",
                                      "p4_pd_ms_set_grp_act"}));
  EXPECT_EQ(calls.back().scalar("action"), kSetLagPort);
  EXPECT_EQ(calls.back().scalar("group"), 3u);
  report(BF_OBJECT_NOT_FOUND, kSetLagPort, 3, 8);  // of a member that is not known
}

TEST_F(Replay, ResourcesGoToTheGroupsOfTheMember) {
  const auto calls = report(BF_SUCCESS, kSetLagPort, 0, 8, 1);
  EXPECT_EQ(calls.back().function, "p4_pd_ms_mbr_apply_to_grps");
  EXPECT_EQ(calls.back().scalar("member"), 8u);
  soft::faults::fail_call("p4_pd_ms_mbr_apply_to_grps", 1, 4711);
  report(4711, kSetLagPort, 0, 9, 1);
}

TEST_F(Replay, WhatBelongsToNoProfileIsNotRecorded) {
  EXPECT_TRUE(report(P4_PD_UNKNOWN_HANDLE, kSetLagPort, 0, 7, 0, 0x02000047).empty());
  EXPECT_TRUE(report(P4_PD_FOREIGN_ACTION, 0x2000015a, 0, 7, 1).empty());  // of another profile
}

}  // namespace
}  // namespace pd_test
