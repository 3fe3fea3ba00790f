/* What the data plane does to learning digests. Every function may be called from any thread.
 *
 * The device collects the entries of a digest pipe by pipe. It sends what it has collected as one
 * message when SOFT_DIGEST_BATCH entries are there, or when the learning timeout of the device has
 * passed on the virtual clock since the first of them; with a timeout of 0, which a device has at
 * first, before the call that brought them ends. Messages go to the registered callback on the
 * thread that injected the entries, advanced the clock or shortened the timeout.
 *
 * A message and its entries stay as they are until they are acknowledged, whatever becomes of the
 * callback, at most as long as the device. An entry whose bytes equal one that is collected or not
 * acknowledged yet, in any pipe, is not learnt again. Deregistering the callback drops the entries
 * that no callback has seen. */
#ifndef SOFT_LEARNING_H
#define SOFT_LEARNING_H

#include "bf_types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SOFT_DIGEST_BATCH 64u

/* Brings count entries to a digest, as packets in one pipe do. entries holds them one after
 * another, each as long as the digest's entries are; bytes is the length of them all. learnt
 * receives how many were not known already (null: not wanted).
 * BF_NOT_READY: no callback is registered; nothing is learnt. BF_WRONG_LENGTH: bytes is not count
 * entries. BF_INVALID_PIPE also for all pipes. BF_NO_MEMORY: the entries before the one that found
 * no memory are learnt. */
bf_status_t soft_digest_inject(bf_device_id_t device, bf_pipe_id_t pipe,
                               pipe_object_handle_t digest, const uint8_t *entries, uint32_t count,
                               uint32_t bytes, uint32_t *learnt);

/* How many entries are collected but not sent, and how many messages wait for an acknowledgement.
 * Null out-parameters are skipped. */
bf_status_t soft_digest_pending(bf_device_id_t device, pipe_object_handle_t digest,
                                uint32_t *collected, uint32_t *unacknowledged);

#ifdef __cplusplus
}
#endif

#endif
