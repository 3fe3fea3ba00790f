// Entries of match tables through the contract: add, change, remove, read back, walk, look up.
#include "entries_program.hpp"

#include <algorithm>
#include <set>

namespace {

using namespace soft_test;
using Entries = EntriesTest;
using Bytes = std::vector<uint8_t>;

TEST_F(Entries, ReadsBackWhatWasAdded) {
  // A value may have bits above the width of its field, where the mask has none.
  const Key key(16, {0xff, 0x12}, {0x0f, 0xff}, 10);
  Action permit(35, {0, 0, 0, 0, 7});
  permit.resource(kAclCount, 12, PIPE_RESOURCE_ATTACH);
  permit.resource(kPoliceMeter, 0, PIPE_RESOURCE_DETACH);
  uint32_t entry = 0;
  ASSERT_EQ(add(kAcl, key, kPermit, permit, &entry), BF_SUCCESS);

  Key got(16, {0, 0}, {0, 0}, 99);
  got.spec.scope = 5;
  Action data(0, Bytes(28, 0xcc));
  data.spec.member = data.spec.group = 8;
  uint32_t action = 0;
  ASSERT_EQ(
      pipe_mgr_get_entry(session, kAcl, kDevice, entry, &got.spec, &data.spec, &action, false),
      BF_SUCCESS);
  EXPECT_EQ(got.value, (Bytes{0xff, 0x12}));
  EXPECT_EQ(got.mask, (Bytes{0x0f, 0xff}));
  EXPECT_EQ(got.spec.priority, 10u);
  EXPECT_EQ(got.spec.scope, 0u);
  EXPECT_EQ(action, kPermit);
  EXPECT_EQ(data.spec.type, uint32_t{PIPE_ACTION_DATA});
  EXPECT_EQ(data.spec.data.byte_count, 5);
  EXPECT_EQ(data.spec.data.valid_bit_count, 35);
  EXPECT_EQ(Bytes(data.bytes.begin(), data.bytes.begin() + 6), (Bytes{0, 0, 0, 0, 7, 0xcc}));
  EXPECT_EQ(data.spec.member, 0u);
  EXPECT_EQ(data.spec.group, 0u);
  ASSERT_EQ(data.spec.resource_count, 1u) << "a detached resource is not attached";
  EXPECT_EQ(data.spec.resources[0].handle, kAclCount);
  EXPECT_EQ(data.spec.resources[0].index, 12u);
  EXPECT_EQ(data.spec.resources[0].tag, uint32_t{PIPE_RESOURCE_ATTACH});

  data.spec.data.byte_count = 4;
  action = 1;
  EXPECT_EQ(
      pipe_mgr_get_entry(session, kAcl, kDevice, entry, &got.spec, &data.spec, &action, false),
      BF_WRONG_LENGTH);
  EXPECT_EQ(action, 1u);
  EXPECT_EQ(
      pipe_mgr_get_entry(session, kAcl, kDevice, entry + 1, &got.spec, &data.spec, &action, false),
      BF_OBJECT_NOT_FOUND);
}

TEST_F(Entries, RefusesWhatTheProgramDoesNotDeclare) {
  const Key key(20, {0x00, 0x10, 0x01}, {0xff, 0xff, 0xff});
  const Action forward(9, {0x00, 0x01});
  uint32_t entry = 0xabcd;
  const Key short_key(20, {0x00, 0x10}, {0xff, 0xff});
  EXPECT_EQ(add(kHost, short_key, kForward, forward, &entry), BF_WRONG_LENGTH);
  const Key odd_bits(21, {0x00, 0x10, 0x01}, {0xff, 0xff, 0xff});
  EXPECT_EQ(add(kHost, odd_bits, kForward, forward, &entry), BF_WRONG_LENGTH);
  EXPECT_EQ(add(kHost, key, kPermit, forward, &entry), BF_FOREIGN_ACTION);
  const Action short_data(9, {0x01});
  EXPECT_EQ(add(kHost, key, kForward, short_data, &entry), BF_WRONG_LENGTH);
  const Action odd_data(10, {0x00, 0x01});
  EXPECT_EQ(add(kHost, key, kForward, odd_data, &entry), BF_WRONG_LENGTH);
  EXPECT_EQ(add(kHost, key, kDrop, forward, &entry), BF_WRONG_LENGTH);
  Action member(9, {0x00, 0x01});
  member.spec.type = PIPE_ACTION_MEMBER;
  EXPECT_EQ(add(kHost, key, kForward, member, &entry), BF_INVALID_ARGUMENT);
  Key no_mask(20, {0x00, 0x10, 0x01}, {0xff, 0xff, 0xff});
  no_mask.spec.mask = nullptr;
  EXPECT_EQ(add(kHost, no_mask, kForward, forward, &entry), BF_INVALID_ARGUMENT);
  EXPECT_EQ(add(kEncap, key, kWrap, forward, &entry), BF_NOT_SUPPORTED);
  const Key lag_key(8, {0x01}, {0xff});
  EXPECT_EQ(add(kLag, lag_key, kSend, forward, &entry), BF_INVALID_ARGUMENT)
      << "entries of a bound table name a member or a group";
  EXPECT_EQ(add(kLag, lag_key, kForward, member, &entry), BF_FOREIGN_ACTION);
  EXPECT_EQ(entry, 0xabcdu);
  EXPECT_EQ(count(kHost) + count(kLag), 0u);
}

TEST_F(Entries, KeepsOneEntryAKeyUnlessToldOtherwise) {
  const Key low(16, {0x08, 0x00}, {0xff, 0xff}, 1), high(16, {0x08, 0x00}, {0xff, 0xff}, 2),
      wide(16, {0x08, 0x00}, {0xff, 0x00}, 1);
  const Action deny;
  uint32_t entry = 0, again = 0xabcd;
  ASSERT_EQ(add(kAcl, low, kDeny, deny, &entry), BF_SUCCESS);
  EXPECT_EQ(add(kAcl, low, kDeny, deny, &again), BF_ALREADY_EXISTS);
  EXPECT_EQ(again, 0xabcdu);
  EXPECT_EQ(add(kAcl, high, kDeny, deny, &again), BF_SUCCESS) << "another priority";
  EXPECT_EQ(add(kAcl, wide, kDeny, deny, &again), BF_SUCCESS) << "another mask";
  ASSERT_EQ(pipe_mgr_tbl_set_property(session, kDevice, kAcl, PIPE_TABLE_DUPLICATE_CHECK, 0, 0),
            BF_SUCCESS);
  EXPECT_EQ(add(kAcl, low, kDeny, deny, &again), BF_SUCCESS);
  EXPECT_EQ(count(kAcl), 4u);
  uint32_t found = 0;
  ASSERT_EQ(pipe_mgr_match_spec_to_ent_hdl(session, kDevice, 0, kAcl, &low.spec, &found),
            BF_SUCCESS);
  EXPECT_EQ(found, entry) << "the oldest of equals";
}

TEST_F(Entries, StopsAtItsCapacity) {
  uint32_t capacity = 7, argument = 7;
  ASSERT_EQ(
      pipe_mgr_tbl_get_property(session, kDevice, kHost, PIPE_TABLE_CAPACITY, &capacity, &argument),
      BF_SUCCESS);
  EXPECT_EQ(capacity, 0u);
  EXPECT_EQ(argument, 0u);
  ASSERT_EQ(soft_table_capacity_set(kDevice, kHost, 2), BF_SUCCESS);
  uint32_t first = 0, second = 0, third = 0;
  EXPECT_EQ(add_host(1, &first), BF_SUCCESS);
  EXPECT_EQ(add_host(2, &second), BF_SUCCESS);
  EXPECT_EQ(add_host(3, &third), BF_TABLE_FULL);
  EXPECT_EQ(add_host(2, &third), BF_ALREADY_EXISTS) << "the better answer of the two";
  EXPECT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kHost, first, 0), BF_SUCCESS);
  EXPECT_EQ(add_host(3, &third), BF_SUCCESS);
  EXPECT_EQ(soft_table_capacity_get(kDevice, kHost, &capacity), BF_SUCCESS);
  EXPECT_EQ(capacity, 2u);
  EXPECT_EQ(soft_table_capacity_set(kDevice, 0x04000001, 2), BF_INVALID_HANDLE);
  EXPECT_EQ(pipe_mgr_tbl_set_property(session, kDevice, kHost, 4, 0, 0), BF_INVALID_ARGUMENT);
}

