// The virtual clocks: of the process, and of a device by itself.
#include <atomic>

#include "device/device_registry.hpp"
#include "soft_sdk.h"

namespace {

std::atomic<uint64_t> clock_ms{0};

}  // namespace

uint64_t soft_clock_now(void) { return clock_ms.load(std::memory_order_relaxed); }

// Objects learn the time that was reached, not the step: where two threads advance at once, or a
// callback advances again, an object may hear of a time that it has passed already.
void soft_clock_advance(uint64_t milliseconds) {
  clock_ms.fetch_add(milliseconds, std::memory_order_relaxed);
  for (bf_device_id_t id = 0; id < SOFT_DEVICE_LIMIT; ++id) {
    if (!soft_device_exists(id)) continue;
    const soft::DeviceHold device(id);
    if (device) device->announce_time();
  }
}

bf_status_t soft_device_clock_advance(bf_device_id_t id, uint64_t milliseconds) {
  const soft::DeviceHold device(id);
  if (!device) return BF_INVALID_DEVICE;
  device->advance(milliseconds);
  device->announce_time();
  return BF_SUCCESS;
}

bf_status_t soft_device_clock_now(bf_device_id_t id, uint64_t *milliseconds) {
  const soft::DeviceHold device(id);
  if (!device) return BF_INVALID_DEVICE;
  if (milliseconds == nullptr) return BF_INVALID_ARGUMENT;
  *milliseconds = device->now_ms();
  return BF_SUCCESS;
}
