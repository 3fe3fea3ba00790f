// Devices that are copies of others: to try something, or to go back to how a device was.
#pragma once

#include <memory>

#include "tesselctl/device/device.hpp"

namespace tesselctl {

// A device id that is not taken. Throws Fault.
uint32_t free_device_id();

// A device of its own under a free id that holds what the other holds, under the same handles.
// Throws Fault.
std::unique_ptr<Device> copy_of(const Device &device);

// Makes the device what the copy is. Throws Fault.
void copy_back(const Device &copy, const Device &device);

}  // namespace tesselctl
