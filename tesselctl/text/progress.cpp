#include "tesselctl/text/progress.hpp"

#include <fmt/format.h>

#include <cstdio>

#include "tesselctl/text/number.hpp"

namespace tesselctl {

Progress::Progress(std::string task, uint64_t total, bool visible)
    : task_(std::move(task)), total_(total), visible_(visible) {}

void Progress::update(uint64_t done) {
  if (!visible_) return;
  const Clock::time_point now = Clock::now();
  if (now - last_ < std::chrono::milliseconds(100)) return;
  last_ = now;
  shown_ = true;
  const double seconds = std::chrono::duration<double>(now - start_).count();
  fmt::print(stderr, "\r\033[K{}", progress_text(task_, done, total_, seconds));
  fflush(stderr);
}

void Progress::clear() {
  if (shown_) fmt::print(stderr, "\r\033[K");
  shown_ = false;
}

std::string progress_text(const std::string &task, uint64_t done, uint64_t total, double seconds) {
  const double rate = seconds > 0 ? static_cast<double>(done) / seconds : 0;
  std::string text =
      fmt::format("{} {} of {} ({} %), {} a second", task, grouped(done), grouped(total),
                  total == 0 ? 100 : done * 100 / total, grouped(static_cast<uint64_t>(rate)));
  if (rate > 0) text += fmt::format(", {:.1f} s left", static_cast<double>(total - done) / rate);
  return text;
}

}  // namespace tesselctl
