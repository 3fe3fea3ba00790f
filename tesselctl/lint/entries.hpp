// What is wrong among the entries of one table.
#pragma once

#include <span>
#include <vector>

#include "tesselctl/device/read_back.hpp"
#include "tesselctl/state/device_state.hpp"

namespace tesselctl {

// An entry, and the one that makes it needless.
struct EntryPair {
  ItemView entry;
  ItemView other;
};

// The entries that no packet hits, each with the first one before it that matches all that it
// matches. An entry is before those of greater priority numbers, and of the same one before those
// behind it in the list. Not for lpm tables.
std::vector<EntryPair> covered_entries(const TableInfo &table,
                                       std::span<const ItemStore::Item> entries);

// The prefixes of an lpm table whose nearest shorter one does the same.
std::vector<EntryPair> repeated_parents(const TableInfo &table,
                                        std::span<const ItemStore::Item> entries);

// Whether packets find the same under both values: the action with its parameters, the member or
// the group.
bool have_same_outcome(std::string_view value, std::string_view other);

}  // namespace tesselctl
