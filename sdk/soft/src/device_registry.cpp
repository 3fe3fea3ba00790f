#include "device_registry.hpp"

#include <array>
#include <chrono>
#include <mutex>
#include <new>
#include <thread>

#include "clients.hpp"
#include "contract_call.hpp"
#include "shadow_copy.hpp"
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

// Reserves a slot for a change. The status says why it cannot be had.
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

void end_change(bf_device_id_t id) {
  const std::lock_guard lock(registry_mutex);
  slots[id].changing = false;
}

bf_status_t build_device(bf_device_id_t id, uint32_t pipes, const soft_program_t &program,
                         bool is_virtual) {
  try {
    auto device = std::make_unique<Device>(id, pipes, program, is_virtual);
    if (!device->create_objects()) return BF_INVALID_ARGUMENT;
    slots[id].device.store(device.release());
    return BF_SUCCESS;
  } catch (const std::bad_alloc &) {
    return BF_NO_MEMORY;
  }
}

// A device that is to stand in the place of one and is the same as another.
std::unique_ptr<Device> make_copy(const Device &of, const Device &in_place_of) {
  auto device = std::make_unique<Device>(in_place_of.id(), in_place_of.pipes(),
                                         in_place_of.program(), in_place_of.is_virtual());
  device->create_objects();
  device->copy_from(of);
  return device;
}

// Everything that needs memory comes before the first change. The source is held no longer than
// that, so that two threads that copy to and fro need not wait for each other.
bf_status_t replace_with_copy(bf_device_id_t from, bf_device_id_t to,
                              std::unique_ptr<Device> *replaced) {
  std::unique_ptr<Device> copy;
  const Device &target = *slots[to].device.load();
  {
    const DeviceHold source(from);
    if (!source) return BF_INVALID_DEVICE;
    if (&source->program() != &target.program() || source->pipes() != target.pipes()) {
      return BF_INVALID_ARGUMENT;
    }
    copy = make_copy(*source, target);
  }
  ShadowCopy shadows(static_cast<uint8_t>(from), static_cast<uint8_t>(to));
  copy->inherit(target);
  shadows.commit();
  replaced->reset(slots[to].device.exchange(copy.release()));
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

}  // namespace soft

bf_status_t soft_device_create(bf_device_id_t device, uint32_t pipe_count,
                               const soft_program_t *program, bool virtual_device) {
  if (program == nullptr || pipe_count == 0 || pipe_count > SOFT_PIPE_LIMIT) {
    return BF_INVALID_ARGUMENT;
  }
  const bf_status_t begun = soft::begin_change(device, false);
  if (begun != BF_SUCCESS) return begun;
  const bf_status_t status = soft::build_device(device, pipe_count, *program, virtual_device);
  soft::end_change(device);
  return status;
}

bf_status_t soft_device_remove(bf_device_id_t device) {
  if (soft::thread_holds_device()) return BF_IN_USE;
  const bf_status_t begun = soft::begin_change(device, true);
  if (begun != BF_SUCCESS) return begun;
  soft::tell_clients_of_removal(device);
  soft::Slot &slot = soft::slots[device];
  const std::unique_ptr<soft::Device> gone(slot.device.exchange(nullptr));
  soft::wait_for_holds(slot);
  soft::end_change(device);
  return BF_SUCCESS;
}

bf_status_t soft_device_copy(bf_device_id_t from, bf_device_id_t to) {
  if (soft::thread_holds_device()) return BF_IN_USE;
  const bf_status_t begun = soft::begin_change(to, true);
  if (begun != BF_SUCCESS) return begun;
  std::unique_ptr<soft::Device> replaced;
  auto body = [&] {
    return from == to ? bf_status_t{BF_INVALID_ARGUMENT}
                      : soft::replace_with_copy(from, to, &replaced);
  };
  const bf_status_t status = soft::guarded(body);
  if (replaced != nullptr) soft::wait_for_holds(soft::slots[to]);
  soft::end_change(to);
  return status;
}

bool soft_device_exists(bf_device_id_t device) {
  return device < SOFT_DEVICE_LIMIT && soft::slots[device].device.load() != nullptr;
}

uint32_t soft_device_list(bf_device_id_t *devices, uint32_t capacity) {
  uint32_t count = 0;
  for (bf_device_id_t id = 0; id < SOFT_DEVICE_LIMIT; ++id) {
    if (!soft_device_exists(id)) continue;
    if (count < capacity && devices != nullptr) devices[count] = id;
    ++count;
  }
  return count;
}