TEST_F(Entries, ChangesAndRemovesByHandleAndByKey) {
  const Key key(16, {0x08, 0x00}, {0xff, 0xff}, 7), other(16, {0x08, 0x00}, {0xff, 0xff}, 8);
  const Action deny;
  uint32_t entry = 0;
  ASSERT_EQ(add(kAcl, key, kDeny, deny, &entry), BF_SUCCESS);
  const Action permit(35, {0, 0, 0, 0, 9});
  EXPECT_EQ(pipe_mgr_mat_ent_set_action_by_match_spec(session, kDevice, 0, kAcl, &other.spec,
                                                      kPermit, &permit.spec, 0),
            BF_OBJECT_NOT_FOUND);
  ASSERT_EQ(pipe_mgr_mat_ent_set_action_by_match_spec(session, kDevice, 0, kAcl, &key.spec, kPermit,
                                                      &permit.spec, 0),
            BF_SUCCESS);
  Key got(16, {0, 0}, {0, 0});
  Action data(0, Bytes(28));
  uint32_t action = 0;
  ASSERT_EQ(
      pipe_mgr_get_entry(session, kAcl, kDevice, entry, &got.spec, &data.spec, &action, false),
      BF_SUCCESS);
  EXPECT_EQ(action, kPermit);
  EXPECT_EQ(data.bytes[4], 9);
  EXPECT_EQ(got.spec.priority, 7u);
  ASSERT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kAcl, entry, kDeny, &deny.spec, 0),
            BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kAcl, entry, kForward, &deny.spec, 0),
            BF_FOREIGN_ACTION);
  EXPECT_EQ(pipe_mgr_mat_ent_del_by_match_spec(session, kDevice, 0, kAcl, &other.spec, 0),
            BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(pipe_mgr_mat_ent_del_by_match_spec(session, kDevice, 0, kAcl, &key.spec, 0),
            BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kAcl, entry, 0), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kAcl, entry, kDeny, &deny.spec, 0),
            BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(count(kAcl), 0u);
}

