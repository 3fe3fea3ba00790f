// What the library keeps for a device, through the driver framework: logged, restored, removed, and
// rebuilt from the replay of a virtual device.
#include <cjson/cJSON.h>

#include <functional>
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

void restore(const cJSON *document, uint8_t device = kDevice) {
  EXPECT_EQ(callbacks().device_restore(device, const_cast<cJSON *>(document)), BF_SUCCESS);
}

void restore_text(const std::string &text) {
  const Json document(cJSON_Parse(text.c_str()));
  ASSERT_NE(document, nullptr) << text;
  restore(document.get());
}

class DeviceState : public LibraryTest {
 protected:
  // One member of each profile, and a group of it; the numbers of actions differ.
  void fill(bf_device_id_t device = kDevice, uint32_t members = 1, uint32_t groups = 1) {
    const p4_pd_device_target_t target = {device, BF_ALL_PIPES};
    for (const char *profile : kProfiles) {
      const pdgen::Profile &known = *pdgen::find_row(program().profiles, profile);
      std::vector<uint32_t> added;
      for (uint32_t i = 0; i < members; ++i) {
        added.push_back(add_member(known, known.actions[i % known.actions.size()], target));
      }
      for (uint32_t i = 0; i < groups; ++i) add_group(known, added, i, groups, target);
    }
  }

  static uint32_t add_member(const pdgen::Profile &profile, const pdgen::ProfileAction &pair,
                             const p4_pd_device_target_t &target) {
    const Bytes spec(record_of(*pair.action).size, 0x12);
    uint32_t member = 0;
    Arguments add(*find_export("add_member", profile.name, pair.action->name));
    if (add.takes("action_spec")) add.set("action_spec", spec.data());
    EXPECT_EQ(add.set("target", &target).set("member", &member).status(), BF_SUCCESS);
    return member;
  }

  // Members are dealt to the groups in turn, in ascending order.
  static void add_group(const pdgen::Profile &profile, const std::vector<uint32_t> &members,
                        uint32_t number, uint32_t groups, const p4_pd_device_target_t &target) {
    uint32_t group = 0;
    Arguments create(*find_export("create_group", profile.name));
    create.set("max_size", uint64_t{0}).set("target", &target);
    EXPECT_EQ(create.set("group", &group).status(), BF_SUCCESS);
    Arguments join(*find_export("add_member_to_group", profile.name));
    join.set("group", uint64_t{group}).set("device", uint64_t{target.device_id});
    for (size_t i = number; i < members.size(); i += groups) {
      EXPECT_EQ(join.set("member", uint64_t{members[i]}).status(), BF_SUCCESS);
    }
  }

  // Forgets what the library knows of the device, but nothing of the device itself.
  static void forget() { EXPECT_EQ(callbacks().device_remove(kDevice), BF_SUCCESS); }
};

// ---- Log ----

TEST_F(DeviceState, AnEmptyDeviceLogsEveryProfile) {
  const Json document = log_device();
  EXPECT_STREQ(cJSON_GetStringValue(cJSON_GetObjectItem(document.get(), "name")), "tessel_switch");
  const cJSON *profiles = cJSON_GetObjectItem(document.get(), "act_profs");
  ASSERT_EQ(cJSON_GetArraySize(profiles), 4);
  for (int i = 0; i < 4; ++i) {
    const cJSON *name = cJSON_GetObjectItem(cJSON_GetArrayItem(profiles, i), "name");
    EXPECT_STREQ(cJSON_GetStringValue(name), kProfiles[i]);
  }
}

TEST_F(DeviceState, RemovingForgetsTheProfilesInOrder) {
  const std::string empty = state_text();
  fill();
  EXPECT_NE(state_text(), empty);
  const auto calls = recorded([] { forget(); });
  ASSERT_EQ(calls.size(), 5u);
  for (size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(calls[i].function, "p4_pd_ms_destroy_state_for_dev");
    EXPECT_EQ(calls[i].scalar("device"), kDevice);
  }
  EXPECT_EQ(calls[4].function, "p4_pd_ms_destroy_txn_state_for_dev");
  EXPECT_EQ(state_text(), empty);
}

// The states of the helper are not the library's to judge: whatever they answer, the result is 0.
TEST_F(DeviceState, ReportsNothing) {
  fill();
  const Json document = log_device();
  soft::faults::fail_call("p4_pd_ms_log_state", 2, BF_NO_MEMORY);
  EXPECT_EQ(cJSON_GetArraySize(cJSON_GetObjectItem(log_device().get(), "act_profs")), 4);
  soft::faults::fail_call("p4_pd_ms_restore_state", 1, BF_CORRUPT_DATA);
  const auto restored = recorded([&] { restore(document.get()); });
  EXPECT_EQ(restored.size(), 4u);
  soft::faults::fail_call("p4_pd_ms_destroy_state_for_dev", 1, BF_INVALID_ARGUMENT);
  EXPECT_EQ(recorded([] { forget(); }).size(), 5u);
}

