/* Snapshots: packet fields captured at a range of stages when a trigger matches. Bit 1 of a handle
 * is the direction: set for egress, whose trigger records have a layout of their own. */
#ifndef BF_SNAPSHOT_H
#define BF_SNAPSHOT_H

#include "bf_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Of one captured stage. */
typedef struct bf_snapshot_control {
  uint8_t stage;
  bool valid;     /* the stage holds a capture */
  bool triggered; /* its trigger matched here */
  uint8_t reserved;
} bf_snapshot_control_t;

/* Creates a snapshot of the stages first_stage to last_stage; direction is 0 ingress, 1 egress. */
bf_status_t bf_snapshot_create(bf_device_id_t device, uint16_t pipe, uint8_t first_stage,
                               uint8_t last_stage, uint32_t direction, uint32_t *snapshot);
bf_status_t bf_snapshot_delete(uint32_t snapshot);
/* Sets the trigger: a packet matches when its fields equal value in the bits of mask. Both are
 * trigger records of the program, multi-byte fields in network byte order. */
bf_status_t bf_snapshot_capture_trigger_set(uint32_t snapshot, const void *value, const void *mask);
/* Size in bytes of a whole capture and of one stage of it. */
bf_status_t bf_snapshot_capture_phv_fields_dict_size(uint32_t snapshot, uint32_t *total_size,
                                                     uint32_t *stage_size);
/* Copies the capture of a pipe, stage after stage, into fields, which has room for the total size.
 * control receives one bf_snapshot_control_t a stage and may be null; captures is the number of
 * stages captured. */
bf_status_t bf_snapshot_capture_get(uint32_t snapshot, uint16_t pipe, void *fields,
                                    bf_snapshot_control_t *control, uint32_t *captures);

#ifdef __cplusplus
}
#endif

#endif
