#include "selector.hpp"

#include <algorithm>

namespace soft {
namespace {

// A profile's two objects come together, because the selector refers to the members.
const EngineSet profiles{
    EngineOrder::kSelectors, [](Device &device) {
      const soft_program_t &program = device.program();
      for (const soft_profile_t &profile : described(program.profiles, program.profile_count)) {
        auto members = std::make_unique<ActionDataTable>(device, profile);
        ActionDataTable &of_selector = *members;
        device.add(std::move(members));
        if (profile.selector == 0) continue;
        device.add(std::make_unique<Selector>(device, profile, of_selector));
      }
    }};

}  // namespace

Selector::Selector(const Device &device, const soft_profile_t &profile, ActionDataTable &members)
    : ObjectOf(profile.selector),
      device_(device.id()),
      members_(members),
      memory_(std::pmr::new_delete_resource()),
      groups_(&memory_, kPointer + sizeof(Group *)),
      slots_(&memory_) {}

Selector::~Selector() {
  for (uint32_t slot = groups_.next_live(0); slot != SlotStore::kNone;
       slot = groups_.next_live(slot + 1)) {
    drop(slot);
  }
}

Selector::Group *Selector::group_at(uint32_t slot) {
  return load<Group *>(groups_.at(slot) + kPointer);
}

Selector::Group *Selector::group_of(pipe_group_handle_t group) {
  return groups_.knows(group) ? group_at(SlotStore::slot_of(group)) : nullptr;
}

Selector::Membership *Selector::membership_of(Group &group, pipe_member_handle_t member) {
  const auto at = std::ranges::lower_bound(group.members, member, {}, &Membership::member);
  return at == group.members.end() || at->member != member ? nullptr : &*at;
}

void Selector::drop(uint32_t slot) {
  std::pmr::polymorphic_allocator<>(&memory_).delete_object(group_at(slot));
}

void Selector::tell(const Listeners &listeners, pipe_session_handle_t session, uint32_t update,
                    pipe_group_handle_t group, pipe_member_handle_t member) const {
  for (const auto &listener : listeners) {
    listener.tell(session, device_, handle(), update, group, member);
  }
}

// ---- Groups ----

bf_status_t Selector::add(pipe_session_handle_t session, uint32_t max_size,
                          pipe_group_handle_t *group) {
  if (group == nullptr) return BF_INVALID_ARGUMENT;
  std::unique_lock lock(mutex_);
  if (groups_.full() || (capacity_ != 0 && groups_.count() >= capacity_)) return BF_TABLE_FULL;
  groups_.reserve();
  Group *added = std::pmr::polymorphic_allocator<>(&memory_).new_object<Group>(max_size, &memory_);
  const uint32_t slot = groups_.take();
  store(groups_.at(slot) + kPointer, added);
  const pipe_group_handle_t added_handle = groups_.handle_of(slot);
  const Listeners listeners = listeners_;
  lock.unlock();
  *group = added_handle;
  tell(listeners, session, PIPE_UPDATE_GROUP_CREATE, added_handle, 0);
  return BF_SUCCESS;
}

bf_status_t Selector::remove(pipe_session_handle_t session, pipe_group_handle_t group) {
  std::unique_lock lock(mutex_);
  const Group *removed = group_of(group);
  if (removed == nullptr) return BF_OBJECT_NOT_FOUND;
  if (removed->uses != 0) return BF_IN_USE;
  for (const Membership &membership : removed->members) {
    slots_.release(membership.slot);
    members_.release(membership.member);
  }
  drop(SlotStore::slot_of(group));
  groups_.release(SlotStore::slot_of(group));
  const Listeners listeners = listeners_;
  lock.unlock();
  tell(listeners, session, PIPE_UPDATE_GROUP_DELETE, group, 0);
  return BF_SUCCESS;
}

bf_status_t Selector::acquire(uint32_t group) {
  const std::lock_guard lock(mutex_);
  Group *used = group_of(group);
  if (used == nullptr) return BF_OBJECT_NOT_FOUND;
  ++used->uses;
  return BF_SUCCESS;
}

void Selector::release(uint32_t group) {
  const std::lock_guard lock(mutex_);
  if (Group *used = group_of(group)) --used->uses;
}

// ---- Memberships ----

bf_status_t Selector::join(pipe_session_handle_t session, pipe_group_handle_t group,
                           pipe_object_handle_t action, pipe_member_handle_t member) {
  std::unique_lock lock(mutex_);
  const bf_status_t status = begin_membership(group, action, member);
  if (status != BF_SUCCESS) return status;
  const Listeners listeners = listeners_;
  lock.unlock();
  tell(listeners, session, PIPE_UPDATE_MEMBER_JOIN, group, member);
  return BF_SUCCESS;
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
  std::unique_lock lock(mutex_);
  const bf_status_t status = end_membership(group, member);
  if (status != BF_SUCCESS) return status;
  const Listeners listeners = listeners_;
  lock.unlock();
  tell(listeners, session, PIPE_UPDATE_MEMBER_LEAVE, group, member);
  return BF_SUCCESS;
}

bf_status_t Selector::end_membership(pipe_group_handle_t group_handle,
                                     pipe_member_handle_t member) {
  Group *group = group_of(group_handle);
  const Membership *membership = group == nullptr ? nullptr : membership_of(*group, member);
  if (membership == nullptr) return BF_OBJECT_NOT_FOUND;
  slots_.release(membership->slot);
  group->active.erase(member);
  group->members.erase(group->members.begin() + (membership - group->members.data()));
  members_.release(member);
  return BF_SUCCESS;
}

bf_status_t Selector::set_active(pipe_session_handle_t session, pipe_group_handle_t group,
                                 pipe_member_handle_t member, bool active) {
  bool changed = false;
  std::unique_lock lock(mutex_);
  const bf_status_t status = change_state(group, member, active, &changed);
  const Listeners listeners = listeners_;
  lock.unlock();
  if (changed) {
    tell(listeners, session, active ? PIPE_UPDATE_MEMBER_ENABLE : PIPE_UPDATE_MEMBER_DISABLE, group,
         member);
  }
  return status;
}

bf_status_t Selector::change_state(pipe_group_handle_t group_handle, pipe_member_handle_t member,
                                   bool active, bool *changed) {
  Group *group = group_of(group_handle);
  const Membership *membership = group == nullptr ? nullptr : membership_of(*group, member);
  if (membership == nullptr) return BF_OBJECT_NOT_FOUND;
  *changed = active ? group->active.insert(member) : group->active.erase(member);
  slots_.show(membership->slot, active ? member : 0);
  return BF_SUCCESS;
}

bf_status_t Selector::is_active(pipe_group_handle_t group_handle, pipe_member_handle_t member,
                                bool *active) {
  const std::lock_guard lock(mutex_);
  Group *group = group_of(group_handle);
  if (group == nullptr || membership_of(*group, member) == nullptr) return BF_OBJECT_NOT_FOUND;
  *active = group->active.contains(member);
  return BF_SUCCESS;
}

bf_status_t Selector::member_count(pipe_group_handle_t group_handle, uint32_t *count) {
  if (count == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  const Group *group = group_of(group_handle);
  if (group == nullptr) return BF_OBJECT_NOT_FOUND;
  *count = static_cast<uint32_t>(group->members.size());
  return BF_SUCCESS;
}

bf_status_t Selector::first_member(pipe_group_handle_t group_handle, pipe_member_handle_t *member) {
  if (member == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  const Group *group = group_of(group_handle);
  if (group == nullptr || group->members.empty()) return BF_OBJECT_NOT_FOUND;
  *member = group->members.front().member;
  return BF_SUCCESS;
}

bf_status_t Selector::next_members(pipe_group_handle_t group_handle, pipe_member_handle_t previous,
                                   uint32_t count, pipe_member_handle_t *members) {
  if (members == nullptr && count != 0) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  const Group *group = group_of(group_handle);
  if (group == nullptr) return BF_OBJECT_NOT_FOUND;
  if (count == 0) return BF_SUCCESS;
  auto at = std::ranges::upper_bound(group->members, previous, {}, &Membership::member);
  if (at == group->members.end()) return BF_OBJECT_NOT_FOUND;
  for (uint32_t i = 0; i < count; ++i) {
    members[i] = at == group->members.end() ? kNoHandle : (at++)->member;
  }
  return BF_SUCCESS;
}

// ---- Choice ----

bf_status_t Selector::choose(pipe_group_handle_t group_handle, const uint8_t *hash, uint32_t length,
                             pipe_member_handle_t *member) {
  if (hash == nullptr || member == nullptr) return BF_INVALID_ARGUMENT;
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

bf_status_t Selector::entry_count(bf_pipe_id_t, uint32_t *count) {
  const std::lock_guard lock(mutex_);
  *count = static_cast<uint32_t>(groups_.count());
  return BF_SUCCESS;
}

bf_status_t Selector::first_entry(bf_pipe_id_t, uint32_t *group) {
  const std::lock_guard lock(mutex_);
  const uint32_t slot = groups_.next_live(0);
  if (slot == SlotStore::kNone) return BF_OBJECT_NOT_FOUND;
  *group = groups_.handle_of(slot);
  return BF_SUCCESS;
}

bf_status_t Selector::next_entries(bf_pipe_id_t, uint32_t previous, uint32_t count,
                                   uint32_t *groups) {
  const std::lock_guard lock(mutex_);
  return handles_behind(groups_, previous, count, groups);
}

void Selector::set_capacity(uint32_t capacity) {
  const std::lock_guard lock(mutex_);
  capacity_ = capacity;
}

uint32_t Selector::capacity() {
  const std::lock_guard lock(mutex_);
  return capacity_;
}

void Selector::listen(Ear ear, pipe_mgr_sel_update_cb_t callback, void *cookie) {
  const std::lock_guard lock(mutex_);
  listeners_[ear == Ear::kOwner ? 0 : 1] = {callback, cookie};
}

bf_status_t Selector::max_size(pipe_group_handle_t group_handle, uint32_t *max_size) {
  const std::lock_guard lock(mutex_);
  const Group *group = group_of(group_handle);
  if (group == nullptr) return BF_OBJECT_NOT_FOUND;
  *max_size = group->max_size;
  return BF_SUCCESS;
}

bf_status_t Selector::fallback(pipe_member_handle_t *member) {
  const std::lock_guard lock(mutex_);
  if (fallback_ == 0) return BF_OBJECT_NOT_FOUND;
  *member = fallback_;
  return BF_SUCCESS;
}

uint64_t Selector::memory_bytes() {
  const std::lock_guard lock(mutex_);
  return sizeof(*this) + memory_.bytes();
}

}  // namespace soft
