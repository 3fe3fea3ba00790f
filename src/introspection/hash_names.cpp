#include "hash_names.hpp"

#include <string.h>

#include "scratch.hpp"

namespace pd {

namespace {

// Null for a name that is unknown.
const Hash *find_hash(const HashNames &names, const char *name) {
  for (uint32_t i = 0; i < names.count; ++i) {
    if (strcmp(names.rows[i].name, name) == 0) return names.rows[i].hash;
  }
  return nullptr;
}

}  // namespace

p4_pd_status_t set_hash_input_by_name(const HashNames &names, p4_pd_session_handle_t session,
                                      uint8_t device, const char *name) {
  if (name == nullptr) return P4_PD_NULL_ARGUMENT;
  const Hash *hash = find_hash(names, name);
  if (hash == nullptr) return P4_PD_UNKNOWN_SELECTION;
  return set_hash_input(*hash, session, device, 0);
}

p4_pd_status_t count_hash_attributes_by_name(const HashNames &names, p4_pd_session_handle_t session,
                                             uint8_t device, const char *name, uint32_t *count) {
  if (name == nullptr) return P4_PD_NULL_ARGUMENT;
  const Hash *hash = find_hash(names, name);
  if (hash == nullptr) return P4_PD_UNKNOWN_SELECTION;
  return count_hash_attributes(*hash, session, device, 0, count);
}

p4_pd_status_t set_hash_attributes_by_name(const HashNames &names, p4_pd_session_handle_t session,
                                           uint8_t device, const char *name, uint32_t count,
                                           const p4_pd_hash_field_attr_t *attributes) {
  if (name == nullptr || (count != 0 && attributes == nullptr)) return P4_PD_NULL_ARGUMENT;
  const Hash *hash = find_hash(names, name);
  if (hash == nullptr) return P4_PD_UNKNOWN_SELECTION;
  const Scratch<p4_pd_hash_calc_attr_t> own(count);
  if (!own.ok()) return P4_PD_NO_MEMORY;
  for (uint32_t i = 0; i < count; ++i) {
    const int32_t field = own_field(*hash, attributes[i].field);
    if (field < 0) return P4_PD_UNKNOWN_SELECTION;
    own.items()[i] = {static_cast<uint32_t>(field), 0, attributes[i].value};
  }
  return set_hash_attributes(*hash, session, device, 0, count, own.items());
}

p4_pd_status_t get_hash_attributes_by_name(const HashNames &names, p4_pd_session_handle_t session,
                                           uint8_t device, const char *name, uint32_t max_count,
                                           p4_pd_hash_field_attr_t *attributes, uint32_t *filled) {
  if (name == nullptr || filled == nullptr) return P4_PD_NULL_ARGUMENT;
  if (max_count != 0 && attributes == nullptr) return P4_PD_NULL_ARGUMENT;
  const Hash *hash = find_hash(names, name);
  if (hash == nullptr) return P4_PD_UNKNOWN_SELECTION;
  const Scratch<p4_pd_hash_calc_attr_t> own(max_count);
  if (!own.ok()) return P4_PD_NO_MEMORY;
  const p4_pd_status_t status =
      get_hash_attributes(*hash, session, device, 0, max_count, own.items(), filled);
  if (status != BF_SUCCESS) return status;
  for (uint32_t i = 0; i < *filled; ++i) {
    const p4_pd_hash_calc_attr_t &attribute = own.items()[i];
    attributes[i] = {common_field(*hash, attribute.field), static_cast<uint32_t>(attribute.value),
                     0};
  }
  return BF_SUCCESS;
}

}  // namespace pd
