#include "tesselctl/journal/change_log.hpp"

#include <chrono>

namespace tesselctl {

void ChangeLog::add(LineListener &listener) {
  if (!recorder_) recorder_.emplace(device_);
  listeners_.push_back(&listener);
}

void ChangeLog::remove(LineListener &listener) {
  std::erase(listeners_, &listener);
  if (listeners_.empty()) recorder_.reset();
}

void ChangeLog::end_line(std::string_view client, std::string_view command) {
  if (!recorder_) return;
  try {
    const std::vector<Change> &changes = recorder_->changes();
    if (!changes.empty()) {
      const auto now = std::chrono::system_clock::now().time_since_epoch();
      const int64_t time = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
      const LineChanges line = {number_ + 1, time, client, command, changes};
      for (LineListener *listener : listeners_) listener->note(line);
      ++number_;
    }
  } catch (...) {
    recorder_->take_back();
    throw;
  }
  recorder_->clear();
}

}  // namespace tesselctl
