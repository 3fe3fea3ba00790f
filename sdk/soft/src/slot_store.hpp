// Records of one fixed size, numbered from 0, in large chunks; handles that tell a record from the
// ones that had its slot before.
#ifndef SOFT_SLOT_STORE_HPP
#define SOFT_SLOT_STORE_HPP

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <vector>

#include "key_hash.hpp"
#include "live_map.hpp"

namespace soft {

// A handle holds the slot number plus one in its low 26 bits and above them the slot's generation,
// which counts how often the slot was given out again. A slot is given out again only after
// kQuarantine others were freed behind it, so a handle comes back after 64 * kQuarantine additions
// at the earliest.
class SlotStore {
 public:
  static constexpr uint32_t kNone = LiveMap::kNone;
  static constexpr uint32_t kSlotBits = 26;
  static constexpr uint32_t kMaxSlots = (1u << kSlotBits) - 2;  // so no handle is 0 or all ones
  static constexpr uint32_t kQuarantine = 1024;

  // The first bytes of every record belong to the store: a word that links free slots, and is the
  // owner's while the record lives, and the state byte, of which the owner has kOwnerFlag.
  static constexpr size_t kWordAt = 0;
  static constexpr size_t kStateAt = 4;
  static constexpr size_t kHeaderBytes = 5;
  static constexpr uint8_t kOwnerFlag = 0x40;

  SlotStore(std::pmr::memory_resource *memory, size_t record_bytes);
  ~SlotStore();
  SlotStore(const SlotStore &) = delete;
  SlotStore &operator=(const SlotStore &) = delete;

  size_t count() const { return count_; }

  // Makes a store without slots equal to another one, its handles included. May throw
  // std::bad_alloc; what there is then is good for destruction only.
  void copy_from(const SlotStore &other);
  // Of the same memory resource.
  void swap(SlotStore &other) noexcept;

  // Every slot was given out and none may be given out again.
  bool full() const { return used_ == kMaxSlots && free_count_ == 0; }

  // Makes sure that the next take() finds a slot. Not when full. Records may move. May throw
  // std::bad_alloc, and then nothing has changed.
  void reserve();

  // The slot that take() will give, after reserve().
  uint32_t upcoming() const { return reuses() ? free_first_ : used_; }

  // A slot for a new record, after reserve(); its owner flag is clear, its other bytes are not set.
  uint32_t take();

  void release(uint32_t slot);

  uint8_t *at(uint32_t slot) {
    return chunks_[slot / kChunkSlots] + slot % kChunkSlots * record_bytes_;
  }
  const uint8_t *at(uint32_t slot) const {
    return chunks_[slot / kChunkSlots] + slot % kChunkSlots * record_bytes_;
  }

  uint32_t handle_of(uint32_t slot) const {
    return static_cast<uint32_t>(at(slot)[kStateAt] & kGeneration) << kSlotBits | (slot + 1);
  }
  static uint32_t slot_of(uint32_t handle) { return (handle & ((1u << kSlotBits) - 1)) - 1; }

  // Whether the handle names a live record.
  bool knows(uint32_t handle) const {
    const uint32_t slot = slot_of(handle);
    if (slot >= used_) return false;
    return (at(slot)[kStateAt] & ~kOwnerFlag) == (kLive | handle >> kSlotBits);
  }

  // Whether the handle names a live record or one that had its slot not long ago: no more than 31
  // generations.
  bool knew(uint32_t handle) const;

  // The first live slot at or behind from, or kNone.
  uint32_t next_live(uint32_t from) const { return live_.next(from); }

 private:
  static constexpr uint32_t kChunkSlots = 4096;
  static constexpr uint32_t kFirstSlots = 16;  // the first chunk grows from here, by doubling
  static constexpr uint8_t kLive = 0x80;
  static constexpr uint8_t kGeneration = 0x3f;

  bool reuses() const {
    return free_count_ > kQuarantine || (used_ == kMaxSlots && free_count_ > 0);
  }
  void grow_first_chunk();

  std::pmr::memory_resource *memory_;
  size_t record_bytes_;
  std::pmr::vector<uint8_t *> chunks_;
  LiveMap live_;
  uint32_t capacity_ = 0;  // slots that have memory
  uint32_t used_ = 0;      // slots that were ever given out
  uint32_t count_ = 0;
  uint32_t free_count_ = 0;
  uint32_t free_first_ = kNone;  // longest free, if free_count_ is not 0
  uint32_t free_last_ = kNone;
};

}  // namespace soft

#endif