// ---- Restore ----

TEST_F(DeviceState, ProfilesAreRestoredInAnyOrder) {
  fill();
  const std::string full = state_text();
  const int orders[][4] = {{0, 1, 2, 3}, {3, 2, 1, 0}, {2, 0, 3, 1}, {1, 3, 0, 2}};
  for (const auto &order : orders) {
    const Json logged = log_device();
    const cJSON *profiles = cJSON_GetObjectItem(logged.get(), "act_profs");
    const Json shuffled(cJSON_CreateObject());
    cJSON *array = cJSON_AddArrayToObject(shuffled.get(), "act_profs");
    for (const int i : order) {
      cJSON_AddItemToArray(array, cJSON_Duplicate(cJSON_GetArrayItem(profiles, i), 1));
    }
    forget();
    restore(shuffled.get());
    EXPECT_EQ(state_text(), full);
  }
}

TEST_F(DeviceState, OnlyTheExactNameIsRestored) {
  const std::string empty = state_text();
  const std::string state = R"(,"members":[{"handle":7,"action":536871358}],"groups":[]})";
  for (const char *name : {"lagPortActionProfil", "lagPortActionProfiles", "agPortActionProfile",
                           "LagPortActionProfile", "", "mirrorLagPortActionProfile "}) {
    const auto calls = recorded([&] {
      restore_text(R"({"act_profs":[{"name":")" + std::string(name) + "\"" + state + "]}");
    });
    EXPECT_TRUE(calls.empty()) << name;
    EXPECT_EQ(state_text(), empty) << name;
  }
  const auto calls = recorded(
      [&] { restore_text(R"({"act_profs":[{"name":"lagPortActionProfile")" + state + "]}"); });
  EXPECT_EQ(calls.size(), 1u);
  uint32_t action = 0;
  const PD(lagGroup_match_spec_t) key = {};
  const auto added = recorded([&] {
    PD(lagGroup_add_entry)
    (session(), kTarget, &key, 1, 7, &action);
  });
  EXPECT_EQ(added.at(1).scalar("action"), 536871358u);
}

TEST_F(DeviceState, AnyDocumentIsTakenWithoutHarm) {
  fill();
  const std::string full = state_text();
  const char *const documents[] = {
      "{}",
      "[]",
      "null",
      "7",
      R"("act_profs")",
      R"({"act_profs":null})",
      R"({"act_profs":{"name":"lagPortActionProfile"}})",
      R"({"act_profs":"lagPortActionProfile"})",
      R"({"act_profs":[]})",
      R"({"act_profs":[null,1,true,"lagPortActionProfile",[],{}]})",
      R"({"act_profs":[{"name":null},{"name":1},{"name":["lagPortActionProfile"]},{"name":{}}]})",
      R"({"act_profs":[[{"name":"lagPortActionProfile","members":[]}]]})",
      R"({"act_profs":[{"name":"lagPortActionProfile"}]})",
      R"({"act_profs":[{"name":"lagPortActionProfile","members":1,"groups":"x"}]})",
  };
  for (const char *document : documents) {
    restore_text(document);
    EXPECT_EQ(state_text(), full) << document;
  }
  // As deep as the parser goes.
  std::string deep;
  for (int i = 0; i < 900; ++i) deep += "[";
  deep += std::string(900, ']');
  restore_text(R"({"act_profs":[{"name":)" + deep + R"(},{"name":"lagPortActionProfile","x":)" +
               deep + "}]}");
  EXPECT_EQ(state_text(), full);
  restore_text(R"({"act_profs":)" + deep + "}");
  EXPECT_EQ(state_text(), full);
}

