/* What a device holds beyond what the contract can ask for, so that a host can save all of it and
 * make another device the same. Every function may be called from any thread and writes its
 * out-parameters on success only. BF_INVALID_DEVICE and BF_INVALID_HANDLE mean what they say
 * throughout. */
#ifndef SOFT_CONTENTS_H
#define SOFT_CONTENTS_H

#include "bf_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The first cell at or behind from that is not as most are, in any pipe: a counter cell that has
 * counted, a meter cell that was set, a register cell whose hardware is not that of its usual cell
 * (SOFT_REGISTER_USUAL). BF_OBJECT_NOT_FOUND: there is none. BF_NOT_SUPPORTED: no counter, meter or
 * register with cells of its own. */
bf_status_t soft_next_cell(bf_device_id_t device, pipe_object_handle_t handle, uint32_t from,
                           uint32_t *cell);

/* The greatest number of members of a group as it was created, 0 unlimited.
 * BF_OBJECT_NOT_FOUND: the selector has no such group. */
bf_status_t soft_group_max_size(bf_device_id_t device, pipe_object_handle_t selector,
                                pipe_group_handle_t group, uint32_t *max_size);

/* The member that stands in for groups without members. BF_OBJECT_NOT_FOUND: none was set. */
bf_status_t soft_fallback_member(bf_device_id_t device, pipe_object_handle_t selector,
                                 pipe_member_handle_t *member);

/* Where a value of a set is. */
typedef struct soft_parsers {
  uint32_t direction; /* 0 ingress, 1 egress */
  bf_pipe_id_t pipe;  /* or BF_ALL_PIPES, and */
  uint8_t parser;     /* SOFT_ALL_PARSERS, as it was added */
} soft_parsers_t;

/* The parsers that a value is in. BF_OBJECT_NOT_FOUND: the set has no such entry. */
bf_status_t soft_value_set_parsers(bf_device_id_t device, pipe_object_handle_t value_set,
                                   pipe_entry_handle_t entry, soft_parsers_t *parsers);

#ifdef __cplusplus
}
#endif

#endif
