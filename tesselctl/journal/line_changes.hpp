// What a line of a client changed in a served device.
#pragma once

#include <cstdint>
#include <string_view>

#include "tesselctl/state/recorder.hpp"

namespace tesselctl {

struct LineChanges {
  uint64_t number;          // of the lines that changed something
  int64_t time_ms;          // since 1970, UTC
  std::string_view client;  // "anna[4711]"
  std::string_view command;
  const std::vector<Change> &changes;  // in the order in which they were made
};

class LineListener {
 public:
  virtual ~LineListener() = default;
  // Throws Fault where the changes cannot stay: then they are taken back, and the line has failed.
  virtual void note(const LineChanges &line) = 0;
};

}  // namespace tesselctl