TEST_F(DeviceState, WhatIsValidIsRestoredFromBetweenWhatIsNot) {
  fill();
  const std::string full = state_text();
  const Json logged = log_device();
  const cJSON *profiles = cJSON_GetObjectItem(logged.get(), "act_profs");
  const Json document(cJSON_CreateObject());
  cJSON *array = cJSON_AddArrayToObject(document.get(), "act_profs");
  const auto put = [&](cJSON *item) { cJSON_AddItemToArray(array, item); };
  put(cJSON_CreateNull());
  for (const int i : {0, 0, 1, 2, 3}) {
    put(cJSON_CreateString("lagPortActionProfile"));
    put(cJSON_Duplicate(cJSON_GetArrayItem(profiles, i), 1));
  }
  put(cJSON_CreateObject());
  cJSON_AddItemToObject(document.get(), "act_profs", cJSON_CreateNull());  // a second one
  forget();
  const auto calls = recorded([&] { restore(document.get()); });
  EXPECT_EQ(calls.size(), 5u);  // one profile stands there twice
  EXPECT_EQ(state_text(), full);
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
  while (logged != full && allowed < 10000) {
    const Json document(cJSON_CreateObject());
    allocations_left = allowed;
    cJSON_InitHooks(&hooks);
    EXPECT_EQ(callbacks().device_log(kDevice, document.get()), BF_SUCCESS);
    cJSON_InitHooks(nullptr);
    const bool ran_out = allocations_left == 0;
    logged = text_of(document.get());
    EXPECT_TRUE(ran_out || logged == full);
    ++allowed;
  }
  EXPECT_EQ(logged, full);
  EXPECT_GT(allowed, 50u);
}

// ---- At size, and by replay ----

TEST_F(DeviceState, AReplayRebuildsTheSameState) {
  const Device virtual_device(9, true);
  fill(9, 2500, 125);
  const std::string full = state_text(9);
  EXPECT_EQ(PD(restore_virtual_dev_state)(session(), kDevice, 9, BF_ALL_PIPES, 0), BF_SUCCESS);
  EXPECT_EQ(state_text(), full);
}

// ---- The replay callback by itself ----

class Replay : public DeviceState {
 protected:
  // Its address leaves the library only as an argument.
  Replay() : virtual_device_(9, true) {
    const Call call = only_call([] {
      EXPECT_EQ(PD(restore_virtual_dev_state)(session(), kDevice, 9, BF_ALL_PIPES, 0), BF_SUCCESS);
    });
    callback_ =
        reinterpret_cast<pipe_mgr_replay_cb_t>(call.get<soft::journal::Opaque>("callback").address);
  }

  bf_status_t report(uint32_t action, uint32_t group, uint32_t member, uint32_t has_resources = 0,
                     uint32_t table = 0x02000046) {
    return callback_(session(), kDevice, table, action, group, member, has_resources);
  }

 private:
  Device virtual_device_;
  pipe_mgr_replay_cb_t callback_ = nullptr;
};

constexpr uint32_t kSetLagPort = 0x200001be;
constexpr uint32_t kSetTunnelInfo = 0x200001c4;

TEST_F(Replay, AMembershipTakesTheActionOfTheMember) {
  EXPECT_EQ(report(kSetLagPort, 0, 7), BF_SUCCESS);
  EXPECT_EQ(report(0, 3, 0), BF_SUCCESS);
  const auto calls = recorded([&] { EXPECT_EQ(report(kSetTunnelInfo, 3, 7), BF_SUCCESS); });
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[0].function, "p4_pd_ms_add_mbr_to_grp");
  EXPECT_EQ(calls[1].function, "p4_pd_ms_get_mbr_act");
  EXPECT_EQ(calls[2].function, "p4_pd_ms_set_grp_act");
  EXPECT_EQ(calls[2].scalar("action"), kSetLagPort);
  EXPECT_EQ(calls[2].scalar("group"), 3u);
}

TEST_F(Replay, AMembershipOfAnUnknownMemberEndsIt) {
  EXPECT_EQ(report(0, 3, 0), BF_SUCCESS);
  EXPECT_EQ(report(kSetLagPort, 3, 8), BF_OBJECT_NOT_FOUND);
}

TEST_F(Replay, ResourcesGoToTheGroupsOfTheMember) {
  ASSERT_EQ(report(kSetLagPort, 0, 7), BF_SUCCESS);
  const auto calls = recorded([&] { EXPECT_EQ(report(kSetLagPort, 0, 8, 1), BF_SUCCESS); });
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[2].function, "p4_pd_ms_mbr_apply_to_grps");
  EXPECT_EQ(calls[2].scalar("member"), 8u);
  soft::faults::fail_call("p4_pd_ms_mbr_apply_to_grps", 1, 4711);
  EXPECT_EQ(report(kSetLagPort, 0, 9, 1), 4711u);
}

TEST_F(Replay, WhatBelongsToNoProfileIsNotRecorded) {
  const auto calls = recorded([&] {
    EXPECT_EQ(report(kSetLagPort, 0, 7, 0, 0x02000047), P4_PD_UNKNOWN_HANDLE);
    EXPECT_EQ(report(0x2000015a, 0, 7, 1), P4_PD_FOREIGN_ACTION);  // of another profile
  });
  EXPECT_TRUE(calls.empty());
}

}  // namespace
}  // namespace pd_test
