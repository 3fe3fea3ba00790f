// The events of a served device: changes, entries that expire, digest messages.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>

namespace tesselctl {

struct WantedEvents {
  std::set<std::string, std::less<>> objects = {};  // of which they are; empty for all
  uint64_t count = 0;                               // how many; 0 until an interrupt
  bool json = false;
  std::string command = {};  // that asked for them

  bool of(std::string_view object) const { return objects.empty() || objects.contains(object); }
};

// Where a client of a server asks for them.
class EventSource {
 public:
  virtual ~EventSource() = default;
  // In place of an end, the answer to the line goes on with them.
  virtual void send_events(WantedEvents wanted) = 0;
};

}  // namespace tesselctl
