// Learning digests: the caller's callback, cookie and messages pass through.
#pragma once

#include "p4_pd_types.h"
#include "pipe_mgr_learn.h"

namespace pd {

inline p4_pd_status_t register_digest(uint32_t digest, p4_pd_session_handle_t session,
                                      uint8_t device, pipe_mgr_digest_cb_t callback, void *cookie) {
  return pipe_mgr_lrn_digest_notification_register(session, device, digest, callback, cookie);
}

inline p4_pd_status_t deregister_digest(uint32_t digest, p4_pd_session_handle_t session,
                                        uint8_t device) {
  return pipe_mgr_lrn_digest_notification_deregister(session, device, digest);
}

inline p4_pd_status_t acknowledge_digest(uint32_t digest, p4_pd_session_handle_t session,
                                         pipe_mgr_digest_message_t *message) {
  if (message == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_mgr_flow_lrn_notify_ack(session, digest, message);
}

inline p4_pd_status_t set_learning_timeout(p4_pd_session_handle_t session, uint8_t device,
                                           uint32_t timeout) {
  return pipe_mgr_flow_lrn_set_timeout(session, device, timeout);
}

}  // namespace pd
