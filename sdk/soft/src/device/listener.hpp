// Callbacks of the host and what they want handed back.
#pragma once

#include <mutex>

#include "bf_types.h"

namespace soft {

template <class Callback>
struct Listener {
  Callback callback = nullptr;
  void *cookie = nullptr;

  template <class... Args>
  void notify(Args... args) const {
    if (callback != nullptr) callback(args..., cookie);
  }
};

// Runs body() under the mutex and, if it succeeds, notifies the listener as it was then, without
// the mutex. What body has written into the arguments is seen.
template <class Mutex, class SomeListener, class Body, class... Args>
bf_status_t change_and_notify(Mutex &mutex, const SomeListener &listener, Body &&body,
                              const Args &...args) {
  SomeListener listening;
  {
    const std::lock_guard lock(mutex);
    const bf_status_t status = body();
    if (status != BF_SUCCESS) return status;
    listening = listener;
  }
  listening.notify(args...);
  return BF_SUCCESS;
}

}  // namespace soft
