// What happens to a served device, for the clients that monitor it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tesselctl/command/event_source.hpp"
#include "tesselctl/device/device.hpp"
#include "tesselctl/journal/change_log.hpp"
#include "tesselctl/text/output.hpp"

namespace tesselctl {

// One that monitors. Nobody waits for it: what it has no room for is counted, and it reads in that
// place how much it has missed.
class Monitor {
 public:
  // Writes to out. unread gives how many bytes wait there and have room as long as they are fewer
  // than most. All outlives it.
  Monitor(WantedEvents wanted, Output &out, size_t most, std::function<size_t()> unread);

  const WantedEvents &wanted() const { return wanted_; }
  bool is_done() const { return wanted_.count != 0 && sent_ >= wanted_.count; }
  bool is_behind() const { return missed_ != 0; }
  // Whether an event has room; one that has none is missed.
  bool takes();
  // An event that it takes. Throws bad_alloc.
  void write(std::string_view event);
  void miss() { ++missed_; }
  // Writes what was missed, when fewer bytes wait. Throws bad_alloc.
  void catch_up(size_t below);

 private:
  void put(std::string_view event);

  const WantedEvents wanted_;
  Output &out_;
  const size_t most_;
  const std::function<size_t()> unread_;
  const std::string beginning_;  // of a line of JSON
  uint64_t sent_ = 0;
  uint64_t missed_ = 0;
};

class Monitors : public LineListener {
 public:
  // The device and the log outlive it; who monitors leaves before.
  Monitors(Device &device, ChangeLog &log) : device_(device), log_(log) {}

  void add(Monitor &monitor);
  void remove(Monitor &monitor);
  // Behind each line: entries that expired, and messages.
  void note_events(std::string_view client);
  void note(const LineChanges &line) override;

 private:
  // Prints an event once in each form that is wanted of the object. Who there is no memory for has
  // missed it.
  template <class Print>
  void send(std::string_view object, const Print &print);

  Device &device_;
  ChangeLog &log_;
  std::vector<Monitor *> monitors_;
  uint64_t expired_ = 0;   // those that were looked at
  uint32_t messages_ = 0;  // the greatest number of one
};

}  // namespace tesselctl
