// Moves of text into a caller's buffer. Each returns the end of what it wrote; none writes a NUL
// unless it says so, and none writes beyond the end that it returns.
#pragma once

#include <cstddef>
#include <cstdint>

#include "codec/bytes.hpp"

namespace pd {

namespace detail {

// Two digits for each byte.
struct HexPairs {
  char text[512];

  constexpr explicit HexPairs(const char *digits) : text{} {
    for (unsigned byte = 0; byte < 256; ++byte) {
      text[2 * byte] = digits[byte >> 4];
      text[2 * byte + 1] = digits[byte & 15];
    }
  }
};

inline constexpr HexPairs lower_pairs("0123456789abcdef");
inline constexpr HexPairs upper_pairs("0123456789ABCDEF");

#ifdef __SSE2__
typedef char TextChunk __attribute__((vector_size(16), aligned(1), may_alias));
#else
typedef uint32_t TextChunk __attribute__((aligned(1), may_alias));
#endif

template <size_t... I>
inline void copy_chunks(char *out, const char *text, std::index_sequence<I...>) {
  ((*reinterpret_cast<TextChunk *>(out + sizeof(TextChunk) * I) =
        *reinterpret_cast<const TextChunk *>(text + sizeof(TextChunk) * I)),
   ...);
}

}  // namespace detail

// A text of known length, its NUL included: straight-line moves, since compilers make a string
// instruction of a plain copy of this size, which costs more than all digits together.
template <size_t Size>
inline void copy_text(char *out, const char (&text)[Size]) {
  if constexpr (Size <= 1024) {
    constexpr size_t whole = Size / sizeof(detail::TextChunk);
    constexpr size_t bytes = whole * sizeof(detail::TextChunk);
    detail::copy_chunks(out, text, std::make_index_sequence<whole>{});
    __builtin_memcpy(out + bytes, text + bytes, Size - bytes);
  } else {
    __builtin_memcpy(out, text, Size);
  }
}

// Exactly Count lower-case digits; value has no more.
template <unsigned Count>
PD_INLINE void put_digits(char *out, uint32_t value) {
  if constexpr (Count % 2 == 1) {
    *out = detail::lower_pairs.text[2 * (value >> 4 * (Count - 1)) + 1];
    if constexpr (Count > 1) put_digits<Count - 1>(out + 1, value);
  } else {
    for (unsigned i = 0; i < Count; i += 2) {
      const uint8_t byte = static_cast<uint8_t>(value >> 4 * (Count - 2 - i));
      __builtin_memcpy(out + i, detail::lower_pairs.text + 2 * byte, 2);
    }
  }
}

// The 32 upper-case digits of 16 bytes.
inline void put_wide_digits(char *out, const uint8_t *bytes) {
  for (unsigned i = 0; i < 16; ++i) {
    __builtin_memcpy(out + 2 * i, detail::upper_pairs.text + 2 * bytes[i], 2);
  }
}

inline char *put_text(char *out, const char *text) {
  const size_t length = __builtin_strlen(text);
  __builtin_memcpy(out, text, length);
  return out + length;
}

// At least least lower-case digits (1 to 8), zero-padded.
inline char *put_hex(char *out, uint32_t value, unsigned least = 1) {
  unsigned count = 1;
  while (count < 8 && value >> 4 * count != 0) ++count;
  if (count < least) count = least;
  for (unsigned i = count; i > 0; --i) {
    *out++ = detail::lower_pairs.text[2 * (value >> 4 * (i - 1) & 15) + 1];
  }
  return out;
}

inline char *put_decimal(char *out, uint32_t value) {
  char reversed[10];
  unsigned count = 0;
  do {
    reversed[count++] = static_cast<char>('0' + value % 10);
    value /= 10;
  } while (value != 0);
  while (count > 0) *out++ = reversed[--count];
  return out;
}

// The number as a caller that holds it in a signed integer sees it.
inline char *put_signed_decimal(char *out, uint32_t value) {
  if (value <= 0x7fffffffu) return put_decimal(out, value);
  *out = '-';
  return put_decimal(out + 1, 0u - value);
}

// Ends the text at end with a NUL and returns its length.
inline int finish_text(const char *buffer, char *end) {
  *end = '\0';
  return static_cast<int>(end - buffer);
}

}  // namespace pd
