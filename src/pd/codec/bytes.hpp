// Moves between record members in host order and big-endian byte strings.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

// The verbs and codecs are inlined into the wrapper that names them: a call in between costs a
// tenth of an entry add. They take the device target by reference, as a copy costs instructions.
#define PD_INLINE [[gnu::always_inline]] inline

// The expression once for each element of the pack in it, in order. Compilers nest the operands of
// a fold, and clang ends at 256.
#define PD_FOR_EACH(...) \
  [[maybe_unused]] const int done[] = {0, (static_cast<void>(__VA_ARGS__), 0)...}

namespace pd {

// The member of Storage bytes (1, 2 or 4) at an address of any alignment.
template <size_t Storage>
PD_INLINE uint32_t load(const uint8_t *member) {
  if constexpr (Storage == 1) {
    return *member;
  } else if constexpr (Storage == 2) {
    uint16_t value;
    __builtin_memcpy(&value, member, 2);
    return value;
  } else {
    static_assert(Storage == 4);
    uint32_t value;
    __builtin_memcpy(&value, member, 4);
    return value;
  }
}

PD_INLINE uint32_t load(const uint8_t *member, unsigned storage) {
  return storage == 1 ? load<1>(member) : storage == 2 ? load<2>(member) : load<4>(member);
}

PD_INLINE void store(uint8_t *member, unsigned storage, uint32_t value) {
  if (storage == 1) {
    *member = static_cast<uint8_t>(value);
  } else if (storage == 2) {
    const auto half = static_cast<uint16_t>(value);
    __builtin_memcpy(member, &half, 2);
  } else {
    __builtin_memcpy(member, &value, 4);
  }
}

template <size_t Storage>
PD_INLINE void store(uint8_t *member, uint32_t value) {
  static_assert(Storage == 1 || Storage == 2 || Storage == 4);
  store(member, static_cast<unsigned>(Storage), value);
}

// The low Count bytes (1 to 4) of value, most significant first.
template <size_t Count>
PD_INLINE void store_big_endian(uint8_t *bytes, uint32_t value) {
  if constexpr (Count == 1) {
    *bytes = static_cast<uint8_t>(value);
  } else if constexpr (Count == 2) {
    const uint16_t swapped = __builtin_bswap16(static_cast<uint16_t>(value));
    __builtin_memcpy(bytes, &swapped, 2);
  } else if constexpr (Count == 3) {
    *bytes = static_cast<uint8_t>(value >> 16);
    store_big_endian<2>(bytes + 1, value);
  } else {
    static_assert(Count == 4);
    const uint32_t swapped = __builtin_bswap32(value);
    __builtin_memcpy(bytes, &swapped, 4);
  }
}

template <size_t Count>
PD_INLINE uint32_t load_big_endian(const uint8_t *bytes) {
  if constexpr (Count == 1) {
    return *bytes;
  } else if constexpr (Count == 2) {
    return __builtin_bswap16(static_cast<uint16_t>(load<2>(bytes)));
  } else if constexpr (Count == 3) {
    return static_cast<uint32_t>(*bytes) << 16 | load_big_endian<2>(bytes + 1);
  } else {
    static_assert(Count == 4);
    return __builtin_bswap32(load<4>(bytes));
  }
}

inline uint32_t load_big_endian(const uint8_t *bytes, unsigned count) {
  uint32_t value = 0;
  for (unsigned i = 0; i < count; ++i) value = value << 8 | bytes[i];
  return value;
}

// How many of the items that the SDK reports are there: it may report more than it had room for.
constexpr uint32_t held(uint32_t reported, uint32_t room) {
  return reported < room ? reported : room;
}

// The low bits ones of a word; bits is 1 to 32.
constexpr uint32_t low_ones(unsigned bits) { return 0xffffffffu >> (32 - bits); }

namespace detail {

#ifdef __SSE2__
typedef uint32_t Chunk __attribute__((vector_size(16), aligned(4), may_alias));
#else
typedef uint32_t Chunk __attribute__((may_alias));
#endif

template <size_t... I>
PD_INLINE void clear_chunks(uint8_t *bytes, std::index_sequence<I...>) {
  ((*reinterpret_cast<Chunk *>(bytes + sizeof(Chunk) * I) = Chunk{}), ...);
}

template <size_t... I>
PD_INLINE void clear_words(uint8_t *bytes, std::index_sequence<I...>) {
  typedef uint32_t Word __attribute__((may_alias));
  ((*reinterpret_cast<Word *>(bytes + 4 * I) = 0), ...);
}

template <class Record>
PD_INLINE void clear_here(Record &record) {
  static_assert(sizeof(Record) % 4 == 0 && alignof(Record) >= 4);
  auto *bytes = reinterpret_cast<uint8_t *>(&record);
  constexpr size_t chunks = sizeof(Record) / sizeof(Chunk);
  constexpr size_t words = sizeof(Record) % sizeof(Chunk) / 4;
  clear_chunks(bytes, std::make_index_sequence<chunks>{});
  clear_words(bytes + sizeof(Chunk) * chunks, std::make_index_sequence<words>{});
}

#ifdef __i386__
#define PD_IN_REGISTER gnu::regparm(1)
#else
#define PD_IN_REGISTER
#endif

template <class Record>
[[gnu::noinline, PD_IN_REGISTER]] void clear_there(Record &record) {
  clear_here(record);
}

}  // namespace detail

// Zeroes a record with straight-line stores. Compilers turn a plain clear of a record of 300 bytes
// into a string instruction that costs three times as much as encoding a key. Where these are many
// stores, as there are no vectors, callers share them.
template <class Record>
PD_INLINE void clear(Record &record) {
  if constexpr (sizeof(Record) > 32 * sizeof(detail::Chunk)) {
    detail::clear_there(record);
  } else {
    detail::clear_here(record);
  }
}

}  // namespace pd
