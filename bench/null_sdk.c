/* An SDK whose add does nothing: what remains is the cost of building its arguments. */
#include "p4_pd_ms.h"
#include "pipe_mgr.h"

bf_status_t pipe_mgr_mat_ent_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t table,
                                 const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec, uint32_t ttl,
                                 uint32_t flags, pipe_entry_handle_t *entry) {
  (void)session, (void)device, (void)pipe, (void)table, (void)match, (void)action;
  (void)action_spec, (void)ttl, (void)flags, (void)entry;
  return BF_SUCCESS;
}

/* The library takes the address of this one when it is loaded. */
bf_status_t p4_pd_ms_grp_update_res(uint8_t device, pipe_member_handle_t member,
                                    pipe_group_handle_t group, void *cookie) {
  (void)device, (void)member, (void)group, (void)cookie;
  return BF_SUCCESS;
}
