/* Member-selector state: a shadow of the members and groups of an action profile, with the action
 * of each, per device. One state object per profile; the library that uses it creates it and the
 * helper owns it. Any number of threads may use a state at once. A device of which a state knows
 * nothing has no members and groups in it. BF_OBJECT_NOT_FOUND for a member or group that the state
 * does not know, and for one that has no action yet. */
#ifndef P4_PD_MS_H
#define P4_PD_MS_H

#include "bf_types.h"

#ifdef __cplusplus
extern "C" {
#endif

struct cJSON;

typedef struct p4_pd_ms_state p4_pd_ms_state_t;

/* A resource that an entry or member refers to. */
typedef struct p4_pd_res_spec {
  uint32_t handle;
  uint32_t index;
} p4_pd_res_spec_t;

typedef bf_status_t (*p4_pd_ms_group_cb_t)(uint8_t device, pipe_member_handle_t member,
                                           pipe_group_handle_t group, void *cookie);

void p4_pd_ms_init(void);
/* A new, empty state; null when there is no memory for it. */
p4_pd_ms_state_t *p4_pd_ms_init_state(void);
/* ---- Members and groups ---- */
bf_status_t p4_pd_ms_new_mbr(pipe_session_handle_t session, p4_pd_ms_state_t *state, uint8_t device,
                             pipe_member_handle_t member);
bf_status_t p4_pd_ms_set_mbr_act(p4_pd_ms_state_t *state, uint8_t device,
                                 pipe_member_handle_t member, pipe_object_handle_t action);
bf_status_t p4_pd_ms_get_mbr_act(p4_pd_ms_state_t *state, uint8_t device,
                                 pipe_member_handle_t member, pipe_object_handle_t *action);
bf_status_t p4_pd_ms_del_mbr(pipe_session_handle_t session, p4_pd_ms_state_t *state, uint8_t device,
                             pipe_member_handle_t member);
bf_status_t p4_pd_ms_new_grp(pipe_session_handle_t session, p4_pd_ms_state_t *state, uint8_t device,
                             pipe_group_handle_t group);
bf_status_t p4_pd_ms_del_grp(pipe_session_handle_t session, p4_pd_ms_state_t *state, uint8_t device,
                             pipe_group_handle_t group);
bf_status_t p4_pd_ms_add_mbr_to_grp(pipe_session_handle_t session, p4_pd_ms_state_t *state,
                                    uint8_t device, pipe_member_handle_t member,
                                    pipe_group_handle_t group);
bf_status_t p4_pd_ms_del_mbr_from_grp(pipe_session_handle_t session, p4_pd_ms_state_t *state,
                                      uint8_t device, pipe_member_handle_t member,
                                      pipe_group_handle_t group);
bf_status_t p4_pd_ms_set_grp_act(p4_pd_ms_state_t *state, uint8_t device, pipe_group_handle_t group,
                                 pipe_object_handle_t action);
bf_status_t p4_pd_ms_get_grp_act(p4_pd_ms_state_t *state, uint8_t device, pipe_group_handle_t group,
                                 pipe_object_handle_t *action);
/* Resource references. The list stays with the helper and is valid until the state changes. */
bf_status_t p4_pd_ms_mbr_get_res(p4_pd_ms_state_t *state, uint8_t device,
                                 pipe_member_handle_t member, uint32_t *count,
                                 p4_pd_res_spec_t **resources);
bf_status_t p4_pd_ms_grp_get_res(p4_pd_ms_state_t *state, uint8_t device, pipe_group_handle_t group,
                                 uint32_t *count, p4_pd_res_spec_t **resources);
/* Runs the callback for each group that holds the member and returns the first non-zero status. */
bf_status_t p4_pd_ms_mbr_apply_to_grps(p4_pd_ms_state_t *state, uint8_t device,
                                       pipe_member_handle_t member, p4_pd_ms_group_cb_t callback,
                                       void *cookie);
/* A callback for the above: gives the group the resource references of the member. The cookie is
 * the state. */
bf_status_t p4_pd_ms_grp_update_res(uint8_t device, pipe_member_handle_t member,
                                    pipe_group_handle_t group, void *cookie);
/* ---- Device state ---- */
bf_status_t p4_pd_ms_log_state(uint8_t device, p4_pd_ms_state_t *state, struct cJSON *document);
bf_status_t p4_pd_ms_restore_state(uint8_t device, p4_pd_ms_state_t *state,
                                   const struct cJSON *document);
bf_status_t p4_pd_ms_destroy_state_for_dev(p4_pd_ms_state_t *state, uint8_t device);
bf_status_t p4_pd_ms_destroy_txn_state_for_dev(uint8_t device);

#ifdef __cplusplus
}
#endif

#endif
