#include "tesselctl/device/device.hpp"

#include <fmt/format.h>

#include "soft_sdk.h"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/status.hpp"

namespace tesselctl {

namespace {

void check_start(uint64_t status, const char *what) {
  if (status == BF_SUCCESS) return;
  throw Fault(fmt::format("{}: {}", what, status_text(static_cast<uint32_t>(status))));
}

int library_uses = 0;

}  // namespace

LibraryUse::LibraryUse() {
  if (library_uses == 0)
    check_start(Call(need_export("init", "")).run(), "cannot start the library");
  ++library_uses;
}

LibraryUse::~LibraryUse() {
  if (--library_uses == 0) Call(need_export("cleanup", "")).run();
}

Device::Device(const DeviceOptions &options) : pipes_(options.pipes) {
  target_.device_id = options.id;
  target_.pipe_id = BF_ALL_PIPES;
  check_start(soft_device_create(options.id, options.pipes, &program(), options.is_virtual),
              "cannot create the device");
  const bf_status_t status = soft_session_open(&session_);
  if (status == BF_SUCCESS) return;
  soft_device_remove(options.id);
  check_start(status, "cannot open a session");
}

Device::~Device() {
  soft_session_close(session_);
  soft_device_remove(id());
}

Call Device::prepare(const bindings::Export &target) const {
  Call call(target, listener_);
  call.set_if_taken("session", uint64_t{session_});
  call.set_if_taken("device", uint64_t{target_.device_id});
  call.set_if_taken("target", static_cast<const void *>(&target_));
  return call;
}

void check(uint64_t status, Word word) {
  if (status != BF_SUCCESS) throw Fault(word, status_text(static_cast<uint32_t>(status)));
}

}  // namespace tesselctl
