// The entries that come nearest to a key which hits none.
#pragma once

#include "tesselctl/device/read_back.hpp"

namespace tesselctl {

struct NearEntry {
  p4_pd_entry_handle_t entry;
  ItemBytes item;
  std::vector<const Field *> differing;
};

// At most so many, the nearest first: those that differ in the fewest fields; of these the ones
// that share the longest prefix with the key, in an lpm table; then those with the fewest bits that
// differ, the smallest priority number, the smallest handle. Reads every entry. Throws Fault at the
// word.
std::vector<NearEntry> nearest_entries(const Device &device, const TableInfo &table,
                                       const uint8_t *key, Word word, size_t count = 3);

}  // namespace tesselctl
