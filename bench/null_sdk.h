/* An SDK whose calls do nothing: what remains is the cost of building their arguments. */
#ifndef NULL_SDK_H
#define NULL_SDK_H

#include "pipe_mgr.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What the one entry that reads return holds. */
extern struct null_sdk_entry {
  uint8_t value[64];
  uint8_t mask[64];
  uint32_t priority;
  pipe_object_handle_t action;
  uint8_t data[4];
  pipe_object_handle_t counter; /* or 0 */
} null_sdk_held;

/* Hears of every call when it is not null: the match spec, action handle and action spec, or null
 * and 0. */
extern void (*null_sdk_watch)(const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                              const pipe_mgr_action_spec_t *action_spec);

#ifdef __cplusplus
}
#endif

#endif
