/* Configurable hash calculations. */
#ifndef PIPE_MGR_HASH_H
#define PIPE_MGR_HASH_H

#include "pipe_mgr_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Input field list, algorithm and seed of a calculation. */
bf_status_t pipe_mgr_hash_calc_input_set(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t calculation,
                                         pipe_object_handle_t field_list);
bf_status_t pipe_mgr_hash_calc_input_get(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t calculation,
                                         pipe_object_handle_t *field_list);
bf_status_t pipe_mgr_hash_calc_algorithm_set(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t calculation,
                                             pipe_object_handle_t algorithm);
bf_status_t pipe_mgr_hash_calc_algorithm_get(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t calculation,
                                             pipe_object_handle_t *algorithm);
bf_status_t pipe_mgr_hash_calc_seed_set(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t calculation, uint64_t seed);
bf_status_t pipe_mgr_hash_calc_seed_get(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t calculation, uint64_t *seed);
/* Attributes of the fields of a list; null for none. */
bf_status_t pipe_mgr_hash_calc_input_field_attribute_set(
    pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t calculation,
    pipe_object_handle_t field_list, uint32_t count, const pipe_mgr_hash_attribute_t *attributes);
bf_status_t pipe_mgr_hash_calc_input_field_attribute_count_get(pipe_session_handle_t session,
                                                               bf_device_id_t device,
                                                               pipe_object_handle_t calculation,
                                                               pipe_object_handle_t field_list,
                                                               uint32_t *count);
bf_status_t pipe_mgr_hash_calc_input_field_attribute_get(
    pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t calculation,
    pipe_object_handle_t field_list, uint32_t max_count, pipe_mgr_hash_attribute_t *attributes,
    uint32_t *filled);
/* The hash of a byte stream, null when it is empty: hash_length bytes, most significant first. */
bf_status_t pipe_mgr_hash_calc_calculate_hash_value(pipe_session_handle_t session,
                                                    bf_device_id_t device,
                                                    pipe_object_handle_t calculation,
                                                    const uint8_t *stream, uint32_t stream_length,
                                                    uint8_t *hash, uint32_t hash_length);

#ifdef __cplusplus
}
#endif

#endif
