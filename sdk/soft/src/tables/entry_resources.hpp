// The counters, meters and registers that an entry refers to.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <unordered_map>

#include "store/hashed.hpp"
#include "tables/match_table_types.hpp"

namespace soft {

// At most PIPE_RESOURCES_PER_ACTION references, in the order in which they were attached.
class ResourceList {
 public:
  std::span<const EntryResource> all() const { return {items_.data(), count_}; }
  bool empty() const { return count_ == 0; }
  bool has(pipe_object_handle_t handle) const;

  // Replaces a reference to the same resource. False when there is no room.
  bool attach(EntryResource resource);
  void detach(pipe_object_handle_t handle);

  // Takes a resource spec as its tag says: attach, detach or leave. BF_INVALID_ARGUMENT for an
  // unknown tag or a fifth resource.
  bf_status_t apply(const pipe_mgr_resource_t &resource);

  // The references that test(handle) is true for.
  template <class Test>
  ResourceList those(Test test) const {
    ResourceList chosen;
    for (const EntryResource &item : all()) {
      if (test(item.handle)) chosen.attach(item);
    }
    return chosen;
  }

 private:
  uint32_t count_ = 0;
  std::array<EntryResource, PIPE_RESOURCES_PER_ACTION> items_{};
};

// Lists of those entries that have one, by entry handle. Most tables have none: nothing is held for
// them but an empty map.
class ResourceLists {
 public:
  ResourceList of(pipe_entry_handle_t entry) const {
    if (lists_.empty()) return {};
    const auto it = lists_.find(entry);
    return it == lists_.end() ? ResourceList{} : it->second;
  }

  // May throw std::bad_alloc, and then nothing has changed.
  void set(pipe_entry_handle_t entry, const ResourceList &list) {
    if (!list.empty()) {
      lists_[entry] = list;
    } else {
      forget(entry);
    }
  }
  void forget(pipe_entry_handle_t entry) {
    if (!lists_.empty()) soft::forget(lists_, entry);
  }

  uint64_t memory_bytes() const { return hashed_bytes(lists_); }

 private:
  std::unordered_map<pipe_entry_handle_t, ResourceList> lists_;
};

}  // namespace soft
