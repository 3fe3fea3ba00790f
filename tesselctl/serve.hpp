#pragma once

#include <string>

#include "tesselctl/device.hpp"
#include "tesselctl/output.hpp"

namespace tesselctl {

// Makes a device, tells that it is there, and keeps it for the clients of the socket until SIGINT,
// SIGTERM or SIGHUP. Throws Fault.
void serve(const DeviceOptions &options, const std::string &path, Output &out);

}  // namespace tesselctl
