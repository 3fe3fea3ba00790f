// "watch [SECONDS] [count=N] COMMAND..."
#pragma once

#include <chrono>

#include "tesselctl/command/command.hpp"

namespace tesselctl {

struct Watch {
  std::chrono::milliseconds period{1000};
  uint64_t rounds = 0;  // 0 until an interrupt
  size_t first = 0;     // the word where the command begins
  bool delta = false;   // rates are shown
};

// The words are those of the line, "watch" and behind. Throws Fault: no command, one that cannot be
// watched, or wrong words before it.
Watch read_watch(Words words);
// The command that is repeated. Throws Fault.
const Command &find_watched(Words words);
// How many words stand before it: "watch", SECONDS, count=.
size_t words_of_watch(Words words);

}  // namespace tesselctl
