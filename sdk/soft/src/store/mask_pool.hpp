// The distinct masks of a table, each stored once, in the order in which a lookup tries them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <vector>

#include "store/key_index.hpp"
#include "store/slot_store.hpp"

namespace soft {

class MaskPool {
 public:
  static constexpr uint32_t kNone = SlotStore::kNone;

  MaskPool(std::pmr::memory_resource *memory, size_t mask_bytes);

  // As SlotStore::copy_from.
  void copy_from(const MaskPool &other);

  size_t count() const { return store_.count(); }

  // The hash of a mask, which the calls below take with it.
  uint64_t hash(const uint8_t *mask) const { return hash_masked(mask, nullptr, mask_bytes_, 0); }

  // The id of a mask that is in use, or kNone.
  uint32_t find(const uint8_t *mask, uint64_t hash) const;

  // The id of a mask, with one more user, whose priority is given. May throw std::bad_alloc, and
  // then nothing has changed.
  uint32_t acquire(const uint8_t *mask, uint64_t hash, uint32_t priority);

  // One user less; the id is no longer valid after the last one.
  void release(uint32_t id);

  uint64_t hash_of(uint32_t id) const { return load<uint64_t>(store_.at(id) + kHashAt); }
  const uint8_t *bytes(uint32_t id) const { return store_.at(id) + kBytesAt; }

  // No user of the mask has a smaller priority number than this. Only a bound: it does not rise
  // when users go, until all have.
  uint32_t least_priority(uint32_t id) const { return load<uint32_t>(store_.at(id) + kPriorityAt); }

  // All ids by least priority, then the mask with more bits set first, then by id. Holds until the
  // next acquire or release. Sorts anew if masks or bounds have changed since; allocates nothing.
  const std::pmr::vector<uint32_t> &in_order();

 private:
  // A record: header of the store, users, bound, hash, the mask.
  static constexpr size_t kUsersAt = 8;
  static constexpr size_t kPriorityAt = 12;
  static constexpr size_t kHashAt = 16;
  static constexpr size_t kBytesAt = 24;

  uint32_t add(const uint8_t *mask, uint64_t hash, uint32_t priority);
  void join(uint32_t id, uint32_t priority);

  size_t mask_bytes_;
  SlotStore store_;
  KeyIndex index_;
  std::pmr::vector<uint32_t> order_;
  bool sorted_ = true;
};

}  // namespace soft
