#include "tesselctl/text/interrupt.hpp"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>

#include "tesselctl/text/descriptor.hpp"
#include "tesselctl/text/fault.hpp"

namespace tesselctl {

namespace {

constexpr auto kBetween = std::chrono::milliseconds(20);

std::atomic<bool> requested = false;
std::atomic<bool> ending = false;
// Readable while one of them is set: a wait would miss a flag alone that a signal sets between the
// look at it and the wait.
const Descriptor wake(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));

void wake_up() noexcept {
  const int before = errno;
  const uint64_t one = 1;
  // It can only fail when the wait is over already.
  if (write(wake.get(), &one, sizeof one) < 0) errno = before;
}

thread_local bool uninterrupted = false;
thread_local std::function<bool()> asked;
thread_local std::chrono::steady_clock::time_point ask_again;

// Commands ask for every entry; a look at the clock is what most of these cost.
bool is_interrupted() {
  if (uninterrupted) return false;
  if (interrupt_requested()) return true;
  if (!asked) return false;
  const auto now = std::chrono::steady_clock::now();
  if (now < ask_again) return false;
  ask_again = now + kBetween;
  return asked();
}

}  // namespace

void check_interrupt() {
  if (is_interrupted()) throw Fault("interrupted");
}

bool interrupt_requested() noexcept {
  return requested.load(std::memory_order_relaxed) || end_requested();
}
void request_interrupt() noexcept {
  requested.store(true, std::memory_order_relaxed);
  wake_up();
}
void clear_interrupt() noexcept {
  requested.store(false, std::memory_order_relaxed);
  uint64_t count = 0;
  [[maybe_unused]] const ssize_t got = read(wake.get(), &count, sizeof count);
  if (end_requested()) wake_up();
}
void request_end() noexcept {
  ending.store(true, std::memory_order_relaxed);
  wake_up();
}
bool end_requested() noexcept { return ending.load(std::memory_order_relaxed); }

bool wait_for_input(int fd) {
  pollfd waits[] = {{fd, POLLIN, 0}, {wake.get(), POLLIN, 0}};
  while (poll(waits, 2, -1) < 0 && errno == EINTR) {
  }
  return !interrupt_requested();
}

void take_signal(int signal) {
  if (signal == SIGINT) request_interrupt();
  if (signal == SIGTERM || signal == SIGHUP) request_end();
}

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

UninterruptedScope::UninterruptedScope() { uninterrupted = true; }
UninterruptedScope::~UninterruptedScope() { uninterrupted = false; }

InterruptScope::InterruptScope(std::function<bool()> interrupted) {
  asked = std::move(interrupted);
  ask_again = {};
}
InterruptScope::~InterruptScope() { asked = nullptr; }

}  // namespace tesselctl
