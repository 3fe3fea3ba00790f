// Hash calculations: input, algorithm, seed and field attributes, and the hash of given values. An
// input or algorithm of the caller is the number 0 for the one that the calculation has; any other
// number becomes handle 0, which the pipeline manager judges.
#pragma once

#include "descriptor.hpp"
#include "pipe_mgr_hash.h"

namespace pd {

inline uint32_t field_list_of(const Hash &hash, uint32_t input) {
  return input == 0 ? hash.field_list : 0;
}

inline p4_pd_status_t set_hash_input(const Hash &hash, p4_pd_session_handle_t session,
                                     uint8_t device, uint32_t input) {
  return pipe_mgr_hash_calc_input_set(session, device, hash.handle, field_list_of(hash, input));
}

inline p4_pd_status_t set_hash_algorithm(const Hash &hash, p4_pd_session_handle_t session,
                                         uint8_t device, uint32_t algorithm) {
  return pipe_mgr_hash_calc_algorithm_set(session, device, hash.handle,
                                          algorithm == 0 ? hash.algorithm : 0);
}

inline p4_pd_status_t set_hash_seed(const Hash &hash, p4_pd_session_handle_t session,
                                    uint8_t device, uint64_t seed) {
  return pipe_mgr_hash_calc_seed_set(session, device, hash.handle, seed);
}

// P4_PD_UNKNOWN_SELECTION, whatever the pipeline manager's status, when what it reports is not the
// calculation's own.
p4_pd_status_t get_hash_input(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                              uint32_t *input);
p4_pd_status_t get_hash_algorithm(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                                  uint32_t *algorithm);
p4_pd_status_t get_hash_seed(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                             uint64_t *seed);

p4_pd_status_t set_hash_attributes(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                                   uint32_t input, uint32_t count,
                                   const p4_pd_hash_calc_attr_t *attributes);

// Both ask for the list that is configured, not for the caller's. P4_PD_UNKNOWN_SELECTION for an
// input other than 0 while the calculation's own list is configured. count reads 0 on failure of
// the query; filled reads 0 on every failure but P4_PD_NULL_ARGUMENT, unless the pipeline manager
// has written it, and never more than max_count.
p4_pd_status_t count_hash_attributes(const Hash &hash, p4_pd_session_handle_t session,
                                     uint8_t device, uint32_t input, uint32_t *count);
p4_pd_status_t get_hash_attributes(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                                   uint32_t input, uint32_t max_count,
                                   p4_pd_hash_calc_attr_t *attributes, uint32_t *filled);

// The hash of the values, each sizes[i] bits wide, laid end to end; the last one ends at the last
// bit of the stream. The bits of a value beyond its width are dropped. P4_PD_NO_MEMORY also for a
// stream whose length in bytes takes more than 32 bits.
p4_pd_status_t calculate_hash(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                              uint32_t count, const p4_pd_hash_calc_attr_t *values,
                              const uint32_t *sizes, uint8_t *result, uint32_t result_length);

}  // namespace pd
