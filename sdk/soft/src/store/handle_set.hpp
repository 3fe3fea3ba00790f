// A set of handles, flat and in ascending order. Handles mostly come in that order, so an insertion
// is mostly an append.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory_resource>
#include <vector>

namespace soft {

class HandleSet {
 public:
  explicit HandleSet(std::pmr::memory_resource *memory = std::pmr::get_default_resource())
      : handles_(memory) {}

  size_t size() const { return handles_.size(); }
  bool contains(uint32_t handle) const { return std::ranges::binary_search(handles_, handle); }
  uint32_t operator[](size_t at) const { return handles_[at]; }
  auto begin() const { return handles_.begin(); }
  auto end() const { return handles_.end(); }

  // Makes the next insertion one that cannot throw.
  void reserve() {
    if (handles_.size() == handles_.capacity()) handles_.reserve(handles_.size() * 2 + 4);
  }

  // False when it is there already. May throw std::bad_alloc, and then nothing has changed.
  bool insert(uint32_t handle) {
    const auto at = std::ranges::lower_bound(handles_, handle);
    if (at != handles_.end() && *at == handle) return false;
    handles_.insert(at, handle);
    return true;
  }

  // False when it is not there.
  bool erase(uint32_t handle) {
    const auto at = std::ranges::lower_bound(handles_, handle);
    if (at == handles_.end() || *at != handle) return false;
    handles_.erase(at);
    return true;
  }

 private:
  std::pmr::vector<uint32_t> handles_;
};

}  // namespace soft
