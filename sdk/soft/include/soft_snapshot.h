/* What the data plane does to snapshots.
 *
 * A snapshot watches stages of one pipe or of all of them. Its trigger is a pair of records, value
 * and mask, of the program's snapshot_bytes each; setting it arms the snapshot and drops what it
 * captured. From then on the first packet in each pipe whose record agrees with the value in the
 * bits of the mask, at one of its stages at least, is captured: the records of all watched stages
 * that the packet went through. Later packets change nothing.
 *
 * A capture is read with bf_snapshot_capture_get as blocks of snapshot_bytes, one for each stage of
 * the snapshot in ascending order, zero where the packet did not go. A block holds the fields of
 * the packet in the layout of captures, which is the same for both directions. The control record
 * of a stage is valid where it has a block, and triggered where the trigger matched. BF_ALL_PIPES
 * asks for the lowest pipe that has a capture. Without a capture the answer is BF_NOT_READY and 0
 * captures.
 *
 * A handle is the device in bits 31 to 24, a serial number, the direction in bit 1, and 1 in
 * bit 0. A snapshot ends with bf_snapshot_delete or with its device. */
#ifndef SOFT_SNAPSHOT_H
#define SOFT_SNAPSHOT_H

#include "bf_types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define SOFT_STAGE_LIMIT 32u /* stages are 0 to 31 */

/* Sends a packet through stage_count stages of a pipe from first_stage on. records holds its fields
 * at each of them, in the layout of the direction (0 ingress, 1 egress) with multi-byte fields in
 * network byte order; bytes is the length of them all. captures receives how many snapshots
 * captured the packet (null: not wanted).
 * BF_NOT_SUPPORTED: the program has no snapshots. BF_WRONG_LENGTH: bytes is not stage_count
 * records. BF_INVALID_ARGUMENT: another direction, or a stage out of range. BF_INVALID_PIPE also
 * for all pipes. */
bf_status_t soft_snapshot_inject(bf_device_id_t device, bf_pipe_id_t pipe, uint32_t direction,
                                 uint8_t first_stage, const uint8_t *records, uint32_t stage_count,
                                 uint32_t bytes, uint32_t *captures);

/* Copies the trigger of a snapshot, as the device has it: two records of snapshot_bytes.
 * BF_OBJECT_NOT_FOUND: no such snapshot. BF_NOT_READY: it has no trigger. */
bf_status_t soft_snapshot_trigger_get(uint32_t snapshot, uint8_t *value, uint8_t *mask);

#ifdef __cplusplus
}
#endif

#endif
