// The checksum of an image: by one step for each eight bytes of a line, every of which can be taken
// back, so that no change within eight bytes goes unnoticed.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tesselctl {

class Checksum {
 public:
  void add_line(std::string_view line) {
    uint64_t word = 0;
    while (line.size() >= sizeof word) {
      memcpy(&word, line.data(), sizeof word);
      step(word);
      line.remove_prefix(sizeof word);
    }
    word = 0;
    memcpy(&word, line.data(), line.size());
    step(word | uint64_t{line.size() + 1} << 56);  // seven bytes at most lie below
  }
  uint64_t value() const { return value_; }

 private:
  void step(uint64_t word) { value_ = std::rotl(value_ ^ word, 29) * 0x9e3779b97f4a7c15u; }

  uint64_t value_ = 0;
};

}  // namespace tesselctl
