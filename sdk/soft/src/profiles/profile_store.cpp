#include "profiles/profile_store.hpp"

namespace soft {

ProfileStore::ProfileStore(pipe_object_handle_t handle, const void *type, bf_device_id_t device,
                           size_t record_bytes)
    : LockedObject(handle, type),
      device_(device),
      memory_(std::pmr::new_delete_resource()),
      records_(&memory_, record_bytes) {}

bf_status_t ProfileStore::entry_count(bf_pipe_id_t, uint32_t *count) {
  const std::lock_guard lock(mutex_);
  *count = static_cast<uint32_t>(records_.count());
  return BF_SUCCESS;
}

bf_status_t ProfileStore::first_entry(bf_pipe_id_t, uint32_t *entry) {
  const std::lock_guard lock(mutex_);
  return records_.first_handle(entry, [](uint32_t) { return true; });
}

bf_status_t ProfileStore::next_entries(bf_pipe_id_t, uint32_t previous, uint32_t count,
                                       uint32_t *entries) {
  const std::lock_guard lock(mutex_);
  return records_.next_handles(previous, count, entries, [](uint32_t) { return true; });
}

bf_status_t ProfileStore::set_capacity(uint32_t capacity) {
  const std::lock_guard lock(mutex_);
  capacity_ = capacity;
  return BF_SUCCESS;
}

bf_status_t ProfileStore::get_capacity(uint32_t *capacity) {
  const std::lock_guard lock(mutex_);
  *capacity = capacity_;
  return BF_SUCCESS;
}

}  // namespace soft
