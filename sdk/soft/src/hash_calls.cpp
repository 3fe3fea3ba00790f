// Hash calculations: the contract.
#include "contract_call.hpp"
#include "hash_calculation.hpp"
#include "pipe_mgr_hash.h"
#include "resolve.hpp"

namespace {

using soft::HashCalculation;

// A calculation's number goes to an out-parameter.
template <class T, class Get>
bf_status_t get(pipe_session_handle_t session, bf_device_id_t device,
                pipe_object_handle_t calculation, T *out, Get get_number) {
  return soft::with_object<HashCalculation>(session, device, calculation,
                                            [&](HashCalculation &found) -> bf_status_t {
                                              if (out == nullptr) return BF_INVALID_ARGUMENT;
                                              *out = get_number(found);
                                              return BF_SUCCESS;
                                            });
}

}  // namespace

bf_status_t pipe_mgr_hash_calc_input_set(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t calculation,
                                         pipe_object_handle_t field_list) {
  return SOFT_CALL((session, device, calculation, field_list), {
    return soft::with_object<HashCalculation>(
        session, device, calculation,
        [&](const HashCalculation &found) { return found.set_input(field_list); });
  });
}

bf_status_t pipe_mgr_hash_calc_input_get(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t calculation,
                                         pipe_object_handle_t *field_list) {
  return SOFT_CALL((session, device, calculation, field_list), {
    return get(session, device, calculation, field_list,
               [](const HashCalculation &found) { return found.input(); });
  });
}

bf_status_t pipe_mgr_hash_calc_algorithm_set(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t calculation,
                                             pipe_object_handle_t algorithm) {
  return SOFT_CALL((session, device, calculation, algorithm), {
    return soft::with_object<HashCalculation>(
        session, device, calculation,
        [&](const HashCalculation &found) { return found.set_algorithm(algorithm); });
  });
}

bf_status_t pipe_mgr_hash_calc_algorithm_get(pipe_session_handle_t session, bf_device_id_t device,
                                             pipe_object_handle_t calculation,
                                             pipe_object_handle_t *algorithm) {
  return SOFT_CALL((session, device, calculation, algorithm), {
    return get(session, device, calculation, algorithm,
               [](const HashCalculation &found) { return found.algorithm(); });
  });
}

bf_status_t pipe_mgr_hash_calc_seed_set(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t calculation, uint64_t seed) {
  return SOFT_CALL((session, device, calculation, seed), {
    return soft::with_object<HashCalculation>(session, device, calculation,
                                              [&](HashCalculation &found) -> bf_status_t {
                                                found.set_seed(seed);
                                                return BF_SUCCESS;
                                              });
  });
}

bf_status_t pipe_mgr_hash_calc_seed_get(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t calculation, uint64_t *seed) {
  return SOFT_CALL((session, device, calculation, seed), {
    return get(session, device, calculation, seed,
               [](HashCalculation &found) { return found.seed(); });
  });
}

bf_status_t pipe_mgr_hash_calc_input_field_attribute_set(
    pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t calculation,
    pipe_object_handle_t field_list, uint32_t count, const pipe_mgr_hash_attribute_t *attributes) {
  return SOFT_CALL((session, device, calculation, field_list, count, soft::list(attributes, count)),
                   {
                     return soft::with_object<HashCalculation>(
                         session, device, calculation, [&](HashCalculation &found) -> bf_status_t {
                           if (attributes == nullptr && count != 0) return BF_INVALID_ARGUMENT;
                           return found.set_attributes(field_list, {attributes, count});
                         });
                   });
}

bf_status_t pipe_mgr_hash_calc_input_field_attribute_count_get(pipe_session_handle_t session,
                                                               bf_device_id_t device,
                                                               pipe_object_handle_t calculation,
                                                               pipe_object_handle_t field_list,
                                                               uint32_t *count) {
  return SOFT_CALL((session, device, calculation, field_list, count), {
    return soft::with_object<HashCalculation>(session, device, calculation,
                                              [&](HashCalculation &found) -> bf_status_t {
                                                if (count == nullptr) return BF_INVALID_ARGUMENT;
                                                return found.attribute_count(field_list, count);
                                              });
  });
}

bf_status_t pipe_mgr_hash_calc_input_field_attribute_get(
    pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t calculation,
    pipe_object_handle_t field_list, uint32_t max_count, pipe_mgr_hash_attribute_t *attributes,
    uint32_t *filled) {
  return SOFT_CALL((session, device, calculation, field_list, max_count,
                    soft::list(attributes, max_count), filled),
                   {
                     return soft::with_object<HashCalculation>(
                         session, device, calculation, [&](HashCalculation &found) -> bf_status_t {
                           if (filled == nullptr || (attributes == nullptr && max_count != 0)) {
                             return BF_INVALID_ARGUMENT;
                           }
                           return found.attributes(field_list, {attributes, max_count}, filled);
                         });
                   });
}

bf_status_t pipe_mgr_hash_calc_calculate_hash_value(pipe_session_handle_t session,
                                                    bf_device_id_t device,
                                                    pipe_object_handle_t calculation,
                                                    const uint8_t *stream, uint32_t stream_length,
                                                    uint8_t *hash, uint32_t hash_length) {
  return SOFT_CALL((session, device, calculation, soft::list(stream, stream_length), stream_length,
                    soft::list(hash, hash_length), hash_length),
                   {
                     return soft::with_object<HashCalculation>(
                         session, device, calculation, [&](HashCalculation &found) -> bf_status_t {
                           if (hash == nullptr || (stream == nullptr && stream_length != 0)) {
                             return BF_INVALID_ARGUMENT;
                           }
                           return found.calculate({stream, stream_length}, {hash, hash_length});
                         });
                   });
}
