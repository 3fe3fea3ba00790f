// Values of up to 128 bits and the texts that people write for them.
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tesselctl {

// An unsigned number of 128 bits; the i386 ABI has no built-in one.
struct Number {
  uint64_t high = 0;
  uint64_t low = 0;

  constexpr Number() = default;
  constexpr Number(uint64_t value) : low(value) {}
  constexpr Number(uint64_t upper, uint64_t lower) : high(upper), low(lower) {}

  friend constexpr bool operator==(Number, Number) = default;
  friend constexpr auto operator<=>(Number, Number) = default;  // NOLINT(modernize-use-nullptr)
  // Without what is beyond 128 bits.
  friend constexpr Number operator+(Number a, Number b) {
    return {a.high + b.high + (a.low + b.low < a.low ? 1 : 0), a.low + b.low};
  }
  friend constexpr Number operator-(Number a, Number b) { return a + ~b + Number(1); }
  friend constexpr Number operator&(Number a, Number b) { return {a.high & b.high, a.low & b.low}; }
  friend constexpr Number operator|(Number a, Number b) { return {a.high | b.high, a.low | b.low}; }
  friend constexpr Number operator~(Number a) { return {~a.high, ~a.low}; }
  friend constexpr Number operator<<(Number a, unsigned n) {
    if (n == 0) return a;
    if (n >= 128) return {};
    if (n >= 64) return {a.low << (n - 64), 0};
    return {a.high << n | a.low >> (64 - n), a.low << n};
  }
  friend constexpr Number operator>>(Number a, unsigned n) {
    if (n == 0) return a;
    if (n >= 128) return {};
    if (n >= 64) return a.high >> (n - 64);
    return {a.high >> n, a.low >> n | a.high << (64 - n)};
  }

  constexpr bool is_zero() const { return high == 0 && low == 0; }
  constexpr bool fits(unsigned width) const { return (*this >> width).is_zero(); }
};

// The lowest width bits set; the leading length bits of a field of width bits set.
constexpr Number low_ones(unsigned width) { return ~(~Number() << width); }
constexpr Number prefix_mask(unsigned length, unsigned width) {
  return low_ones(length) << (width - length);
}
// The length of the prefix that a mask stands for, nothing when its ones do not lead.
std::optional<unsigned> prefix_length_of(Number mask, unsigned width);

// ---- From text; nothing when the text is not of that kind ----

// Decimal, or hexadecimal behind 0x, up to 128 bits. Digits may be grouped by '_'.
std::optional<Number> parse_number(std::string_view text);
// A real number of at least 0, in decimal notation.
std::optional<float> parse_float(std::string_view text);
// a.b.c.d, each 0 to 255 without leading zeros.
std::optional<uint32_t> parse_ipv4(std::string_view text);
// "10.1.0.0" of "10.1", as some tools write networks; empty where it is not so.
std::string completed_ipv4(std::string_view text);
std::optional<Number> parse_ipv6(std::string_view text);
// aa:bb:cc:dd:ee:ff, aa-bb-cc-dd-ee-ff or aabb.ccdd.eeff.
std::optional<uint64_t> parse_mac(std::string_view text);

// ---- To text ----

std::string decimal(uint64_t value);
std::string hexadecimal(Number value);
std::string ipv4_text(uint32_t address);
std::string ipv6_text(Number address);
std::string mac_text(uint64_t address);
// 1234567 as "1,234,567".
std::string grouped(uint64_t value);

std::array<uint8_t, 16> to_bytes(Number value);
Number from_bytes(const uint8_t *bytes, size_t count);

}  // namespace tesselctl
