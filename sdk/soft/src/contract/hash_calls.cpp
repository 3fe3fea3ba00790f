// Hash calculations: the contract.
#include "contract/resolve.hpp"
#include "pipe_mgr_hash.h"
#include "services/hash_calculation.hpp"

using namespace soft;

bf_status_t pipe_mgr_hash_calc_input_set(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t calculation,
                                         pipe_object_handle_t field_list) {
  return SOFT_CALL(
      (session, device, calculation, field_list),
      on<&HashCalculation::set_input>(ByHandle{session, device, calculation}, field_list));
}

bf_status_t pipe_mgr_hash_calc_input_get(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t calculation,
                                         pipe_object_handle_t *field_list) {
  return SOFT_CALL(
      (session, device, calculation, field_list),
      read<&HashCalculation::input>(ByHandle{session, device, calculation}, field_list));
}

bf_status_t pipe_mgr_hash_calc_algorithm_set(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t calculation,
                                             pipe_object_handle_t algorithm) {
  return SOFT_CALL(
      (session, device, calculation, algorithm),
      on<&HashCalculation::set_algorithm>(ByHandle{session, device, calculation}, algorithm));
}

bf_status_t pipe_mgr_hash_calc_algorithm_get(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t calculation,
                                             pipe_object_handle_t *algorithm) {
  return SOFT_CALL(
      (session, device, calculation, algorithm),
      read<&HashCalculation::algorithm>(ByHandle{session, device, calculation}, algorithm));
}

bf_status_t pipe_mgr_hash_calc_seed_set(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t calculation, uint64_t seed) {
  return SOFT_CALL((session, device, calculation, seed),
                   on<&HashCalculation::set_seed>(ByHandle{session, device, calculation}, seed));
}

bf_status_t pipe_mgr_hash_calc_seed_get(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t calculation, uint64_t *seed) {
  return SOFT_CALL((session, device, calculation, seed),
                   read<&HashCalculation::seed>(ByHandle{session, device, calculation}, seed));
}

bf_status_t pipe_mgr_hash_calc_input_field_attribute_set(
    pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t calculation,
    pipe_object_handle_t field_list, uint32_t count, const pipe_mgr_hash_attribute_t *attributes) {
  return SOFT_CALL((session, device, calculation, field_list, count, list(attributes, count)),
                   on<&HashCalculation::set_attributes>(ByHandle{session, device, calculation},
                                                        field_list, list(attributes, count)));
}

bf_status_t pipe_mgr_hash_calc_input_field_attribute_count_get(pipe_session_handle_t session,
                                                               bf_device_id_t device,
                                                               pipe_object_handle_t calculation,
                                                               pipe_object_handle_t field_list,
                                                               uint32_t *count) {
  return SOFT_CALL((session, device, calculation, field_list, count),
                   on<&HashCalculation::attribute_count>(ByHandle{session, device, calculation},
                                                         field_list, given(count)));
}

bf_status_t pipe_mgr_hash_calc_input_field_attribute_get(
    pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t calculation,
    pipe_object_handle_t field_list, uint32_t max_count, pipe_mgr_hash_attribute_t *attributes,
    uint32_t *filled) {
  return SOFT_CALL(
      (session, device, calculation, field_list, max_count, list(attributes, max_count), filled),
      on<&HashCalculation::attributes>(ByHandle{session, device, calculation}, field_list,
                                       list(attributes, max_count), given(filled)));
}

bf_status_t pipe_mgr_hash_calc_calculate_hash_value(pipe_session_handle_t session,
                                                    bf_device_id_t device,
                                                    pipe_object_handle_t calculation,
                                                    const uint8_t *stream, uint32_t stream_length,
                                                    uint8_t *hash, uint32_t hash_length) {
  return SOFT_CALL(
      (session, device, calculation, list(stream, stream_length), stream_length,
       list(hash, hash_length), hash_length),
      on<&HashCalculation::calculate>(ByHandle{session, device, calculation},
                                      list(stream, stream_length), list(hash, hash_length)));
}
