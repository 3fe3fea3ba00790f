/* Parser value sets. A parser is named by direction (0 ingress, 1 egress), pipe and parser id. */
#ifndef PIPE_MGR_PVS_H
#define PIPE_MGR_PVS_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Properties, PIPE_PVS_*. */
bf_status_t pipe_mgr_pvs_set_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, uint32_t property,
                                      uint32_t value, uint32_t argument, uint32_t flags);
bf_status_t pipe_mgr_pvs_get_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, uint32_t property,
                                      uint32_t *value, uint32_t argument, uint32_t flags);
/* ---- Entries ---- */
bf_status_t pipe_mgr_pvs_entry_add(pipe_session_handle_t session, bf_device_id_t device,
                                   pipe_object_handle_t value_set, uint32_t direction,
                                   uint16_t pipe, uint8_t parser, uint32_t value, uint32_t mask,
                                   pipe_entry_handle_t *entry);
bf_status_t pipe_mgr_pvs_entry_modify(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, pipe_entry_handle_t entry,
                                      uint32_t value, uint32_t mask);
bf_status_t pipe_mgr_pvs_entry_delete(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, pipe_entry_handle_t entry);
bf_status_t pipe_mgr_pvs_entry_get(pipe_session_handle_t session, bf_device_id_t device,
                                   pipe_object_handle_t value_set, pipe_entry_handle_t entry,
                                   uint32_t *value, uint32_t *mask);
bf_status_t pipe_mgr_pvs_entry_handle_get(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t value_set, uint32_t direction,
                                          uint16_t pipe, uint8_t parser, uint32_t value,
                                          uint32_t mask, pipe_entry_handle_t *entry);
bf_status_t pipe_mgr_pvs_entry_get_first(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t value_set, uint32_t direction,
                                         uint16_t pipe, uint8_t parser, pipe_entry_handle_t *entry);
bf_status_t pipe_mgr_pvs_entry_get_next(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t value_set, uint32_t direction,
                                        uint16_t pipe, uint8_t parser, pipe_entry_handle_t entry,
                                        uint32_t count, pipe_entry_handle_t *entries);
bf_status_t pipe_mgr_pvs_entry_get_count(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t value_set, uint32_t direction,
                                         uint16_t pipe, uint8_t parser, uint8_t read_from_hardware,
                                         uint32_t *count);

#ifdef __cplusplus
}
#endif

#endif
