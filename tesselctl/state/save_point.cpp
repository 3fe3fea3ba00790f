#include "tesselctl/state/save_point.hpp"

#include "tesselctl/device/device_copy.hpp"

namespace tesselctl {

SavePoint::SavePoint(const Device &device)
    : device_(device),
      copy_(copy_of(device)),
      recorder_(dynamic_cast<Recorder *>(device.listener())) {
  if (recorder_ != nullptr) mark_ = recorder_->mark();
}

void SavePoint::go_back() const {
  copy_back(*copy_, device_);
  if (recorder_ != nullptr) recorder_->forget_since(mark_);
}

}  // namespace tesselctl
