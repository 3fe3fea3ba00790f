#include "hash.hpp"

#include <string.h>

#include "codec/bytes.hpp"
#include "scratch.hpp"

namespace pd {

namespace {

// The list that the device uses, 0 when it reports none.
uint32_t configured_list(const Hash &hash, p4_pd_session_handle_t session, uint8_t device) {
  uint32_t list = 0;
  pipe_mgr_hash_calc_input_get(session, device, hash.handle, &list);
  return list;
}

// ---- Stream ----

uint32_t whole_bytes(uint32_t bits) { return bits / 8 + (bits % 8 != 0); }

bool is_wide(uint32_t bits) { return bits > 32; }

// Puts the low width bits of a big-endian number, whole_bytes(width) bytes of it, in front of what
// is in the stream already. cursor is one behind the byte that is being filled, and offset says how
// many of its low bits are taken; the bytes in front must be zero.
void prepend_to_bytestream(uint8_t *&cursor, unsigned &offset, const uint8_t *bytes,
                           uint32_t width) {
  const uint8_t *end = bytes + whole_bytes(width);
  while (width > 0) {
    const unsigned taken = width < 8 ? width : 8;
    const unsigned bits = *--end & low_ones(taken);
    cursor[-1] = static_cast<uint8_t>(cursor[-1] | bits << offset);
    offset += taken;
    if (offset >= 8) {
      --cursor;
      offset -= 8;
      if (offset > 0) cursor[-1] = static_cast<uint8_t>(bits >> (taken - offset));
    }
    width -= taken;
  }
}

void prepend_value(uint8_t *&cursor, unsigned &offset, uintptr_t value, uint32_t width) {
  if (is_wide(width)) {
    prepend_to_bytestream(cursor, offset, reinterpret_cast<const uint8_t *>(value), width);
    return;
  }
  uint8_t bytes[4];
  store_big_endian<4>(bytes, static_cast<uint32_t>(value));
  prepend_to_bytestream(cursor, offset, bytes + 4 - whole_bytes(width), width);
}

// False when a value that should be an address is null.
bool measure(uint32_t count, const p4_pd_hash_calc_attr_t *values, const uint32_t *sizes,
             uint64_t &stream_bytes) {
  uint64_t bits = 0;
  for (uint32_t i = 0; i < count; ++i) {
    if (is_wide(sizes[i]) && values[i].value == 0) return false;
    bits += sizes[i];
  }
  stream_bytes = (bits + 7) / 8;
  return true;
}

}  // namespace

p4_pd_status_t get_hash_input(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                              uint32_t *input) {
  if (input == nullptr) return P4_PD_NULL_ARGUMENT;
  uint32_t list = 0;
  const p4_pd_status_t status = pipe_mgr_hash_calc_input_get(session, device, hash.handle, &list);
  if (list != hash.field_list) return P4_PD_UNKNOWN_SELECTION;
  *input = 0;
  return status;
}

p4_pd_status_t get_hash_algorithm(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                                  uint32_t *algorithm) {
  if (algorithm == nullptr) return P4_PD_NULL_ARGUMENT;
  uint32_t handle = 0;
  const p4_pd_status_t status =
      pipe_mgr_hash_calc_algorithm_get(session, device, hash.handle, &handle);
  if (handle != hash.algorithm) return P4_PD_UNKNOWN_SELECTION;
  *algorithm = 0;
  return status;
}

p4_pd_status_t get_hash_seed(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                             uint64_t *seed) {
  if (seed == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_mgr_hash_calc_seed_get(session, device, hash.handle, seed);
}

p4_pd_status_t set_hash_attributes(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                                   uint32_t input, uint32_t count,
                                   const p4_pd_hash_calc_attr_t *attributes) {
  if (count != 0 && attributes == nullptr) return P4_PD_NULL_ARGUMENT;
  const Scratch<pipe_mgr_hash_attribute_t> copies(count);
  if (!copies.ok()) return P4_PD_NO_MEMORY;
  if (count != 0) memcpy(copies.items(), attributes, size_t{count} * sizeof *attributes);
  return pipe_mgr_hash_calc_input_field_attribute_set(
      session, device, hash.handle, field_list_of(hash, input), count, copies.items());
}

p4_pd_status_t count_hash_attributes(const Hash &hash, p4_pd_session_handle_t session,
                                     uint8_t device, uint32_t input, uint32_t *count) {
  if (count == nullptr) return P4_PD_NULL_ARGUMENT;
  const uint32_t list = configured_list(hash, session, device);
  if (list == hash.field_list && input != 0) return P4_PD_UNKNOWN_SELECTION;
  *count = 0;
  return pipe_mgr_hash_calc_input_field_attribute_count_get(session, device, hash.handle, list,
                                                            count);
}

p4_pd_status_t get_hash_attributes(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                                   uint32_t input, uint32_t max_count,
                                   p4_pd_hash_calc_attr_t *attributes, uint32_t *filled) {
  if (filled == nullptr || (max_count != 0 && attributes == nullptr)) return P4_PD_NULL_ARGUMENT;
  *filled = 0;
  const uint32_t list = configured_list(hash, session, device);
  if (list == hash.field_list && input != 0) return P4_PD_UNKNOWN_SELECTION;
  if (max_count == 0) return BF_SUCCESS;
  const Scratch<pipe_mgr_hash_attribute_t> read(max_count);
  if (!read.ok()) return P4_PD_NO_MEMORY;
  const p4_pd_status_t status = pipe_mgr_hash_calc_input_field_attribute_get(
      session, device, hash.handle, list, max_count, read.items(), filled);
  if (status != BF_SUCCESS) return status;
  *filled = held(*filled, max_count);
  memcpy(attributes, read.items(), size_t{*filled} * sizeof *attributes);
  return BF_SUCCESS;
}

p4_pd_status_t calculate_hash(const Hash &hash, p4_pd_session_handle_t session, uint8_t device,
                              uint32_t count, const p4_pd_hash_calc_attr_t *values,
                              const uint32_t *sizes, uint8_t *result, uint32_t result_length) {
  if (count != 0 && (values == nullptr || sizes == nullptr)) return P4_PD_NULL_ARGUMENT;
  if (result == nullptr) return P4_PD_NULL_ARGUMENT;
  uint64_t length = 0;
  if (!measure(count, values, sizes, length)) return P4_PD_NULL_ARGUMENT;
  if (length > UINT32_MAX) return P4_PD_NO_MEMORY;
  const Scratch<uint8_t> stream(length);
  if (!stream.ok()) return P4_PD_NO_MEMORY;
  uint8_t *cursor = stream.items() + static_cast<size_t>(length);
  unsigned offset = 0;
  for (uint32_t i = count; i > 0; --i) {
    prepend_value(cursor, offset, values[i - 1].value, sizes[i - 1]);
  }
  return pipe_mgr_hash_calc_calculate_hash_value(session, device, hash.handle, stream.items(),
                                                 static_cast<uint32_t>(length), result,
                                                 result_length);
}

}  // namespace pd
