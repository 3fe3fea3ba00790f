#include "store/mask_pool.hpp"

#include <algorithm>
#include <bit>
#include <cstring>

namespace soft {

namespace {

uint32_t bits_set(const uint8_t *bytes, size_t count) {
  uint32_t bits = 0;
  for (size_t at = 0; at < count; ++at) bits += static_cast<uint32_t>(std::popcount(bytes[at]));
  return bits;
}

}  // namespace

MaskPool::MaskPool(std::pmr::memory_resource *memory, size_t mask_bytes)
    : mask_bytes_(mask_bytes),
      store_(memory, (kBytesAt + mask_bytes + 3) & ~size_t{3}),
      index_(memory),
      order_(memory) {}

uint32_t MaskPool::find(const uint8_t *mask, uint64_t hash) const {
  return index_.find(hash, [this, mask](uint32_t id) {
    return equal_masked(bytes(id), mask, nullptr, mask_bytes_);
  });
}

uint32_t MaskPool::add(const uint8_t *mask, uint64_t hash, uint32_t priority) {
  if (order_.capacity() <= count()) order_.reserve(count() * 2 + 8);
  index_.reserve(hash);
  store_.reserve();
  const uint32_t id = store_.take();
  uint8_t *record = store_.at(id);
  store(record + kUsersAt, uint32_t{0});
  store(record + kPriorityAt, priority);
  store(record + kHashAt, hash);
  if (mask_bytes_ != 0) std::memcpy(record + kBytesAt, mask, mask_bytes_);
  index_.insert(hash, id);
  sorted_ = false;
  return id;
}

void MaskPool::join(uint32_t id, uint32_t priority) {
  uint8_t *record = store_.at(id);
  store(record + kUsersAt, load<uint32_t>(record + kUsersAt) + 1);
  if (priority < least_priority(id)) {
    store(record + kPriorityAt, priority);
    sorted_ = false;
  }
}

uint32_t MaskPool::acquire(const uint8_t *mask, uint64_t hash, uint32_t priority) {
  uint32_t id = find(mask, hash);
  if (id == kNone) id = add(mask, hash, priority);
  join(id, priority);
  return id;
}

void MaskPool::release(uint32_t id) {
  uint8_t *record = store_.at(id);
  const uint32_t users = load<uint32_t>(record + kUsersAt) - 1;
  store(record + kUsersAt, users);
  if (users != 0) return;
  index_.erase(hash_of(id), id);
  sorted_ = false;
  if (!store_.release(id)) return;
  index_.reset();
  std::pmr::vector<uint32_t>(order_.get_allocator()).swap(order_);
}

const std::pmr::vector<uint32_t> &MaskPool::in_order() {
  if (sorted_) return order_;
  order_.clear();
  store_.each_live([this](uint32_t id) { order_.push_back(id); });
  std::sort(order_.begin(), order_.end(), [this](uint32_t a, uint32_t b) {
    if (least_priority(a) != least_priority(b)) return least_priority(a) < least_priority(b);
    const uint32_t bits_a = bits_set(bytes(a), mask_bytes_);
    const uint32_t bits_b = bits_set(bytes(b), mask_bytes_);
    return bits_a != bits_b ? bits_a > bits_b : a < b;
  });
  sorted_ = true;
  return order_;
}

void MaskPool::copy_from(const MaskPool &other) {
  store_.copy_from(other.store_);
  index_.copy_from(other.index_);
  order_.reserve(other.order_.capacity());
  order_ = other.order_;
  sorted_ = other.sorted_;
}

}  // namespace soft
