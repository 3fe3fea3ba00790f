// How the contents of tables and profiles go from one device to another with their handles: the
// parts are copied beside the ones that are there, and then exchanged for them.
#include <cstring>
#include <mutex>
#include <utility>

#include "action_data_table.hpp"
#include "match_engine.hpp"
#include "selector.hpp"

namespace soft {

// ---- Parts of a match table ----

void SlotStore::copy_from(const SlotStore &other) {
  record_bytes_ = other.record_bytes_;
  capacity_ = other.capacity_;
  live_ = other.live_;
  chunks_.reserve(other.chunks_.size());
  const size_t bytes = std::min(capacity_, kChunkSlots) * record_bytes_;
  for (const uint8_t *chunk : other.chunks_) {
    chunks_.push_back(static_cast<uint8_t *>(memory_->allocate(bytes)));
    std::memcpy(chunks_.back(), chunk, bytes);
  }
  used_ = other.used_;
  count_ = other.count_;
  free_count_ = other.free_count_;
  free_first_ = other.free_first_;
  free_last_ = other.free_last_;
}

void SlotStore::swap(SlotStore &other) noexcept {
  std::swap(record_bytes_, other.record_bytes_);
  chunks_.swap(other.chunks_);
  live_.swap(other.live_);
  std::swap(capacity_, other.capacity_);
  std::swap(used_, other.used_);
  std::swap(count_, other.count_);
  std::swap(free_count_, other.free_count_);
  std::swap(free_first_, other.free_first_);
  std::swap(free_last_, other.free_last_);
}

// Segments enter the directory whole, so that the destructor can follow it at any time.
void KeyIndex::copy_from(const KeyIndex &other) {
  depth_ = other.depth_;
  directory_.reserve(other.directory_.size());
  while (directory_.size() < other.directory_.size()) {
    const Segment &segment = *other.directory_[directory_.size()];
    Segment *twin = make(segment.last + 1, segment.depth);
    std::memcpy(twin->cells(), segment.cells(), (segment.last + 1) * sizeof(uint64_t));
    twin->used = segment.used;
    directory_.insert(directory_.end(), size_t{1} << (depth_ - segment.depth), twin);
  }
}

void KeyIndex::swap(KeyIndex &other) noexcept {
  std::swap(depth_, other.depth_);
  directory_.swap(other.directory_);
}

void MaskPool::copy_from(const MaskPool &other) {
  store_.copy_from(other.store_);
  index_.copy_from(other.index_);
  order_.reserve(other.order_.capacity());
  order_ = other.order_;
  sorted_ = other.sorted_;
}

void MaskPool::swap(MaskPool &other) noexcept {
  store_.swap(other.store_);
  index_.swap(other.index_);
  order_.swap(other.order_);
  std::swap(sorted_, other.sorted_);
}

void KeyTwins::copy_from(const KeyTwins &other) {
  for (size_t chunk = 0; chunk < other.chunks_.size(); ++chunk) {
    if (other.chunks_[chunk] == nullptr) continue;
    reserve(static_cast<uint32_t>(chunk * kChunkSlots));
    std::copy_n(other.chunks_[chunk], kChunkSlots, chunks_[chunk]);
  }
}

void KeyTwins::swap(KeyTwins &other) noexcept { chunks_.swap(other.chunks_); }

void ExpiryWheel::copy_from(const ExpiryWheel &other) {
  heads_ = other.heads_;
  clock_ = other.clock_;
  occupied_ = other.occupied_;
}

void ExpiryWheel::swap(ExpiryWheel &other) noexcept {
  heads_.swap(other.heads_);
  std::swap(clock_, other.clock_);
  std::swap(occupied_, other.occupied_);
}

void MatchTable::copy_from(const MatchTable &other) {
  SlotStore slots(&memory_, record_.bytes);
  slots.copy_from(other.slots_);
  KeyIndex index(&memory_);
  index.copy_from(other.index_);
  MaskPool masks(&memory_, record_.key_bytes);
  masks.copy_from(other.masks_);
  KeyTwins twins(&memory_);
  twins.copy_from(other.twins_);
  ExpiryWheel wheel(&memory_, slots_, record_.ageing);
  wheel.copy_from(other.wheel_);
  std::pmr::vector<uint8_t> ones(other.ones_, &memory_);

  slots_.swap(slots);
  index_.swap(index);
  masks_.swap(masks);
  twins_.swap(twins);
  wheel_.swap(wheel);
  ones_.swap(ones);
  refuses_duplicates_ = other.refuses_duplicates_;
  next_age_ = other.next_age_;
}

// ---- Tables and profiles ----

void MatchEngine::copy_from(Object &object) {
  MatchEngine &other = *object.as<MatchEngine>();
  const std::scoped_lock lock(mutex_, other.mutex_);
  ResourceLists beside = other.beside_;
  auto defaults = other.defaults_;
  auto marked_idle = other.marked_idle_;
  auto buckets = other.buckets_;
  entries_.copy_from(other.entries_);

  std::swap(beside_, beside);
  defaults_.swap(defaults);
  marked_idle_.swap(marked_idle);
  buckets_.swap(buckets);
  pipe_counts_ = other.pipe_counts_;
  scope_ = other.scope_;
  capacity_ = other.capacity_;
  ageing_ = other.ageing_;
  ageing_params_ = other.ageing_params_;
  ageing_since_ms_ = other.ageing_since_ms_;
  swept_ms_ = other.swept_ms_;
}

void MatchEngine::inherit(Object &predecessor) noexcept {
  MatchEngine &old = *predecessor.as<MatchEngine>();
  const std::lock_guard lock(old.mutex_);
  listener_ = old.listener_;
  expiry_listener_ = old.expiry_listener_;
}

void ActionDataTable::copy_from(Object &object) {
  ActionDataTable &other = *object.as<ActionDataTable>();
  const std::scoped_lock lock(mutex_, other.mutex_);
  SlotStore slots(&memory_, 0);
  slots.copy_from(other.slots_);
  slots_.swap(slots);
  capacity_ = other.capacity_;
}

void ActionDataTable::inherit(Object &predecessor) noexcept {
  ActionDataTable &old = *predecessor.as<ActionDataTable>();
  const std::lock_guard lock(old.mutex_);
  listener_ = old.listener_;
}

void Selector::copy_from(Object &object) {
  Selector &other = *object.as<Selector>();
  const std::scoped_lock lock(mutex_, other.mutex_);
  std::pmr::polymorphic_allocator<> allocator(&memory_);
  SlotStore groups(&memory_, 0);
  groups.copy_from(other.groups_);
  SelectorSlots slots(&memory_);
  slots = other.slots_;
  std::vector<Group *> made;
  made.reserve(groups.count());
  try {
    for (uint32_t at = groups.next_live(0); at != SlotStore::kNone; at = groups.next_live(at + 1)) {
      const Group &group = *other.group_at(at);
      made.push_back(allocator.new_object<Group>(group.max_size, &memory_));
      made.back()->uses = group.uses;
      made.back()->members = group.members;
      made.back()->active = group.active;
      store(groups.at(at) + kPointer, made.back());
    }
  } catch (const std::bad_alloc &) {
    for (Group *group : made) allocator.delete_object(group);
    throw;
  }
  for (uint32_t at = groups_.next_live(0); at != SlotStore::kNone; at = groups_.next_live(at + 1)) {
    drop(at);
  }
  groups_.swap(groups);
  slots_.swap(slots);
  fallback_ = other.fallback_;
  capacity_ = other.capacity_;
}

void Selector::inherit(Object &predecessor) noexcept {
  Selector &old = *predecessor.as<Selector>();
  const std::lock_guard lock(old.mutex_);
  listeners_ = old.listeners_;
}

}  // namespace soft
