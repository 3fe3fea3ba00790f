// Tells which records have been idle for their time to live, without looking at the others.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <vector>

#include "store/slot_store.hpp"

namespace soft {

// A timing wheel of eleven levels with 64 buckets each. A bucket of level n spans 64^n ms; a record
// lies in the level of the highest base-64 digit in which its deadline and the wheel's clock
// differ, and comes down a level whenever the clock enters its bucket, at most ten times. A bucket
// is a list through the records, so arming and disarming take constant time and no memory.
//
// A hit only notes the time. The wheel sees it when the deadline that it knew comes up, and puts
// the record where it belongs by then.
class ExpiryWheel {
 public:
  static constexpr uint32_t kNone = SlotStore::kNone;
  static constexpr size_t kBytes = 20;  // that it needs in every record

  // The kBytes at offset of the records in slots are the wheel's.
  ExpiryWheel(std::pmr::memory_resource *memory, SlotStore &slots, size_t offset)
      : slots_(slots), offset_(offset), heads_(memory) {}
  ExpiryWheel(const ExpiryWheel &) = delete;
  ExpiryWheel &operator=(const ExpiryWheel &) = delete;

  // As SlotStore::copy_from. The records themselves are copied with their slots.
  void copy_from(const ExpiryWheel &other);

  // Allocates the buckets, once. May throw std::bad_alloc. Before everything below.
  void reserve();

  // Begins the idle time of a new record, of one in the wheel (a changed ttl), or of any (a hit).
  // Times in ms; ttl 0 never expires.
  void start(uint32_t slot, uint32_t ttl, uint64_t now);
  void restart(uint32_t slot, uint32_t ttl, uint64_t now);
  void hit(uint32_t slot, uint64_t now);

  // Forgets a record that goes away.
  void stop(uint32_t slot);

  // Takes the next record whose deadline is not behind now out of the wheel, or returns kNone.
  uint32_t next_expired(uint64_t now);

  uint32_t ttl(uint32_t slot) const { return load<uint32_t>(part(slot) + kTtlAt); }
  uint64_t last_hit(uint32_t slot) const { return load<uint64_t>(part(slot) + kHitAt); }

  // Whether next_expired has taken it out and nothing has started its idle time since.
  bool has_expired(uint32_t slot) const { return ttl(slot) != 0 && !is_armed(slot); }

 private:
  static constexpr uint32_t kLevels = 11;
  static constexpr size_t kHitAt = 0;
  static constexpr size_t kTtlAt = 8;
  static constexpr size_t kNextAt = 12;
  static constexpr size_t kPreviousAt = 16;
  static constexpr uint32_t kFirstOf = 0x80000000;  // as previous: first of the bucket in the rest
  static constexpr uint32_t kUnarmed = 0xffffffff;  // as previous: in no bucket

  uint8_t *part(uint32_t slot) { return slots_.at(slot) + offset_; }
  const uint8_t *part(uint32_t slot) const { return slots_.at(slot) + offset_; }
  bool is_armed(uint32_t slot) const {
    return load<uint32_t>(part(slot) + kPreviousAt) != kUnarmed;
  }
  uint64_t deadline(uint32_t slot) const;
  void arm(uint32_t slot);
  void disarm(uint32_t slot);

  SlotStore &slots_;
  size_t offset_;
  uint64_t clock_ = 0;
  std::array<uint64_t, kLevels> occupied_{};  // a bit per bucket
  std::pmr::vector<uint32_t> heads_;          // level * 64 + bucket
};

}  // namespace soft
