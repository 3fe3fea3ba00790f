#include "store/crc64.hpp"

#include <array>

namespace soft {
namespace {

// What a byte in front of the register does to it once it is shifted out.
constexpr std::array<uint64_t, 256> make_table() {
  std::array<uint64_t, 256> table{};
  for (size_t byte = 0; byte < table.size(); ++byte) {
    uint64_t value = static_cast<uint64_t>(byte) << 56;
    for (int bit = 0; bit < 8; ++bit) {
      value = (value << 1) ^ ((value >> 63) != 0 ? Crc64::kPolynomial : 0);
    }
    table[byte] = value;
  }
  return table;
}

constexpr std::array<uint64_t, 256> kTable = make_table();

}  // namespace

void Crc64::add(const uint8_t *bytes, size_t count) {
  for (size_t i = 0; i < count; ++i) {
    value_ = (value_ << 8) ^ kTable[static_cast<size_t>(value_ >> 56) ^ bytes[i]];
  }
}

}  // namespace soft
