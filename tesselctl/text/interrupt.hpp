// How a command that takes long is ended: by a signal of the process, or by whom the command is
// for.
#pragma once

#include <signal.h>

#include <functional>
#include <initializer_list>
#include <vector>

namespace tesselctl {

// A command that takes long asks now and then; throws Fault once somebody interrupted it.
void check_interrupt();
bool interrupt_requested() noexcept;
// Safe in signal handlers.
void request_interrupt() noexcept;
void clear_interrupt() noexcept;
// The process is to end: an interrupt that stays. Safe in signal handlers.
void request_end() noexcept;
bool end_requested() noexcept;

// Waits until there is something to read. False when an interrupt came first.
bool wait_for_input(int fd);

// For SignalScope: SIGINT interrupts, SIGTERM and SIGHUP end the process, and others are taken and
// do nothing, unlike ignored ones in the programs that the process starts, too.
extern "C" void take_signal(int signal);

// While it lives, the handler takes the signals and wakes up what waits. One that is ignored, as by
// nohup, stays so.
class SignalScope {
 public:
  SignalScope(std::initializer_list<int> signals, void (*handler)(int));
  ~SignalScope();
  SignalScope(const SignalScope &) = delete;
  SignalScope &operator=(const SignalScope &) = delete;

 private:
  struct Before {
    int signal;
    struct sigaction action;
  };
  std::vector<Before> before_;
};

// While it lives, SIGINT ends what runs and nothing else.
struct InterruptibleScope {
  ~InterruptibleScope() { clear_interrupt(); }  // the lines that follow go on
  const SignalScope signals{{SIGINT}, take_signal};
};

// While it lives, nothing interrupts this thread.
class UninterruptedScope {
 public:
  UninterruptedScope();
  ~UninterruptedScope();
  UninterruptedScope(const UninterruptedScope &) = delete;
  UninterruptedScope &operator=(const UninterruptedScope &) = delete;
};

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
