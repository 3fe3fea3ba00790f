// Learning digests: the contract and the data plane's side.
#include "contract_call.hpp"
#include "digest_engine.hpp"
#include "pipe_mgr_learn.h"
#include "resolve.hpp"
#include "soft_learning.h"
#include "soft_sdk.h"

using soft::DigestEngine;

bf_status_t pipe_mgr_lrn_digest_notification_register(pipe_session_handle_t session,
                                                      bf_device_id_t device,
                                                      pipe_object_handle_t digest,
                                                      pipe_mgr_digest_cb_t callback, void *cookie) {
  return SOFT_CALL((session, device, digest, callback, cookie), {
    return soft::with_object<DigestEngine>(session, device, digest, [&](DigestEngine &found) {
      return found.listen(session, callback, cookie);
    });
  });
}

bf_status_t pipe_mgr_lrn_digest_notification_deregister(pipe_session_handle_t session,
                                                        bf_device_id_t device,
                                                        pipe_object_handle_t digest) {
  return SOFT_CALL((session, device, digest), {
    return soft::with_object<DigestEngine>(
        session, device, digest, [](DigestEngine &found) { return found.stop_listening(); });
  });
}

// The message names its device, but a pointer that is no message must not be followed: all devices
// with such a digest are asked. For the same reason the journal keeps the address alone.
bf_status_t pipe_mgr_flow_lrn_notify_ack(pipe_session_handle_t session, pipe_object_handle_t digest,
                                         pipe_mgr_digest_message_t *message) {
  return SOFT_CALL((session, digest, static_cast<const void *>(message)), {
    if (!soft::session_is_open(session)) return BF_INVALID_SESSION;
    bf_status_t status = BF_INVALID_HANDLE;
    for (bf_device_id_t id = 0; id < SOFT_DEVICE_LIMIT && status != BF_SUCCESS; ++id) {
      if (!soft_device_exists(id)) continue;
      const soft::DeviceHold device(id);
      DigestEngine *found = device ? device->find<DigestEngine>(digest) : nullptr;
      if (found != nullptr) status = found->acknowledge(message);
    }
    return status;
  });
}

bf_status_t pipe_mgr_flow_lrn_set_timeout(pipe_session_handle_t session, bf_device_id_t device,
                                          uint32_t timeout) {
  return SOFT_CALL((session, device, timeout), {
    return soft::with_session(session, device, [&](soft::Device &found) -> bf_status_t {
      for (const auto &object : found.objects()) {
        if (auto *digest = object->as<DigestEngine>()) digest->set_timeout(timeout);
      }
      return BF_SUCCESS;
    });
  });
}

bf_status_t soft_digest_inject(bf_device_id_t device, bf_pipe_id_t pipe,
                               pipe_object_handle_t digest, const uint8_t *entries, uint32_t count,
                               uint32_t bytes, uint32_t *learnt) {
  auto inject = [&] {
    return soft::with_device(device, [&](soft::Device &found) -> bf_status_t {
      if (pipe >= found.pipes()) return BF_INVALID_PIPE;
      return soft::on_object<DigestEngine>(found, digest, [&](DigestEngine &object) -> bf_status_t {
        if (uint64_t{count} * object.entry_bytes() != bytes) return BF_WRONG_LENGTH;
        if (entries == nullptr && bytes != 0) return BF_INVALID_ARGUMENT;
        return object.inject(pipe, {entries, bytes}, learnt);
      });
    });
  };
  return soft::guarded(inject);
}

bf_status_t soft_digest_pending(bf_device_id_t device, pipe_object_handle_t digest,
                                uint32_t *collected, uint32_t *unacknowledged) {
  return soft::with_device(device, [&](soft::Device &found) {
    return soft::on_object<DigestEngine>(found, digest, [&](DigestEngine &object) -> bf_status_t {
      const DigestEngine::Pending pending = object.pending();
      if (collected != nullptr) *collected = pending.collected;
      if (unacknowledged != nullptr) *unacknowledged = pending.unacknowledged;
      return BF_SUCCESS;
    });
  });
}
