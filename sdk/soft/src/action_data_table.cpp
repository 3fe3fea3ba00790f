#include "action_data_table.hpp"

#include <algorithm>

namespace soft {
namespace {

size_t longest_data(std::span<const soft_action_t> actions) {
  size_t longest = 0;
  for (const soft_action_t &action : actions) {
    longest = std::max<size_t>(longest, action.data_bytes);
  }
  return longest;
}

}  // namespace

ActionDataTable::ActionDataTable(const Device &device, const soft_profile_t &profile)
    : ObjectOf(profile.action_data_table),
      device_(device.id()),
      actions_(described(profile.actions, profile.action_count)),
      memory_(std::pmr::new_delete_resource()),
      slots_(&memory_, kData + longest_data(actions_)) {}

const soft_action_t *ActionDataTable::action(pipe_object_handle_t handle) const {
  const auto at = std::ranges::find(actions_, handle, &soft_action_t::handle);
  return at == actions_.end() ? nullptr : &*at;
}

bf_status_t ActionDataTable::check(pipe_object_handle_t handle,
                                   const pipe_mgr_action_spec_t *spec) const {
  if (spec == nullptr) return BF_INVALID_ARGUMENT;
  const soft_action_t *declared = action(handle);
  if (declared == nullptr) return BF_FOREIGN_ACTION;
  if (spec->type != 0 && spec->type != PIPE_ACTION_DATA) return BF_INVALID_ARGUMENT;
  if (spec->resource_count != 0) return BF_INVALID_ARGUMENT;
  if (spec->data.byte_count != declared->data_bytes ||
      spec->data.valid_bit_count != declared->data_bits) {
    return BF_WRONG_LENGTH;
  }
  if (spec->data.byte_count != 0 && spec->data.bytes == nullptr) return BF_INVALID_ARGUMENT;
  return BF_SUCCESS;
}

uint8_t *ActionDataTable::record_of(pipe_member_handle_t member) {
  return slots_.knows(member) ? slots_.at(SlotStore::slot_of(member)) : nullptr;
}

void ActionDataTable::write(uint8_t *record, pipe_object_handle_t action,
                            const pipe_mgr_action_data_t &data) {
  store(record + kAction, action);
  store(record + kLength, data.byte_count);
  std::copy_n(data.bytes, data.byte_count, record + kData);
}

// ---- Changes ----

bf_status_t ActionDataTable::add(pipe_session_handle_t session, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *spec, pipe_member_handle_t *member) {
  if (member == nullptr) return BF_INVALID_ARGUMENT;
  if (const bf_status_t status = check(action, spec); status != BF_SUCCESS) return status;
  std::unique_lock lock(mutex_);
  if (slots_.full() || (capacity_ != 0 && slots_.count() >= capacity_)) return BF_TABLE_FULL;
  slots_.reserve();
  const uint32_t slot = slots_.take();
  store(slots_.at(slot) + kUses, uint32_t{0});
  write(slots_.at(slot), action, spec->data);
  const pipe_member_handle_t added = slots_.handle_of(slot);
  const auto listener = listener_;
  lock.unlock();
  *member = added;
  tell(listener, session, PIPE_UPDATE_ADD, added);
  return BF_SUCCESS;
}

bf_status_t ActionDataTable::set(pipe_session_handle_t session, pipe_member_handle_t member,
                                 pipe_object_handle_t action, const pipe_mgr_action_spec_t *spec) {
  if (const bf_status_t status = check(action, spec); status != BF_SUCCESS) return status;
  std::unique_lock lock(mutex_);
  uint8_t *record = record_of(member);
  if (record == nullptr) return BF_OBJECT_NOT_FOUND;
  write(record, action, spec->data);
  const auto listener = listener_;
  lock.unlock();
  tell(listener, session, PIPE_UPDATE_MODIFY, member);
  return BF_SUCCESS;
}

bf_status_t ActionDataTable::remove(pipe_session_handle_t session, pipe_member_handle_t member) {
  std::unique_lock lock(mutex_);
  const uint8_t *record = record_of(member);
  if (record == nullptr) return BF_OBJECT_NOT_FOUND;
  if (load<uint32_t>(record + kUses) != 0) return BF_IN_USE;
  slots_.release(SlotStore::slot_of(member));
  const auto listener = listener_;
  lock.unlock();
  tell(listener, session, PIPE_UPDATE_DELETE, member);
  return BF_SUCCESS;
}

// ---- References ----

bf_status_t ActionDataTable::acquire(uint32_t member) {
  const std::lock_guard lock(mutex_);
  uint8_t *record = record_of(member);
  if (record == nullptr) return BF_OBJECT_NOT_FOUND;
  store(record + kUses, load<uint32_t>(record + kUses) + 1);
  return BF_SUCCESS;
}

bf_status_t ActionDataTable::acquire_with_action(pipe_member_handle_t member,
                                                 pipe_object_handle_t action) {
  const std::lock_guard lock(mutex_);
  uint8_t *record = record_of(member);
  if (record == nullptr) return BF_OBJECT_NOT_FOUND;
  if (load<uint32_t>(record + kAction) != action) return BF_INVALID_ARGUMENT;
  store(record + kUses, load<uint32_t>(record + kUses) + 1);
  return BF_SUCCESS;
}

void ActionDataTable::release(uint32_t member) {
  const std::lock_guard lock(mutex_);
  uint8_t *record = record_of(member);
  if (record != nullptr) store(record + kUses, load<uint32_t>(record + kUses) - 1);
}

// ---- Read-back ----

bf_status_t ActionDataTable::get(pipe_member_handle_t member, pipe_mgr_action_data_t *data,
                                 pipe_object_handle_t *action_handle) {
  if (data == nullptr || action_handle == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  const uint8_t *record = record_of(member);
  if (record == nullptr) return BF_OBJECT_NOT_FOUND;
  const auto length = load<uint16_t>(record + kLength);
  if (data->bytes != nullptr) {
    if (data->byte_count < length) return BF_WRONG_LENGTH;
    std::copy_n(record + kData, length, data->bytes);
  }
  *action_handle = load<uint32_t>(record + kAction);
  data->byte_count = length;
  data->valid_bit_count = action(*action_handle)->data_bits;
  return BF_SUCCESS;
}

bf_status_t ActionDataTable::action_of(pipe_member_handle_t member, pipe_object_handle_t *action) {
  const std::lock_guard lock(mutex_);
  const uint8_t *record = record_of(member);
  if (record == nullptr) return BF_OBJECT_NOT_FOUND;
  *action = load<uint32_t>(record + kAction);
  return BF_SUCCESS;
}

bf_status_t ActionDataTable::entry_count(bf_pipe_id_t, uint32_t *count) {
  const std::lock_guard lock(mutex_);
  *count = static_cast<uint32_t>(slots_.count());
  return BF_SUCCESS;
}

bf_status_t ActionDataTable::first_entry(bf_pipe_id_t, uint32_t *member) {
  const std::lock_guard lock(mutex_);
  const uint32_t slot = slots_.next_live(0);
  if (slot == SlotStore::kNone) return BF_OBJECT_NOT_FOUND;
  *member = slots_.handle_of(slot);
  return BF_SUCCESS;
}

bf_status_t ActionDataTable::next_entries(bf_pipe_id_t, uint32_t previous, uint32_t count,
                                          uint32_t *members) {
  const std::lock_guard lock(mutex_);
  return handles_behind(slots_, previous, count, members);
}

bf_status_t handles_behind(const SlotStore &slots, uint32_t previous, uint32_t count,
                           uint32_t *handles) {
  if (count == 0) return BF_SUCCESS;
  if (!slots.knew(previous)) return BF_OBJECT_NOT_FOUND;
  uint32_t slot = slots.next_live(SlotStore::slot_of(previous) + 1);
  if (slot == SlotStore::kNone) return BF_OBJECT_NOT_FOUND;
  for (uint32_t at = 0; at < count; ++at) {
    handles[at] = slot == SlotStore::kNone ? kNoHandle : slots.handle_of(slot);
    if (slot != SlotStore::kNone) slot = slots.next_live(slot + 1);
  }
  return BF_SUCCESS;
}

// ---- The rest ----

void ActionDataTable::set_capacity(uint32_t capacity) {
  const std::lock_guard lock(mutex_);
  capacity_ = capacity;
}

uint32_t ActionDataTable::capacity() {
  const std::lock_guard lock(mutex_);
  return capacity_;
}

void ActionDataTable::listen(pipe_mgr_adt_update_cb_t callback, void *cookie) {
  const std::lock_guard lock(mutex_);
  listener_ = {callback, cookie};
}

uint64_t ActionDataTable::memory_bytes() {
  const std::lock_guard lock(mutex_);
  return sizeof(*this) + memory_.bytes();
}

}  // namespace soft
