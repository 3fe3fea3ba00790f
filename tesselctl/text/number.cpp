#include "tesselctl/text/number.hpp"

#include <arpa/inet.h>
#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>

namespace tesselctl {

namespace {

int digit_value(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 16;
}

// value * factor + addend, or false when that has more than 128 bits.
bool multiply_add(Number &value, uint32_t factor, uint32_t addend) {
  uint32_t limbs[4] = {static_cast<uint32_t>(value.low), static_cast<uint32_t>(value.low >> 32),
                       static_cast<uint32_t>(value.high), static_cast<uint32_t>(value.high >> 32)};
  uint64_t carry = addend;
  for (uint32_t &limb : limbs) {
    carry += static_cast<uint64_t>(limb) * factor;
    limb = static_cast<uint32_t>(carry);
    carry >>= 32;
  }
  value = {static_cast<uint64_t>(limbs[3]) << 32 | limbs[2],
           static_cast<uint64_t>(limbs[1]) << 32 | limbs[0]};
  return carry == 0;
}

}  // namespace

std::optional<unsigned> prefix_length_of(Number mask, unsigned width) {
  const Number zeros = ~mask & low_ones(width);
  const int count = std::popcount(zeros.high) + std::popcount(zeros.low);
  if (!(zeros == low_ones(static_cast<unsigned>(count)))) return std::nullopt;
  return width - static_cast<unsigned>(count);
}

std::optional<Number> parse_number(std::string_view text) {
  uint32_t base = 10;
  if (text.starts_with("0x") || text.starts_with("0X")) {
    base = 16;
    text.remove_prefix(2);
  }
  if (text.empty() || text.front() == '_' || text.back() == '_') return std::nullopt;
  Number value;
  for (const char c : text) {
    if (c == '_') continue;
    const auto digit = static_cast<uint32_t>(digit_value(c));
    if (digit >= base || !multiply_add(value, base, digit)) return std::nullopt;
  }
  return value;
}

std::optional<float> parse_float(std::string_view text) {
  float number = 0;
  const char *end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  const bool is_whole = error == std::errc() && stop == end;
  if (!is_whole || !std::isfinite(number) || number < 0) return std::nullopt;
  return number + 0.0f;  // -0 becomes 0
}

std::optional<uint32_t> parse_ipv4(std::string_view text) {
  uint32_t address = 0;
  size_t at = 0;
  for (int part = 0; part < 4; ++part) {
    if (part > 0 && (at == text.size() || text[at++] != '.')) return std::nullopt;
    const size_t begin = at;
    uint32_t value = 0;
    while (at < text.size() && at - begin < 3 && text[at] >= '0' && text[at] <= '9') {
      value = value * 10 + static_cast<uint32_t>(text[at++] - '0');
    }
    if (at == begin || value > 255 || (at - begin > 1 && text[begin] == '0')) return std::nullopt;
    address = address << 8 | value;
  }
  if (at != text.size()) return std::nullopt;
  return address;
}

std::string completed_ipv4(std::string_view text) {
  std::string address(text);
  const auto dots = std::count(text.begin(), text.end(), '.');
  for (auto missing = 3 - dots; missing > 0; --missing) address += ".0";
  return parse_ipv4(address) ? address : std::string();
}

std::optional<Number> parse_ipv6(std::string_view text) {
  char terminated[INET6_ADDRSTRLEN];
  if (text.size() >= sizeof terminated) return std::nullopt;
  memcpy(terminated, text.data(), text.size());
  terminated[text.size()] = '\0';
  uint8_t bytes[16];
  if (inet_pton(AF_INET6, terminated, bytes) != 1) return std::nullopt;
  return from_bytes(bytes, sizeof bytes);
}

std::optional<uint64_t> parse_mac(std::string_view text) {
  size_t group = 2;
  char separator = ':';
  if (text.size() == 14) {
    group = 4;
    separator = '.';
  } else if (text.size() != 17) {
    return std::nullopt;
  } else if (text[2] == '-') {
    separator = '-';
  }
  uint64_t address = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    if (i % (group + 1) == group) {
      if (text[i] != separator) return std::nullopt;
      continue;
    }
    const int digit = digit_value(text[i]);
    if (digit > 15) return std::nullopt;
    address = address << 4 | static_cast<uint64_t>(digit);
  }
  return address;
}

std::string decimal(uint64_t value) { return fmt::format_int(value).str(); }

std::string hexadecimal(Number value) {
  if (value.high == 0) return fmt::format("{:#x}", value.low);
  return fmt::format("{:#x}{:016x}", value.high, value.low);
}

std::string ipv4_text(uint32_t address) {
  return fmt::format("{}.{}.{}.{}", address >> 24, address >> 16 & 0xff, address >> 8 & 0xff,
                     address & 0xff);
}

std::string ipv6_text(Number address) {
  char text[INET6_ADDRSTRLEN];
  return inet_ntop(AF_INET6, to_bytes(address).data(), text, sizeof text);
}

std::string mac_text(uint64_t address) {
  std::string text;
  for (int shift = 40; shift >= 0; shift -= 8) {
    fmt::format_to(std::back_inserter(text), "{:02x}{}", address >> shift & 0xff,
                   shift == 0 ? "" : ":");
  }
  return text;
}

std::string grouped(uint64_t value) {
  const std::string digits = decimal(value);
  std::string text;
  for (size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) text += ',';
    text += digits[i];
  }
  return text;
}

std::array<uint8_t, 16> to_bytes(Number value) {
  std::array<uint8_t, 16> bytes;
  for (unsigned i = 0; i < 16; ++i) bytes[i] = static_cast<uint8_t>((value >> 8 * (15 - i)).low);
  return bytes;
}

Number from_bytes(const uint8_t *bytes, size_t count) {
  Number value;
  for (size_t i = 0; i < count; ++i) value = value << 8 | Number(bytes[i]);
  return value;
}

}  // namespace tesselctl
