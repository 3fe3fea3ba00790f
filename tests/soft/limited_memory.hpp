// An allocator that runs out, in place of the one of the program that includes this: once.
// Allocation n of a call fails, n = 1, 2, 3 ... until the call succeeds.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>

#include "bf_types.h"

namespace soft_test {

inline thread_local int allocations_left = -1;  // -1: as many as wanted

// Out of line, so that the compiler does not look for pairs of new and delete in them.
[[gnu::noinline]] inline void *take_memory(size_t bytes, size_t alignment) noexcept {
  if (allocations_left == 0) return nullptr;
  if (allocations_left > 0) --allocations_left;
  return std::aligned_alloc(alignment, (bytes / alignment + 1) * alignment);
}
[[gnu::noinline]] inline void give_back(void *memory) noexcept { std::free(memory); }

inline void *take_or_throw(size_t bytes, size_t alignment = alignof(std::max_align_t)) {
  void *memory = take_memory(bytes, std::max(alignment, alignof(std::max_align_t)));
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

// Returns how often the call failed before it succeeded. Each time it must say so, and state()
// must stay the same until then.
template <class Call, class State>
int until_success(Call call, State state) {
  const auto before = state();
  for (int failures = 0; failures < 2000; ++failures) {
    allocations_left = failures;
    const bf_status_t status = call();
    allocations_left = -1;
    if (status == BF_SUCCESS) return failures;
    EXPECT_EQ(status, BF_NO_MEMORY);
    EXPECT_EQ(state(), before) << "allocation " << failures + 1;
  }
  ADD_FAILURE() << "the call never succeeds";
  return -1;
}

}  // namespace soft_test

// All forms, so that no sanitizer sees memory of one allocator go back to another.
using soft_test::give_back;
using soft_test::take_memory;
using soft_test::take_or_throw;

void *operator new(size_t bytes) { return take_or_throw(bytes); }
void *operator new[](size_t bytes) { return take_or_throw(bytes); }
void *operator new(size_t bytes, std::align_val_t alignment) {
  return take_or_throw(bytes, static_cast<size_t>(alignment));
}
void *operator new[](size_t bytes, std::align_val_t alignment) {
  return take_or_throw(bytes, static_cast<size_t>(alignment));
}
void *operator new(size_t bytes, const std::nothrow_t &) noexcept {
  return take_memory(bytes, alignof(std::max_align_t));
}
void *operator new[](size_t bytes, const std::nothrow_t &) noexcept {
  return take_memory(bytes, alignof(std::max_align_t));
}
void operator delete(void *memory) noexcept { give_back(memory); }
void operator delete[](void *memory) noexcept { give_back(memory); }
void operator delete(void *memory, size_t) noexcept { give_back(memory); }
void operator delete[](void *memory, size_t) noexcept { give_back(memory); }
void operator delete(void *memory, std::align_val_t) noexcept { give_back(memory); }
void operator delete[](void *memory, std::align_val_t) noexcept { give_back(memory); }
void operator delete(void *memory, size_t, std::align_val_t) noexcept { give_back(memory); }
void operator delete[](void *memory, size_t, std::align_val_t) noexcept { give_back(memory); }
void operator delete(void *memory, const std::nothrow_t &) noexcept { give_back(memory); }
void operator delete[](void *memory, const std::nothrow_t &) noexcept { give_back(memory); }