// ---- Walking ----

TEST_F(Entries, WalkInStepsFillsUpBehindTheLast) {
  uint32_t handles[4] = {};
  for (uint8_t i = 0; i < 4; ++i) ASSERT_EQ(add_host(i, &handles[i]), BF_SUCCESS);
  uint32_t first = 0;
  ASSERT_EQ(pipe_mgr_get_first_entry_handle(session, kHost, kDevice, 1, &first), BF_SUCCESS);
  uint32_t next[5] = {1, 1, 1, 1, 1};
  ASSERT_EQ(pipe_mgr_get_next_entry_handles(session, kHost, kDevice, 1, first, 5, next),
            BF_SUCCESS);
  EXPECT_EQ(next[3], 0xffffffffu);
  EXPECT_EQ(next[4], 0xffffffffu);
  EXPECT_EQ((std::set<uint32_t>{first, next[0], next[1], next[2]}),
            (std::set<uint32_t>(handles, handles + 4)));
  EXPECT_EQ(pipe_mgr_get_next_entry_handles(session, kHost, kDevice, 1, next[2], 5, next),
            BF_OBJECT_NOT_FOUND);
}

// ---- Looking up ----

TEST_F(Entries, LookupFindsTheBestEntry) {
  const Action deny, hop(14, {0x00, 0x01});
  uint32_t wide = 0, narrow = 0, net8 = 0, net20 = 0, hit = 0;
  bool is_default = true;
  const Key any(16, {0x00, 0x00}, {0x00, 0x00}, 5), ip(16, {0x08, 0x00}, {0xff, 0xff}, 9);
  ASSERT_EQ(add(kAcl, ip, kDeny, deny, &narrow), BF_SUCCESS);
  const uint8_t ip_packet[] = {0x08, 0x00};
  ASSERT_EQ(soft_lookup(kDevice, 0, kAcl, ip_packet, 2, &hit, &is_default), BF_SUCCESS);
  EXPECT_EQ(hit, narrow);
  EXPECT_FALSE(is_default);
  ASSERT_EQ(add(kAcl, any, kDeny, deny, &wide), BF_SUCCESS);
  ASSERT_EQ(soft_lookup(kDevice, 0, kAcl, ip_packet, 2, &hit, nullptr), BF_SUCCESS);
  EXPECT_EQ(hit, wide) << "5 is before 9";

  // 10.0.0.0/8 and 10.1.0.0/20 in vrf 3.
  const Key slash8(40, {3, 10, 0, 0, 0}, {0xff, 0xff, 0, 0, 0}, 24);
  const Key slash20(40, {3, 10, 1, 0, 0}, {0xff, 0xff, 0xff, 0xf0, 0}, 12);
  ASSERT_EQ(add(kRoute, slash8, kNextHop, hop, &net8), BF_SUCCESS);
  ASSERT_EQ(add(kRoute, slash20, kNextHop, hop, &net20), BF_SUCCESS);
  const uint8_t inside[] = {3, 10, 1, 15, 255}, outside[] = {3, 10, 1, 16, 0},
                foreign[] = {4, 10, 1, 0, 0};
  ASSERT_EQ(soft_lookup(kDevice, 1, kRoute, inside, 5, &hit, nullptr), BF_SUCCESS);
  EXPECT_EQ(hit, net20);
  ASSERT_EQ(soft_lookup(kDevice, 1, kRoute, outside, 5, &hit, nullptr), BF_SUCCESS);
  EXPECT_EQ(hit, net8);
  EXPECT_EQ(soft_lookup(kDevice, 1, kRoute, foreign, 5, &hit, nullptr), BF_TABLE_MISS)
      << "no action of the table may be its default";

  const uint8_t host[] = {0x00, 0x10, 0x77};
  uint32_t fallback = 0;
  ASSERT_EQ(pipe_mgr_table_get_default_entry_handle(session, kDevice, 0, kHost, &fallback),
            BF_SUCCESS);
  ASSERT_EQ(soft_lookup(kDevice, 0, kHost, host, 3, &hit, &is_default), BF_SUCCESS);
  EXPECT_EQ(hit, fallback);
  EXPECT_TRUE(is_default);
  EXPECT_EQ(soft_lookup(kDevice, 0, kHost, host, 2, &hit, nullptr), BF_WRONG_LENGTH);
  EXPECT_EQ(soft_lookup(kDevice, 2, kHost, host, 3, &hit, nullptr), BF_INVALID_PIPE);
  EXPECT_EQ(soft_lookup(kDevice, BF_ALL_PIPES, kHost, host, 3, &hit, nullptr), BF_INVALID_PIPE);
}

