#include "tesselctl/text/interrupt.hpp"

#include <atomic>
#include <chrono>

#include "tesselctl/text/fault.hpp"

namespace tesselctl {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kBetween = std::chrono::milliseconds(20);

std::atomic<bool> requested = false;

thread_local std::function<bool()> asked;
thread_local Clock::time_point ask_again;

// Commands ask for every entry; a look at the clock is what most of these cost.
bool is_interrupted() {
  if (requested.load(std::memory_order_relaxed)) return true;
  if (!asked || Clock::now() < ask_again) return false;
  ask_again = Clock::now() + kBetween;
  return asked();
}

}  // namespace

void check_interrupt() {
  if (is_interrupted()) throw Fault("interrupted");
}

bool interrupt_requested() noexcept { return requested.load(std::memory_order_relaxed); }
void request_interrupt() noexcept { requested.store(true, std::memory_order_relaxed); }
void clear_interrupt() noexcept { requested.store(false, std::memory_order_relaxed); }

SignalScope::SignalScope(std::initializer_list<int> signals, void (*handler)(int)) {
  struct sigaction action = {};
  action.sa_handler = handler;
  sigemptyset(&action.sa_mask);
  for (const int signal : signals) {
    Before before = {signal, {}};
    sigaction(signal, nullptr, &before.action);
    if (before.action.sa_handler == SIG_IGN) continue;
    before_.push_back(before);
    sigaction(signal, &action, nullptr);
  }
}
SignalScope::~SignalScope() {
  for (const Before &before : before_) sigaction(before.signal, &before.action, nullptr);
}

InterruptScope::InterruptScope(std::function<bool()> interrupted) {
  asked = std::move(interrupted);
  ask_again = {};
}
InterruptScope::~InterruptScope() { asked = nullptr; }

}  // namespace tesselctl
