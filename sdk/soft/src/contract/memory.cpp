// The SDK's allocator: the one of the C library, counted and open to planned faults.
#include <atomic>
#include <cstdint>
#include <cstdlib>

#include "bf_sys.h"
#include "contract/watch.hpp"
#include "soft_sdk.h"

namespace {

std::atomic<uint64_t> allocations_live{0};
std::atomic<uint64_t> allocations_made{0};

}  // namespace

void *bf_sys_calloc(size_t count, size_t size) {
  if (soft::faults::strikes_allocation()) return nullptr;
  if (size != 0 && count > SIZE_MAX / size) return nullptr;
  // One byte at least, so that null always means no memory.
  void *memory = count == 0 || size == 0 ? std::calloc(1, 1) : std::calloc(count, size);
  if (memory == nullptr) return nullptr;
  allocations_live.fetch_add(1, std::memory_order_relaxed);
  allocations_made.fetch_add(1, std::memory_order_relaxed);
  return memory;
}

void bf_sys_free(void *memory) {
  if (memory == nullptr) return;
  allocations_live.fetch_sub(1, std::memory_order_relaxed);
  std::free(memory);
}

uint64_t soft_allocations_live(void) { return allocations_live.load(std::memory_order_relaxed); }
uint64_t soft_allocations_made(void) { return allocations_made.load(std::memory_order_relaxed); }
