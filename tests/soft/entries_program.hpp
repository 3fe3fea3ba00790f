// A small program written by hand, one table of each kind, and the records that calls on it need.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "pipe_mgr.h"
#include "soft_sdk.h"

namespace soft_test {

constexpr uint32_t kHost = 0x01000001;   // exact, 20 bits in 3 bytes, direct counter
constexpr uint32_t kAcl = 0x01000002;    // ternary, 16 bits in 2 bytes, direct meter
constexpr uint32_t kRoute = 0x01000003;  // lpm, 40 bits in 5 bytes, ages
constexpr uint32_t kEncap = 0x01000004;  // keyless
constexpr uint32_t kLag = 0x01000005;    // exact, 8 bits, bound to a profile

constexpr uint32_t kForward = 0x20000001;  // 9 bits in 2 bytes
constexpr uint32_t kDrop = 0x20000002;     // no data; the only default of kHost
constexpr uint32_t kPermit = 0x20000011;   // 35 bits in 5 bytes
constexpr uint32_t kDeny = 0x20000012;     // no data; like kPermit a possible default of kAcl
constexpr uint32_t kNextHop = 0x20000021;  // 14 bits in 2 bytes
constexpr uint32_t kWrap = 0x20000031;     // 20 bits in 3 bytes; the default of kEncap
constexpr uint32_t kSend = 0x20000041;     // 9 bits in 2 bytes, of the profile

constexpr uint32_t kHostCount = 0x04000001;    // direct to kHost
constexpr uint32_t kAclCount = 0x04000002;     // indirect
constexpr uint32_t kAclMeter = 0x05000001;     // direct to kAcl
constexpr uint32_t kPoliceMeter = 0x05000002;  // indirect
constexpr uint32_t kEncapData = 0x06000001;

inline const soft_program_t &program() {
  static const soft_key_field_t host_key[] = {{"vlan", SOFT_EXACT, 12, 0, 2},
                                              {"port", SOFT_EXACT, 8, 2, 1}};
  static const soft_key_field_t acl_key[] = {{"type", SOFT_TERNARY, 16, 0, 2}};
  static const soft_key_field_t route_key[] = {{"vrf", SOFT_EXACT, 8, 0, 1},
                                               {"dip", SOFT_LPM, 32, 1, 4}};
  static const soft_key_field_t lag_key[] = {{"lag", SOFT_EXACT, 8, 0, 1}};
  static const soft_action_t host_actions[] = {{"forward", kForward, 9, 2, false},
                                               {"drop", kDrop, 0, 0, true}};
  static const soft_action_t acl_actions[] = {{"permit", kPermit, 35, 5, true},
                                              {"deny", kDeny, 0, 0, true}};
  static const soft_action_t route_actions[] = {{"next_hop", kNextHop, 14, 2, false}};
  static const soft_action_t encap_actions[] = {{"wrap", kWrap, 20, 3, true}};
  static const soft_action_t lag_actions[] = {{"send", kSend, 9, 2, false}};
  static const soft_table_t tables[] = {
      {"host", kHost, SOFT_EXACT, 20, 3, host_key, 2, host_actions, 2, 0, false, nullptr},
      {"acl", kAcl, SOFT_TERNARY, 16, 2, acl_key, 1, acl_actions, 2, 0, false, nullptr},
      {"route", kRoute, SOFT_LPM, 40, 5, route_key, 2, route_actions, 1, 0, true, nullptr},
      {"encap", kEncap, SOFT_EXACT, 0, 0, nullptr, 0, encap_actions, 1, 0, false, nullptr},
      {"lag", kLag, SOFT_EXACT, 8, 1, lag_key, 1, nullptr, 0, 0x02000005, false, nullptr},
  };
  static const soft_profile_t profiles[] = {{"lag", 0x02000005, 0x03000005, lag_actions, 1}};
  static const soft_counter_t counters[] = {{"host", kHostCount, kHost}, {"acl", kAclCount, 0}};
  static const soft_meter_t meters[] = {{"acl", kAclMeter, kAcl, PIPE_RATE_BYTES},
                                        {"police", kPoliceMeter, 0, PIPE_RATE_BYTES}};
  static const soft_register_t registers[] = {{"encap", kEncapData, 8}};
  static const soft_program_t whole = [] {
    soft_program_t p{};
    p.name = "small";
    p.tables = tables;
    p.table_count = 5;
    p.profiles = profiles;
    p.profile_count = 1;
    p.counters = counters;
    p.counter_count = 2;
    p.meters = meters;
    p.meter_count = 2;
    p.registers = registers;
    p.register_count = 1;
    return p;
  }();
  return whole;
}

// A key with its buffers, also as room for read-back.
struct Key {
  std::vector<uint8_t> value;
  std::vector<uint8_t> mask;
  pipe_mgr_match_spec_t spec{};

  Key(uint16_t bits, std::vector<uint8_t> v, std::vector<uint8_t> m, uint32_t priority = 0)
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

// An action of type data with its bytes.
struct Action {
  std::vector<uint8_t> bytes;
  pipe_mgr_action_spec_t spec{};

  explicit Action(uint16_t bits = 0, std::vector<uint8_t> b = {}) : bytes(std::move(b)) {
    spec.type = PIPE_ACTION_DATA;
    spec.data = {bits, static_cast<uint16_t>(bytes.size()), bytes.data()};
  }
  Action(const Action &) = delete;
  Action &operator=(const Action &) = delete;

  pipe_mgr_resource_t &resource(uint32_t handle, uint32_t index, uint32_t tag) {
    pipe_mgr_resource_t &added = spec.resources[spec.resource_count++];
    added.handle = handle;
    added.index = index;
    added.tag = tag;
    return added;
  }
};

class EntriesTest : public testing::Test {
 protected:
  static constexpr bf_device_id_t kDevice = 3;

  void SetUp() override {
    ASSERT_EQ(soft_session_open(&session), BF_SUCCESS);
    ASSERT_EQ(soft_device_create(kDevice, 2, &program(), false), BF_SUCCESS);
  }
  void TearDown() override {
    EXPECT_EQ(soft_device_remove(kDevice), BF_SUCCESS);
    EXPECT_EQ(soft_session_close(session), BF_SUCCESS);
  }

  bf_status_t add(uint32_t table, const Key &key, uint32_t action, const Action &spec,
                  uint32_t *entry, uint32_t ttl = 0, uint32_t pipe = BF_ALL_PIPES) {
    return pipe_mgr_mat_ent_add(session, kDevice, pipe, table, &key.spec, action, &spec.spec, ttl,
                                0, entry);
  }
  // Of kHost with kForward to port 1, by number.
  bf_status_t add_host(uint8_t number, uint32_t *entry) {
    const Key key(20, {0x00, 0x10, number}, {0xff, 0xff, 0xff});
    const Action forward(9, {0x00, 0x01});
    return add(kHost, key, kForward, forward, entry);
  }
  uint32_t count(uint32_t table) {
    uint32_t entries = 0xdeadbeef;
    EXPECT_EQ(pipe_mgr_get_entry_count(session, kDevice, BF_ALL_PIPES, table, 0, &entries),
              BF_SUCCESS);
    return entries;
  }

  pipe_session_handle_t session = 0;
};

}  // namespace soft_test
