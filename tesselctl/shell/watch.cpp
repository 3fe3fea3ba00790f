#include "tesselctl/shell/watch.hpp"

#include <algorithm>
#include <ctime>
#include <thread>

#include "tesselctl/shell/window.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// An interrupt is heard of so much later.
constexpr auto kLookUp = milliseconds(50);

// While it lives, SIGINT ends the watch and nothing else.
struct InterruptibleScope {
  ~InterruptibleScope() { clear_interrupt(); }  // the lines that follow go on
  const SignalScope signals{{SIGINT}, take_signal};
};

void wait_until(Clock::time_point when) {
  while (!interrupt_requested()) {
    const auto left = std::chrono::duration_cast<milliseconds>(when - Clock::now());
    if (left <= milliseconds(0)) return;
    std::this_thread::sleep_for(std::min<milliseconds>(left, kLookUp));
  }
}

std::string time_text() {
  const time_t now = time(nullptr);
  struct tm parts = {};
  localtime_r(&now, &parts);
  char text[32];
  return {text, strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts)};
}

}  // namespace

LineOutcome WatchRounds::run(const Watch &watch, const SourceLine &source, bool json) {
  const InterruptibleScope scope;
  WatchScreen screen(*out_);
  Clock::time_point next = Clock::now();
  LineOutcome outcome = LineOutcome::done;
  for (uint64_t round = 1; !interrupt_requested(); ++round) {
    if (round > 1 && prepare_) prepare_();
    if (terminal_ >= 0) {
      outcome = draw_round(screen, source);
    } else {
      if (!json) out_->line("# {}", time_text());
      outcome = runner_->run(source);
      out_->flush();
    }
    if (outcome == LineOutcome::fault || round == watch.rounds) break;
    // A round that took longer than a period has the next one follow at once.
    next = std::max(next + watch.period, Clock::now());
    wait_until(next);
  }
  return outcome;
}

LineOutcome WatchRounds::draw_round(WatchScreen &screen, const SourceLine &source) {
  out_->flush();
  LineOutcome outcome = LineOutcome::fault;
  {
    const Output::Hold hold(*out_);
    outcome = runner_->run(source);
  }
  const std::string text = out_->take();
  if (outcome == LineOutcome::fault) {
    out_->write(text);
  } else {
    screen.draw(time_text(), text, window_of(terminal_).rows);
  }
  return outcome;
}

}  // namespace tesselctl
