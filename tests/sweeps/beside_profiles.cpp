// Members and groups beside those of the model.
#include "beside.hpp"
#include "soft_contents.h"
#include "soft_sdk.h"

namespace pd_test {

void Beside::change_member() {
  ModelProfile &profile = dice.of(model.profiles);
  const uint32_t member = any_of(profile.members);
  const auto found = profile.members.find(member);
  const bool known = found != profile.members.end();
  const uint32_t what = dice.below(5);
  if (what > 2) return remove_member(profile, member);
  const pdgen::ProfileAction &pair = dice.of(profile.row->actions);
  if (what != 2) return add_member(profile, pair);
  const Bytes record = member_record(pair);
  p4_pd_status_t expected = BF_SUCCESS;
  if (!known) expected = BF_OBJECT_NOT_FOUND;
  if (known && found->second.pair != &pair) expected = P4_PD_MEMBER_KEEPS_ACTION;
  ASSERT_EQ(call("modify_member", profile.row->name, pair.action->name,
                 with("member", member, "action_spec", record.data())),
            expected);
  expect_update(expected, {profile.row->action_data_handle, PIPE_UPDATE_MODIFY, 0, member});
  if (expected == BF_SUCCESS) keep_member(profile, member, pair, record);
}

Bytes Beside::member_record(const pdgen::ProfileAction &pair) {
  Bytes record(record_of(*pair.action).size);
  for (uint8_t &byte : record) byte = static_cast<uint8_t>(dice());
  if (shows_all) cut_action(*pair.action, record.data());
  return record;
}

void Beside::add_member(ModelProfile &profile, const pdgen::ProfileAction &pair) {
  const Bytes record = member_record(pair);
  const bool full = profile.most_members != 0 && profile.members.size() >= profile.most_members;
  const p4_pd_status_t expected = full ? BF_TABLE_FULL : BF_SUCCESS;
  uint32_t member = 0xabcd;
  ASSERT_EQ(call("add_member", profile.row->name, pair.action->name,
                 with("member", &member, "action_spec", record.data())),
            expected);
  ASSERT_FALSE(!full && profile.members.contains(member));
  expect_update(expected, {profile.row->action_data_handle, PIPE_UPDATE_ADD, 0, member});
  if (!full) keep_member(profile, member, pair, record);
}

void Beside::keep_member(ModelProfile &profile, uint32_t member, const pdgen::ProfileAction &pair,
                         const Bytes &record) {
  profile.members[member] = {
      &pair, kept_action_spec(*pair.action, action_image(*pair.action, record.data()))};
  if (dice.one_in(4)) examine_member(profile, member);
}

void Beside::remove_member(ModelProfile &profile, uint32_t member) {
  const p4_pd_status_t expected = !profile.members.contains(member) ? BF_OBJECT_NOT_FOUND
                                  : model.uses(profile, PIPE_ACTION_MEMBER, member) != 0
                                      ? BF_IN_USE
                                      : BF_SUCCESS;
  ASSERT_EQ(status_of("del_member", profile.row->name, with("member", member)), expected);
  expect_update(expected, {profile.row->action_data_handle, PIPE_UPDATE_DELETE, 0, member});
  if (expected != BF_SUCCESS) return;
  profile.members.erase(member);
  gone.push_back(member);
}

// Of members or groups.
void Beside::change_limit() {
  if (no_profile()) return;
  ModelProfile &profile = dice.of(model.profiles);
  const bool of_members = dice.one_in(2);
  const uint32_t object =
      of_members ? profile.row->action_data_handle : profile.row->selector_handle;
  const uint32_t most = dice.below(30);
  note("soft_profile_capacity_set(" + std::to_string(device) + ", " + std::to_string(object) +
       ", " + std::to_string(most) + ")");
  ASSERT_EQ(soft_profile_capacity_set(device, object, most), BF_SUCCESS);
  (of_members ? profile.most_members : profile.most_groups) = most;
}

void Beside::change_group() {
  ModelProfile &profile = dice.of(model.profiles);
  const std::string &name = profile.row->name;
  const uint32_t selector = profile.row->selector_handle;
  if (dice.one_in(2)) {
    const uint32_t most = profile.most_groups, max_size = dice.below(5);
    const bool full = most != 0 && profile.groups.size() >= most;
    const p4_pd_status_t expected = full ? BF_TABLE_FULL : BF_SUCCESS;
    uint32_t group = 0xabcd;
    ASSERT_EQ(status_of("create_group", name, with("max_size", max_size, "group", &group)),
              expected);
    expect_update(expected, {selector, PIPE_UPDATE_GROUP_CREATE, group, 0});
    if (!full) profile.groups[group].max_size = max_size;
    return;
  }
  const uint32_t group = any_of(profile.groups);
  const p4_pd_status_t expected = !profile.groups.contains(group) ? BF_OBJECT_NOT_FOUND
                                  : model.uses(profile, PIPE_ACTION_GROUP, group) != 0 ? BF_IN_USE
                                                                                       : BF_SUCCESS;
  ASSERT_EQ(status_of("del_group", name, with("group", group)), expected);
  expect_update(expected, {selector, PIPE_UPDATE_GROUP_DELETE, group, 0});
  if (expected != BF_SUCCESS) return;
  profile.groups.erase(group);
  gone.push_back(group);
  for (auto &slot : profile.slots) {
    if (slot.first == group) slot = {};
  }
}

void Beside::change_membership() {
  ModelProfile &profile = dice.of(model.profiles);
  const uint32_t group = any_of(profile.groups);
  const auto found = profile.groups.find(group);
  ModelGroup *const held = found == profile.groups.end() ? nullptr : &found->second;
  const bool within = held != nullptr && !held->members.empty() && dice.one_in(2);
  const uint32_t member = within ? any_of(held->members) : any_of(profile.members);
  const bool joined = held != nullptr && held->members.contains(member);
  const uint32_t what = dice.below(5);
  if (what <= 1) return join(profile, group, member);
  if (what > 2) return set_state(profile, group, member, joined ? &held->members[member] : nullptr);
  const p4_pd_status_t expected = joined ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
  ASSERT_EQ(
      status_of("del_member_from_group", profile.row->name, with("group", group, "member", member)),
      expected);
  expect_update(expected, {profile.row->selector_handle, PIPE_UPDATE_MEMBER_LEAVE, group, member});
  if (!joined) return;
  held->members.erase(member);
  *std::ranges::find(profile.slots, std::pair(group, member)) = {};
}

void Beside::join(ModelProfile &profile, uint32_t group, uint32_t member) {
  const auto found = profile.groups.find(group);
  ModelGroup *const held = found == profile.groups.end() ? nullptr : &found->second;
  p4_pd_status_t expected = BF_OBJECT_NOT_FOUND;
  if (held != nullptr && profile.members.contains(member)) {
    const bool full = held->max_size != 0 && held->members.size() >= held->max_size;
    expected = held->members.contains(member) ? BF_ALREADY_EXISTS
               : full                         ? BF_TABLE_FULL
                                              : BF_SUCCESS;
  }
  ASSERT_EQ(
      status_of("add_member_to_group", profile.row->name, with("group", group, "member", member)),
      expected);
  expect_update(expected, {profile.row->selector_handle, PIPE_UPDATE_MEMBER_JOIN, group, member});
  if (expected != BF_SUCCESS) return;
  held->members[member] = true;
  held->action = profile.members.at(member).pair->handle;
  auto free = std::ranges::find(profile.slots, std::pair(0u, 0u));
  if (free == profile.slots.end()) free = profile.slots.insert(free, {0u, 0u});
  *free = {group, member};
}

// active: of the membership, null where there is none.
void Beside::set_state(const ModelProfile &profile, uint32_t group, uint32_t member, bool *active) {
  const uint32_t state = dice.below(dice.one_in(20) ? 3 : 2);
  const bool on = state == P4_PD_GRP_MBR_STATE_ACTIVE;
  const p4_pd_status_t known = active != nullptr ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
  const p4_pd_status_t expected = state == 2 ? P4_PD_MEMBER_STATE_REFUSED : known;
  ASSERT_EQ(status_of("group_member_state_set", profile.row->name,
                      with("group", group, "member", member, "state", state)),
            expected);
  // Nobody hears of a change that changes nothing.
  const bool changes = expected == BF_SUCCESS && *active != on;
  expect_update(changes ? BF_SUCCESS : BF_OBJECT_NOT_FOUND,
                {profile.row->selector_handle,
                 on ? PIPE_UPDATE_MEMBER_ENABLE : PIPE_UPDATE_MEMBER_DISABLE, group, member});
  if (expected == BF_SUCCESS) *active = on;
}

void Beside::change_fallback() {
  ModelProfile &profile = dice.of(model.profiles);
  const uint32_t member = any_of(profile.members);
  if (dice.one_in(3)) {
    ASSERT_EQ(status_of("reset_dynamic_action_selection_fallback_member", profile.row->name, {}),
              BF_SUCCESS);
    profile.fallback = 0;
    return;
  }
  const bool known = profile.members.contains(member);
  ASSERT_EQ(status_of("set_dynamic_action_selection_fallback_member", profile.row->name,
                      with("member", member)),
            known ? BF_SUCCESS : BF_OBJECT_NOT_FOUND);
  if (known) profile.fallback = member;
}

// ---- Comparison ----

void Beside::compare_member(const ModelMember &member, const Read &read) {
  Bytes specs(read.action_specs.size(), 0xee);
  std::memcpy(specs.data(), &member.pair->action->value, sizeof(uint32_t));
  std::ranges::copy(member.kept, &specs[binding().sizes.action_spec]);
  ASSERT_EQ(read.action_specs, specs);
}

void Beside::compare_members(const ModelProfile &profile) {
  const std::string &name = profile.row->name;
  Words expected;
  for (const auto &[member, held] : profile.members) {
    expected.push_back(member);
    compare_member(held, Read(*find_export("get_member", name), nullptr,
                              with("device", device, "member", member)));
  }
  ASSERT_EQ(walk(name, "member", kAll), expected);
  uint32_t count = 99, most[2];
  ASSERT_EQ(status_of("get_act_prof_entry_count", name, with("count", &count)), BF_SUCCESS);
  ASSERT_EQ(count, expected.size());
  const pdgen::Profile &row = *profile.row;
  ASSERT_EQ(soft_profile_capacity_get(device, row.action_data_handle, &most[0]), BF_SUCCESS);
  ASSERT_EQ(soft_profile_capacity_get(device, row.selector_handle, &most[1]), BF_SUCCESS);
  ASSERT_EQ(most[0], profile.most_members);
  ASSERT_EQ(most[1], profile.most_groups);
}

void Beside::compare_group(const ModelProfile &profile, uint32_t group, const ModelGroup &held) {
  const std::string &name = profile.row->name;
  const uint32_t selector = profile.row->selector_handle;
  uint32_t size = 99, max_size = 99, at = 0;
  ASSERT_EQ(
      status_of("get_selector_group_member_count", name, with("group", group, "count", &size)),
      BF_SUCCESS);
  ASSERT_EQ(soft_group_max_size(device, selector, group, &max_size), BF_SUCCESS);
  ASSERT_EQ(size, held.members.size());
  ASSERT_EQ(max_size, held.max_size);
  p4_pd_status_t status =
      status_of("get_first_group_member", name, with("group", group, "member", &at));
  for (const auto &[member, active] : held.members) {
    ASSERT_EQ(status, BF_SUCCESS);
    ASSERT_EQ(at, member);
    uint32_t state = 99;
    ASSERT_EQ(status_of("group_member_state_get", name,
                        with("group", group, "member", member, "state", &state)),
              BF_SUCCESS);
    ASSERT_EQ(state, active ? P4_PD_GRP_MBR_STATE_ACTIVE : P4_PD_GRP_MBR_STATE_INACTIVE);
    status = status_of("get_next_group_members", name,
                       with("group", group, "member", at, "count", 1, "members", &at));
  }
  ASSERT_EQ(status, BF_OBJECT_NOT_FOUND);
  const Bytes hash{static_cast<uint8_t>(group * 37 + held.members.size()), 0xb5};
  const uint32_t expected = profile.choose(group, hash);
  uint32_t chosen = 0;
  ASSERT_EQ(status_of("group_member_get_from_hash", name,
                      with("group", group, "hash", hash.data(), "hash_length", hash.size(),
                           "member", &chosen)),
            expected == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  ASSERT_EQ(chosen, expected);
}

void Beside::compare_groups(const ModelProfile &profile) {
  Words expected;
  for (const auto &[group, held] : profile.groups) {
    expected.push_back(group);
    compare_group(profile, group, held);
  }
  ASSERT_EQ(walk(profile.row->name, "group", kAll), expected);
  uint32_t count = 99, fallback = 0;
  ASSERT_EQ(status_of("get_selector_group_count", profile.row->name, with("count", &count)),
            BF_SUCCESS);
  ASSERT_EQ(count, expected.size());
  ASSERT_EQ(soft_fallback_member(device, profile.row->selector_handle, &fallback),
            profile.fallback == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  ASSERT_EQ(fallback, profile.fallback);
}

// Words of 32 slots with the active members.
void Beside::compare_slots(const ModelProfile &profile) {
  for (uint32_t word = 0; word <= profile.slots.size() / 32; ++word) {
    Words active;
    for (size_t i = word * 32; i < std::min<size_t>(profile.slots.size(), word * 32 + 32); ++i) {
      const auto &[group, member] = profile.slots[i];
      if (member != 0 && profile.groups.at(group).members.at(member)) active.push_back(member);
    }
    uint32_t count = 99;
    ASSERT_EQ(status_of("get_word_llp_active_member_count", profile.row->name,
                        with("word", word, "count", &count)),
              BF_SUCCESS);
    ASSERT_EQ(count, active.size());
    active.resize(33, 0xffffffff);
    Words read(33);
    ASSERT_EQ(status_of("get_word_llp_active_members", profile.row->name,
                        with("word", word, "count", 33, "members", read.data())),
              BF_SUCCESS);
    ASSERT_EQ(read, active);
  }
}

}  // namespace pd_test
