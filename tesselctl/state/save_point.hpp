// A device as it was, to go back to.
#pragma once

#include <memory>
#include <optional>

#include "tesselctl/state/recorder.hpp"

namespace tesselctl {

class SavePoint {
 public:
  // Of the device as it is now, which outlives this. Throws Fault.
  explicit SavePoint(const Device &device);
  // Who records the changes of the device forgets those since. Throws Fault.
  void go_back() const;

 private:
  const Device &device_;
  std::unique_ptr<Device> copy_;
  Recorder *recorder_;
  Recorder::Mark mark_;
};

// Makes a change; one that throws leaves the device as it was if it is to be all or nothing.
template <class Change>
auto all_or_nothing(bool is_atomic, const Device &device, Change change) {
  std::optional<SavePoint> before;
  if (is_atomic) before.emplace(device);
  try {
    return change();
  } catch (...) {
    if (before) before->go_back();
    throw;
  }
}

}  // namespace tesselctl
