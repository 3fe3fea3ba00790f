#include "store/expiry_wheel.hpp"

#include <algorithm>
#include <bit>

namespace soft {

void ExpiryWheel::reserve() {
  if (heads_.empty()) heads_.resize(kLevels * 64, kNone);
}

uint64_t ExpiryWheel::deadline(uint32_t slot) const {
  const uint64_t end = last_hit(slot) + ttl(slot);
  return end >= last_hit(slot) ? end : UINT64_MAX;
}

void ExpiryWheel::arm(uint32_t slot) {
  const uint64_t end = std::max(deadline(slot), clock_);
  const auto level = static_cast<uint32_t>(63 - std::countl_zero((end ^ clock_) | 1)) / 6;
  const auto bucket = static_cast<uint32_t>(end >> (6 * level)) & 63;
  const uint32_t at = level * 64 + bucket;
  const uint32_t next = heads_[at];
  store(part(slot) + kNextAt, next);
  store(part(slot) + kPreviousAt, kFirstOf | at);
  if (next != kNone) store(part(next) + kPreviousAt, slot);
  heads_[at] = slot;
  occupied_[level] |= uint64_t{1} << bucket;
}

void ExpiryWheel::disarm(uint32_t slot) {
  const auto next = load<uint32_t>(part(slot) + kNextAt);
  const auto previous = load<uint32_t>(part(slot) + kPreviousAt);
  store(part(slot) + kPreviousAt, kUnarmed);
  if (next != kNone) store(part(next) + kPreviousAt, previous);
  if ((previous & kFirstOf) == 0) return store(part(previous) + kNextAt, next);
  const uint32_t at = previous & ~kFirstOf;
  heads_[at] = next;
  if (next == kNone) occupied_[at / 64] &= ~(uint64_t{1} << at % 64);
}

void ExpiryWheel::start(uint32_t slot, uint32_t ttl, uint64_t now) {
  store(part(slot) + kHitAt, now);
  store(part(slot) + kTtlAt, ttl);
  store(part(slot) + kPreviousAt, kUnarmed);
  if (ttl != 0) arm(slot);
}

void ExpiryWheel::restart(uint32_t slot, uint32_t ttl, uint64_t now) {
  stop(slot);
  start(slot, ttl, now);
}

void ExpiryWheel::hit(uint32_t slot, uint64_t now) {
  store(part(slot) + kHitAt, now);
  if (has_expired(slot)) arm(slot);
}

void ExpiryWheel::stop(uint32_t slot) {
  if (is_armed(slot)) disarm(slot);
}

// Buckets of a lower level all come before those of a higher one, and within a level lower bucket
// numbers come first, because every deadline lies at or ahead of the clock. Records leave from
// level 0 only, where a bucket is one millisecond: what a bucket above holds is not in order yet.
uint32_t ExpiryWheel::next_expired(uint64_t now) {
  for (;;) {
    const auto *found =
        std::find_if(occupied_.begin(), occupied_.end(), [](uint64_t bits) { return bits != 0; });
    if (found == occupied_.end()) break;
    const auto level = static_cast<uint32_t>(found - occupied_.begin());
    const auto bucket = static_cast<uint32_t>(std::countr_zero(*found));
    const uint32_t shift = 6 * level;
    const uint64_t begin = ((clock_ >> shift & ~uint64_t{63}) | bucket) << shift;
    if (begin > now) break;
    clock_ = std::max(clock_, begin);
    const uint32_t &first = heads_[level * 64 + bucket];
    while (first != kNone) {
      const uint32_t slot = first;
      disarm(slot);
      if (level == 0 && deadline(slot) <= clock_) return slot;
      arm(slot);
    }
  }
  clock_ = std::max(clock_, now);
  return kNone;
}

void ExpiryWheel::copy_from(const ExpiryWheel &other) {
  heads_ = other.heads_;
  clock_ = other.clock_;
  occupied_ = other.occupied_;
}

}  // namespace soft
