// Learning digests: the contract and the data plane's side.
#include "contract/resolve.hpp"
#include "pipe_mgr_learn.h"
#include "services/digest_engine.hpp"
#include "soft_learning.h"
#include "soft_sdk.h"

using namespace soft;

namespace {

// The message names its device, but a pointer that is no message must not be followed: all devices
// with such a digest are asked.
bf_status_t acknowledge(pipe_session_handle_t session, pipe_object_handle_t digest,
                        const pipe_mgr_digest_message_t *message) {
  if (!session_is_open(session)) return BF_INVALID_SESSION;
  bf_status_t status = BF_INVALID_HANDLE;
  for (bf_device_id_t id = 0; id < SOFT_DEVICE_LIMIT && status != BF_SUCCESS; ++id) {
    if (!soft_device_exists(id)) continue;
    const DeviceHold device(id);
    DigestEngine *found = device ? device->find<DigestEngine>(digest) : nullptr;
    if (found != nullptr) status = found->acknowledge(message);
  }
  return status;
}

bf_status_t set_timeout(const Device &device, uint32_t timeout) {
  for (const auto &object : device.objects()) {
    if (auto *digest = object->as<DigestEngine>()) digest->set_timeout(timeout);
  }
  return BF_SUCCESS;
}

bf_status_t inject_entries(DigestEngine &digest, bf_pipe_id_t pipe, uint32_t count,
                           std::span<const uint8_t> entries, uint32_t *learnt) {
  if (uint64_t{count} * digest.entry_bytes() != entries.size()) return BF_WRONG_LENGTH;
  return digest.inject(pipe, entries, learnt);
}

void pending(DigestEngine &digest, uint32_t *collected, uint32_t *unacknowledged) {
  const DigestEngine::Pending pending = digest.pending();
  if (collected != nullptr) *collected = pending.collected;
  if (unacknowledged != nullptr) *unacknowledged = pending.unacknowledged;
}

}  // namespace

bf_status_t pipe_mgr_lrn_digest_notification_register(pipe_session_handle_t session,
                                                      bf_device_id_t device,
                                                      pipe_object_handle_t digest,
                                                      pipe_mgr_digest_cb_t callback, void *cookie) {
  return SOFT_CALL(
      (session, device, digest, callback, cookie),
      on<&DigestEngine::listen>(ByHandle{session, device, digest}, session, callback, cookie));
}

bf_status_t pipe_mgr_lrn_digest_notification_deregister(pipe_session_handle_t session,
                                                        bf_device_id_t device,
                                                        pipe_object_handle_t digest) {
  return SOFT_CALL((session, device, digest),
                   on<&DigestEngine::stop_listening>(ByHandle{session, device, digest}));
}

// The message is a pointer that may lead anywhere: the journal keeps the address alone.
bf_status_t pipe_mgr_flow_lrn_notify_ack(pipe_session_handle_t session, pipe_object_handle_t digest,
                                         pipe_mgr_digest_message_t *message) {
  return SOFT_CALL((session, digest, static_cast<const void *>(message)),
                   acknowledge(session, digest, message));
}

bf_status_t pipe_mgr_flow_lrn_set_timeout(pipe_session_handle_t session, bf_device_id_t device,
                                          uint32_t timeout) {
  return SOFT_CALL((session, device, timeout),
                   with_session(session, device,
                                [&](const Device &found) { return set_timeout(found, timeout); }));
}

bf_status_t soft_digest_inject(bf_device_id_t device, bf_pipe_id_t pipe,
                               pipe_object_handle_t digest, const uint8_t *entries, uint32_t count,
                               uint32_t bytes, uint32_t *learnt) {
  return control<inject_entries>(InPipe{device, pipe, digest}, pipe, count, list(entries, bytes),
                                 learnt);
}

bf_status_t soft_digest_pending(bf_device_id_t device, pipe_object_handle_t digest,
                                uint32_t *collected, uint32_t *unacknowledged) {
  return control<pending>(Inside{device, digest}, collected, unacknowledged);
}
