#include "profiles/selector_slots.hpp"

namespace soft {

void SelectorSlots::reserve() {
  if (free_.next(0) != LiveMap::kNone) return;
  const auto first = static_cast<uint32_t>(words_.size()) * kWordSlots;
  free_.reserve(first + kWordSlots);
  words_.push_back({});
  for (uint32_t slot = first; slot < first + kWordSlots; ++slot) free_.set(slot);
}

uint32_t SelectorSlots::take(pipe_member_handle_t member) {
  const uint32_t slot = free_.next(0);
  free_.clear(slot);
  place(slot) = member;
  return slot;
}

void SelectorSlots::release(uint32_t slot) {
  place(slot) = 0;
  free_.set(slot);
}

void SelectorSlots::shrink() noexcept {
  constexpr size_t kKeptWords = 64;
  if (words_.size() <= kKeptWords) return;
  std::pmr::vector<Word>(words_.get_allocator()).swap(words_);
  free_.reset();
}

uint32_t SelectorSlots::active(uint32_t word,
                               std::array<pipe_member_handle_t, kWordSlots> *members) const {
  if (word >= words_.size()) return 0;
  uint32_t count = 0;
  for (const pipe_member_handle_t member : words_[word]) {
    if (member != 0) (*members)[count++] = member;
  }
  return count;
}

}  // namespace soft