// Two entries that differ only in a bit that packets are not compared in, the newer one in a slot
// that was in use before.
TEST_F(Entries, TheOlderOfTwoThatPacketsHitAlikeWins) {
  static const uint8_t compared[] = {0xff, 0xff, 0x7f};
  static soft_table_t table = program().tables[0];
  table.compared = compared;
  static soft_program_t other = program();
  other.tables = &table;
  other.table_count = 1;
  ASSERT_EQ(soft_device_remove(kDevice), BF_SUCCESS);
  ASSERT_EQ(soft_device_create(kDevice, 2, &other, false), BF_SUCCESS);
  std::vector<uint32_t> entries(1100);
  const auto add_number = [&](uint8_t page, uint8_t number, uint32_t *entry) {
    const Key key(20, {0x00, page, number}, {0xff, 0xff, 0xff});
    return add(kHost, key, kForward, Action(9, {0x00, 0x01}), entry);
  };
  for (uint32_t i = 0; i < entries.size(); ++i) {
    ASSERT_EQ(add_number(static_cast<uint8_t>(i / 100), static_cast<uint8_t>(i % 100), &entries[i]),
              BF_SUCCESS);
  }
  const uint32_t older = entries.back();
  entries.pop_back();
  for (const uint32_t entry : entries) {
    ASSERT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kHost, entry, 0), BF_SUCCESS);
  }
  uint32_t newer = 0, first = 0, hit = 0;
  ASSERT_EQ(add_number(10, 99 | 0x80, &newer), BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_get_first_entry_handle(session, kHost, kDevice, 0, &first), BF_SUCCESS);
  ASSERT_EQ(first, newer) << "its slot is the lower one";
  const uint8_t packet[] = {0x00, 10, 99};
  ASSERT_EQ(soft_lookup(kDevice, 0, kHost, packet, 3, &hit, nullptr), BF_SUCCESS);
  EXPECT_EQ(hit, older);
}

