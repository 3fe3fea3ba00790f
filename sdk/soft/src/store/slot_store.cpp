#include "store/slot_store.hpp"

#include <algorithm>
#include <cstring>
#include <new>

namespace soft {

SlotStore::SlotStore(std::pmr::memory_resource *memory, size_t record_bytes)
    : memory_(memory),
      record_bytes_(record_bytes),
      chunks_(memory),
      live_(memory),
      generations_(memory) {}

SlotStore::~SlotStore() { free_chunks(); }

void SlotStore::free_chunks() {
  const size_t slots = std::min(now_.capacity, kChunkSlots);
  for (uint8_t *chunk : chunks_) memory_->deallocate(chunk, slots * record_bytes_, kChunkAlignment);
}

// False when there is no memory to keep them in.
bool SlotStore::keep_generations() noexcept {
  const auto next = [this](uint32_t slot) -> uint8_t {
    return (at(slot)[kStateAt] + 1) & kGeneration;
  };
  bool alike = generations_.size() <= now_.used;
  for (uint32_t slot = 1; alike && slot < now_.used; ++slot) alike = next(slot) == next(0);
  if (alike) {
    now_.generation = next(0);
    std::pmr::vector<uint8_t>(memory_).swap(generations_);
    return true;
  }
  try {
    generations_.resize(std::max<size_t>(generations_.size(), now_.used));
  } catch (const std::bad_alloc &) {
    return false;
  }
  for (uint32_t slot = 0; slot < now_.used; ++slot) generations_[slot] = next(slot);
  return true;
}

bool SlotStore::give_back() noexcept {
  if (!keep_generations()) return false;
  free_chunks();
  std::pmr::vector<uint8_t *>(memory_).swap(chunks_);
  live_.reset();
  now_.capacity = now_.used = now_.free_count = 0;
  return true;
}

// A table of a few entries should not pay for a whole chunk.
void SlotStore::grow_first_chunk() {
  const uint32_t slots = now_.capacity == 0 ? kFirstSlots : now_.capacity * 2;
  live_.reserve(slots);
  chunks_.reserve(1);
  auto *chunk = static_cast<uint8_t *>(memory_->allocate(slots * record_bytes_, kChunkAlignment));
  if (now_.capacity == 0) {
    chunks_.push_back(chunk);
  } else {
    std::memcpy(chunk, chunks_[0], now_.used * record_bytes_);
    memory_->deallocate(chunks_[0], now_.capacity * record_bytes_, kChunkAlignment);
    chunks_[0] = chunk;
  }
  now_.capacity = slots;
}

void SlotStore::reserve() {
  if (now_.used < now_.capacity || reuses()) return;
  if (now_.capacity < kChunkSlots) return grow_first_chunk();
  live_.reserve(now_.capacity + kChunkSlots);
  if (chunks_.size() == chunks_.capacity()) chunks_.reserve(chunks_.size() * 2);
  chunks_.push_back(
      static_cast<uint8_t *>(memory_->allocate(kChunkSlots * record_bytes_, kChunkAlignment)));
  now_.capacity += kChunkSlots;
}

uint32_t SlotStore::take() {
  uint32_t slot;
  if (reuses()) {
    slot = now_.free_first;
    uint8_t *record = at(slot);
    now_.free_first = load<uint32_t>(record + kWordAt);
    --now_.free_count;
    record[kStateAt] = static_cast<uint8_t>(kLive | ((record[kStateAt] + 1) & kGeneration));
  } else {
    slot = now_.used++;
    at(slot)[kStateAt] =
        kLive | (slot < generations_.size() ? generations_[slot] : now_.generation);
  }
  live_.set(slot);
  ++now_.count;
  return slot;
}

bool SlotStore::release(uint32_t slot) {
  uint8_t *record = at(slot);
  record[kStateAt] &= kGeneration;
  store(record + kWordAt, kNone);
  if (now_.free_count == 0)
    now_.free_first = slot;
  else
    store(at(now_.free_last) + kWordAt, slot);
  now_.free_last = slot;
  ++now_.free_count;
  --now_.count;
  live_.clear(slot);
  return now_.count == 0 && now_.used > kKeptSlots && give_back();
}

bool SlotStore::knew(uint32_t handle) const {
  const uint32_t slot = slot_of(handle);
  if (slot >= now_.used) return false;
  const uint32_t later = (at(slot)[kStateAt] & kGeneration) - (handle >> kSlotBits);
  return (later & kGeneration) < 32;
}

void SlotStore::copy_from(const SlotStore &other) {
  record_bytes_ = other.record_bytes_;
  live_ = other.live_;
  generations_ = other.generations_;
  chunks_.reserve(other.chunks_.size());
  now_.capacity = other.now_.capacity;
  const size_t bytes = std::min(now_.capacity, kChunkSlots) * record_bytes_;
  for (const uint8_t *chunk : other.chunks_) {
    chunks_.push_back(static_cast<uint8_t *>(memory_->allocate(bytes, kChunkAlignment)));
    std::memcpy(chunks_.back(), chunk, bytes);
  }
  now_ = other.now_;
}

void SlotStore::swap(SlotStore &other) noexcept {
  std::swap(record_bytes_, other.record_bytes_);
  chunks_.swap(other.chunks_);
  live_.swap(other.live_);
  generations_.swap(other.generations_);
  std::swap(now_, other.now_);
}

}  // namespace soft
