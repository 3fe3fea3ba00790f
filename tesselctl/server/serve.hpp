#pragma once

#include <string>

#include "tesselctl/journal/options.hpp"
#include "tesselctl/state/image_file.hpp"

namespace tesselctl {

struct ServeOptions {
  DeviceOptions device;
  std::string socket;
  ImageOptions image;           // loaded before, if it exists, and saved after
  std::string http = {};        // where HTTP is answered; empty for nowhere
  JournalOptions journal = {};  // in place of an image
};

// Makes a device, prints that it is there, and keeps it for the clients of the socket until SIGINT,
// SIGTERM or SIGHUP, which this thread is to be the one to take. Throws Fault.
void serve(const ServeOptions &options, Output &out, Output &errors);

}  // namespace tesselctl
