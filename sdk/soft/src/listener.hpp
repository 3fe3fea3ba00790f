// A callback of the host and what it wants handed back.
#pragma once

namespace soft {

// Kept under the lock of its owner, copied there, told after the lock is given up.
template <class Callback>
struct Listener {
  Callback callback = nullptr;
  void *cookie = nullptr;

  template <class... Args>
  void tell(Args... args) const {
    if (callback != nullptr) callback(args..., cookie);
  }
};

}  // namespace soft
