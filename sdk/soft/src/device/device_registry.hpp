// The devices of the process, and the way to one of them that keeps it alive during a call.
#pragma once

#include <atomic>

#include "device/device.hpp"

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

bool has_device(bf_device_id_t id);

// The right to change which device an id has. One thread has it at a time.
class DeviceChange {
 public:
  // exists: there must be a device, or there must be none.
  DeviceChange(bf_device_id_t id, bool exists);
  ~DeviceChange();
  DeviceChange(const DeviceChange &) = delete;
  DeviceChange &operator=(const DeviceChange &) = delete;

  // BF_SUCCESS, or why the right cannot be had; nothing else may be called then.
  // BF_INVALID_DEVICE, BF_ALREADY_EXISTS; BF_NOT_READY: another thread has it.
  bf_status_t status() const { return status_; }
  Device &device() const;

  // Puts a device, or none, in the place of the one that is there and destroys that one when nobody
  // holds it any longer.
  void replace(std::unique_ptr<Device> with);

 private:
  bf_device_id_t id_;
  bf_status_t status_;
};

}  // namespace soft
