// The host's control of devices: their creation, removal and copies.
#include <new>

#include "contract/clients.hpp"
#include "contract/contract_call.hpp"
#include "device/device_registry.hpp"
#include "profiles/shadow_states.hpp"
#include "soft_sdk.h"

using namespace soft;

namespace {

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
bf_status_t replace_with_copy(bf_device_id_t from, DeviceChange &change) {
  std::unique_ptr<Device> copy;
  const Device &target = change.device();
  {
    const DeviceHold source(from);
    if (!source) return BF_INVALID_DEVICE;
    if (&*source == &target || &source->program() != &target.program() ||
        source->pipes() != target.pipes()) {
      return BF_INVALID_ARGUMENT;
    }
    copy = make_copy(*source, target);
  }
  ShadowCopy shadows(static_cast<uint8_t>(from), static_cast<uint8_t>(target.id()));
  copy->inherit(target);
  shadows.commit();
  change.replace(std::move(copy));
  return BF_SUCCESS;
}

}  // namespace

bf_status_t soft_device_create(bf_device_id_t device, uint32_t pipe_count,
                               const soft_program_t *program, bool virtual_device) {
  if (program == nullptr || pipe_count == 0 || pipe_count > SOFT_PIPE_LIMIT) {
    return BF_INVALID_ARGUMENT;
  }
  DeviceChange change(device, false);
  if (change.status() != BF_SUCCESS) return change.status();
  return guarded([&]() -> bf_status_t {
    auto created = std::make_unique<Device>(device, pipe_count, *program, virtual_device);
    if (!created->create_objects()) return BF_INVALID_ARGUMENT;
    change.replace(std::move(created));
    return BF_SUCCESS;
  });
}

bf_status_t soft_device_remove(bf_device_id_t device) {
  if (thread_holds_device()) return BF_IN_USE;
  DeviceChange change(device, true);
  if (change.status() != BF_SUCCESS) return change.status();
  return guarded([&]() -> bf_status_t {
    notify_clients_of_removal(device);
    change.replace(nullptr);
    return BF_SUCCESS;
  });
}

bf_status_t soft_device_copy(bf_device_id_t from, bf_device_id_t to) {
  if (thread_holds_device()) return BF_IN_USE;
  DeviceChange change(to, true);
  if (change.status() != BF_SUCCESS) return change.status();
  return guarded([&] { return replace_with_copy(from, change); });
}

bool soft_device_exists(bf_device_id_t device) { return has_device(device); }

uint32_t soft_device_list(bf_device_id_t *devices, uint32_t capacity) {
  uint32_t count = 0;
  for (bf_device_id_t id = 0; id < SOFT_DEVICE_LIMIT; ++id) {
    if (!has_device(id)) continue;
    if (count < capacity && devices != nullptr) devices[count] = id;
    ++count;
  }
  return count;
}
