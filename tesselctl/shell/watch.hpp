// Rounds of a command that runs again and again, each a request of its own.
#pragma once

#include <functional>

#include "tesselctl/command/runner.hpp"
#include "tesselctl/command/watch_line.hpp"
#include "tesselctl/shell/watch_screen.hpp"

namespace tesselctl {

// Rounds follow each other until count, a fault or an interrupt, during which SIGINT ends nothing
// else. They appear under a line with the time, in JSON without one; on a terminal each stands in
// the place of the one before.
class WatchRounds {
 public:
  // out is where runner answers. terminal: the window that it is, -1 for none. prepare is called
  // before each round but the first, unless it is empty; it may throw Fault.
  WatchRounds(Runner &runner, Output &out, int terminal, std::function<void()> prepare)
      : runner_(&runner), out_(&out), terminal_(terminal), prepare_(std::move(prepare)) {}

  // source is the command without the words of watch.
  LineOutcome run(const Watch &watch, const SourceLine &source, bool json);

 private:
  std::string run_held(const SourceLine &source, LineOutcome &outcome);
  LineOutcome draw_round(WatchScreen &screen, const SourceLine &source, bool delta);

  Runner *runner_;
  Output *out_;
  int terminal_;
  std::function<void()> prepare_;
};

}  // namespace tesselctl
