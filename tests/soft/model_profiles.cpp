// Members and groups beside those of the model.
#include "model_calls.hpp"

namespace soft_test {

uint32_t Beside::any_member(uint32_t table) {
  const auto &members = model.profiles[table];
  if (members.empty() || random.one_in(20)) return random.of(gone);
  return std::next(members.begin(), random.below(static_cast<uint32_t>(members.size())))->first;
}

uint32_t Beside::any_group() {
  if (model.groups.empty() || random.one_in(20)) return random.of(gone);
  const auto size = static_cast<uint32_t>(model.groups.size());
  return std::next(model.groups.begin(), random.below(size))->first;
}

void Beside::change_member() {
  const uint32_t table = random.one_in(4) ? kPorts : kMembers;
  auto &members = model.profiles[table];
  Wanted wanted = random_action(model.tables[kHost]);
  wanted.spec.resource_count = random.one_in(20) ? 1 : 0;
  wanted.spec.type = random.one_in(20) ? uint32_t{PIPE_ACTION_MEMBER} : random.below(2);
  wanted.action = random.one_in(20)                       ? kDeny
                  : wanted.spec.data.valid_bit_count == 0 ? kFlood
                                                          : kSend;
  const size_t bytes = wanted.action == kSend ? 2 : 0;
  bf_status_t expected = wanted.data.size() == bytes ? BF_SUCCESS : BF_WRONG_LENGTH;
  if (wanted.spec.resource_count != 0 || wanted.spec.type > 1) expected = BF_INVALID_ARGUMENT;
  if (wanted.action == kDeny) expected = BF_FOREIGN_ACTION;
  uint32_t member = any_member(table);
  const uint32_t what = random.below(5);
  if (what <= 1) {
    const uint32_t capacity = model.capacity[table];
    const bool full = capacity != 0 && members.size() >= capacity;
    if (expected == BF_SUCCESS && full) expected = BF_TABLE_FULL;
    member = 0xabcd;
    ASSERT_EQ(
        pipe_mgr_adt_ent_add(session, device, kAll, table, wanted.action, &wanted.spec, &member, 0),
        expected);
    expect_update(expected, {table, PIPE_UPDATE_ADD, 0, member});
    ASSERT_TRUE(expected != BF_SUCCESS || !members.contains(member));
  } else if (what == 2) {
    if (expected == BF_SUCCESS && !members.contains(member)) expected = BF_OBJECT_NOT_FOUND;
    // A membership is of the action that the member had when it joined.
    ASSERT_EQ(pipe_mgr_adt_ent_set(session, device, table, member, wanted.action, &wanted.spec, 0),
              expected);
    expect_update(expected, {table, PIPE_UPDATE_MODIFY, 0, member});
  } else {
    expected = !members.contains(member)                            ? BF_OBJECT_NOT_FOUND
               : model.uses(PIPE_ACTION_MEMBER, table, member) != 0 ? BF_IN_USE
                                                                    : BF_SUCCESS;
    ASSERT_EQ(pipe_mgr_adt_ent_del(session, device, table, member, 0), expected);
    expect_update(expected, {table, PIPE_UPDATE_DELETE, 0, member});
    if (expected == BF_SUCCESS) members.erase(member), gone.push_back(member);
    return;
  }
  if (expected == BF_SUCCESS) members[member] = {wanted.action, wanted.data};
}

void Beside::change_group() {
  if (random.one_in(6)) {
    static const Words profiles{kMembers, kPorts, kSelector};
    const uint32_t profile = random.of(profiles);
    uint32_t read = 99;
    OK(soft_profile_capacity_set(device, profile, model.capacity[profile] = random.below(40)));
    OK(soft_profile_capacity_get(device, profile, &read));
    ASSERT_EQ(read, model.capacity[profile]);
    return;
  }
  if (random.one_in(2)) {
    const uint32_t capacity = model.capacity[kSelector], max_size = random.below(5);
    const bool full = capacity != 0 && model.groups.size() >= capacity;
    const bf_status_t expected = full ? BF_TABLE_FULL : BF_SUCCESS;
    uint32_t group = 0xabcd;
    ASSERT_EQ(pipe_mgr_sel_grp_add(session, device, kAll, kSelector, max_size, &group, 0),
              expected);
    expect_update(expected, {kSelector, PIPE_UPDATE_GROUP_CREATE, group, 0});
    if (!full) model.groups[group].max_size = max_size;
    return;
  }
  const uint32_t group = any_group();
  const bf_status_t expected = !model.groups.contains(group) ? BF_OBJECT_NOT_FOUND
                               : model.uses(PIPE_ACTION_GROUP, kMembers, group) != 0 ? BF_IN_USE
                                                                                     : BF_SUCCESS;
  ASSERT_EQ(pipe_mgr_sel_grp_del(session, device, kSelector, group, 0), expected);
  expect_update(expected, {kSelector, PIPE_UPDATE_GROUP_DELETE, group, 0});
  if (expected != BF_SUCCESS) return;
  model.groups.erase(group);
  gone.push_back(group);
  for (ModelSlot &slot : model.slots) {
    if (slot.first == group) slot = {};
  }
}

void Beside::join(uint32_t group, uint32_t member) {
  const auto found = model.groups.find(group);
  bf_status_t expected = BF_OBJECT_NOT_FOUND;
  const uint32_t action = random.one_in(20) ? kDeny : random.one_in(5) ? kFlood : kSend;
  const bool known = model.profiles[kMembers].contains(member);
  if (found != model.groups.end()) {
    const ModelGroup &held = found->second;
    const bool joined = held.members.contains(member);
    expected = action == kDeny                                              ? BF_FOREIGN_ACTION
               : joined                                                     ? BF_ALREADY_EXISTS
               : held.max_size != 0 && held.members.size() >= held.max_size ? BF_TABLE_FULL
               : !known                                                     ? BF_OBJECT_NOT_FOUND
               : model.profiles[kMembers][member].action != action          ? BF_INVALID_ARGUMENT
                                                                            : BF_SUCCESS;
  }
  ASSERT_EQ(pipe_mgr_sel_grp_mbr_add(session, device, kSelector, group, action, member, 0),
            expected);
  expect_update(expected, {kSelector, PIPE_UPDATE_MEMBER_JOIN, group, member});
  if (expected != BF_SUCCESS) return;
  found->second.members[member] = true;
  auto free = std::ranges::find(model.slots, ModelSlot{});
  if (free == model.slots.end()) free = model.slots.insert(free, ModelSlot{});
  *free = {group, member};
}

void Beside::change_membership() {
  const uint32_t group = any_group(), member = any_member(kMembers);
  const auto found = model.groups.find(group);
  const bool joined = found != model.groups.end() && found->second.members.contains(member);
  bf_status_t expected = joined ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
  const uint32_t what = random.below(5);
  if (what <= 1) return join(group, member);
  if (what == 2) {
    ASSERT_EQ(pipe_mgr_sel_grp_mbr_del(session, device, kSelector, group, member, 0), expected);
    expect_update(expected, {kSelector, PIPE_UPDATE_MEMBER_LEAVE, group, member});
    if (expected != BF_SUCCESS) return;
    found->second.members.erase(member);
    *std::ranges::find(model.slots, ModelSlot{group, member}) = {};
  } else {
    const bool on = what == 3, was = joined && found->second.members[member];
    ASSERT_EQ((on ? pipe_mgr_sel_grp_mbr_enable : pipe_mgr_sel_grp_mbr_disable)(
                  session, device, kSelector, group, member, 0),
              expected);
    const uint32_t update = on ? PIPE_UPDATE_MEMBER_ENABLE : PIPE_UPDATE_MEMBER_DISABLE;
    // Nobody hears of a change that changes nothing.
    expect_update(joined && was != on ? BF_SUCCESS : BF_OBJECT_NOT_FOUND,
                  {kSelector, update, group, member});
    if (joined) found->second.members[member] = on;
  }
}

void Beside::change_fallback() {
  if (random.one_in(3)) {
    OK(pipe_mgr_sel_fallback_mbr_reset(session, device, kAll, kSelector, 0));
    model.fallback = 0;
    return;
  }
  const uint32_t member = any_member(kMembers);
  const bool known = model.profiles[kMembers].contains(member);
  ASSERT_EQ(pipe_mgr_sel_fallback_mbr_set(session, device, kAll, kSelector, member, 0),
            known ? BF_SUCCESS : BF_OBJECT_NOT_FOUND);
  if (known) model.fallback = member;
}

namespace {

void compare_member(const ModelMember &member, const Room &room) {
  EXPECT_EQ(room.word[0], member.action);
  EXPECT_EQ(Bytes(room.data.bytes, room.data.bytes + room.data.byte_count), member.data);
  EXPECT_EQ(room.data.valid_bit_count, member.data.empty() ? 0 : 9);
  EXPECT_EQ(room.data.bytes[member.data.size()], 0xa5) << "written behind the data";
}

}  // namespace

void Beside::compare_profiles() {
  for (const uint32_t table : {kMembers, kPorts}) {
    Words expected;
    for (const auto &[member, held] : model.profiles[table]) {
      expected.push_back(member);
      Room room;
      room.clear();
      OK(pipe_mgr_get_action_data_entry(table, device, member, &room.data, room.word, false));
      compare_member(held, room);
      room.clear();
      OK(soft_placement_of_member(device, table, member, &placed));
      OK(pipe_mgr_plcmt_adt_data_get_entry(placed, &room.data, room.word));
      compare_member(held, room);
    }
    ASSERT_EQ(walk(table, kAll), expected);
  }
  compare_groups();
  compare_slots();
}

void Beside::compare_groups() {
  Words expected;
  for (const auto &[group, held] : model.groups) {
    expected.push_back(group);
    uint32_t size = 99, max_size = 99, at = 0;
    OK(pipe_mgr_get_sel_grp_mbr_count(session, device, kSelector, group, &size));
    OK(soft_group_max_size(device, kSelector, group, &max_size));
    ASSERT_EQ(size, held.members.size());
    ASSERT_EQ(max_size, held.max_size);
    bf_status_t status = pipe_mgr_get_first_group_member(session, kSelector, device, group, &at);
    for (const auto &[member, active] : held.members) {
      ASSERT_EQ(status, BF_SUCCESS);
      ASSERT_EQ(at, member);
      uint32_t state = 99;
      OK(pipe_mgr_sel_grp_mbr_state_get(session, device, kSelector, group, member, &state));
      ASSERT_EQ(state, uint32_t{active ? PIPE_MEMBER_ACTIVE : PIPE_MEMBER_INACTIVE});
      status = pipe_mgr_get_next_group_members(session, kSelector, device, group, at, 1, &at);
    }
    ASSERT_EQ(status, BF_OBJECT_NOT_FOUND);
    const Bytes hash{static_cast<uint8_t>(random()), static_cast<uint8_t>(random())};
    uint32_t chosen = 0;
    status = pipe_mgr_sel_grp_mbr_get_from_hash(session, device, kSelector, group, hash.data(), 2,
                                                &chosen);
    ASSERT_EQ(chosen, model.choose(group, hash));
    ASSERT_EQ(status, chosen == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  }
  ASSERT_EQ(walk(kSelector, kAll), expected);
  uint32_t fallback = 0;
  ASSERT_EQ(soft_fallback_member(device, kSelector, &fallback),
            model.fallback == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  ASSERT_EQ(fallback, model.fallback);
}

void Beside::compare_slots() {
  for (uint32_t word = 0; word <= model.slots.size() / 32; ++word) {
    Words active;
    for (size_t i = word * 32; i < std::min<size_t>(model.slots.size(), word * 32 + 32); ++i) {
      const auto &[group, member] = model.slots[i];
      if (member != 0 && model.groups.at(group).members.at(member)) active.push_back(member);
    }
    uint32_t count = 99;
    OK(pipe_mgr_get_word_llp_active_member_count(session, device, kAll, kSelector, word, &count));
    ASSERT_EQ(count, active.size());
    active.resize(33, kNone);
    Words read(33);
    OK(pipe_mgr_get_word_llp_active_members(session, device, kAll, kSelector, word, 33,
                                            read.data()));
    ASSERT_EQ(read, active);
  }
}

}  // namespace soft_test
