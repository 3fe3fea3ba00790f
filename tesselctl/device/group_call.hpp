// Calls that point entries at groups.
#pragma once

#include "tesselctl/device/device.hpp"
#include "tesselctl/device/table_info.hpp"

namespace tesselctl {

// Runs the call on the table. The library points an entry at a group only while that has a member,
// though all may leave it later: an empty one is lent a member for as long as the call. A status.
uint64_t run_with_group(const Device &device, const TableInfo &table, Call &call);

}  // namespace tesselctl
