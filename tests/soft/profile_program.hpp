// A small program written by hand with an action profile and counters and meters of every kind, a
// device that runs it, and short forms of the calls that its tests make often.
#pragma once

#include "entries_program.hpp"
#include "soft_traffic.h"

namespace soft_test {

constexpr uint32_t kMembers = 0x02000005;    // of kLag, with kSend and kFlood
constexpr uint32_t kSelector = 0x03000005;   // of the same
constexpr uint32_t kFlood = 0x20000042;      // no data
constexpr uint32_t kFlowMeter = 0x05000003;  // indirect, packets

// Handles that entries_program.hpp names mean the same here: kLag, kSend; kAcl with kPermit and
// kDeny, counted directly by kHostCount and metered directly by kAclMeter; kHost without a counter.
inline const soft_program_t &profile_program() {
  static const soft_key_field_t acl_key[] = {{"type", SOFT_TERNARY, 16, 0, 2}};
  static const soft_key_field_t byte_key[] = {{"number", SOFT_EXACT, 8, 0, 1}};
  static const soft_action_t acl_actions[] = {{"permit", kPermit, 35, 5, false},
                                              {"deny", kDeny, 0, 0, true}};
  static const soft_action_t lag_actions[] = {{"send", kSend, 9, 2, false},
                                              {"flood", kFlood, 0, 0, false}};
  static const soft_action_t host_actions[] = {{"drop", kDrop, 0, 0, true}};
  static const soft_table_t tables[] = {
      {"host", kHost, SOFT_EXACT, 8, 1, byte_key, 1, host_actions, 1, 0, false, nullptr},
      {"acl", kAcl, SOFT_TERNARY, 16, 2, acl_key, 1, acl_actions, 2, 0, true, nullptr},
      {"lag", kLag, SOFT_EXACT, 8, 1, byte_key, 1, nullptr, 0, kMembers, false, nullptr},
  };
  static const soft_profile_t profiles[] = {{"lag", kMembers, kSelector, lag_actions, 2}};
  static const soft_counter_t counters[] = {{"acl", kHostCount, kAcl}, {"class", kAclCount, 0}};
  static const soft_meter_t meters[] = {{"acl", kAclMeter, kAcl, PIPE_RATE_BYTES},
                                        {"police", kPoliceMeter, 0, PIPE_RATE_BYTES},
                                        {"flow", kFlowMeter, 0, PIPE_RATE_PACKETS}};
  static const soft_program_t whole = [] {
    soft_program_t p{};
    p.name = "profiles";
    p.tables = tables;
    p.table_count = 3;
    p.profiles = profiles;
    p.profile_count = 1;
    p.counters = counters;
    p.counter_count = 2;
    p.meters = meters;
    p.meter_count = 3;
    return p;
  }();
  return whole;
}

// Two pipes.
class ProfileTest : public testing::Test {
 protected:
  static constexpr bf_device_id_t kDevice = 5;

  void SetUp() override {
    ASSERT_EQ(soft_session_open(&session), BF_SUCCESS);
    ASSERT_EQ(soft_device_create(kDevice, 2, &profile_program(), false), BF_SUCCESS);
  }
  void TearDown() override {
    EXPECT_EQ(soft_device_remove(kDevice), BF_SUCCESS);
    EXPECT_EQ(soft_session_close(session), BF_SUCCESS);
  }

  // ---- Profiles ----

  bf_status_t add_member(uint8_t port, uint32_t *member) {
    Action send(9, {0x01, port});
    send.spec.type = 0;
    return pipe_mgr_adt_ent_add(session, kDevice, BF_ALL_PIPES, kMembers, kSend, &send.spec, member,
                                0);
  }
  uint32_t new_member(uint8_t port) {
    uint32_t member = 0;
    EXPECT_EQ(add_member(port, &member), BF_SUCCESS);
    return member;
  }
  bf_status_t del_member(uint32_t member) {
    return pipe_mgr_adt_ent_del(session, kDevice, kMembers, member, 0);
  }
  uint32_t new_group(uint32_t max_size) {
    uint32_t group = 0;
    EXPECT_EQ(pipe_mgr_sel_grp_add(session, kDevice, BF_ALL_PIPES, kSelector, max_size, &group, 0),
              BF_SUCCESS);
    return group;
  }
  bf_status_t del_group(uint32_t group) {
    return pipe_mgr_sel_grp_del(session, kDevice, kSelector, group, 0);
  }
  bf_status_t join(uint32_t group, uint32_t member, uint32_t action = kSend) {
    return pipe_mgr_sel_grp_mbr_add(session, kDevice, kSelector, group, action, member, 0);
  }
  bf_status_t leave(uint32_t group, uint32_t member) {
    return pipe_mgr_sel_grp_mbr_del(session, kDevice, kSelector, group, member, 0);
  }
  bf_status_t disable(uint32_t group, uint32_t member) {
    return pipe_mgr_sel_grp_mbr_disable(session, kDevice, kSelector, group, member, 0);
  }
  bf_status_t enable(uint32_t group, uint32_t member) {
    return pipe_mgr_sel_grp_mbr_enable(session, kDevice, kSelector, group, member, 0);
  }
  uint32_t count(uint32_t handle) {
    uint32_t entries = 0xdeadbeef;
    EXPECT_EQ(pipe_mgr_get_entry_count(session, kDevice, BF_ALL_PIPES, handle, 0, &entries),
              BF_SUCCESS);
    return entries;
  }

  // An entry of kLag that names a member or a group.
  bf_status_t add_lag(uint8_t number, uint32_t type, uint32_t reference, uint32_t *entry,
                      uint32_t action = kSend) {
    const Key key(8, {number}, {0xff});
    const pipe_mgr_action_spec_t spec = naming(type, reference);
    return pipe_mgr_mat_ent_add(session, kDevice, BF_ALL_PIPES, kLag, &key.spec, action, &spec, 0,
                                0, entry);
  }
  static pipe_mgr_action_spec_t naming(uint32_t type, uint32_t reference) {
    pipe_mgr_action_spec_t spec{};
    spec.type = type;
    (type == PIPE_ACTION_MEMBER ? spec.member : spec.group) = reference;
    return spec;
  }

  // ---- Traffic ----

  // An entry of kAcl for one type, with the resources that the action carries.
  uint32_t new_acl(uint8_t type, const Action &deny) {
    const Key key(16, {0x08, type}, {0xff, 0xff}, 10);
    uint32_t entry = 0;
    EXPECT_EQ(pipe_mgr_mat_ent_add(session, kDevice, BF_ALL_PIPES, kAcl, &key.spec, kDeny,
                                   &deny.spec, 0, 0, &entry),
              BF_SUCCESS);
    return entry;
  }
  soft_hit_t hit(uint32_t pipe, uint32_t table, std::vector<uint8_t> key, uint64_t packets,
                 uint64_t bytes, std::vector<uint8_t> hash = {}) {
    const soft_traffic_t traffic{key.data(),  static_cast<uint32_t>(key.size()),
                                 hash.data(), static_cast<uint32_t>(hash.size()),
                                 packets,     bytes};
    soft_hit_t result{};
    EXPECT_EQ(soft_traffic_hit(kDevice, pipe, table, &traffic, &result), BF_SUCCESS);
    return result;
  }

  pipe_session_handle_t session = 0;
};

}  // namespace soft_test
