// From a typed match spec to the pipeline manager's key and mask bytes, unrolled per table.
#pragma once

#include "codec/bytes.hpp"
#include "descriptor.hpp"

namespace pd {

// Where the fields of a table's key end up, for the duration of one SDK call.
template <class T>
struct KeyBytes {
  uint8_t value[T::table.key_bytes];
  uint8_t mask[T::table.key_bytes];
};

namespace detail {

template <KeyField F>
PD_INLINE void encode_exact(const uint8_t *record, uint8_t *value) {
  if constexpr (F.storage == 16) {
    __builtin_memcpy(value + F.position, record + F.offset, 16);
  } else {
    store_big_endian<F.bytes>(value + F.position, load<F.storage>(record + F.offset));
  }
}

// The value keeps the bits that the caller's mask has set; the mask that is sent is cut to the
// width of the field.
template <KeyField F>
PD_INLINE void encode_ternary(const uint8_t *record, uint8_t *value, uint8_t *mask) {
  if constexpr (F.storage == 16) {
    for (size_t i = 0; i < 16; ++i) {
      mask[F.position + i] = record[F.companion + i];
      value[F.position + i] = record[F.offset + i] & record[F.companion + i];
    }
  } else {
    const uint32_t bits = load<F.storage>(record + F.companion);
    store_big_endian<F.bytes>(value + F.position, load<F.storage>(record + F.offset) & bits);
    store_big_endian<F.bytes>(mask + F.position, bits & low_ones(F.width));
  }
}

// An exact field among ternary ones: its mask is all ones of its width.
template <KeyField F>
PD_INLINE void encode_exact_among_ternary(const uint8_t *record, uint8_t *value, uint8_t *mask) {
  encode_exact<F>(record, value);
  if constexpr (F.storage == 16) {
    __builtin_memset(mask + F.position, 0xff, 16);
  } else {
    store_big_endian<F.bytes>(mask + F.position, low_ones(F.width));
  }
}

// The 64 bits from bit first on of a mask that starts with length ones.
PD_INLINE constexpr uint64_t prefix_word(unsigned length, unsigned first) {
  if (length >= first + 64) return ~uint64_t{0};
  return length <= first ? 0 : ~(~uint64_t{0} >> (length - first));
}

// Writes the address and its mask and returns the entry's priority: the number of wildcard bits. A
// prefix longer than the address leaves address and mask whole and comes after every other entry.
template <class T, KeyField F>
PD_INLINE uint32_t encode_lpm(const uint8_t *record, uint8_t *value, uint8_t *mask) {
  const unsigned length = load<2>(record + F.companion);
  const bool whole = length > F.width;
  if constexpr (F.storage == 16) {
    const unsigned ones = whole ? 128 : length;
    for (unsigned word = 0; word < 2; ++word) {
      const uint64_t bits = __builtin_bswap64(prefix_word(ones, 64 * word));
      uint64_t address;
      __builtin_memcpy(&address, record + F.offset + 8 * word, 8);
      address &= bits;
      __builtin_memcpy(mask + F.position + 8 * word, &bits, 8);
      __builtin_memcpy(value + F.position + 8 * word, &address, 8);
    }
  } else {
    const unsigned wildcard = F.width - length;
    const uint32_t ones = whole ? 0xffffffffu : wildcard == 32 ? 0 : 0xffffffffu << wildcard;
    store_big_endian<F.bytes>(mask + F.position, ones);
    store_big_endian<F.bytes>(value + F.position, load<F.storage>(record + F.offset) & ones);
  }
  return whole ? T::table.key_bits + 1u : F.width - length;
}

template <class T, size_t I>
PD_INLINE void encode_field(const uint8_t *record, KeyBytes<T> &key, uint32_t &priority) {
  constexpr KeyField field = T::key[I];
  if constexpr (field.match == Match::lpm) {
    priority = encode_lpm<T, field>(record, key.value, key.mask);
  } else if constexpr (field.match == Match::ternary) {
    encode_ternary<field>(record, key.value, key.mask);
  } else if constexpr (T::table.kind == Kind::ternary) {
    encode_exact_among_ternary<field>(record, key.value, key.mask);
  } else {
    encode_exact<field>(record, key.value);
  }
}

template <class T, size_t... I>
PD_INLINE void encode_fields(const uint8_t *record, KeyBytes<T> &key, uint32_t &priority,
                             std::index_sequence<I...>) {
  PD_FOR_EACH(encode_field<T, I>(record, key, priority));
}

}  // namespace detail

// Fills spec and key from the record; spec points into key afterwards. priority is the caller's and
// counts in ternary tables only.
template <class T>
PD_INLINE void encode_key(const typename T::Record &record, uint32_t priority, KeyBytes<T> &key,
                          pipe_mgr_match_spec_t &spec) {
  clear(spec);
  spec.valid_bit_count = T::table.key_bits;
  spec.byte_count = T::table.key_bytes;
  spec.value = key.value;
  spec.mask = key.mask;
  if constexpr (T::table.kind != Kind::ternary) {
    __builtin_memset(key.mask, 0xff, sizeof key.mask);
    priority = 0;
  }
  const auto *bytes = reinterpret_cast<const uint8_t *>(&record);
  detail::encode_fields<T>(bytes, key, priority, std::make_index_sequence<T::table.field_count>{});
  spec.priority = priority;
}

}  // namespace pd
