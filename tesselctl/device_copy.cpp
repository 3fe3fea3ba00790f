#include "tesselctl/device_copy.hpp"

#include <cjson/cJSON.h>

#include "soft_sdk.h"
#include "tesselctl/status.hpp"

namespace tesselctl {

namespace {

struct DeleteJson {
  void operator()(cJSON *item) const { cJSON_Delete(item); }
};

void need(bf_status_t status) {
  if (status != BF_SUCCESS) throw Fault("cannot copy the device: " + status_text(status));
}

// The contents, then what the library keeps beside them.
void copy_contents(const Device &from, const Device &to) {
  const std::unique_ptr<cJSON, DeleteJson> state(cJSON_CreateObject());
  need(soft_device_log(from.id(), state.get()));
  // COPY
  need(soft_device_restore(to.id(), state.get()));
}

uint32_t free_id() {
  for (uint32_t id = SOFT_DEVICE_LIMIT; id-- > 0;) {
    if (!soft_device_exists(id)) return id;
  }
  throw Fault("cannot copy the device: all device ids are taken");
}

}  // namespace

std::unique_ptr<Device> copy_of(const Device &device) {
  auto copy = std::make_unique<Device>(DeviceOptions{.id = free_id(), .pipes = device.pipes()});
  copy_contents(device, *copy);
  return copy;
}

void copy_back(const Device &copy, const Device &device) { copy_contents(copy, device); }

}  // namespace tesselctl
