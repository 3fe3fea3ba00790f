// The cyclic redundancy check behind the hash calculations.
#pragma once

#include <cstddef>
#include <cstdint>

namespace soft {

// CRC-64 with the polynomial of ECMA-182 (0x42F0E1EBA9EA3693), bits taken most significant first.
// The caller supplies the register's initial contents and inverts the result where wanted.
class Crc64 {
 public:
  static constexpr uint64_t kPolynomial = 0x42f0e1eba9ea3693u;

  explicit Crc64(uint64_t initial) : value_(initial) {}

  void add(const uint8_t *bytes, size_t count);
  uint64_t value() const { return value_; }

 private:
  uint64_t value_;
};

}  // namespace soft
