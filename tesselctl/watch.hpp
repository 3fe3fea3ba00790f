// A command that runs again and again, for the one who typed it: every round is a request of its
// own, so that a server is free between two rounds.
#pragma once

#include <chrono>
#include <optional>

#include "tesselctl/runner.hpp"
#include "tesselctl/watch_screen.hpp"

namespace tesselctl {

// "watch [SECONDS] [count=N] COMMAND..."
struct Watch {
  std::chrono::milliseconds period{1000};
  uint64_t rounds = 0;  // 0 until an interrupt
  size_t first = 0;     // the argument where the command begins
};

// Throws Fault: no command, one that changes the device, or wrong words before it.
Watch read_watch(Words arguments);

// Runs the lines that watch repeats, and gives all others to another runner. Rounds follow each
// other until count, a fault or an interrupt, during which SIGINT ends nothing else. They appear
// under a line with the time, in JSON without one; on a terminal each stands in the place of the
// one before.
class WatchRunner : public Runner {
 public:
  // out is where runner answers. terminal: the window that it is, -1 for none.
  WatchRunner(Runner &runner, Output &out, const Settings &defaults, int terminal)
      : runner_(&runner), out_(&out), defaults_(defaults), terminal_(terminal) {}

  LineOutcome run(const SourceLine &source) override;
  std::string ask(std::string_view line) override { return runner_->ask(line); }

 private:
  LineOutcome repeat(const Watch &watch, const SourceLine &source, bool json);
  LineOutcome draw_round(WatchScreen &screen, const SourceLine &source);

  Runner *runner_;
  Output *out_;
  Settings defaults_;
  int terminal_;
};

}  // namespace tesselctl
