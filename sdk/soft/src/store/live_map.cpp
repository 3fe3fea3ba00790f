#include "store/live_map.hpp"

#include <bit>

namespace soft {

LiveMap::LiveMap(std::pmr::memory_resource *memory)
    : levels_{std::pmr::vector<uint64_t>(memory), std::pmr::vector<uint64_t>(memory),
              std::pmr::vector<uint64_t>(memory), std::pmr::vector<uint64_t>(memory),
              std::pmr::vector<uint64_t>(memory)} {}

void LiveMap::reserve(uint32_t count) {
  size_t words = count;
  for (auto &level : levels_) {
    words = words / 64 + 1;
    if (words > level.size()) level.resize(words);
  }
}

void LiveMap::set(uint32_t place) {
  for (auto &level : levels_) {
    uint64_t &word = level[place / 64];
    const bool was_empty = word == 0;
    word |= uint64_t{1} << place % 64;
    if (!was_empty) return;
    place /= 64;
  }
}

void LiveMap::clear(uint32_t place) {
  for (auto &level : levels_) {
    uint64_t &word = level[place / 64];
    word &= ~(uint64_t{1} << place % 64);
    if (word != 0) return;
    place /= 64;
  }
}

void LiveMap::reset() {
  for (auto &level : levels_) std::pmr::vector<uint64_t>(level.get_allocator()).swap(level);
}

uint32_t LiveMap::next(uint32_t from) const {
  size_t level = 0;
  for (;;) {
    if (level == kLevels || from / 64 >= levels_[level].size()) return kNone;
    const uint64_t word = levels_[level][from / 64] >> from % 64;
    if (word != 0) {
      from += static_cast<uint32_t>(std::countr_zero(word));
      break;
    }
    from = from / 64 + 1;
    ++level;
  }
  while (level-- > 0)
    from = from * 64 + static_cast<uint32_t>(std::countr_zero(levels_[level][from]));
  return from;
}

}  // namespace soft
