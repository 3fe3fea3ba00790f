/* Placement data: what a device holds of one entry or member, as an object of bytes that needs
 * neither the device nor the entry any longer. And the replay of a virtual device. */
#ifndef SOFT_PLACEMENT_H
#define SOFT_PLACEMENT_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Placement data ----
 * Works for devices and virtual devices alike. The decoders of the contract refuse an object of the
 * other kind with BF_INVALID_ARGUMENT and one whose bytes have changed with BF_CORRUPT_DATA. They
 * fill the given buffers without regard to byte_count; a null data pointer is left out. */

/* Makes the placement data of an entry or default entry of a match table. *placement is null, or an
 * object of an earlier call of either function, which is made anew without new memory as long as it
 * has room; the caller releases it with soft_placement_free in the end. BF_INVALID_HANDLE: no such
 * match table. BF_OBJECT_NOT_FOUND: no such entry. *placement is as it was then. */
bf_status_t soft_placement_of_entry(bf_device_id_t device, pipe_object_handle_t table,
                                    pipe_entry_handle_t entry, pipe_mgr_placement_t **placement);

/* Makes the placement data of a member of an action profile in the same way. */
bf_status_t soft_placement_of_member(bf_device_id_t device, pipe_object_handle_t action_data_table,
                                     pipe_member_handle_t member, pipe_mgr_placement_t **placement);

/* Releases placement data. Null is allowed. */
void soft_placement_free(pipe_mgr_placement_t *placement);

/* Damages the object, so that tests see what becomes of one that the SDK did not make. */
void soft_placement_corrupt(pipe_mgr_placement_t *placement);

/* ---- Replay ----
 * pipe_mgr_hitless_ha_restore_virtual_dev_state makes a device equal to a virtual device in its
 * tables and profiles: entries, default entries, members, groups, memberships and their states,
 * fallback members, references, capacities and other properties, ageing, direct counters and
 * meters, all under the handles that they have in the virtual device. What the device had of them
 * before is gone. Counters, meters and registers of their own, hash calculations, digests, value
 * sets and snapshots stay as they are, and so do the callbacks of both devices; update callbacks
 * do not hear of the replay.
 *
 * Then the callback hears of all members of all profiles, then of all groups, with action 0, then
 * of all memberships, with the action of the member. has_resources is always 0, as members hold no
 * resources. The first status other than BF_SUCCESS ends the report and is returned; the device is
 * complete all the same.
 *
 * Both devices must run the same description with the same number of pipes, and the second one must
 * be virtual and another one: BF_INVALID_ARGUMENT, also for a null callback. The pipe is
 * BF_ALL_PIPES, or 0 where there is but one; BF_NOT_SUPPORTED for one of several. The flags are not
 * looked at. Nobody may change either device meanwhile, except that the callback may change the
 * first one. BF_NO_MEMORY: each object of the device holds either the old or the new contents, and
 * the device is only good for another replay or its removal. */

#ifdef __cplusplus
}
#endif

#endif
