// Records of one fixed size, numbered from 0, in large chunks; handles that distinguish a record
// from the ones that had its slot before.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <vector>

#include "bf_types.h"
#include "store/key_hash.hpp"
#include "store/live_map.hpp"
#include "store/region_resource.hpp"

namespace soft {

// A handle holds the slot number plus one in its low 26 bits and above them the slot's generation,
// which counts how often the slot was given out again. A slot is given out again only after
// kQuarantine others were freed behind it, so a handle comes back after 64 * kQuarantine additions
// at the earliest.
//
// A store that becomes empty gives its memory back once it has given out more than kKeptSlots
// slots, so at most once in as many additions. What it keeps is the generation of each slot, in a
// byte where they differ.
class SlotStore {
 public:
  static constexpr uint32_t kNone = LiveMap::kNone;
  static constexpr uint32_t kSlotBits = 26;
  static constexpr uint32_t kMaxSlots = (1u << kSlotBits) - 2;  // so no handle is 0 or all ones
  static constexpr uint32_t kQuarantine = 1024;
  static constexpr uint32_t kKeptSlots = 2 * kQuarantine;

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

  size_t count() const { return now_.count; }

  // Makes a store without slots equal to another one, its handles included. May throw
  // std::bad_alloc; the object can then only be destroyed.
  void copy_from(const SlotStore &other);
  // Of the same memory resource.
  void swap(SlotStore &other) noexcept;

  // Every slot was given out and none may be given out again.
  bool full() const { return now_.used == kMaxSlots && now_.free_count == 0; }

  // Makes sure that the next take() finds a slot. Not when full. Records may move. May throw
  // std::bad_alloc, and then nothing has changed.
  void reserve();

  // The slot that take() will give, after reserve().
  uint32_t upcoming() const { return reuses() ? now_.free_first : now_.used; }

  // A slot for a new record, after reserve(); its owner flag is clear, its other bytes are not set.
  uint32_t take();

  // True when the store is empty now and has given its memory back.
  bool release(uint32_t slot);

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
    if (slot >= now_.used) return false;
    return (at(slot)[kStateAt] & ~kOwnerFlag) == (kLive | handle >> kSlotBits);
  }

  // Whether the handle names a live record or one that had its slot not long ago: no more than 31
  // generations.
  bool knew(uint32_t handle) const;

  // The first live slot at or behind from, or kNone.
  uint32_t next_live(uint32_t from) const { return live_.next(from); }

  // Runs visit(slot) on all live slots.
  template <class Visit>
  void each_live(Visit visit) const {
    for (uint32_t slot = next_live(0); slot != kNone; slot = next_live(slot + 1)) visit(slot);
  }

  // ---- Handles of records that test(slot) holds for, in the order of their slots ----
  // BF_OBJECT_NOT_FOUND: there is none, or the previous handle was never known. Handles that are
  // asked for and not there are kNoHandle.
  static constexpr uint32_t kNoHandle = 0xffffffff;
  template <class Test>
  bf_status_t first_handle(uint32_t *handle, Test test) const {
    return handles_from(0, 1, handle, test);
  }
  template <class Test>
  bf_status_t next_handles(uint32_t previous, uint32_t count, uint32_t *handles, Test test) const {
    if (count == 0) return BF_SUCCESS;
    if (!knew(previous)) return BF_OBJECT_NOT_FOUND;
    return handles_from(slot_of(previous) + 1, count, handles, test);
  }

 private:
  static constexpr uint32_t kChunkSlots = 4096;
  static constexpr size_t kChunkAlignment = RegionResource::kAlignment;
  static constexpr uint32_t kFirstSlots = 16;  // the first chunk grows from here, by doubling
  static constexpr uint8_t kLive = 0x80;
  static constexpr uint8_t kGeneration = 0x3f;

  bool reuses() const {
    return now_.free_count > kQuarantine || (now_.used == kMaxSlots && now_.free_count > 0);
  }
  template <class Test>
  bf_status_t handles_from(uint32_t slot, uint32_t count, uint32_t *handles, Test test) const {
    uint32_t filled = 0;
    for (; filled < count && (slot = next_live(slot)) != kNone; ++slot) {
      if (test(slot)) handles[filled++] = handle_of(slot);
    }
    if (filled == 0) return BF_OBJECT_NOT_FOUND;
    std::fill(handles + filled, handles + count, kNoHandle);
    return BF_SUCCESS;
  }

  void grow_first_chunk();
  void free_chunks();
  bool keep_generations() noexcept;
  bool give_back() noexcept;

  std::pmr::memory_resource *memory_;
  size_t record_bytes_;
  std::pmr::vector<uint8_t *> chunks_;
  LiveMap live_;
  struct Numbers {
    uint32_t capacity = 0;  // slots that have memory
    uint32_t used = 0;      // slots that were ever given out, since memory was given back
    uint32_t count = 0;
    uint32_t free_count = 0;
    uint32_t free_first = kNone;  // longest free, if free_count is not 0
    uint32_t free_last = kNone;
    uint8_t generation = 0;  // of slots that are given out for the first time, behind generations_
  };
  Numbers now_;
  std::pmr::vector<uint8_t> generations_;  // that slots begin with when they are given out anew
};

}  // namespace soft
