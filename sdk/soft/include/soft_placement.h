/* Placement data: what a device holds of one entry or member, as an object of bytes that needs
 * neither the device nor the entry any longer. And the replay of a virtual device. */
#ifndef SOFT_PLACEMENT_H
#define SOFT_PLACEMENT_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Placement data ----
 * Works for devices and virtual devices alike. The decoders of the contract tell an object of the
 * other kind with BF_INVALID_ARGUMENT and one whose bytes have changed with BF_CORRUPT_DATA. They
 * fill the given buffers without regard to byte_count; a null data pointer is left out. */

/* Makes the placement data of an entry or default entry of a match table. The caller releases it
 * with soft_placement_free. BF_INVALID_HANDLE: no such match table. BF_OBJECT_NOT_FOUND: no such
 * entry. */
bf_status_t soft_placement_of_entry(bf_device_id_t device, pipe_object_handle_t table,
                                    pipe_entry_handle_t entry, pipe_mgr_placement_t **placement);

/* The same for a member of an action profile. */
bf_status_t soft_placement_of_member(bf_device_id_t device, pipe_object_handle_t action_data_table,
                                     pipe_member_handle_t member, pipe_mgr_placement_t **placement);

/* Null is allowed. */
void soft_placement_free(pipe_mgr_placement_t *placement);

/* Damages the object, so that tests see what becomes of one that the SDK did not make. */
void soft_placement_corrupt(pipe_mgr_placement_t *placement);

#ifdef __cplusplus
}
#endif

#endif
