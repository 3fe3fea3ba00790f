// A line on a terminal that shows how far a long task is.
#pragma once

#include <time.h>

#include <chrono>
#include <cstdint>
#include <string>

namespace tesselctl {

using Clock = std::chrono::steady_clock;

inline double seconds_since(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// Wall time and the CPU time of this thread since the watch was made. On a busy machine the latter
// is the one that says what the work costs.
class StopWatch {
 public:
  double seconds() const { return seconds_since(start_); }
  double cpu_seconds() const { return cpu_now() - cpu_start_; }

 private:
  static double cpu_now() {
    timespec now;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
  }
  Clock::time_point start_ = Clock::now();
  double cpu_start_ = cpu_now();
};

class Progress {
 public:
  // visible is false where no terminal shows it; then nothing is ever printed.
  Progress(std::string task, uint64_t total, bool visible);
  ~Progress() { clear(); }
  Progress(const Progress &) = delete;
  Progress &operator=(const Progress &) = delete;

  // To be called every few thousand steps; prints ten times a second at most.
  void update(uint64_t done);
  void clear();

 private:
  std::string task_;
  uint64_t total_;
  bool visible_;
  bool shown_ = false;
  Clock::time_point start_ = Clock::now();
  Clock::time_point last_ = start_;
};

// "adding 524,288 of 1,042,325 (50 %), 2,804,112 a second, 0.2 s left"
std::string progress_text(const std::string &task, uint64_t done, uint64_t total, double seconds);

}  // namespace tesselctl
