/* Match tables: entries, default entries, read-back, enumeration, ageing. */
#ifndef PIPE_MGR_MATCH_H
#define PIPE_MGR_MATCH_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Tables ---- */
/* Number of entries of a match table, of members of an action-data table or of groups of a
 * selector, by handle. Default entries do not count. read_from_hardware asks the device itself. */
bf_status_t pipe_mgr_get_entry_count(pipe_session_handle_t session, bf_device_id_t device,
                                     bf_pipe_id_t pipe, pipe_object_handle_t table,
                                     uint32_t read_from_hardware, uint32_t *count);
/* Sets or reads a property, one of PIPE_TABLE_*. */
bf_status_t pipe_mgr_tbl_set_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t table, uint32_t property, uint32_t value,
                                      uint32_t argument);
bf_status_t pipe_mgr_tbl_get_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t table, uint32_t property,
                                      uint32_t *value, uint32_t *argument);
/* Tells the caller of every later update of the table; a null callback ends it. One callback a
 * table. */
bf_status_t pipe_register_mat_update_cb(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table,
                                        pipe_mgr_mat_update_cb_t callback, void *cookie);
/* ---- Entries ---- */
/* Adds an entry. ttl is in milliseconds and counts only in a table that ages its entries. */
bf_status_t pipe_mgr_mat_ent_add(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t table,
                                 const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *action_spec, uint32_t ttl,
                                 uint32_t flags, pipe_entry_handle_t *entry);
/* Replaces the action of an entry named by its handle or by its key and priority. */
bf_status_t pipe_mgr_mat_ent_set_action(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t table, pipe_entry_handle_t entry,
                                        pipe_object_handle_t action,
                                        const pipe_mgr_action_spec_t *action_spec, uint32_t flags);
bf_status_t pipe_mgr_mat_ent_set_action_by_match_spec(
    pipe_session_handle_t session, bf_device_id_t device, bf_pipe_id_t pipe,
    pipe_object_handle_t table, const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
    const pipe_mgr_action_spec_t *action_spec, uint32_t flags);
/* Replaces direct resources of an entry: count records, each attached by its tag. */
bf_status_t pipe_mgr_mat_ent_set_resource(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_entry_handle_t entry,
                                          const pipe_mgr_resource_t *resources, uint32_t count,
                                          uint32_t flags);
/* Removes an entry. */
bf_status_t pipe_mgr_mat_ent_del(pipe_session_handle_t session, bf_device_id_t device,
                                 pipe_object_handle_t table, pipe_entry_handle_t entry,
                                 uint32_t flags);
bf_status_t pipe_mgr_mat_ent_del_by_match_spec(pipe_session_handle_t session, bf_device_id_t device,
                                               bf_pipe_id_t pipe, pipe_object_handle_t table,
                                               const pipe_mgr_match_spec_t *match, uint32_t flags);
/* Finds the entry with exactly this key, mask and priority. */
bf_status_t pipe_mgr_match_spec_to_ent_hdl(pipe_session_handle_t session, bf_device_id_t device,
                                           bf_pipe_id_t pipe, pipe_object_handle_t table,
                                           const pipe_mgr_match_spec_t *match,
                                           pipe_entry_handle_t *entry);
/* ---- Default entries ---- */
/* Sets the default entry and writes its handle. */
bf_status_t pipe_mgr_mat_default_entry_set(pipe_session_handle_t session, bf_device_id_t device,
                                           bf_pipe_id_t pipe, pipe_object_handle_t table,
                                           pipe_object_handle_t action,
                                           const pipe_mgr_action_spec_t *action_spec,
                                           uint32_t flags, pipe_entry_handle_t *entry);
/* Puts the default entry back to what the program declares. */
bf_status_t pipe_mgr_mat_tbl_default_entry_reset(pipe_session_handle_t session,
                                                 bf_device_id_t device, bf_pipe_id_t pipe,
                                                 pipe_object_handle_t table, uint32_t flags);
bf_status_t pipe_mgr_table_get_default_entry_handle(pipe_session_handle_t session,
                                                    bf_device_id_t device, bf_pipe_id_t pipe,
                                                    pipe_object_handle_t table,
                                                    pipe_entry_handle_t *entry);
/* Fills action_spec, whose data bytes (capacity in byte_count) belong to the caller and may be
 * null. */
bf_status_t pipe_mgr_table_get_default_entry(pipe_session_handle_t session, bf_device_id_t device,
                                             bf_pipe_id_t pipe, pipe_object_handle_t table,
                                             pipe_mgr_action_spec_t *action_spec,
                                             pipe_object_handle_t *action, bool read_from_hardware);
/* ---- Read-back and enumeration ---- */
/* Fills match and action_spec, whose buffers belong to the caller: value and mask have room for
 * byte_count bytes, or are null in a table without a key; the data bytes may be null, and are left
 * out then. The value and mask pointers of match become null when the entry has no key. */
bf_status_t pipe_mgr_get_entry(pipe_session_handle_t session, pipe_object_handle_t table,
                               bf_device_id_t device, pipe_entry_handle_t entry,
                               pipe_mgr_match_spec_t *match, pipe_mgr_action_spec_t *action_spec,
                               pipe_object_handle_t *action, bool read_from_hardware);
/* First entry of a match table, first member of an action-data table or first group of a selector.
 * BF_OBJECT_NOT_FOUND when there is none. */
bf_status_t pipe_mgr_get_first_entry_handle(pipe_session_handle_t session,
                                            pipe_object_handle_t table, bf_device_id_t device,
                                            bf_pipe_id_t pipe, uint32_t *entry);
/* Up to count handles behind the given one; slots behind the last one hold 0xffffffff.
 * BF_OBJECT_NOT_FOUND when nothing follows. */
bf_status_t pipe_mgr_get_next_entry_handles(pipe_session_handle_t session,
                                            pipe_object_handle_t table, bf_device_id_t device,
                                            bf_pipe_id_t pipe, uint32_t entry, uint32_t count,
                                            uint32_t *entries);
/* ---- Idle time ---- */
/* Starts ageing; later entries and those already there start at their full time to live. */
bf_status_t pipe_mgr_idle_tmo_enable(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t table, pipe_mgr_idle_params_t params);
bf_status_t pipe_mgr_idle_tmo_disable(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t table);
/* Tells the caller of expired entries; a null callback ends it. */
bf_status_t pipe_mgr_idle_register_tmo_cb(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_mgr_idle_cb_t callback,
                                          void *client_data);
bf_status_t pipe_mgr_idle_params_get(pipe_session_handle_t session, bf_device_id_t device,
                                     pipe_object_handle_t table, pipe_mgr_idle_params_t *params);
/* Time to live of an entry in milliseconds. reset non-zero restarts the entry's idle time only. */
bf_status_t pipe_mgr_mat_ent_set_idle_ttl(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_entry_handle_t entry,
                                          uint32_t ttl, uint32_t reset);
bf_status_t pipe_mgr_mat_ent_get_idle_ttl(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t table, pipe_entry_handle_t entry,
                                          uint32_t *ttl);
/* Brings the hit state up to date, or reads it: PIPE_ENTRY_IDLE or PIPE_ENTRY_ACTIVE. */
bf_status_t pipe_mgr_idle_time_update_hit_state(pipe_session_handle_t session,
                                                bf_device_id_t device, pipe_object_handle_t table,
                                                pipe_entry_handle_t entry, uint32_t hit_state);
bf_status_t pipe_mgr_idle_time_get_hit_state(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t table, pipe_entry_handle_t entry,
                                             uint32_t *hit_state);

#ifdef __cplusplus
}
#endif

#endif
