// Hashing and comparing short byte strings under a mask, a word at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

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

// The 1 to 7 bytes at bytes as one number, a different one for every different string of this
// length. Reads nothing outside the string.
inline uint64_t load_short(const uint8_t *bytes, size_t count) {
  if (count >= 4)
    return load<uint32_t>(bytes) | static_cast<uint64_t>(load<uint32_t>(bytes + count - 4)) << 32;
  return bytes[0] | static_cast<uint64_t>(bytes[count / 2]) << 8 |
         static_cast<uint64_t>(bytes[count - 1]) << 16;
}

// Hash of the bits that mask keeps; of all bits for a null mask. Strings of one table have one
// length, so the length takes no part. All 64 bits are usable.
inline uint64_t hash_masked(const uint8_t *value, const uint8_t *mask, size_t count,
                            uint64_t seed) {
  uint64_t hash = (seed + 1) * 0x9e3779b97f4a7c15u;
  const auto take = [&hash](uint64_t word) {
    hash = (hash ^ word) * 0xd6e8feb86659fd93u;
    hash ^= hash >> 32;
  };
  size_t at = 0;
  for (; count - at >= 8; at += 8) {
    const uint64_t word = load<uint64_t>(value + at);
    take(mask != nullptr ? word & load<uint64_t>(mask + at) : word);
  }
  if (at < count) {
    const uint64_t word = load_short(value + at, count - at);
    take(mask != nullptr ? word & load_short(mask + at, count - at) : word);
  }
  hash *= 0xbf58476d1ce4e5b9u;
  hash ^= hash >> 29;
  hash *= 0x94d049bb133111ebu;
  return hash ^ hash >> 32;
}

// Whether a and b agree in the bits that mask keeps; all bits for a null mask.
inline bool equal_masked(const uint8_t *a, const uint8_t *b, const uint8_t *mask, size_t count) {
  size_t at = 0;
  for (; count - at >= 8; at += 8) {
    const uint64_t differ = load<uint64_t>(a + at) ^ load<uint64_t>(b + at);
    if ((mask != nullptr ? differ & load<uint64_t>(mask + at) : differ) != 0) return false;
  }
  if (at == count) return true;
  const uint64_t differ = load_short(a + at, count - at) ^ load_short(b + at, count - at);
  return (mask != nullptr ? differ & load_short(mask + at, count - at) : differ) == 0;
}

}  // namespace soft
