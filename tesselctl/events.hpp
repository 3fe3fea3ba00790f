// What a device told and no command has shown yet. It belongs to the device, which writes here by
// callbacks: those who asked it to tell may be gone by then.
#pragma once

#include <cstdint>
#include <vector>

namespace tesselctl {

struct ExpiredEntry {
  uint32_t table;
  uint32_t entry;
};

struct Events {
  // Entries that expired since it was cleared.
  std::vector<ExpiredEntry> expired = {};
};

}  // namespace tesselctl
