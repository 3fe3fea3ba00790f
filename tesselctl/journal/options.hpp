// How the journal of a served device is kept.
#pragma once

#include <cstdint>
#include <string>

namespace tesselctl {

enum class JournalSync : uint8_t {
  interval,  // once a second: what was answered before survives the end of the machine
  always,    // before each answer
};

struct JournalOptions {
  std::string path = {};  // empty for none
  JournalSync sync = JournalSync::interval;
  uint64_t most_bytes = uint64_t{64} << 20;  // of a file; then a new one begins
  std::string_view flag = {};                // that was given beside the path
};

}  // namespace tesselctl