TEST_F(Entries, LiveInTheNamedPipeWhenTheScopeSaysSo) {
  ASSERT_EQ(pipe_mgr_tbl_set_property(session, kDevice, kHost, PIPE_TABLE_ENTRY_SCOPE, 1, 0),
            BF_SUCCESS);
  const Key key(20, {0x00, 0x10, 0x01}, {0xff, 0xff, 0xff});
  const Action forward(9, {0x00, 0x01});
  uint32_t in0 = 0, in1 = 0, hit = 0;
  ASSERT_EQ(add(kHost, key, kForward, forward, &in0, 0, 0), BF_SUCCESS);
  ASSERT_EQ(add(kHost, key, kForward, forward, &in1, 0, 1), BF_SUCCESS) << "the same key";
  EXPECT_EQ(add(kHost, key, kForward, forward, &hit, 0, 1), BF_ALREADY_EXISTS);
  const uint8_t packet[] = {0x00, 0x10, 0x01};
  ASSERT_EQ(soft_lookup(kDevice, 1, kHost, packet, 3, &hit, nullptr), BF_SUCCESS);
  EXPECT_EQ(hit, in1);
  uint32_t entries = 0, first = 0, next = 0;
  ASSERT_EQ(pipe_mgr_get_entry_count(session, kDevice, 1, kHost, 0, &entries), BF_SUCCESS);
  EXPECT_EQ(entries, 1u);
  EXPECT_EQ(count(kHost), 2u);
  ASSERT_EQ(pipe_mgr_get_first_entry_handle(session, kHost, kDevice, 1, &first), BF_SUCCESS);
  EXPECT_EQ(first, in1);
  EXPECT_EQ(pipe_mgr_get_next_entry_handles(session, kHost, kDevice, 1, first, 1, &next),
            BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(pipe_mgr_tbl_set_property(session, kDevice, kHost, PIPE_TABLE_ENTRY_SCOPE, 0, 0),
            BF_IN_USE);
  ASSERT_EQ(pipe_mgr_mat_ent_del_by_match_spec(session, kDevice, 1, kHost, &key.spec, 0),
            BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_get_entry_count(session, kDevice, 1, kHost, 0, &entries), BF_SUCCESS);
  EXPECT_EQ(entries, 0u);
  EXPECT_EQ(count(kHost), 1u);
}

// ---- Callbacks ----

struct Update {
  uint32_t session, device, table, update, entry;
  bool operator==(const Update &) const = default;
};
void note_update(pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t table,
                 uint32_t update, pipe_entry_handle_t entry, void *cookie) {
  // The table is not locked: the callback may ask it.
  uint32_t entries = 0;
  EXPECT_EQ(pipe_mgr_get_entry_count(session, device, 0, table, 0, &entries), BF_SUCCESS);
  static_cast<std::vector<Update> *>(cookie)->push_back({session, device, table, update, entry});
}

TEST_F(Entries, TellTheListenerOfEverySuccessfulUpdate) {
  std::vector<Update> heard;
  ASSERT_EQ(pipe_register_mat_update_cb(session, kDevice, kHost, note_update, &heard), BF_SUCCESS);
  uint32_t entry = 0, fallback = 0;
  const Action drop;
  ASSERT_EQ(add_host(1, &entry), BF_SUCCESS);
  EXPECT_EQ(add_host(1, &fallback), BF_ALREADY_EXISTS);
  ASSERT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kHost, entry, kDrop, &drop.spec, 0),
            BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kHost, entry, 0), BF_SUCCESS);
  ASSERT_EQ(
      pipe_mgr_mat_default_entry_set(session, kDevice, 0, kHost, kDrop, &drop.spec, 0, &fallback),
      BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_mat_tbl_default_entry_reset(session, kDevice, 0, kHost, 0), BF_SUCCESS);
  EXPECT_EQ(heard,
            (std::vector<Update>{{session, kDevice, kHost, PIPE_UPDATE_ADD, entry},
                                 {session, kDevice, kHost, PIPE_UPDATE_MODIFY, entry},
                                 {session, kDevice, kHost, PIPE_UPDATE_DELETE, entry},
                                 {session, kDevice, kHost, PIPE_UPDATE_SET_DEFAULT, fallback},
                                 {session, kDevice, kHost, PIPE_UPDATE_RESET_DEFAULT, fallback}}));
  ASSERT_EQ(pipe_register_mat_update_cb(session, kDevice, kHost, nullptr, nullptr), BF_SUCCESS);
  ASSERT_EQ(add_host(2, &entry), BF_SUCCESS);
  EXPECT_EQ(heard.size(), 5u);
}

}  // namespace
