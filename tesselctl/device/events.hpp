// Events of a device that no command has printed yet. They belong to the device, which writes here
// by callbacks: whoever registered those may be gone by then.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

struct pipe_mgr_digest_message;

namespace tesselctl {

struct ExpiredEntry {
  uint32_t table;
  uint32_t entry;
};

// Digest messages, by the numbers that the tool gives them.
struct Messages {
  std::map<uint32_t, pipe_mgr_digest_message *> held;  // not acknowledged; the device's
  uint32_t delivered = 0;                              // greatest number
  uint32_t printed = 0;                                // greatest number that was printed
};

struct Events {
  // Entries that expired since it was cleared.
  std::vector<ExpiredEntry> expired = {};
  uint64_t expired_count = 0;  // ever
  Messages messages = {};
};

}  // namespace tesselctl
