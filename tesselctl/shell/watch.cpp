#include "tesselctl/shell/watch.hpp"

#include <algorithm>
#include <ctime>
#include <thread>
#include <utility>

#include "tesselctl/shell/window.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// An interrupt is heard of so much later.
constexpr auto kLookUp = milliseconds(50);

// While it lives, commands show rates.
class DeltaScope {
 public:
  DeltaScope(Settings &settings, bool delta)
      : settings_(settings), before_(std::exchange(settings.delta, delta)) {}
  ~DeltaScope() { settings_.delta = before_; }
  DeltaScope(const DeltaScope &) = delete;
  DeltaScope &operator=(const DeltaScope &) = delete;

 private:
  Settings &settings_;
  bool before_;
};

void wait_until(Clock::time_point when) {
  while (!interrupt_requested()) {
    const auto left = std::chrono::duration_cast<milliseconds>(when - Clock::now());
    if (left <= milliseconds(0)) return;
    std::this_thread::sleep_for(std::min<milliseconds>(left, kLookUp));
  }
}

std::string head_text(bool delta) {
  const time_t now = time(nullptr);
  struct tm parts = {};
  localtime_r(&now, &parts);
  char text[32];
  strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
  return delta ? std::string(text) + ", amounts a second" : text;
}

}  // namespace

LineOutcome WatchRounds::run(const Watch &watch, const SourceLine &source, bool json) {
  const InterruptibleScope scope;
  const DeltaScope delta(runner_->defaults(), watch.delta);
  WatchScreen screen(*out_);
  Clock::time_point next = Clock::now();
  LineOutcome outcome = LineOutcome::done;
  if (watch.delta) {
    // What they grow by needs a round before the first, which is not shown.
    const std::string text = run_held(source, outcome);
    if (outcome == LineOutcome::fault) out_->write(text);
    if (outcome == LineOutcome::fault) return outcome;
    next += watch.period;
    wait_until(next);
  }
  for (uint64_t round = 1; !interrupt_requested(); ++round) {
    if ((round > 1 || watch.delta) && prepare_) prepare_();
    if (terminal_ >= 0) {
      outcome = draw_round(screen, source, watch.delta);
    } else {
      if (!json) out_->line("# {}", head_text(watch.delta));
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

// The text of a round.
std::string WatchRounds::run_held(const SourceLine &source, LineOutcome &outcome) {
  out_->flush();
  const Output::Hold hold(*out_);
  outcome = runner_->run(source);
  return out_->take();
}

LineOutcome WatchRounds::draw_round(WatchScreen &screen, const SourceLine &source, bool delta) {
  LineOutcome outcome = LineOutcome::fault;
  const std::string text = run_held(source, outcome);
  if (outcome == LineOutcome::fault) {
    out_->write(text);
  } else {
    screen.draw(head_text(delta), text, window_of(terminal_).rows);
  }
  return outcome;
}

}  // namespace tesselctl
