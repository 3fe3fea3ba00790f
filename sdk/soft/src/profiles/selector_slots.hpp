// The slots of a selector: one for each membership of each group, in words of 32.
#pragma once

#include <array>
#include <memory_resource>
#include <vector>

#include "bf_types.h"
#include "store/live_map.hpp"

namespace soft {

// A membership takes the lowest free slot and keeps it until it ends.
class SelectorSlots {
 public:
  static constexpr uint32_t kWordSlots = 32;

  explicit SelectorSlots(std::pmr::memory_resource *memory) : words_(memory), free_(memory) {}

  // Of the same memory resource.
  void swap(SelectorSlots &other) noexcept {
    words_.swap(other.words_);
    free_.swap(other.free_);
  }

  // Makes sure that the next take() finds a slot. May throw std::bad_alloc, and then nothing has
  // changed.
  void reserve();

  // A slot for an active member, after reserve().
  uint32_t take(pipe_member_handle_t member);
  void release(uint32_t slot);

  // No slot is taken: gives back memory that is worth it.
  void shrink() noexcept;

  // Shows a member in its slot, or 0 while it is inactive.
  void show(uint32_t slot, pipe_member_handle_t member) { place(slot) = member; }

  // Writes the active members of a word in the order of their slots and returns how many there are.
  // A word behind the last one has none.
  uint32_t active(uint32_t word, std::array<pipe_member_handle_t, kWordSlots> *members) const;

 private:
  using Word = std::array<pipe_member_handle_t, kWordSlots>;

  pipe_member_handle_t &place(uint32_t slot) {
    return words_[slot / kWordSlots][slot % kWordSlots];
  }

  std::pmr::vector<Word> words_;  // 0 in free slots and in those of inactive members
  LiveMap free_;
};

}  // namespace soft
