/* Placement data and virtual devices. */
#ifndef PIPE_MGR_PLACEMENT_H
#define PIPE_MGR_PLACEMENT_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Decodes the placement data of a match entry. The buffers of match (byte_count 0) and action_spec
 * (byte_count 0) belong to the caller, are zeroed and long enough for the table; value and mask of
 * match become null when the entry has no key. */
bf_status_t pipe_mgr_plcmt_mat_data_get_entry(const pipe_mgr_placement_t *placement,
                                              pipe_mgr_match_spec_t *match,
                                              pipe_mgr_action_spec_t *action_spec,
                                              pipe_object_handle_t *action);
/* Decodes the placement data of a member. */
bf_status_t pipe_mgr_plcmt_adt_data_get_entry(const pipe_mgr_placement_t *placement,
                                              pipe_mgr_action_data_t *data,
                                              pipe_object_handle_t *action);
/* Replays the state of a virtual device onto a device and reports every member, group and
 * membership: a member before any membership of it, a group before its memberships. */
bf_status_t pipe_mgr_hitless_ha_restore_virtual_dev_state(pipe_session_handle_t session,
                                                          bf_device_id_t device,
                                                          bf_device_id_t virtual_device,
                                                          bf_pipe_id_t pipe, uint32_t flags,
                                                          pipe_mgr_replay_cb_t callback);

#ifdef __cplusplus
}
#endif

#endif
