// Bulk loading of route files into the longest-prefix tables, with a check that all is there.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tesselctl/device/device.hpp"
#include "tesselctl/text/output.hpp"

namespace tesselctl {

// The greatest values that the program's route tables take. Throws Fault when it has none.
struct RouteLimits {
  uint64_t vrf = 0;
  uint16_t nexthop = 0;
};
RouteLimits route_limits();

struct RoutesOptions {
  std::vector<std::string> files;
  uint64_t vrf = 0;       // of the fields beside the prefix
  uint16_t nexthop = 1;   // of lines without one
  bool progress = false;  // show it on standard error
};

// Adds every route of the files, finds each again by its prefix, and prints counts, rates, memory
// and the entries of each prefix length. Faults of lines and of entries go to errors. Returns
// whether all went well. Throws Fault when a file cannot be read.
bool load_routes(const Device &device, const RoutesOptions &options, Output &out, Output &errors);

}  // namespace tesselctl
