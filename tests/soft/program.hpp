// A small program written by hand with something of every kind, a device that runs it, and the
// records that calls on it need.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <random>
#include <vector>

#include "bf_snapshot.h"
#include "pipe_mgr.h"
#include "soft_contents.h"
#include "soft_learning.h"
#include "soft_placement.h"
#include "soft_sdk.h"
#include "soft_snapshot.h"
#include "soft_state.h"
#include "soft_traffic.h"

// The call succeeds.
#define OK(...) EXPECT_EQ((__VA_ARGS__), bf_status_t{BF_SUCCESS})

namespace soft_test {

using Bytes = std::vector<uint8_t>;
using Words = std::vector<uint32_t>;

constexpr uint32_t kAll = BF_ALL_PIPES;
constexpr uint32_t kNone = 0xffffffff;  // behind the last handle of a list

constexpr uint32_t kHost = 0x01000001;    // exact, 20 bits in 3 bytes, direct counter
constexpr uint32_t kAcl = 0x01000002;     // ternary, 16 bits in 2 bytes, direct counter and meter
constexpr uint32_t kRoute = 0x01000003;   // lpm, 40 bits in 5 bytes, ages
constexpr uint32_t kEncap = 0x01000004;   // keyless
constexpr uint32_t kLag = 0x01000005;     // exact, 8 bits, bound to a profile with a selector
constexpr uint32_t kBridge = 0x01000006;  // exact, 8 bits, 20 entries, of a profile without one
constexpr uint32_t kTunnel = 0x01000007;  // ternary, 80 bits, of which packets are compared in 76

constexpr uint32_t kForward = 0x20000001;  // 9 bits in 2 bytes
constexpr uint32_t kDrop = 0x20000002;     // no data; the only default of kHost and nothing else
constexpr uint32_t kPermit = 0x20000011;   // 35 bits in 5 bytes
constexpr uint32_t kDeny = 0x20000012;     // no data; like kPermit a possible default of kAcl
constexpr uint32_t kNextHop = 0x20000021;  // 14 bits in 2 bytes
constexpr uint32_t kWrap = 0x20000031;     // 20 bits in 3 bytes; the default of kEncap
constexpr uint32_t kSend = 0x20000041;     // 9 bits in 2 bytes, of both profiles
constexpr uint32_t kFlood = 0x20000042;    // no data, of both profiles

constexpr uint32_t kMembers = 0x02000005, kSelector = 0x03000005;
constexpr uint32_t kPorts = 0x02000006;

constexpr uint32_t kHostCount = 0x04000001;  // direct to kHost
constexpr uint32_t kRuleCount = 0x04000003;  // direct to kAcl
constexpr uint32_t kAclCount = 0x04000002;   // indirect
constexpr uint32_t kAclMeter = 0x05000001;   // direct to kAcl
constexpr uint32_t kPoliceMeter = 0x05000002;
constexpr uint32_t kFlowMeter = 0x05000003;  // of packets, the others of bytes
constexpr uint32_t kWred = 0x07000001;

constexpr uint32_t kBitRegister = 0x06000011;
constexpr uint32_t kByteRegister = 0x06000012;
constexpr uint32_t kHalfRegister = 0x06000013;
constexpr uint32_t kWordRegister = 0x06000014;

constexpr uint32_t kIpHash = 0x22000001;
constexpr uint32_t kIpFields = 0x21000001;  // 3 fields
constexpr uint32_t kEthHash = 0x22000002;
constexpr uint32_t kEthFields = 0x21000002;
constexpr uint32_t kCrc = 0x23000001;
constexpr uint32_t kOtherCrc = 0x23000002;  // of kEthHash

constexpr uint32_t kMacDigest = 0x21000011;   // entries of 3 bytes
constexpr uint32_t kFlowDigest = 0x21000012;  // of 2 bytes

constexpr uint32_t kPortSet = 0x1ff;
constexpr uint32_t kTypeSet = 0x200;

constexpr uint32_t kSnapshotBytes = 4;

// Behind the bits of kTunnel stands a byte that is not of the key.
inline constexpr uint8_t kCompared[] = {0x0f, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255};

inline const soft_program_t &small_program() {
  static const soft_key_field_t host_key[] = {{"vlan", SOFT_EXACT, 12, 0, 2},
                                              {"port", SOFT_EXACT, 8, 2, 1}};
  static const soft_key_field_t word_key[] = {{"type", SOFT_TERNARY, 16, 0, 2}};
  static const soft_key_field_t route_key[] = {{"vrf", SOFT_EXACT, 8, 0, 1},
                                               {"dip", SOFT_LPM, 32, 1, 4}};
  static const soft_key_field_t wide_key[] = {{"id", SOFT_TERNARY, 80, 0, 10}};
  static const soft_key_field_t byte_key[] = {{"number", SOFT_EXACT, 8, 0, 1}};
  static const soft_action_t host_actions[] = {{"forward", kForward, 9, 2, false, false},
                                               {"drop", kDrop, 0, 0, true, true}};
  static const soft_action_t acl_actions[] = {{"permit", kPermit, 35, 5, true, false},
                                              {"deny", kDeny, 0, 0, true, false}};
  static const soft_action_t route_actions[] = {{"next_hop", kNextHop, 14, 2, false, false}};
  static const soft_action_t encap_actions[] = {{"wrap", kWrap, 20, 3, true, false}};
  static const soft_action_t lag_actions[] = {{"send", kSend, 9, 2, false, false},
                                              {"flood", kFlood, 0, 0, false, false}};
  static const soft_default_t drops = {kDrop, nullptr, nullptr, 0};
  static const uint8_t wrap_data[] = {0x0a, 0xbc, 0xde};
  static const soft_cell_t wrap_cells[] = {{kAclCount, 2}, {kWordRegister, 3}};
  static const soft_default_t wraps = {kWrap, wrap_data, wrap_cells, 2};
  static const soft_table_t tables[] = {
      {"host", kHost, SOFT_EXACT, 20, 3, host_key, 2, host_actions, 2, 0, false, nullptr, &drops,
       0},
      {"acl", kAcl, SOFT_TERNARY, 16, 2, word_key, 1, acl_actions, 2, 0, false, nullptr, nullptr,
       0},
      {"route", kRoute, SOFT_LPM, 40, 5, route_key, 2, route_actions, 1, 0, true, nullptr, nullptr,
       0},
      {"encap", kEncap, SOFT_EXACT, 0, 0, nullptr, 0, encap_actions, 1, 0, false, nullptr, &wraps,
       0},
      {"lag", kLag, SOFT_EXACT, 8, 1, byte_key, 1, nullptr, 0, kMembers, false, nullptr, nullptr,
       0},
      {"bridge", kBridge, SOFT_EXACT, 8, 1, byte_key, 1, nullptr, 0, kPorts, false, nullptr,
       nullptr, 20},
      {"tunnel", kTunnel, SOFT_TERNARY, 80, 10, wide_key, 1, acl_actions, 2, 0, false, kCompared,
       nullptr, 0},
  };
  static const soft_profile_t profiles[] = {{"lag", kMembers, kSelector, lag_actions, 2, 60, 30},
                                            {"port", kPorts, 0, lag_actions, 2, 0, 0}};
  static const soft_counter_t counters[] = {
      {"host", kHostCount, kHost}, {"acl", kAclCount, 0}, {"rule", kRuleCount, kAcl}};
  static const soft_meter_t meters[] = {{"acl", kAclMeter, kAcl, PIPE_RATE_BYTES},
                                        {"police", kPoliceMeter, 0, PIPE_RATE_BYTES},
                                        {"flow", kFlowMeter, 0, PIPE_RATE_PACKETS}};
  static const soft_register_t registers[] = {{"seen", kBitRegister, 1},
                                              {"state", kByteRegister, 8},
                                              {"sequence", kHalfRegister, 16},
                                              {"total", kWordRegister, 32}};
  static const soft_hash_t hashes[] = {{"ip", kIpHash, kIpFields, kCrc, 3},
                                       {"eth", kEthHash, kEthFields, kOtherCrc, 5}};
  static const soft_digest_field_t mac_fields[] = {{"mac", 0, 2}, {"port", 2, 1}};
  static const soft_digest_t digests[] = {{"mac", kMacDigest, 3, mac_fields, 2},
                                          {"flow", kFlowDigest, 2, nullptr, 0}};
  static const soft_value_set_t value_sets[] = {{"ports", kPortSet}, {"types", kTypeSet}};
  static const soft_program_t whole = {
      "small", tables, 7, profiles, 2, counters,   3, meters,         3,  registers,
      4,       hashes, 2, digests,  2, value_sets, 2, kSnapshotBytes, {}, {}};
  return whole;
}

// What it has in common with a program that has no objects.
inline const soft_program_t other_program{};

// ---- Records of calls, with their bytes ----

struct Key {
  Bytes value;
  Bytes mask;
  pipe_mgr_match_spec_t spec{};

