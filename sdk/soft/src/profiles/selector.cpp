#include "profiles/selector.hpp"

#include <algorithm>

namespace soft {
namespace {

// No status of the contract: the call succeeds and nobody is notified.
constexpr bf_status_t kUnchanged = 0xffffffff;

// A profile's two objects come together, because the selector refers to the members.
void add_profiles(Device &device) {
  const soft_program_t &program = device.program();
  for (const soft_profile_t &profile : described(program.profiles, program.profile_count)) {
    auto members = std::make_unique<ActionDataTable>(device, profile);
    ActionDataTable &of_selector = *members;
    device.add(std::move(members));
    if (profile.selector == 0) continue;
    device.add(std::make_unique<Selector>(device, profile, of_selector));
  }
}

const EngineSet profiles{EngineOrder::kSelectors, add_profiles};

}  // namespace

Selector::Selector(const Device &device, const soft_profile_t &profile, ActionDataTable &members)
    : Engine(profile.selector, device.id(), kPointer + sizeof(Group *)),
      members_(members),
      slots_(&memory_) {
  capacity_ = profile.most_groups;
}

Selector::~Selector() {
  records_.each_live([this](uint32_t slot) { drop(slot); });
}

Selector::Group *Selector::group_at(uint32_t slot) {
  return load<Group *>(records_.at(slot) + kPointer);
}

Selector::Group *Selector::group_of(pipe_group_handle_t group) {
  return records_.knows(group) ? group_at(SlotStore::slot_of(group)) : nullptr;
}

Selector::Membership *Selector::membership_of(Group &group, pipe_member_handle_t member) {
  const auto at = std::ranges::lower_bound(group.members, member, {}, &Membership::member);
  return at == group.members.end() || at->member != member ? nullptr : &*at;
}

Selector::Place Selector::find(pipe_group_handle_t handle, pipe_member_handle_t member) {
  Group *group = group_of(handle);
  return {group, group == nullptr ? nullptr : membership_of(*group, member)};
}

void Selector::drop(uint32_t slot) {
  std::pmr::polymorphic_allocator<>(&memory_).delete_object(group_at(slot));
}

template <class Body>
bf_status_t Selector::update(pipe_session_handle_t session, uint32_t what,
                             const pipe_group_handle_t &group, pipe_member_handle_t member,
                             Body body) {
  return change_and_notify(mutex_, listeners_, body, session, device_, handle(), what, group,
                           member);
}

template <class Body>
bf_status_t Selector::on_group(pipe_group_handle_t group, Body body) {
  const std::lock_guard lock(mutex_);
  Group *found = group_of(group);
  if (found == nullptr) return BF_OBJECT_NOT_FOUND;
  body(*found);
  return BF_SUCCESS;
}

// ---- Groups ----

bf_status_t Selector::add(pipe_session_handle_t session, uint32_t max_size,
                          pipe_group_handle_t *group) {
  return update(session, PIPE_UPDATE_GROUP_CREATE, *group, 0, [&]() -> bf_status_t {
    if (is_full()) return BF_TABLE_FULL;
    records_.reserve();
    std::pmr::polymorphic_allocator<> allocator(&memory_);
    Group *added = allocator.new_object<Group>(max_size, &memory_);
    const uint32_t slot = records_.take();
    store(records_.at(slot) + kPointer, added);
    *group = records_.handle_of(slot);
    return BF_SUCCESS;
  });
}

bf_status_t Selector::remove(pipe_session_handle_t session, pipe_group_handle_t group) {
  return update(session, PIPE_UPDATE_GROUP_DELETE, group, 0, [&]() -> bf_status_t {
    const Group *removed = group_of(group);
    if (removed == nullptr) return BF_OBJECT_NOT_FOUND;
    if (removed->uses != 0) return BF_IN_USE;
    for (const Membership &membership : removed->members) {
      slots_.release(membership.slot);
      members_.release(membership.member);
    }
    drop(SlotStore::slot_of(group));
    records_.release(SlotStore::slot_of(group));
    if (records_.count() == 0) slots_.shrink();
    return BF_SUCCESS;
  });
}

bf_status_t Selector::acquire(uint32_t group) {
  return on_group(group, [](Group &used) { ++used.uses; });
}

void Selector::release(uint32_t group) {
  on_group(group, [](Group &used) { --used.uses; });
}

// ---- Memberships ----

bf_status_t Selector::join(pipe_session_handle_t session, pipe_group_handle_t group,
                           pipe_object_handle_t action, pipe_member_handle_t member) {
  return update(session, PIPE_UPDATE_MEMBER_JOIN, group, member,
                [&] { return begin_membership(group, action, member); });
}

// What may run out of memory comes first, then what may be refused.
bf_status_t Selector::begin_membership(pipe_group_handle_t group_handle,
                                       pipe_object_handle_t action, pipe_member_handle_t member) {
  Group *group = group_of(group_handle);
  if (group == nullptr) return BF_OBJECT_NOT_FOUND;
  if (members_.action(action) == nullptr) return BF_FOREIGN_ACTION;
  if (membership_of(*group, member) != nullptr) return BF_ALREADY_EXISTS;
  auto &list = group->members;
  if (group->max_size != 0 && list.size() >= group->max_size) return BF_TABLE_FULL;
  if (list.size() == list.capacity()) list.reserve(list.size() * 2 + 4);
  group->active.reserve();
  slots_.reserve();
  const bf_status_t status = members_.acquire_with_action(member, action);
  if (status != BF_SUCCESS) return status;
  list.insert(std::ranges::lower_bound(list, member, {}, &Membership::member),
              {member, slots_.take(member)});
  group->active.insert(member);
  return BF_SUCCESS;
}

bf_status_t Selector::leave(pipe_session_handle_t session, pipe_group_handle_t group,
                            pipe_member_handle_t member) {
  return update(session, PIPE_UPDATE_MEMBER_LEAVE, group, member, [&]() -> bf_status_t {
    const Place place = find(group, member);
    if (place.membership == nullptr) return BF_OBJECT_NOT_FOUND;
    slots_.release(place.membership->slot);
    place.group->active.erase(member);
    auto &list = place.group->members;
    list.erase(list.begin() + (place.membership - list.data()));
    members_.release(member);
    return BF_SUCCESS;
  });
}

bf_status_t Selector::set_active(pipe_session_handle_t session, pipe_group_handle_t group,
                                 pipe_member_handle_t member, bool active) {
  const uint32_t what = active ? PIPE_UPDATE_MEMBER_ENABLE : PIPE_UPDATE_MEMBER_DISABLE;
  const bf_status_t status = update(session, what, group, member, [&]() -> bf_status_t {
    const Place place = find(group, member);
    if (place.membership == nullptr) return BF_OBJECT_NOT_FOUND;
    HandleSet &set = place.group->active;
    if (!(active ? set.insert(member) : set.erase(member))) return kUnchanged;
    slots_.show(place.membership->slot, active ? member : 0);
    return BF_SUCCESS;
  });
  return status == kUnchanged ? bf_status_t{BF_SUCCESS} : status;
}

bf_status_t Selector::is_active(pipe_group_handle_t group, pipe_member_handle_t member,
                                bool *active) {
  const std::lock_guard lock(mutex_);
  const Place place = find(group, member);
  if (place.membership == nullptr) return BF_OBJECT_NOT_FOUND;
  *active = place.group->active.contains(member);
  return BF_SUCCESS;
}

bf_status_t Selector::member_count(pipe_group_handle_t group, uint32_t *count) {
  return on_group(
      group, [&](const Group &found) { *count = static_cast<uint32_t>(found.members.size()); });
}

bf_status_t Selector::first_member(pipe_group_handle_t group_handle, pipe_member_handle_t *member) {
  const std::lock_guard lock(mutex_);
  const Group *group = group_of(group_handle);
  if (group == nullptr || group->members.empty()) return BF_OBJECT_NOT_FOUND;
  *member = group->members.front().member;
  return BF_SUCCESS;
}

bf_status_t Selector::next_members(pipe_group_handle_t group_handle, pipe_member_handle_t previous,
                                   std::span<pipe_member_handle_t> members) {
  const std::lock_guard lock(mutex_);
  const Group *group = group_of(group_handle);
  if (group == nullptr) return BF_OBJECT_NOT_FOUND;
  if (members.empty()) return BF_SUCCESS;
  auto at = std::ranges::upper_bound(group->members, previous, {}, &Membership::member);
  if (at == group->members.end()) return BF_OBJECT_NOT_FOUND;
  for (pipe_member_handle_t &member : members) {
    member = at == group->members.end() ? SlotStore::kNoHandle : (at++)->member;
  }
  return BF_SUCCESS;
}

// ---- Choice ----

bf_status_t Selector::choose(pipe_group_handle_t group_handle, const uint8_t *hash, uint32_t length,
                             pipe_member_handle_t *member) {
  if (length == 0) return BF_WRONG_LENGTH;
  const std::lock_guard lock(mutex_);
  const Group *group = group_of(group_handle);
  if (group == nullptr) return BF_OBJECT_NOT_FOUND;
  const size_t active = group->active.size();
  if (active == 0) {
    if (fallback_ == 0) return BF_OBJECT_NOT_FOUND;
    *member = fallback_;
    return BF_SUCCESS;
  }
  uint64_t remainder = 0;
  for (uint32_t i = 0; i < length; ++i) remainder = (remainder << 8 | hash[i]) % active;
  *member = group->active[static_cast<size_t>(remainder)];
  return BF_SUCCESS;
}

bf_status_t Selector::set_fallback(pipe_member_handle_t member) {
  const std::lock_guard lock(mutex_);
  const bf_status_t status = members_.acquire(member);
  if (status != BF_SUCCESS) return status;
  if (fallback_ != 0) members_.release(fallback_);
  fallback_ = member;
  return BF_SUCCESS;
}

void Selector::reset_fallback() {
  const std::lock_guard lock(mutex_);
  if (fallback_ != 0) members_.release(fallback_);
  fallback_ = 0;
}

uint32_t Selector::active_in_word(
    uint32_t word, std::array<pipe_member_handle_t, SelectorSlots::kWordSlots> *members) {
  const std::lock_guard lock(mutex_);
  return slots_.active(word, members);
}

// ---- The selector ----

void Selector::listen(Ear ear, pipe_mgr_sel_update_cb_t callback, void *cookie) {
  const std::lock_guard lock(mutex_);
  (ear == Ear::kOwner ? listeners_.owner : listeners_.further) = {callback, cookie};
}

bf_status_t Selector::max_size(pipe_group_handle_t group, uint32_t *max_size) {
  return on_group(group, [&](const Group &found) { *max_size = found.max_size; });
}

bf_status_t Selector::fallback(pipe_member_handle_t *member) {
  const std::lock_guard lock(mutex_);
  if (fallback_ == 0) return BF_OBJECT_NOT_FOUND;
  *member = fallback_;
  return BF_SUCCESS;
}

void Selector::take_over(Selector &other) {
  std::pmr::polymorphic_allocator<> allocator(&memory_);
  SlotStore groups(&memory_, 0);
  groups.copy_from(other.records_);
  SelectorSlots slots(&memory_);
  slots = other.slots_;
  std::vector<Group *> made;
  made.reserve(groups.count());
  try {
    groups.each_live([&](uint32_t at) {
      const Group &group = *other.group_at(at);
      made.push_back(allocator.new_object<Group>(group.max_size, &memory_));
      made.back()->uses = group.uses;
      made.back()->members = group.members;
      made.back()->active = group.active;
      store(groups.at(at) + kPointer, made.back());
    });
  } catch (const std::bad_alloc &) {
    for (Group *group : made) allocator.delete_object(group);
    throw;
  }
  records_.each_live([this](uint32_t slot) { drop(slot); });
  records_.swap(groups);
  slots_.swap(slots);
  fallback_ = other.fallback_;
  capacity_ = other.capacity_;
}

void Selector::inherit(Object &predecessor) noexcept {
  Selector &old = *predecessor.as<Selector>();
  const std::lock_guard lock(old.mutex_);
  listeners_ = old.listeners_;
}

}  // namespace soft
