// Hashing and comparing short byte strings under a mask, a word at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "store/key_index.hpp"

namespace soft {

// Reads or writes a number at any address; records are not aligned.
template <typename T>
T load(const void *from) {
  T value;
  std::memcpy(&value, from, sizeof(value));
  return value;
}

template <typename T>
void store(void *to, T value) {
  std::memcpy(to, &value, sizeof(value));
}

// The 1 to 8 bytes at bytes as one number, the first byte on top. Reads nothing outside the string.
inline uint64_t load_number(const uint8_t *bytes, size_t count) {
  if (count == 8) return __builtin_bswap64(load<uint64_t>(bytes));
  if (count >= 4)
    return static_cast<uint64_t>(__builtin_bswap32(load<uint32_t>(bytes))) << 8 * (count - 4) |
           __builtin_bswap32(load<uint32_t>(bytes + count - 4));
  return static_cast<uint64_t>(bytes[0]) << 8 * (count - 1) |
         static_cast<uint64_t>(bytes[count / 2]) << 8 * (count - 1 - count / 2) | bytes[count - 1];
}

// Hash of the bits that mask keeps; of all bits for a null mask. Strings of one table have one
// length, so the length takes no part. All 64 bits are usable. Strings that differ in the last four
// of the bits alone are neighbours, as the routes of a prefix are: KeyIndex keeps them together.
inline uint64_t hash_masked(const uint8_t *value, const uint8_t *mask, size_t count,
                            uint64_t seed) {
  uint64_t hash = (seed + 1) * 0x9e3779b97f4a7c15u;
  uint64_t neighbour = 0;
  for (bool is_last = true; count > 0;) {
    const size_t size = count < 8 ? count : 8;
    count -= size;
    const uint64_t kept = mask != nullptr ? load_number(mask + count, size) : ~uint64_t{0};
    uint64_t word = load_number(value + count, size) & kept;
    if (is_last && kept != 0) {
      const int shift = __builtin_ctzll(kept);
      neighbour = word >> shift & 15;
      word ^= neighbour << shift;
      is_last = false;
    }
    hash = (hash ^ word) * 0xd6e8feb86659fd93u;
    hash ^= hash >> 32;
  }
  hash *= 0xbf58476d1ce4e5b9u;
  hash ^= hash >> 29;
  hash *= 0x94d049bb133111ebu;
  return KeyIndex::beside(hash ^ hash >> 32, neighbour);
}

// Whether a and b agree in the bits that mask keeps; all bits for a null mask.
inline bool equal_masked(const uint8_t *a, const uint8_t *b, const uint8_t *mask, size_t count) {
  size_t at = 0;
  for (; count - at >= 8; at += 8) {
    const uint64_t differ = load<uint64_t>(a + at) ^ load<uint64_t>(b + at);
    if ((mask != nullptr ? differ & load<uint64_t>(mask + at) : differ) != 0) return false;
  }
  if (at == count) return true;
  const uint64_t differ = load_number(a + at, count - at) ^ load_number(b + at, count - at);
  return (mask != nullptr ? differ & load_number(mask + at, count - at) : differ) == 0;
}

}  // namespace soft
