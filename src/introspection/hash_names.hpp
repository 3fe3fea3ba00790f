// Hash calculations addressed by name, and the numbering of their fields that all calculations
// share: the common index of a field is its own.
#pragma once

#include "hash.hpp"

namespace pd {

struct NamedHash {
  const char *name;
  const Hash *hash;
};

struct HashNames {
  const NamedHash *rows;
  uint32_t count;
};

// No field of any calculation.
inline constexpr uint32_t no_common_field = 0xffffffffu;

// -1 for a number that is no field of the calculation.
inline int32_t own_field(const Hash &hash, uint32_t common_field) {
  return common_field < hash.field_count ? static_cast<int32_t>(common_field) : -1;
}

// no_common_field for a number that is no field of the calculation.
inline uint32_t common_field(const Hash &hash, uint32_t own_field) {
  return own_field < hash.field_count ? own_field : no_common_field;
}

// All of them take whole names, case-sensitive, and the calculation's own input. An unknown name is
// P4_PD_UNKNOWN_SELECTION; nothing is written then.
p4_pd_status_t set_hash_input_by_name(const HashNames &names, p4_pd_session_handle_t session,
                                      uint8_t device, const char *name);
p4_pd_status_t count_hash_attributes_by_name(const HashNames &names, p4_pd_session_handle_t session,
                                             uint8_t device, const char *name, uint32_t *count);
// P4_PD_UNKNOWN_SELECTION, and no call, when a field is none of the calculation's.
p4_pd_status_t set_hash_attributes_by_name(const HashNames &names, p4_pd_session_handle_t session,
                                           uint8_t device, const char *name, uint32_t count,
                                           const p4_pd_hash_field_attr_t *attributes);
p4_pd_status_t get_hash_attributes_by_name(const HashNames &names, p4_pd_session_handle_t session,
                                           uint8_t device, const char *name, uint32_t max_count,
                                           p4_pd_hash_field_attr_t *attributes, uint32_t *filled);

}  // namespace pd
