// Action profiles through the contract: members, groups, choice, references, callbacks.
#include "profile_program.hpp"

#include <algorithm>
#include <string>

namespace {

using namespace soft_test;
using Profiles = ProfileTest;
using Words = std::vector<uint32_t>;
constexpr uint32_t kNone = 0xffffffffu;

// ---- Members ----

TEST_F(Profiles, MemberReadsBackAsItWasSet) {
  const uint32_t member = new_member(0xbe);
  uint8_t bytes[4] = {0xcc, 0xcc, 0xcc, 0xcc};
  pipe_mgr_action_data_t data{0, 4, bytes};
  uint32_t action = 0;
  ASSERT_EQ(pipe_mgr_get_action_data_entry(kMembers, kDevice, member, &data, &action, false),
            BF_SUCCESS);
  EXPECT_EQ(action, kSend);
  EXPECT_EQ(data.valid_bit_count, 9);
  EXPECT_EQ(data.byte_count, 2);
  EXPECT_EQ(std::vector<uint8_t>(bytes, bytes + 4), (std::vector<uint8_t>{0x01, 0xbe, 0xcc, 0xcc}));

  Action flood;
  flood.spec.type = 0;
  ASSERT_EQ(pipe_mgr_adt_ent_set(session, kDevice, kMembers, member, kFlood, &flood.spec, 0),
            BF_SUCCESS);
  data = {77, 4, bytes};
  ASSERT_EQ(pipe_mgr_get_action_data_entry(kMembers, kDevice, member, &data, &action, true),
            BF_SUCCESS);
  EXPECT_EQ(action, kFlood);
  EXPECT_EQ(data.byte_count, 0);
  EXPECT_EQ(data.valid_bit_count, 0);

  Action send(9, {0x00, 0x05});
  ASSERT_EQ(pipe_mgr_adt_ent_set(session, kDevice, kMembers, member, kSend, &send.spec, 0),
            BF_SUCCESS);
  data = {77, 1, bytes};
  EXPECT_EQ(pipe_mgr_get_action_data_entry(kMembers, kDevice, member, &data, &action, false),
            BF_WRONG_LENGTH);
  EXPECT_EQ(action, kFlood) << "nothing is written without room";
  ASSERT_EQ(del_member(member), BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_get_action_data_entry(kMembers, kDevice, member, &data, &action, false),
            BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(del_member(member), BF_OBJECT_NOT_FOUND);
}

TEST_F(Profiles, RefusesMembersThatTheProgramDoesNotDeclare) {
  struct Case {
    const char *why;
    uint32_t action;
    uint16_t bits;
    std::vector<uint8_t> bytes;
    uint32_t type;
    uint32_t resources;
    bf_status_t status;
  };
  const Case cases[] = {
      {"action of a table", kDeny, 0, {}, 0, 0, BF_FOREIGN_ACTION},
      {"a byte short", kSend, 9, {0x01}, 0, 0, BF_WRONG_LENGTH},
      {"a byte long", kSend, 9, {0x01, 0x02, 0x03}, 0, 0, BF_WRONG_LENGTH},
      {"bits of another action", kSend, 10, {0x01, 0x02}, 0, 0, BF_WRONG_LENGTH},
      {"data for none", kFlood, 9, {0x01, 0x02}, 0, 0, BF_WRONG_LENGTH},
      {"naming a member", kSend, 9, {0x01, 0x02}, PIPE_ACTION_MEMBER, 0, BF_INVALID_ARGUMENT},
      {"resources", kSend, 9, {0x01, 0x02}, 0, 1, BF_INVALID_ARGUMENT},
  };
  const uint32_t there = new_member(1);
  for (const Case &one : cases) {
    Action action(one.bits, one.bytes);
    action.spec.type = one.type;
    action.spec.resource_count = one.resources;
    uint32_t member = 0;
    EXPECT_EQ(
        pipe_mgr_adt_ent_add(session, kDevice, 0, kMembers, one.action, &action.spec, &member, 0),
        one.status)
        << one.why;
    EXPECT_EQ(pipe_mgr_adt_ent_set(session, kDevice, kMembers, there, one.action, &action.spec, 0),
              one.status)
        << one.why;
    EXPECT_EQ(member, 0u);
  }
  Action send(9, {0x01, 0x02});
  send.spec.data.bytes = nullptr;
  EXPECT_EQ(pipe_mgr_adt_ent_set(session, kDevice, kMembers, there, kSend, &send.spec, 0),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_adt_ent_set(session, kDevice, kMembers, there, kSend, nullptr, 0),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(count(kMembers), 1u);
}

TEST_F(Profiles, CapacityLimitsMembersAndGroups) {
  ASSERT_EQ(soft_profile_capacity_set(kDevice, kMembers, 2), BF_SUCCESS);
  ASSERT_EQ(soft_profile_capacity_set(kDevice, kSelector, 1), BF_SUCCESS);
  const uint32_t first = new_member(1);
  new_member(2);
  uint32_t handle = 0;
  EXPECT_EQ(add_member(3, &handle), BF_TABLE_FULL);
  ASSERT_EQ(del_member(first), BF_SUCCESS);
  EXPECT_EQ(add_member(3, &handle), BF_SUCCESS);
  EXPECT_NE(handle, first) << "the handle of a removed member does not come back at once";
  new_group(0);
  EXPECT_EQ(pipe_mgr_sel_grp_add(session, kDevice, 0, kSelector, 0, &handle, 0), BF_TABLE_FULL);
  uint32_t capacity = 0;
  ASSERT_EQ(soft_profile_capacity_get(kDevice, kMembers, &capacity), BF_SUCCESS);
  EXPECT_EQ(capacity, 2u);
  EXPECT_EQ(soft_profile_capacity_get(kDevice, kLag, &capacity), BF_INVALID_HANDLE);
}

// ---- Groups ----

TEST_F(Profiles, MembershipHasRules) {
  const uint32_t group = new_group(2);
  const uint32_t a = new_member(1), b = new_member(2), c = new_member(3);
  EXPECT_EQ(join(group, a, kDeny), BF_FOREIGN_ACTION);
  EXPECT_EQ(join(group, a, kFlood), BF_INVALID_ARGUMENT) << "not the action of the member";
  EXPECT_EQ(join(group + 1, a), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(join(group, c + 1), BF_OBJECT_NOT_FOUND);
  ASSERT_EQ(join(group, a), BF_SUCCESS);
  EXPECT_EQ(join(group, a), BF_ALREADY_EXISTS);
  ASSERT_EQ(join(group, b), BF_SUCCESS);
  EXPECT_EQ(join(group, a), BF_ALREADY_EXISTS) << "also when the group is full";
  EXPECT_EQ(join(group, c), BF_TABLE_FULL);
  EXPECT_EQ(leave(group, c), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(disable(group, c), BF_OBJECT_NOT_FOUND);
  ASSERT_EQ(leave(group, a), BF_SUCCESS);
  EXPECT_EQ(join(group, c), BF_SUCCESS);
  uint32_t held = 0;
  ASSERT_EQ(pipe_mgr_get_sel_grp_mbr_count(session, kDevice, kSelector, group, &held), BF_SUCCESS);
  EXPECT_EQ(held, 2u);

  uint32_t state = 99;
  const auto get = [&](uint32_t member) {
    return pipe_mgr_sel_grp_mbr_state_get(session, kDevice, kSelector, group, member, &state);
  };
  ASSERT_EQ(get(b), BF_SUCCESS);
  EXPECT_EQ(state, uint32_t{PIPE_MEMBER_ACTIVE});
  ASSERT_EQ(disable(group, b), BF_SUCCESS);
  ASSERT_EQ(get(b), BF_SUCCESS);
  EXPECT_EQ(state, uint32_t{PIPE_MEMBER_INACTIVE});
  EXPECT_EQ(get(a), BF_OBJECT_NOT_FOUND);
  ASSERT_EQ(leave(group, b), BF_SUCCESS);
  ASSERT_EQ(join(group, b), BF_SUCCESS);
  ASSERT_EQ(get(b), BF_SUCCESS);
  EXPECT_EQ(state, uint32_t{PIPE_MEMBER_ACTIVE}) << "a member joins active";
}

TEST_F(Profiles, WhatIsReferredToStays) {
  const uint32_t a = new_member(1), b = new_member(2);
  const uint32_t group = new_group(0), other = new_group(0);
  ASSERT_EQ(join(group, a), BF_SUCCESS);
  ASSERT_EQ(join(other, a), BF_SUCCESS);
  EXPECT_EQ(del_member(a), BF_IN_USE);
  ASSERT_EQ(leave(group, a), BF_SUCCESS);
  EXPECT_EQ(del_member(a), BF_IN_USE) << "in another group";
  ASSERT_EQ(del_group(other), BF_SUCCESS) << "members do not keep a group";
  EXPECT_EQ(del_member(a), BF_SUCCESS);

  uint32_t entry = 0;
  ASSERT_EQ(add_lag(1, PIPE_ACTION_MEMBER, b, &entry), BF_SUCCESS);
  EXPECT_EQ(del_member(b), BF_IN_USE);
  pipe_mgr_action_spec_t spec = naming(PIPE_ACTION_GROUP, group);
  ASSERT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kLag, entry, kSend, &spec, 0),
            BF_SUCCESS);
  EXPECT_EQ(del_group(group), BF_IN_USE);
  EXPECT_EQ(del_member(b), BF_SUCCESS) << "the entry names the group now";
  EXPECT_EQ(add_lag(1, PIPE_ACTION_GROUP, group, &entry), BF_ALREADY_EXISTS);
  ASSERT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kLag, entry, 0), BF_SUCCESS);
  EXPECT_EQ(del_group(group), BF_SUCCESS) << "the refused entry took no reference";
}

// ---- Choice ----

TEST_F(Profiles, HashChoosesAmongActiveMembers) {
  const uint32_t group = new_group(0);
  Words members;
  for (uint8_t port = 0; port < 7; ++port) members.push_back(new_member(port));
  for (auto it = members.rbegin(); it != members.rend(); ++it) {
    ASSERT_EQ(join(group, *it), BF_SUCCESS);
  }
  const auto choose = [&](std::vector<uint8_t> hash) {
    uint32_t member = 0;
    EXPECT_EQ(pipe_mgr_sel_grp_mbr_get_from_hash(session, kDevice, kSelector, group, hash.data(),
                                                 static_cast<uint32_t>(hash.size()), &member),
              BF_SUCCESS);
    return static_cast<size_t>(std::ranges::find(members, member) - members.begin());
  };
  EXPECT_EQ(choose({0}), 0u);
  EXPECT_EQ(choose({6}), 6u);
  EXPECT_EQ(choose({7}), 0u);
  EXPECT_EQ(choose({0x01, 0x00}), 4u) << "256 is 4 modulo 7";
  std::vector<uint8_t> wide(17, 0);
  wide[0] = 1;
  EXPECT_EQ(choose(wide), 4u) << "2 to the 128 is 4 modulo 7";
  ASSERT_EQ(disable(group, members[0]), BF_SUCCESS);
  ASSERT_EQ(disable(group, members[4]), BF_SUCCESS);
  EXPECT_EQ(choose({0}), 1u);
  EXPECT_EQ(choose({3}), 5u) << "of 1, 2, 3, 5, 6";
  ASSERT_EQ(enable(group, members[4]), BF_SUCCESS);
  EXPECT_EQ(choose({3}), 4u);
}

TEST_F(Profiles, FallbackStandsInForAGroupWithoutActiveMembers) {
  const uint32_t group = new_group(0);
  const uint32_t member = new_member(1), spare = new_member(2), second = new_member(3);
  const uint8_t hash[] = {5};
  uint32_t chosen = 0;
  const auto choose = [&] {
    return pipe_mgr_sel_grp_mbr_get_from_hash(session, kDevice, kSelector, group, hash, 1, &chosen);
  };
  const auto set = [&](uint32_t fallback) {
    return pipe_mgr_sel_fallback_mbr_set(session, kDevice, BF_ALL_PIPES, kSelector, fallback, 0);
  };
  EXPECT_EQ(choose(), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(set(second + 1), BF_OBJECT_NOT_FOUND);
  ASSERT_EQ(set(spare), BF_SUCCESS);
  ASSERT_EQ(choose(), BF_SUCCESS);
  EXPECT_EQ(chosen, spare);
  ASSERT_EQ(join(group, member), BF_SUCCESS);
  ASSERT_EQ(choose(), BF_SUCCESS);
  EXPECT_EQ(chosen, member);
  ASSERT_EQ(disable(group, member), BF_SUCCESS);
  ASSERT_EQ(choose(), BF_SUCCESS);
  EXPECT_EQ(chosen, spare);
  EXPECT_EQ(del_member(spare), BF_IN_USE);
  ASSERT_EQ(set(second), BF_SUCCESS);
  EXPECT_EQ(del_member(spare), BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_sel_fallback_mbr_reset(session, kDevice, 0, kSelector, 0), BF_SUCCESS);
  EXPECT_EQ(del_member(second), BF_SUCCESS);
  EXPECT_EQ(choose(), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(
      pipe_mgr_sel_grp_mbr_get_from_hash(session, kDevice, kSelector, group, hash, 0, &chosen),
      BF_WRONG_LENGTH);
}

TEST_F(Profiles, WordsOf32SlotsHoldTheActiveMembers) {
  const uint32_t group = new_group(0), other = new_group(0);
  Words members;
  for (uint8_t port = 0; port < 33; ++port) members.push_back(new_member(port));
  for (const uint32_t member : members) ASSERT_EQ(join(group, member), BF_SUCCESS);
  ASSERT_EQ(join(other, members[0]), BF_SUCCESS);
  const auto in_word = [&](uint32_t word) {
    uint32_t active = 99;
    EXPECT_EQ(
        pipe_mgr_get_word_llp_active_member_count(session, kDevice, 0, kSelector, word, &active),
        BF_SUCCESS);
    return active;
  };
  EXPECT_EQ(in_word(0), 32u);
  EXPECT_EQ(in_word(1), 2u);
  EXPECT_EQ(in_word(2), 0u);
  EXPECT_EQ(in_word(0xffffffff), 0u);
  Words listed(3, 0);
  ASSERT_EQ(
      pipe_mgr_get_word_llp_active_members(session, kDevice, 0, kSelector, 1, 3, listed.data()),
      BF_SUCCESS);
  EXPECT_EQ(listed, (Words{members[32], members[0], kNone}));
  ASSERT_EQ(disable(group, members[32]), BF_SUCCESS);
  EXPECT_EQ(in_word(1), 1u);
  ASSERT_EQ(leave(group, members[5]), BF_SUCCESS);
  EXPECT_EQ(in_word(0), 31u);
  ASSERT_EQ(join(other, members[6]), BF_SUCCESS);
  EXPECT_EQ(in_word(0), 32u) << "the lowest free slot was taken";
  ASSERT_EQ(del_group(group), BF_SUCCESS);
  EXPECT_EQ(in_word(0) + in_word(1), 2u);
}

// ---- Walks ----

TEST_F(Profiles, WalksHoldWhileMembersAndGroupsComeAndGo) {
  Words members;
  for (uint8_t port = 0; port < 5; ++port) members.push_back(new_member(port));
  uint32_t first = 0;
  ASSERT_EQ(pipe_mgr_get_first_entry_handle(session, kMembers, kDevice, 0, &first), BF_SUCCESS);
  EXPECT_EQ(first, members[0]);
  ASSERT_EQ(del_member(members[1]), BF_SUCCESS);
  ASSERT_EQ(del_member(members[3]), BF_SUCCESS);
  Words next(4, 0);
  const auto walk = [&](uint32_t table, uint32_t from) {
    return pipe_mgr_get_next_entry_handles(session, table, kDevice, 0, from, 4, next.data());
  };
  ASSERT_EQ(walk(kMembers, members[1]), BF_SUCCESS) << "from the place of one that is gone";
  EXPECT_EQ(next, (Words{members[2], members[4], kNone, kNone}));
  EXPECT_EQ(walk(kMembers, members[4]), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(walk(kSelector, 1), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(pipe_mgr_get_first_entry_handle(session, kSelector, kDevice, 0, &first),
            BF_OBJECT_NOT_FOUND);
  const uint32_t group = new_group(0), other = new_group(0);
  ASSERT_EQ(walk(kSelector, group), BF_SUCCESS);
  EXPECT_EQ(next, (Words{other, kNone, kNone, kNone}));

  const auto walk_group = [&](uint32_t from) {
    return pipe_mgr_get_next_group_members(session, kSelector, kDevice, group, from, 4,
                                           next.data());
  };
  EXPECT_EQ(pipe_mgr_get_first_group_member(session, kSelector, kDevice, group, &first),
            BF_OBJECT_NOT_FOUND);
  for (uint32_t member : {members[4], members[0], members[2]}) {
    ASSERT_EQ(join(group, member), BF_SUCCESS);
  }
  ASSERT_EQ(pipe_mgr_get_first_group_member(session, kSelector, kDevice, group, &first),
            BF_SUCCESS);
  EXPECT_EQ(first, members[0]);
  ASSERT_EQ(leave(group, members[0]), BF_SUCCESS);
  ASSERT_EQ(walk_group(members[0]), BF_SUCCESS);
  EXPECT_EQ(next, (Words{members[2], members[4], kNone, kNone}));
  EXPECT_EQ(walk_group(members[4]), BF_OBJECT_NOT_FOUND);
}

// ---- Callbacks ----

using Log = std::vector<std::string>;

void note_group(uint32_t session, uint32_t device, uint32_t selector, uint32_t update,
                uint32_t group, uint32_t member, void *cookie) {
  EXPECT_NE(session, 0u);
  EXPECT_EQ(device, 5u);
  EXPECT_EQ(selector, kSelector);
  uint32_t groups = 0;  // a callback may call
  EXPECT_EQ(pipe_mgr_get_entry_count(session, device, 0, selector, 0, &groups), BF_SUCCESS);
  static_cast<Log *>(cookie)->push_back(std::to_string(update) + " " + std::to_string(group) + " " +
                                        std::to_string(member) + " of " + std::to_string(groups));
}

void note_member(uint32_t, uint32_t, uint32_t table, uint32_t update, uint32_t member,
                 void *cookie) {
  EXPECT_EQ(table, kMembers);
  static_cast<Log *>(cookie)->push_back(std::to_string(update) + " " + std::to_string(member));
}

TEST_F(Profiles, ListenersHearOfEveryUpdate) {
  Log owner, further, of_members;
  ASSERT_EQ(pipe_mgr_sel_tbl_register_cb(0, kDevice, kSelector, note_group, &owner), BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_sel_tbl_register_cb(session + 1, kDevice, kSelector, note_group, &owner),
            BF_INVALID_SESSION);
  ASSERT_EQ(pipe_register_sel_update_cb(session, kDevice, kSelector, note_group, &further),
            BF_SUCCESS);
  ASSERT_EQ(pipe_register_adt_update_cb(session, kDevice, kMembers, note_member, &of_members),
            BF_SUCCESS);
  const std::string m = std::to_string(new_member(1));
  const uint32_t member = static_cast<uint32_t>(std::stoul(m));
  const uint32_t group = new_group(1);
  const std::string g = std::to_string(group);
  join(group, member);
  join(group, member);
  enable(group, member);
  disable(group, member);
  enable(group, member);
  leave(group, member);
  del_group(group);
  Action send(9, {0, 9});
  pipe_mgr_adt_ent_set(session, kDevice, kMembers, member, kSend, &send.spec, 0);
  del_member(member);
  const Log expected{"5 " + g + " 0 of 1",          "7 " + g + " " + m + " of 1",
                     "10 " + g + " " + m + " of 1", "9 " + g + " " + m + " of 1",
                     "8 " + g + " " + m + " of 1",  "6 " + g + " 0 of 0"};
  EXPECT_EQ(owner, expected) << "refused calls and those that change nothing are not told";
  EXPECT_EQ(further, expected);
  EXPECT_EQ(of_members, (Log{"0 " + m, "1 " + m, "2 " + m}));
  ASSERT_EQ(pipe_mgr_sel_tbl_register_cb(session, kDevice, kSelector, nullptr, nullptr),
            BF_SUCCESS);
  del_group(new_group(0));
  EXPECT_EQ(owner.size(), 6u);
  EXPECT_EQ(further.size(), 8u);
}

}  // namespace
