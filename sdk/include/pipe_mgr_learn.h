/* Learning digests. */
#ifndef PIPE_MGR_LEARN_H
#define PIPE_MGR_LEARN_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Delivers the messages of a digest to the callback. One callback a digest and device. */
bf_status_t pipe_mgr_lrn_digest_notification_register(pipe_session_handle_t session,
                                                      bf_device_id_t device,
                                                      pipe_object_handle_t digest,
                                                      pipe_mgr_digest_cb_t callback, void *cookie);
bf_status_t pipe_mgr_lrn_digest_notification_deregister(pipe_session_handle_t session,
                                                        bf_device_id_t device,
                                                        pipe_object_handle_t digest);
/* Gives a message back; its entries may be learnt anew. Allowed inside of the callback. */
bf_status_t pipe_mgr_flow_lrn_notify_ack(pipe_session_handle_t session, pipe_object_handle_t digest,
                                         pipe_mgr_digest_message_t *message);
/* How long the device collects entries before it sends a message, in microseconds. */
bf_status_t pipe_mgr_flow_lrn_set_timeout(pipe_session_handle_t session, bf_device_id_t device,
                                          uint32_t timeout);

#ifdef __cplusplus
}
#endif

#endif
