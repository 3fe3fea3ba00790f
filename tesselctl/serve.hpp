#pragma once

#include <string>

#include "tesselctl/device.hpp"
#include "tesselctl/output.hpp"

namespace tesselctl {

struct ServeOptions {
  DeviceOptions device;
  std::string socket;
  std::string image;  // loaded before, if it exists, and saved after; empty for none
};

// Makes a device, tells that it is there, and keeps it for the clients of the socket until SIGINT,
// SIGTERM or SIGHUP, which this thread is to be the one to take. Throws Fault.
void serve(const ServeOptions &options, Output &out);

}  // namespace tesselctl
