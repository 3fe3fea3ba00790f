#include "null_sdk.h"

#include <stdlib.h>
#include <string.h>

#include "bf_sys.h"
#include "p4_pd_ms.h"

struct null_sdk_entry null_sdk_held;
void (*null_sdk_watch)(const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                       const pipe_mgr_action_spec_t *action_spec);

static bf_status_t seen(const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                        const pipe_mgr_action_spec_t *action_spec) {
  if (null_sdk_watch != NULL) null_sdk_watch(match, action, action_spec);
  return BF_SUCCESS;
}

bf_status_t pipe_mgr_mat_ent_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t table,
                                 const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec, uint32_t ttl,
                                 uint32_t flags, pipe_entry_handle_t *entry) {
  (void)session, (void)device, (void)pipe, (void)table, (void)ttl, (void)flags, (void)entry;
  return seen(match, action, action_spec);
}

bf_status_t pipe_mgr_mat_ent_set_action(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table, pipe_entry_handle_t entry,
                                        pipe_object_handle_t action,
                                        const pipe_mgr_action_spec_t *action_spec, uint32_t flags) {
  (void)session, (void)device, (void)table, (void)entry, (void)flags;
  return seen(NULL, action, action_spec);
}

bf_status_t pipe_mgr_mat_ent_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t table, pipe_entry_handle_t entry,
                                 uint32_t flags) {
  (void)session, (void)device, (void)table, (void)entry, (void)flags;
  return seen(NULL, 0, NULL);
}

bf_status_t pipe_mgr_match_spec_to_ent_hdl(pipe_session_handle_t session, bf_device_id_t device,
                                           bf_pipe_id_t pipe, pipe_object_handle_t table,
                                           const pipe_mgr_match_spec_t *match,
                                           pipe_entry_handle_t *entry) {
  (void)session, (void)device, (void)pipe, (void)table, (void)entry;
  return seen(match, 0, NULL);
}

bf_status_t pipe_mgr_mat_default_entry_set(pipe_session_handle_t session, bf_device_id_t device,
                                           bf_pipe_id_t pipe, pipe_object_handle_t table,
                                           pipe_object_handle_t action,
                                           const pipe_mgr_action_spec_t *action_spec,
                                           uint32_t flags, pipe_entry_handle_t *entry) {
  (void)session, (void)device, (void)pipe, (void)table, (void)flags, (void)entry;
  return seen(NULL, action, action_spec);
}

bf_status_t pipe_mgr_get_entry(pipe_session_handle_t session, pipe_object_handle_t table,
                               bf_device_id_t device, pipe_entry_handle_t entry,
                               pipe_mgr_match_spec_t *match, pipe_mgr_action_spec_t *action_spec,
                               pipe_object_handle_t *action, bool read_from_hardware) {
  (void)session, (void)table, (void)device, (void)entry, (void)read_from_hardware;
  seen(match, 0, action_spec);
  memcpy(match->value, null_sdk_held.value, match->byte_count);
  memcpy(match->mask, null_sdk_held.mask, match->byte_count);
  match->priority = null_sdk_held.priority;
  action_spec->type = PIPE_ACTION_DATA;
  memcpy(action_spec->data.bytes, null_sdk_held.data, sizeof null_sdk_held.data);
  *action = null_sdk_held.action;
  if (null_sdk_held.counter != 0) {
    action_spec->resources[0].handle = null_sdk_held.counter;
    action_spec->resources[0].tag = PIPE_RESOURCE_ATTACH;
    action_spec->resource_count = 1;
  }
  return BF_SUCCESS;
}

void *bf_sys_calloc(size_t count, size_t size) { return calloc(count, size); }
void bf_sys_free(void *memory) { free(memory); }

/* The library takes the address of this one when it is loaded. */
bf_status_t p4_pd_ms_grp_update_res(uint8_t device, pipe_member_handle_t member,
                                    pipe_group_handle_t group, void *cookie) {
  (void)device, (void)member, (void)group, (void)cookie;
  return BF_SUCCESS;
}