  Key(uint16_t bits, Bytes v, Bytes m, uint32_t priority = 0)
      : value(std::move(v)), mask(std::move(m)) {
    spec.valid_bit_count = bits;
    spec.byte_count = static_cast<uint16_t>(value.size());
    spec.value = value.data();
    spec.mask = mask.data();
    spec.priority = priority;
  }
  Key(const Key &) = delete;
  Key &operator=(const Key &) = delete;
};

struct Action {
  Bytes bytes;
  pipe_mgr_action_spec_t spec{};

  explicit Action(uint16_t bits = 0, Bytes b = {}) : bytes(std::move(b)) {
    spec.type = PIPE_ACTION_DATA;
    spec.data = {bits, static_cast<uint16_t>(bytes.size()), bytes.data()};
  }
  Action(const Action &) = delete;
  Action &operator=(const Action &) = delete;

  pipe_mgr_resource_t &resource(uint32_t handle, uint32_t index = 0) {
    pipe_mgr_resource_t &added = spec.resources[spec.resource_count++];
    added.handle = handle;
    added.index = index;
    added.tag = PIPE_RESOURCE_ATTACH;
    return added;
  }
};

inline pipe_mgr_meter_spec_t meter_spec(uint32_t unit, uint64_t committed_rate,
                                        uint64_t committed_burst, uint64_t peak_rate,
                                        uint64_t peak_burst) {
  return {PIPE_METER_COLOR_UNAWARE,
          {unit, committed_rate},
          committed_burst,
          {unit, peak_rate},
          peak_burst};
}

// The same numbers on every machine.
class Random {
 public:
  explicit Random(uint32_t seed) : engine_(seed) {}
  uint32_t operator()() { return static_cast<uint32_t>(engine_()); }
  uint32_t below(uint32_t bound) { return (*this)() % bound; }
  bool one_in(uint32_t n) { return below(n) == 0; }
  template <class List>
  auto &of(List &list) {
    return list[below(static_cast<uint32_t>(list.size()))];
  }

