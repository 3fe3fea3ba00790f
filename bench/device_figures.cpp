// Figures of a device with a million routes and of one with ten thousand members, in one run:
// read-back by handle, verification of placement data, and the ways of the profiles' state through
// its log and through a virtual device. Ends with 1 when a state does not come back as it was.
#include <cjson/cJSON.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "p4_pd_tessel_switch.h"
#include "soft_placement.h"
#include "soft_sdk.h"

extern "C" const soft_program_t soft_program_tessel_switch;

namespace {

constexpr uint32_t routes = 1'000'000;
constexpr uint32_t members = 10'000;
constexpr uint32_t groups = 500;
constexpr uint32_t route_table = 0x0100002c;

p4_pd_session_handle_t session;
int faults = 0;

void expect(bool good, const char *what) {
  if (good) return;
  std::printf("FAILED: %s\n", what);
  ++faults;
}

template <class Body>
void timed(const char *what, uint32_t count, Body body) {
  const auto start = std::chrono::steady_clock::now();
  body();
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  std::printf("%-44s %9u in %.3f s, %.2f million a second\n", what, count, took.count(),
              count / took.count() / 1e6);
}

std::vector<p4_pd_entry_handle_t> add_routes(uint32_t device) {
  std::vector<p4_pd_entry_handle_t> entries(routes);
  timed("add routes", routes, [&] {
    for (uint32_t i = 0; i < routes; ++i) {
      const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t match = {1, i << 8, 24};
      const p4_pd_tessel_switch_setNextHop_action_spec_t action = {i & 0x3fff};
      expect(p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(
                 session, {device, 0xffff}, &match, &action, 0, &entries[i]) == 0,
             "add route");
    }
  });
  return entries;
}

void read_back(const std::vector<p4_pd_entry_handle_t> &entries) {
  timed("read routes back by handle", routes, [&] {
    for (uint32_t i = 0; i < routes; ++i) {
      p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t match;
      p4_pd_tessel_switch_setNextHop_action_spec_t action;
      uint32_t value = 0;
      bool no_key = true;
      const p4_pd_status_t status = p4_pd_tessel_switch_ipv4ShortMaskLpm_get_entry(
          session, 0, entries[i], false, &match, nullptr, &action, &value, &no_key);
      expect(status == 0 && !no_key && match.ingIpv4_dip == i << 8 &&
                 action.action_nextHop == (i & 0x3fff),
             "route reads back as added");
    }
  });
}

void verify(const std::vector<p4_pd_entry_handle_t> &entries) {
  timed("place, decode and compare with the hardware", routes, [&] {
    for (const p4_pd_entry_handle_t entry : entries) {
      pipe_mgr_placement_t *placement = nullptr;
      expect(soft_placement_of_entry(0, route_table, entry, &placement) == 0, "place");
      expect(p4_pd_tessel_switch_ipv4ShortMaskLpm_plcmt_data_eq_to_hw(session, 0, route_table,
                                                                      entry, placement) == 1,
             "placed route equals the one held");
      soft_placement_free(placement);
    }
  });
}

void fill_profile(uint32_t device) {
  const p4_pd_device_target_t target = {device, 0xffff};
  const auto id = static_cast<uint8_t>(device);
  std::vector<p4_pd_member_handle_t> handles(members);
  for (uint32_t i = 0; i < members; ++i) {
    const p4_pd_tessel_switch_setEcmpNextHop_action_spec_t action = {i};
    expect(p4_pd_tessel_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(
               session, target, &action, &handles[i]) == 0,
           "add member");
  }
  for (uint32_t g = 0; g < groups; ++g) {
    p4_pd_group_handle_t group = 0;
    expect(
        p4_pd_tessel_switch_ecmpMemberActionProfile_create_group(session, target, 0, &group) == 0,
        "create group");
    for (uint32_t i = g; i < members; i += groups) {
      expect(p4_pd_tessel_switch_ecmpMemberActionProfile_add_member_to_group(session, id, group,
                                                                             handles[i]) == 0,
             "add member to group");
    }
  }
}

cJSON *log_of(uint32_t device) {
  cJSON *document = cJSON_CreateObject();
  expect(soft_device_log(device, document) == 0, "log");
  return document;
}

void state_through_log() {
  soft_device_create(2, 4, &soft_program_tessel_switch, false);
  timed("add members to groups", members, [] { fill_profile(2); });
  cJSON *before = nullptr;
  timed("log the profiles' state", members, [&] { before = log_of(2); });
  soft_device_remove(2);
  soft_device_create(2, 4, &soft_program_tessel_switch, false);
  timed("restore it", members, [&] { expect(soft_device_restore(2, before) == 0, "restore"); });
  cJSON *after = log_of(2);
  expect(cJSON_Compare(before, after, true), "the restored state equals the logged one");
  cJSON_Delete(before);
  cJSON_Delete(after);
  soft_device_remove(2);
}

void state_through_replay() {
  soft_device_create(3, 4, &soft_program_tessel_switch, true);
  soft_device_create(4, 4, &soft_program_tessel_switch, false);
  fill_profile(3);
  timed("replay a virtual device", members, [] {
    expect(p4_pd_tessel_switch_restore_virtual_dev_state(session, 4, 3, 0xffff, 0) == 0, "replay");
  });
  cJSON *source = log_of(3);
  cJSON *replayed = log_of(4);
  expect(cJSON_Compare(source, replayed, true), "the replayed state equals the virtual device's");
  cJSON_Delete(source);
  cJSON_Delete(replayed);
  soft_device_remove(3);
  soft_device_remove(4);
}

}  // namespace

int main() {
  soft_session_open(&session);
  p4_pd_tessel_switch_init();
  soft_device_create(0, 4, &soft_program_tessel_switch, false);
  const std::vector<p4_pd_entry_handle_t> entries = add_routes(0);
  read_back(entries);
  verify(entries);
  soft_device_remove(0);
  state_through_log();
  state_through_replay();
  std::printf(faults == 0 ? "all as it was\n" : "%d faults\n", faults);
  return faults == 0 ? 0 : 1;
}
