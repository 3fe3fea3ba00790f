// Follows a packet along a path: the key of each table, what it hits and what runs.
#pragma once

#include "tesselctl/device/read_back.hpp"
#include "tesselctl/explain/path.hpp"

namespace tesselctl {

// skipped: a field of the key is not known, for nothing on the way has set it.
enum class Found : uint8_t { hit, by_default, nothing, skipped };

struct Visited {
  PathKey key;
  Found found = Found::skipped;
  p4_pd_entry_handle_t entry = 0;
  ItemBytes item = {};  // the entry
  // That the entry names or the hash chose from its group; 0 for none.
  p4_pd_member_handle_t member = 0;
  std::string of_member = {};  // its action

  // The action that runs and its parameters, as the value of an item; empty when none does.
  std::string_view action() const;
};

struct Packet {
  bf_pipe_id_t pipe = 0;
  uint32_t hash = 0;
};

// One for each stop. Nothing is counted, no entry grows young. Throws Fault.
std::vector<Visited> walk(const Device &device, const Path &path, const Packet &packet);

}  // namespace tesselctl
