// From the pipeline manager's bytes back to the typed records of one table, unrolled over its
// descriptors.
#pragma once

#include "codec/bytes.hpp"
#include "codec/decode.hpp"

namespace pd {

namespace detail {

template <KeyField F>
PD_INLINE void decode_member(const uint8_t *bytes, uint8_t *out) {
  if constexpr (F.storage == 16) {
    __builtin_memcpy(out, bytes, 16);
  } else {
    store<F.storage>(out, load_big_endian<F.bytes>(bytes));
  }
}

// The place of the lowest set bit, counted from the end of the address, ends the prefix.
template <KeyField F>
PD_INLINE uint16_t decode_prefix(const uint8_t *mask) {
  if constexpr (F.storage == 16) {
    for (const unsigned first : {64u, 0u}) {
      uint64_t word;
      __builtin_memcpy(&word, mask + first / 8, 8);
      word = __builtin_bswap64(word);
      if (word != 0) {
        return static_cast<uint16_t>(first + 64 - static_cast<unsigned>(__builtin_ctzll(word)));
      }
    }
    return 0;
  } else {
    const uint32_t word = load_big_endian<F.bytes>(mask) & low_ones(F.width);
    return static_cast<uint16_t>(word == 0 ? 0
                                           : F.width - static_cast<unsigned>(__builtin_ctz(word)));
  }
}

template <KeyField F>
PD_INLINE void decode_field(const uint8_t *value, const uint8_t *mask, uint8_t *record) {
  decode_member<F>(value + F.position, record + F.offset);
  if constexpr (F.match == Match::ternary) {
    decode_member<F>(mask + F.position, record + F.companion);
  } else if constexpr (F.match == Match::lpm) {
    store<2>(record + F.companion, decode_prefix<F>(mask + F.position));
  }
}

template <class T, size_t... I>
PD_INLINE void decode_fields(const uint8_t *value, const uint8_t *mask, uint8_t *record,
                             std::index_sequence<I...>) {
  PD_FOR_EACH(decode_field<T::key[I]>(value, mask, record));
}

template <Param P>
PD_INLINE void decode_param(const uint8_t *data, const ResourceList &resources, uint8_t *record) {
  if constexpr (P.is_index()) {
    store<P.storage>(record + P.offset, resource_index(P, resources.items(), resources.count()));
  } else {
    store<P.storage>(record + P.offset, load_big_endian<P.bytes>(data + P.position));
  }
}

template <const Action *A, size_t... I>
PD_INLINE void decode_params(const uint8_t *data, const ResourceList &resources, uint8_t *record,
                             std::index_sequence<I...>) {
  __builtin_memset(record, 0, A->record_size);
  PD_FOR_EACH(decode_param<A->params[I]>(data, resources, record));
}

template <const Action *A>
PD_INLINE p4_pd_status_t decode_held(const uint8_t *data, const ResourceList &resources,
                                     void *action_spec, uint32_t &value) {
  if constexpr (A->param_count != 0) {
    if (action_spec == nullptr) return P4_PD_NULL_ARGUMENT;
    decode_params<A>(data, resources, static_cast<uint8_t *>(action_spec),
                     std::make_index_sequence<A->param_count>{});
  }
  value = A->value;
  return BF_SUCCESS;
}

template <class T, size_t... I>
PD_INLINE p4_pd_status_t decode_pairs([[maybe_unused]] uint32_t handle,
                                      [[maybe_unused]] const uint8_t *data,
                                      [[maybe_unused]] const ResourceList &resources,
                                      [[maybe_unused]] void *action_spec,
                                      [[maybe_unused]] uint32_t &value, std::index_sequence<I...>) {
  p4_pd_status_t status = P4_PD_FOREIGN_ACTION;
  (void)((handle == T::pairs[I].handle &&
          ((status = decode_held<T::pairs[I].action>(data, resources, action_spec, value)),
           true)) ||
         ...);
  return status;
}

}  // namespace detail

// Where the key of an entry of table T goes; that of a table without a key stays empty.
template <class T>
struct UnrolledKey {
  pipe_mgr_match_spec_t spec;
  uint8_t value[T::table.key_bytes == 0 ? 1 : T::table.key_bytes] = {};
  uint8_t mask[sizeof value] = {};

  UnrolledKey() {
    clear(spec);
    if constexpr (T::table.kind != Kind::keyless) {
      spec.valid_bit_count = T::table.key_bits;
      spec.byte_count = T::table.key_bytes;
      spec.value = value;
      spec.mask = mask;
    }
  }

  bool has_key() const { return spec.value != nullptr; }

  // The whole match spec.
  PD_INLINE void decode(void *match_spec) const {
    if constexpr (T::table.kind != Kind::keyless) {
      __builtin_memset(match_spec, 0, sizeof(typename T::Record));
      detail::decode_fields<T>(spec.value, spec.mask, static_cast<uint8_t *>(match_spec),
                               std::make_index_sequence<T::table.field_count>{});
    }
  }
};

// The action that an entry of table T carries under a handle: its enumeration value, and its record
// if it has parameters. P4_PD_FOREIGN_ACTION or P4_PD_NULL_ARGUMENT, and nothing is written.
template <class T>
PD_INLINE p4_pd_status_t decode_action_of(uint32_t handle, const uint8_t *data,
                                          const ResourceList &resources, void *action_spec,
                                          uint32_t &value) {
  return detail::decode_pairs<T>(handle, data, resources, action_spec, value,
                                 std::make_index_sequence<T::table.pair_count>{});
}

}  // namespace pd
