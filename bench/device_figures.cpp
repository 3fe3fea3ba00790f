// Figures of a switch that is upgraded without loss, in one run: a virtual device with a million
// routes, ten thousand members and five hundred groups is replayed onto a new device, which is then
// verified against its placement data, as it is and with some differences; read-back by handle; the
// way of the profiles' state through its log. Ends with 1 when a state does not come back as it was
// or a difference is missed.
#include <cjson/cJSON.h>

#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>
#include <vector>

#include "p4_pd_tessel_switch.h"
#include "soft_sdk.h"
#include "tesselctl/state/verify.hpp"

extern "C" const soft_program_t soft_program_tessel_switch;

namespace {

constexpr uint32_t routes = 1'000'000;
constexpr uint32_t members = 10'000;
constexpr uint32_t groups = 500;
constexpr uint32_t old_id = 5;
constexpr uint32_t new_id = 6;

p4_pd_session_handle_t session;
int faults = 0;

void expect(bool good, const char *what) {
  if (good) return;
  std::printf("FAILED: %s\n", what);
  ++faults;
}

// In CPU time: others may be at work on the machine.
template <class Body>
void timed(const char *what, uint32_t count, Body body) {
  const std::clock_t start = std::clock();
  body();
  const double took = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  std::printf("%-44s %9u in %.3f s, %.2f million a second\n", what, count, took,
              count / took / 1e6);
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

void read_back(uint32_t device, const std::vector<p4_pd_entry_handle_t> &entries) {
  timed("read routes back by handle", routes, [&] {
    for (uint32_t i = 0; i < routes; ++i) {
      p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t match;
      p4_pd_tessel_switch_setNextHop_action_spec_t action;
      uint32_t value = 0;
      bool no_key = true;
      const p4_pd_status_t status = p4_pd_tessel_switch_ipv4ShortMaskLpm_get_entry(
          session, static_cast<uint8_t>(device), entries[i], false, &match, nullptr, &action,
          &value, &no_key);
      expect(status == 0 && !no_key && match.ingIpv4_dip == i << 8 &&
                 action.action_nextHop == (i & 0x3fff),
             "route reads back as added");
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

// ---- Upgrade ----

double resident_megabytes() {
  std::ifstream statm("/proc/self/statm");
  uint64_t total = 0;
  uint64_t resident = 0;
  statm >> total >> resident;
  return static_cast<double>(resident) * 4096 / 1e6;
}

double device_megabytes() {
  uint64_t old_bytes = 0;
  uint64_t new_bytes = 0;
  expect(soft_memory_bytes(old_id, 0, &old_bytes) == 0 &&
             soft_memory_bytes(new_id, 0, &new_bytes) == 0,
         "memory of the devices");
  return static_cast<double>(old_bytes + new_bytes) / 1e6;
}

using Findings = std::vector<tesselctl::Finding>;

void verify_as_it_is(const tesselctl::Device &old_device, const tesselctl::Device &new_device) {
  const double devices = device_megabytes();
  const double resident = resident_megabytes();
  tesselctl::VerifyCounts counts;
  // Each member is in one group.
  timed("verify routes, members and memberships", routes + 2 * members + groups, [&] {
    counts = tesselctl::verify(old_device, new_device, [](const tesselctl::Finding &) {});
  });
  expect(counts.entries == routes && counts.members == members && counts.groups == groups &&
             counts.memberships == members,
         "all is compared");
  expect(counts.differences == 0, "the new device equals the old one");
  std::printf(
      "  memory after / before: devices %.1f / %.1f MB = %.3f, process %.1f / %.1f MB = %.3f\n",
      device_megabytes(), devices, device_megabytes() / devices, resident_megabytes(), resident,
      resident_megabytes() / resident);
}

// A route with another next hop, one that is missing and one that is new.
void verify_with_differences(const tesselctl::Device &old_device,
                             const tesselctl::Device &new_device,
                             const std::vector<p4_pd_entry_handle_t> &entries) {
  const p4_pd_tessel_switch_setNextHop_action_spec_t hop = {77};
  const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t fresh = {2, 0x0a000000, 8};
  p4_pd_entry_handle_t added = 0;
  expect(p4_pd_tessel_switch_ipv4ShortMaskLpm_table_modify_with_setNextHop(
             session, new_id, entries[routes / 2], &hop) == 0 &&
             p4_pd_tessel_switch_ipv4ShortMaskLpm_table_delete(session, new_id,
                                                               entries[routes / 3]) == 0 &&
             p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(
                 session, {new_id, 0xffff}, &fresh, &hop, 0, &added) == 0,
         "change the new device");
  Findings findings;
  timed("verify with 1 changed, 1 missing and 1 extra", routes + 2 * members + groups, [&] {
    tesselctl::verify(old_device, new_device,
                      [&](const tesselctl::Finding &one) { findings.push_back(one); });
  });
  for (const tesselctl::Finding &one : findings) {
    std::printf("  %s %s: old %s, new %s\n", tesselctl::difference_text(one.difference), one.object,
                one.old_text.empty() ? "none" : one.old_text.c_str(),
                one.new_text.empty() ? "none" : one.new_text.c_str());
  }
  expect(findings.size() == 3 && findings[0].old_handle == entries[routes / 3] &&
             findings[1].old_handle == entries[routes / 2] && findings[2].new_handle == added,
         "exactly these differences are found");
}

void upgrade() {
  const tesselctl::Device old_device({.id = old_id, .pipes = 4, .is_virtual = true});
  const tesselctl::Device new_device({.id = new_id, .pipes = 4});
  const std::vector<p4_pd_entry_handle_t> entries = add_routes(old_id);
  read_back(old_id, entries);
  fill_profile(old_id);
  timed("replay the virtual device", routes + 2 * members + groups, [] {
    expect(p4_pd_tessel_switch_restore_virtual_dev_state(session, new_id, old_id, 0xffff, 0) == 0,
           "replay");
  });
  cJSON *source = log_of(old_id);
  cJSON *replayed = log_of(new_id);
  expect(cJSON_Compare(source, replayed, true), "the replayed state equals the virtual device's");
  cJSON_Delete(source);
  cJSON_Delete(replayed);
  verify_as_it_is(old_device, new_device);
  verify_with_differences(old_device, new_device, entries);
}

}  // namespace

int main() {
  tesselctl::use_program(bindings::pd_binding);
  const tesselctl::LibraryUse library;
  soft_session_open(&session);
  upgrade();
  state_through_log();
  soft_session_close(session);
  std::printf(faults == 0 ? "all as it was\n" : "%d faults\n", faults);
  return faults == 0 ? 0 : 1;
}
