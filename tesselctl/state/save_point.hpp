// A device as it was, to go back to.
#pragma once

#include <memory>

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

}  // namespace tesselctl