 private:
  std::mt19937 engine_;
};

// Device kDevice with two pipes.
class SoftTest : public testing::Test {
 protected:
  static constexpr bf_device_id_t kDevice = 4;
  static constexpr uint32_t kNowhere = 0xdeadbeef;  // what out-parameters hold before a call

  void SetUp() override {
    OK(soft_session_open(&session));
    OK(soft_device_create(kDevice, 2, &small_program(), false));
  }
  void TearDown() override {
    OK(soft_device_remove(kDevice));
    OK(soft_session_close(session));
  }

  // Of kHost with kForward to port 1, by number.
  bf_status_t add_host(uint32_t number, uint32_t *entry, bf_device_id_t device = kDevice) const {
    const uint32_t vlan = 0x1000 + number;
    const Key key(20,
                  {static_cast<uint8_t>(vlan >> 16), static_cast<uint8_t>(vlan >> 8),
                   static_cast<uint8_t>(vlan)},
                  {0xff, 0xff, 0xff});
    const Action forward(9, {0x00, 0x01});
    return pipe_mgr_mat_ent_add(session, device, kAll, kHost, &key.spec, kForward, &forward.spec, 0,
                                0, entry);
  }
  uint32_t count(uint32_t handle) const {
    uint32_t entries = kNowhere;
    OK(pipe_mgr_get_entry_count(session, kDevice, kAll, handle, 0, &entries));
    return entries;
  }

  pipe_session_handle_t session = 0;
};

}  // namespace soft_test
