#include "slot_store.hpp"

#include <algorithm>
#include <cstring>

namespace soft {

SlotStore::SlotStore(std::pmr::memory_resource *memory, size_t record_bytes)
    : memory_(memory), record_bytes_(record_bytes), chunks_(memory), live_(memory) {}

SlotStore::~SlotStore() {
  const size_t slots = std::min(capacity_, kChunkSlots);
  for (uint8_t *chunk : chunks_) memory_->deallocate(chunk, slots * record_bytes_);
}

// A table of a few entries should not pay for a whole chunk.
void SlotStore::grow_first_chunk() {
  const uint32_t slots = capacity_ == 0 ? kFirstSlots : capacity_ * 2;
  live_.reserve(slots);
  chunks_.reserve(1);
  auto *chunk = static_cast<uint8_t *>(memory_->allocate(slots * record_bytes_));
  if (capacity_ == 0) {
    chunks_.push_back(chunk);
  } else {
    std::memcpy(chunk, chunks_[0], used_ * record_bytes_);
    memory_->deallocate(chunks_[0], capacity_ * record_bytes_);
    chunks_[0] = chunk;
  }
  capacity_ = slots;
}

void SlotStore::reserve() {
  if (used_ < capacity_ || reuses()) return;
  if (capacity_ < kChunkSlots) return grow_first_chunk();
  live_.reserve(capacity_ + kChunkSlots);
  if (chunks_.size() == chunks_.capacity()) chunks_.reserve(chunks_.size() * 2);
  chunks_.push_back(static_cast<uint8_t *>(memory_->allocate(kChunkSlots * record_bytes_)));
  capacity_ += kChunkSlots;
}

uint32_t SlotStore::take() {
  uint32_t slot;
  if (reuses()) {
    slot = free_first_;
    uint8_t *record = at(slot);
    free_first_ = load<uint32_t>(record + kWordAt);
    --free_count_;
    record[kStateAt] = static_cast<uint8_t>(kLive | ((record[kStateAt] + 1) & kGeneration));
  } else {
    slot = used_++;
    at(slot)[kStateAt] = kLive;
  }
  live_.set(slot);
  ++count_;
  return slot;
}

void SlotStore::release(uint32_t slot) {
  uint8_t *record = at(slot);
  record[kStateAt] &= kGeneration;
  store(record + kWordAt, kNone);
  if (free_count_ == 0)
    free_first_ = slot;
  else
    store(at(free_last_) + kWordAt, slot);
  free_last_ = slot;
  ++free_count_;
  --count_;
  live_.clear(slot);
}

bool SlotStore::knew(uint32_t handle) const {
  const uint32_t slot = slot_of(handle);
  if (slot >= used_) return false;
  const uint32_t later = (at(slot)[kStateAt] & kGeneration) - (handle >> kSlotBits);
  return (later & kGeneration) < 32;
}

}  // namespace soft
