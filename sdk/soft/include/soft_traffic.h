/* What traffic does to tables, profiles, counters and meters, and the limits of their cells. Every
 * function may be called from any thread and writes its out-parameters on success only. The pipe
 * is one of the device's, never BF_ALL_PIPES. BF_INVALID_DEVICE, BF_INVALID_PIPE and
 * BF_INVALID_HANDLE mean what they say throughout. */
#ifndef SOFT_TRAFFIC_H
#define SOFT_TRAFFIC_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Indirect counters and meters and the WRED tables have cells 0 to the limit - 1 in every pipe.
 * They take memory only where they are written. A call that names a cell behind the last one, an
 * entry that attaches one included, is refused with BF_INVALID_ARGUMENT. */
#define SOFT_COUNTER_CELLS 0x400000u
#define SOFT_METER_CELLS 0x400000u
#define SOFT_WRED_CELLS 0x400000u

enum soft_color { SOFT_COLOR_GREEN = 0, SOFT_COLOR_YELLOW = 1, SOFT_COLOR_RED = 2 };

/* ---- Through a table ---- */

/* Traffic of one flow that comes at once. */
typedef struct soft_traffic {
  const uint8_t *key; /* key_length bytes, as the table declares; null in a keyless table */
  uint32_t key_length;
  const uint8_t *hash; /* hash_length bytes, big-endian; without one the hash is 0 */
  uint32_t hash_length;
  uint64_t packets;
  uint64_t bytes;
} soft_traffic_t;

/* What became of it. */
typedef struct soft_hit {
  pipe_entry_handle_t entry;
  bool is_default;             /* no entry was hit: it is the default entry */
  pipe_object_handle_t action; /* that ran: the entry's, or the one of the member; 0 none */
  pipe_group_handle_t group;   /* that the entry names, or 0 */
  pipe_member_handle_t member; /* that the entry names or the hash chose, or 0 */
  uint8_t color;               /* enum soft_color, the worst that a meter of the entry gave */
} soft_hit_t;

/* Sends traffic through a table. The key hits an entry as soft_lookup says; the counters attached
 * to the entry count the traffic in hardware, its meters mark it, its idle time starts anew. Then a
 * member or group is followed: the hash chooses the member as
 * pipe_mgr_sel_grp_mbr_get_from_hash does. Member and action are 0 for a group that has nothing to
 * choose. Without a meter, or with one that was never set, the traffic is green. BF_TABLE_MISS:
 * the key hits no entry and the table has no default entry; nothing is counted.
 *
 * A meter has two token buckets, full at first, which gain tokens at the committed and at the peak
 * rate on the virtual clock, up to their bursts. Traffic costs its bits, with the byte-count
 * adjustment for each packet, or its packets. It is marked as a whole: red when the peak bucket has
 * too few tokens (then it takes none), else yellow when the committed bucket has too few (then it
 * takes them from the peak bucket alone), else green. Setting a meter fills its buckets. */
bf_status_t soft_traffic_hit(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t table,
                             const soft_traffic_t *traffic, soft_hit_t *hit);

/* ---- Beside tables: cells whose index an action computes ---- */

/* Counts in a cell of an indirect counter, in hardware. BF_NOT_SUPPORTED: a direct counter. */
bf_status_t soft_counter_count(bf_device_id_t device, bf_pipe_id_t pipe,
                               pipe_object_handle_t counter, uint32_t index, uint64_t packets,
                               uint64_t bytes);

/* Has a cell of an indirect meter mark traffic, as above. BF_NOT_SUPPORTED: a direct meter. */
bf_status_t soft_meter_mark(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t meter,
                            uint32_t index, uint64_t packets, uint64_t bytes, uint8_t *color);

/* The profile that was set in a cell. Every handle with the top byte 0x07 and another one than
 * 0x07000000 names a WRED table. BF_OBJECT_NOT_FOUND: the cell was never set. */
bf_status_t soft_wred_get(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t wred,
                          uint32_t index, pipe_mgr_wred_spec_t *spec);
/* Moves on to the first cell at or behind the given one that was set in the pipe, by handle and
 * then by index. BF_OBJECT_NOT_FOUND: there is none. */
bf_status_t soft_next_wred_cell(bf_device_id_t device, bf_pipe_id_t pipe,
                                pipe_object_handle_t *wred, uint32_t *index);

/* ---- Profiles ---- */

/* Greatest number of members of an action-data table or of groups of a selector, 0 unlimited, at
 * first as the program states. A capacity below the number of those that are there keeps them and
 * refuses new ones. */
bf_status_t soft_profile_capacity_set(bf_device_id_t device, pipe_object_handle_t table,
                                      uint32_t capacity);
bf_status_t soft_profile_capacity_get(bf_device_id_t device, pipe_object_handle_t table,
                                      uint32_t *capacity);

#ifdef __cplusplus
}
#endif

#endif
