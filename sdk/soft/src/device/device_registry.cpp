#include "device/device_registry.hpp"

#include <array>
#include <chrono>
#include <mutex>
#include <thread>

#include "soft_sdk.h"

namespace soft {
namespace {

constexpr uint32_t kCells = 8;

struct alignas(64) Cell {
  std::atomic<uint32_t> holds{0};
};

struct Slot {
  std::atomic<Device *> device{nullptr};
  bool changing = false;  // being created or removed; under registry_mutex
  std::array<Cell, kCells> cells;
};

std::array<Slot, SOFT_DEVICE_LIMIT> slots;
std::mutex registry_mutex;

std::atomic<uint32_t> threads_seen{0};
thread_local const uint32_t thread_cell =
    threads_seen.fetch_add(1, std::memory_order_relaxed) % kCells;
thread_local uint32_t thread_holds = 0;

bf_status_t begin_change(bf_device_id_t id, bool exists) {
  if (id >= SOFT_DEVICE_LIMIT) return BF_INVALID_DEVICE;
  const std::lock_guard lock(registry_mutex);
  Slot &slot = slots[id];
  if (slot.changing) return BF_NOT_READY;
  if ((slot.device.load() != nullptr) != exists) {
    return exists ? BF_INVALID_DEVICE : BF_ALREADY_EXISTS;
  }
  slot.changing = true;
  return BF_SUCCESS;
}

// A hold that began before the pointer went away is seen in a cell; one that begins later finds no
// device. Both sides are sequentially consistent, so there is no third case.
void wait_for_holds(Slot &slot) {
  for (Cell &cell : slot.cells) {
    while (cell.holds.load() != 0) std::this_thread::sleep_for(std::chrono::microseconds(20));
  }
}

}  // namespace

DeviceHold::DeviceHold(bf_device_id_t id) {
  if (id >= SOFT_DEVICE_LIMIT) return;
  Slot &slot = slots[id];
  cell_ = &slot.cells[thread_cell].holds;
  cell_->fetch_add(1);
  device_ = slot.device.load();
  ++thread_holds;
}

DeviceHold::~DeviceHold() {
  if (cell_ == nullptr) return;
  --thread_holds;
  cell_->fetch_sub(1, std::memory_order_release);
}

bool thread_holds_device() { return thread_holds != 0; }

bool has_device(bf_device_id_t id) {
  return id < SOFT_DEVICE_LIMIT && slots[id].device.load() != nullptr;
}

DeviceChange::DeviceChange(bf_device_id_t id, bool exists)
    : id_(id), status_(begin_change(id, exists)) {}

DeviceChange::~DeviceChange() {
  if (status_ != BF_SUCCESS) return;
  const std::lock_guard lock(registry_mutex);
  slots[id_].changing = false;
}

Device &DeviceChange::device() const { return *slots[id_].device.load(); }

void DeviceChange::replace(std::unique_ptr<Device> with) {
  const std::unique_ptr<Device> gone(slots[id_].device.exchange(with.release()));
  if (gone != nullptr) wait_for_holds(slots[id_]);
}

}  // namespace soft
