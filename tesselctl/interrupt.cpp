#include "tesselctl/interrupt.hpp"

#include <atomic>
#include <chrono>

#include "tesselctl/fault.hpp"

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

InterruptScope::InterruptScope(std::function<bool()> interrupted) {
  asked = std::move(interrupted);
  ask_again = {};
}
InterruptScope::~InterruptScope() { asked = nullptr; }

}  // namespace tesselctl
