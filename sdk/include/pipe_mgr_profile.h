/* Action profiles: members in action-data tables, groups in selectors. */
#ifndef PIPE_MGR_PROFILE_H
#define PIPE_MGR_PROFILE_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Members ---- */
/* Adds, changes or removes a member. A member in use by an entry or group cannot be removed. */
bf_status_t pipe_mgr_adt_ent_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t action_data_table,
                                 pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec,
                                 pipe_member_handle_t *member, uint32_t flags);
bf_status_t pipe_mgr_adt_ent_set(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t action_data_table,
                                 pipe_member_handle_t member, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec, uint32_t flags);
bf_status_t pipe_mgr_adt_ent_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t action_data_table,
                                 pipe_member_handle_t member, uint32_t flags);
/* Fills data, whose bytes (capacity in byte_count) belong to the caller. */
bf_status_t pipe_mgr_get_action_data_entry(pipe_object_handle_t action_data_table,
                                           bf_device_id_t device, pipe_member_handle_t member,
                                           pipe_mgr_action_data_t *data,
                                           pipe_object_handle_t *action, bool read_from_hardware);
/* ---- Groups ---- */
/* Creates or removes a group of at most max_size members (0: no limit). A group in use by an entry
 * cannot be removed. */
bf_status_t pipe_mgr_sel_grp_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t selector,
                                 uint32_t max_size, pipe_group_handle_t *group, uint32_t flags);
bf_status_t pipe_mgr_sel_grp_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t selector, pipe_group_handle_t group,
                                 uint32_t flags);
/* Membership. action is the action of the member. */
bf_status_t pipe_mgr_sel_grp_mbr_add(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t selector, pipe_group_handle_t group,
                                     pipe_object_handle_t action, pipe_member_handle_t member,
                                     uint32_t flags);
bf_status_t pipe_mgr_sel_grp_mbr_del(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t selector, pipe_group_handle_t group,
                                     pipe_member_handle_t member, uint32_t flags);
/* State of a member in a group: an inactive one is not chosen. */
bf_status_t pipe_mgr_sel_grp_mbr_enable(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t selector, pipe_group_handle_t group,
                                        pipe_member_handle_t member, uint32_t flags);
bf_status_t pipe_mgr_sel_grp_mbr_disable(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t selector, pipe_group_handle_t group,
                                         pipe_member_handle_t member, uint32_t flags);
bf_status_t pipe_mgr_sel_grp_mbr_state_get(pipe_session_handle_t session, bf_device_id_t device,
                                           pipe_object_handle_t selector, pipe_group_handle_t group,
                                           pipe_member_handle_t member, uint32_t *state);
/* The member that a hash of hash_length bytes (big-endian) chooses among the active ones. */
bf_status_t pipe_mgr_sel_grp_mbr_get_from_hash(pipe_session_handle_t session, bf_device_id_t device,
                                               pipe_object_handle_t selector,
                                               pipe_group_handle_t group, const uint8_t *hash,
                                               uint32_t hash_length, pipe_member_handle_t *member);
/* The member that stands in for a group with no active member. */
bf_status_t pipe_mgr_sel_fallback_mbr_set(pipe_session_handle_t session, bf_device_id_t device,
                                          bf_pipe_id_t pipe, pipe_object_handle_t selector,
                                          pipe_member_handle_t member, uint32_t flags);
bf_status_t pipe_mgr_sel_fallback_mbr_reset(pipe_session_handle_t session, bf_device_id_t device,
                                            bf_pipe_id_t pipe, pipe_object_handle_t selector,
                                            uint32_t flags);
bf_status_t pipe_mgr_get_first_group_member(pipe_session_handle_t session,
                                            pipe_object_handle_t selector, bf_device_id_t device,
                                            pipe_group_handle_t group,
                                            pipe_member_handle_t *member);
bf_status_t pipe_mgr_get_next_group_members(pipe_session_handle_t session,
                                            pipe_object_handle_t selector, bf_device_id_t device,
                                            pipe_group_handle_t group, pipe_member_handle_t member,
                                            uint32_t count, pipe_member_handle_t *members);
bf_status_t pipe_mgr_get_sel_grp_mbr_count(pipe_session_handle_t session, bf_device_id_t device,
                                           pipe_object_handle_t selector, pipe_group_handle_t group,
                                           uint32_t *count);
/* Active members of the selector by word of 32 slots: how many word holds, and which. */
bf_status_t pipe_mgr_get_word_llp_active_member_count(pipe_session_handle_t session,
                                                      bf_device_id_t device, bf_pipe_id_t pipe,
                                                      pipe_object_handle_t selector, uint32_t word,
                                                      uint32_t *count);
bf_status_t pipe_mgr_get_word_llp_active_members(pipe_session_handle_t session,
                                                 bf_device_id_t device, bf_pipe_id_t pipe,
                                                 pipe_object_handle_t selector, uint32_t word,
                                                 uint32_t count, pipe_member_handle_t *members);
/* ---- Callbacks ---- */
/* Updates of the groups of a selector, for the owner of the profile; a null callback ends it.
 * Session 0 stands for none. */
bf_status_t pipe_mgr_sel_tbl_register_cb(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t selector,
                                         pipe_mgr_sel_update_cb_t callback, void *cookie);
/* Updates of members and of groups, for a further listener. */
bf_status_t pipe_register_adt_update_cb(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t action_data_table,
                                        pipe_mgr_adt_update_cb_t callback, void *cookie);
bf_status_t pipe_register_sel_update_cb(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t selector,
                                        pipe_mgr_sel_update_cb_t callback, void *cookie);

#ifdef __cplusplus
}
#endif

#endif
