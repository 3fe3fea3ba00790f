// What the members and the groups of an action profile have in common: records under handles, with
// a limit of their number, the same in all pipes.
#pragma once

#include "device/engine.hpp"
#include "device/listener.hpp"
#include "store/counting_resource.hpp"
#include "store/slot_store.hpp"

namespace soft {

class ProfileStore : public LockedObject {
 public:
  bf_status_t entry_count(bf_pipe_id_t pipe, uint32_t *count) override;
  bf_status_t first_entry(bf_pipe_id_t pipe, uint32_t *entry) override;
  // previous may have been removed since.
  bf_status_t next_entries(bf_pipe_id_t pipe, uint32_t previous, uint32_t count,
                           uint32_t *entries) override;

  // A capacity below the number of records keeps them.
  bf_status_t set_capacity(uint32_t capacity) override;
  bf_status_t get_capacity(uint32_t *capacity) override;

  uint64_t held_bytes() const { return memory_.bytes(); }

 protected:
  ProfileStore(pipe_object_handle_t handle, const void *type, bf_device_id_t device,
               size_t record_bytes);

  // Called under the lock.
  bool is_full() const {
    return records_.full() || (capacity_ != 0 && records_.count() >= capacity_);
  }

  bf_device_id_t device_;
  CountingResource memory_;
  SlotStore records_;
  uint32_t capacity_ = 0;
};

}  // namespace soft
