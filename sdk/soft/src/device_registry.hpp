// The devices of the process, and the way to one of them that keeps it alive during a call.
#pragma once

#include <atomic>

#include "device.hpp"

namespace soft {

// Keeps a device from going away. Cheap and free of contention between threads: a hold is counted
// in one of several cells, each in a cache line of its own.
class DeviceHold {
 public:
  // Holds nothing (false) when there is no such device.
  explicit DeviceHold(bf_device_id_t id);
  ~DeviceHold();
  DeviceHold(const DeviceHold &) = delete;
  DeviceHold &operator=(const DeviceHold &) = delete;

  explicit operator bool() const { return device_ != nullptr; }
  Device &operator*() const { return *device_; }
  Device *operator->() const { return device_; }

 private:
  Device *device_ = nullptr;
  std::atomic<uint32_t> *cell_ = nullptr;
};

// True while the calling thread holds a device: it is inside a callback of the SDK, if it got out.
bool thread_holds_device();

}  // namespace soft
