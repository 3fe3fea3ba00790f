#include "tesselctl/device/device_copy.hpp"

#include "soft_sdk.h"
#include "tesselctl/program/status.hpp"

namespace tesselctl {

namespace {

void copy_contents(const Device &from, const Device &to) {
  const bf_status_t status = soft_device_copy(from.id(), to.id());
  if (status != BF_SUCCESS) throw Fault("cannot copy the device: " + status_text(status));
}

}  // namespace

uint32_t free_device_id() {
  for (uint32_t id = SOFT_DEVICE_LIMIT; id-- > 0;) {
    if (!soft_device_exists(id)) return id;
  }
  throw Fault("cannot copy the device: all device ids are taken");
}

std::unique_ptr<Device> copy_of(const Device &device) {
  auto copy =
      std::make_unique<Device>(DeviceOptions{.id = free_device_id(), .pipes = device.pipes()});
  copy_contents(device, *copy);
  return copy;
}

void copy_back(const Device &copy, const Device &device) { copy_contents(copy, device); }

}  // namespace tesselctl
