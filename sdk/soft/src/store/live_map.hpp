// Which of many numbered places are taken, with a quick answer to "which is the next one?".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <vector>

namespace soft {

// A bit per place, and above it levels of bits that say whether 64 bits below hold any: the next
// taken place is found in a few steps even when a million free ones lie between.
class LiveMap {
 public:
  static constexpr uint32_t kNone = 0xffffffff;

  explicit LiveMap(std::pmr::memory_resource *memory);

  // Of the same memory resource.
  void swap(LiveMap &other) noexcept { levels_.swap(other.levels_); }

  // Makes room for places 0 to count - 1, count at most 2^30. May throw std::bad_alloc.
  void reserve(uint32_t count);

  void set(uint32_t place);
  void clear(uint32_t place);

  // Gives the room back; no place is taken then.
  void reset();

  // The first taken place at or behind from, or kNone.
  uint32_t next(uint32_t from) const;

 private:
  static constexpr size_t kLevels = 5;

  std::array<std::pmr::vector<uint64_t>, kLevels> levels_;
};

}  // namespace soft
