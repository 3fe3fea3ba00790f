// Entries that share masked value and mask and differ in priority, pipe or age only.
#pragma once

#include <cstdint>

#include "store/cell_array.hpp"

namespace soft {

// Search trees over slots, one tree for every such set of entries, ordered by priority and then
// age, balanced by a weight that follows from the slot number. A tree is named by its root slot,
// which changes as it grows and shrinks. Slots without twins take no memory here, unless a
// neighbour has some.
class KeyTwins {
 public:
  static constexpr uint32_t kNone = 0xffffffff;
  static constexpr uint8_t kAllPipes = 0xff;

  explicit KeyTwins(std::pmr::memory_resource *memory) : links_(memory) {}

  // Makes room for a slot. May throw std::bad_alloc, and then nothing has changed.
  void reserve(uint32_t slot) { links_.at(slot); }

  // Makes a slot, after reserve(), a tree of its own. The smaller age is the older entry.
  void start(uint32_t slot, uint32_t priority, uint64_t age, uint8_t pipe);

  // Joins a tree and one that was just started; takes a slot out of a tree. Both return the root
  // that the tree has then, kNone when nothing is left.
  uint32_t join(uint32_t root, uint32_t slot);
  uint32_t leave(uint32_t root, uint32_t slot);

  bool is_single(uint32_t root) const {
    return link(root).left == kNone && link(root).right == kNone;
  }

  // The oldest with this priority and pipe, or kNone.
  uint32_t find(uint32_t root, uint32_t priority, uint8_t pipe) const;

  // The smallest priority, then the oldest, of those in this pipe or in all pipes, or kNone.
  uint32_t best(uint32_t root, uint8_t pipe) const;

  // Forgets all trees and gives the memory back.
  void reset() { links_.reset(); }

 private:
  struct Link {
    uint64_t age;
    uint32_t left;
    uint32_t right;
    uint32_t priority;
    uint8_t pipe;
  };

  Link &link(uint32_t slot) { return links_[slot]; }
  const Link &link(uint32_t slot) const { return links_[slot]; }
  static uint32_t weight(uint32_t slot);
  bool before(const Link &a, const Link &b) const;
  void cut(uint32_t root, const Link &at, uint32_t &left, uint32_t &right);
  uint32_t merge(uint32_t left, uint32_t right);

  CellArray<Link> links_;
};

}  // namespace soft
