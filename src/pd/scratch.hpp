// Arrays from the SDK's allocator that live as long as a call.
#pragma once

#include <cstddef>
#include <cstdint>

#include "bf_sys.h"

namespace pd {

template <class T>
class Scratch {
 public:
  // Zeroed items. The allocator is not asked for an array of none.
  explicit Scratch(uint64_t count) : count_(count) {
    if (count != 0 && count <= SIZE_MAX) {
      items_ = static_cast<T *>(bf_sys_calloc(static_cast<size_t>(count), sizeof(T)));
    }
  }
  Scratch(const Scratch &) = delete;
  Scratch &operator=(const Scratch &) = delete;
  ~Scratch() {
    if (items_ != nullptr) bf_sys_free(items_);
  }

  // False when there is no memory for the items.
  bool ok() const { return items_ != nullptr || count_ == 0; }
  // Null for an array of none.
  T *items() const { return items_; }

 private:
  uint64_t count_;
  T *items_ = nullptr;
};

}  // namespace pd
