// How a command that takes long is ended: by a signal of the process, or by whom the command is
// for.
#pragma once

#include <functional>

namespace tesselctl {

// A command that takes long asks now and then; throws Fault once somebody interrupted it.
void check_interrupt();
bool interrupt_requested() noexcept;
// Safe in signal handlers.
void request_interrupt() noexcept;
void clear_interrupt() noexcept;

// While it lives, check_interrupt on this thread asks this too, fifty times a second at most. One
// at a time in a thread.
class InterruptScope {
 public:
  explicit InterruptScope(std::function<bool()> interrupted);
  ~InterruptScope();
  InterruptScope(const InterruptScope &) = delete;
  InterruptScope &operator=(const InterruptScope &) = delete;
};

}  // namespace tesselctl
