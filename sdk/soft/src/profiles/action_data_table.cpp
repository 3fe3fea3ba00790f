#include "profiles/action_data_table.hpp"

#include <algorithm>

namespace soft {

bf_status_t check_data(const pipe_mgr_action_data_t &data, const soft_action_t &action) {
  if (data.byte_count != action.data_bytes || data.valid_bit_count != action.data_bits) {
    return BF_WRONG_LENGTH;
  }
  return data.byte_count != 0 && data.bytes == nullptr ? BF_INVALID_ARGUMENT : BF_SUCCESS;
}

ActionDataTable::ActionDataTable(const Device &device, const soft_profile_t &profile)
    : Engine(profile.action_data_table, device.id(),
             kData + longest_data(described(profile.actions, profile.action_count))),
      actions_(described(profile.actions, profile.action_count)) {
  capacity_ = profile.most_members;
}

const soft_action_t *ActionDataTable::action(pipe_object_handle_t handle) const {
  return described_as(actions_, handle);
}

bf_status_t ActionDataTable::check(pipe_object_handle_t handle,
                                   const pipe_mgr_action_spec_t *spec) const {
  if (spec == nullptr) return BF_INVALID_ARGUMENT;
  const soft_action_t *declared = action(handle);
  if (declared == nullptr) return BF_FOREIGN_ACTION;
  if (spec->type != 0 && spec->type != PIPE_ACTION_DATA) return BF_INVALID_ARGUMENT;
  if (spec->resource_count != 0) return BF_INVALID_ARGUMENT;
  return check_data(spec->data, *declared);
}

uint8_t *ActionDataTable::record_of(pipe_member_handle_t member) {
  return records_.knows(member) ? records_.at(SlotStore::slot_of(member)) : nullptr;
}

void ActionDataTable::write(uint8_t *record, pipe_object_handle_t action,
                            const pipe_mgr_action_data_t &data) {
  store(record + kAction, action);
  store(record + kLength, data.byte_count);
  std::copy_n(data.bytes, data.byte_count, record + kData);
}

// ---- Changes ----

template <class Body>
bf_status_t ActionDataTable::update(pipe_session_handle_t session, uint32_t what,
                                    const pipe_member_handle_t &member, Body body) {
  return change_and_notify(mutex_, listener_, body, session, device_, handle(), what, member);
}

bf_status_t ActionDataTable::add(pipe_session_handle_t session, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *spec, pipe_member_handle_t *member) {
  if (const bf_status_t status = check(action, spec); status != BF_SUCCESS) return status;
  return update(session, PIPE_UPDATE_ADD, *member, [&]() -> bf_status_t {
    if (is_full()) return BF_TABLE_FULL;
    records_.reserve();
    const uint32_t slot = records_.take();
    store(records_.at(slot) + kUses, uint32_t{0});
    write(records_.at(slot), action, spec->data);
    *member = records_.handle_of(slot);
    return BF_SUCCESS;
  });
}

bf_status_t ActionDataTable::set(pipe_session_handle_t session, pipe_member_handle_t member,
                                 pipe_object_handle_t action, const pipe_mgr_action_spec_t *spec) {
  if (const bf_status_t status = check(action, spec); status != BF_SUCCESS) return status;
  return update(session, PIPE_UPDATE_MODIFY, member, [&]() -> bf_status_t {
    uint8_t *record = record_of(member);
    if (record == nullptr) return BF_OBJECT_NOT_FOUND;
    write(record, action, spec->data);
    return BF_SUCCESS;
  });
}

bf_status_t ActionDataTable::remove(pipe_session_handle_t session, pipe_member_handle_t member) {
  return update(session, PIPE_UPDATE_DELETE, member, [&]() -> bf_status_t {
    const uint8_t *record = record_of(member);
    if (record == nullptr) return BF_OBJECT_NOT_FOUND;
    if (load<uint32_t>(record + kUses) != 0) return BF_IN_USE;
    records_.release(SlotStore::slot_of(member));
    return BF_SUCCESS;
  });
}

// ---- References ----

bf_status_t ActionDataTable::acquire(uint32_t member) { return acquire_if(member, nullptr); }

bf_status_t ActionDataTable::acquire_with_action(pipe_member_handle_t member,
                                                 pipe_object_handle_t action) {
  return acquire_if(member, &action);
}

bf_status_t ActionDataTable::acquire_if(pipe_member_handle_t member,
                                        const pipe_object_handle_t *action) {
  const std::lock_guard lock(mutex_);
  uint8_t *record = record_of(member);
  if (record == nullptr) return BF_OBJECT_NOT_FOUND;
  if (action != nullptr && load<uint32_t>(record + kAction) != *action) return BF_INVALID_ARGUMENT;
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

void ActionDataTable::listen(pipe_mgr_adt_update_cb_t callback, void *cookie) {
  const std::lock_guard lock(mutex_);
  listener_ = {callback, cookie};
}

void ActionDataTable::take_over(ActionDataTable &other) {
  SlotStore records(&memory_, 0);
  records.copy_from(other.records_);
  records_.swap(records);
  capacity_ = other.capacity_;
}

void ActionDataTable::inherit(Object &predecessor) noexcept {
  ActionDataTable &old = *predecessor.as<ActionDataTable>();
  const std::lock_guard lock(old.mutex_);
  listener_ = old.listener_;
}

}  // namespace soft
