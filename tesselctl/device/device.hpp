// A soft device with the library on top, and a session to work on it.
#pragma once

#include <cstdint>

#include "p4_pd_types.h"
#include "tesselctl/device/events.hpp"
#include "tesselctl/program/call.hpp"
#include "tesselctl/text/fault.hpp"

namespace tesselctl {

struct DeviceOptions {
  uint32_t id = 0;
  uint32_t pipes = 4;
  bool is_virtual = false;  // its state can be replayed onto another device
};

// The library is initialised while there are any of these. One thread makes and destroys them.
class LibraryUse {
 public:
  // Throws Fault when the library cannot be started.
  LibraryUse();
  ~LibraryUse();
  LibraryUse(const LibraryUse &) = delete;
  LibraryUse &operator=(const LibraryUse &) = delete;
};

// Several may exist beside one another, each with an id of its own.
class Device {
 public:
  // Throws Fault when the device cannot be made.
  explicit Device(const DeviceOptions &options);
  ~Device();
  Device(const Device &) = delete;
  Device &operator=(const Device &) = delete;

  uint32_t id() const { return target_.device_id; }
  uint32_t pipes() const { return pipes_; }
  p4_pd_session_handle_t session() const { return session_; }
  const p4_pd_device_target_t &target() const { return target_; }
  // The same in one pipe.
  p4_pd_device_target_t target_of(uint32_t pipe) const {
    return {target_.device_id, static_cast<uint16_t>(pipe)};
  }

  Events &events() { return events_; }

  // Who hears of the calls that are prepared from now on; null for nobody.
  CallListener *listener() const { return listener_; }
  void set_listener(CallListener *listener) { listener_ = listener; }

  // A call whose session, device and target are set, as far as the function takes them.
  Call prepare(const bindings::Export &target) const;
  // The same by name; throws std::logic_error when the library has no such function.
  Call prepare(std::string_view family, std::string_view object,
               std::string_view action = {}) const {
    return prepare(need_export(family, object, action));
  }

 private:
  LibraryUse library_;
  Events events_;  // the device writes here as long as it exists
  p4_pd_device_target_t target_{};
  uint32_t pipes_;
  CallListener *listener_ = nullptr;
  p4_pd_session_handle_t session_ = 0;
};

// Throws Fault with the status in words, at the word, unless the status is BF_SUCCESS.
void check(uint64_t status, Word word);

}  // namespace tesselctl
