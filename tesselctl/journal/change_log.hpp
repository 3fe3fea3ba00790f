// Who hears of the changes that clients make, line by line.
#pragma once

#include "tesselctl/journal/line_changes.hpp"

namespace tesselctl {

// The changes of a device are recorded as long as anybody listens.
class ChangeLog {
 public:
  // The device outlives the log.
  explicit ChangeLog(Device &device) : device_(device) {}

  // Until it is removed; the first to listen hears of a line first. Throws Fault.
  void add(LineListener &listener);
  void remove(LineListener &listener);
  // The number of the last line before.
  void count_from(uint64_t number) { number_ = number; }

  // Gives the listeners what the line changed, if it did. Throws Fault when one refuses it.
  void end_line(std::string_view client, std::string_view command);

 private:
  Device &device_;
  std::optional<Recorder> recorder_;
  std::vector<LineListener *> listeners_;
  uint64_t number_ = 0;
};

}  // namespace tesselctl
