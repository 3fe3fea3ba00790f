#include "tables/match_table.hpp"

#include <cstring>
#include <new>

namespace soft {

namespace {

constexpr bf_pipe_id_t kMostPipe = 254;

uint8_t stored_pipe(bf_pipe_id_t pipe) {
  return pipe == BF_ALL_PIPES ? KeyTwins::kAllPipes : static_cast<uint8_t>(pipe);
}

bool is_pipe(bf_pipe_id_t pipe) { return pipe <= kMostPipe || pipe == BF_ALL_PIPES; }

void copy_bytes(uint8_t *to, const uint8_t *from, size_t bytes) {
  if (bytes != 0) std::memcpy(to, from, bytes);
}

}  // namespace

MatchTable::MatchTable(const soft_table_t &table, const EntryLayout &layout,
                       std::pmr::memory_resource *memory)
    : regions_(memory),
      memory_(&regions_),
      record_(table, layout),
      slots_(&memory_, record_.bytes),
      index_(&memory_),
      masks_(&memory_, record_.key_bytes),
      twins_(&memory_),
      wheel_(&memory_, slots_, record_.ageing),
      rules_(&memory_, record_, slots_, masks_, table.compared),
      ones_(&memory_) {}

// ---- Records ----

uint32_t MatchTable::mask_of(uint32_t slot) const {
  return record_.has_mask ? load<uint32_t>(slots_.at(slot) + record_.mask) : kNoMask;
}

uint32_t MatchTable::priority_of(uint32_t slot) const {
  return record_.has_mask ? load<uint32_t>(slots_.at(slot) + record_.priority) : 0;
}

bool MatchTable::has_twins(uint32_t slot) const {
  return (slots_.at(slot)[RecordLayout::kState] & SlotStore::kOwnerFlag) != 0;
}

const uint8_t *MatchTable::mask_bytes(uint32_t mask) const {
  return mask == kNoMask ? nullptr : masks_.bytes(mask);
}

void MatchTable::write_key(uint32_t slot, const EntryKey &key, uint32_t mask) {
  uint8_t *record = slots_.at(slot);
  record[RecordLayout::kPipe] = stored_pipe(key.pipe);
  copy_bytes(record + record_.value, key.value, record_.key_bytes);
  if (!record_.has_mask) return;
  store(record + record_.mask, mask);
  store(record + record_.priority, key.priority);
}

void MatchTable::write_resources(uint32_t slot, std::span<const EntryResource> resources) {
  if (record_.resources == 0) return;
  uint8_t *at = slots_.at(slot) + record_.resource;
  *at++ = static_cast<uint8_t>(resources.size());
  for (const EntryResource &resource : resources) {
    store(at, resource);
    at += sizeof(resource);
  }
}

void MatchTable::write_action(uint32_t slot, const EntryAction &action) {
  uint8_t *record = slots_.at(slot);
  const size_t length = action.type == PIPE_ACTION_DATA ? action.data.size() : 0;
  store(record + RecordLayout::kAction, action.action);
  store(record + RecordLayout::kData,
        static_cast<uint16_t>(action.type << RecordLayout::kLengthBits | length));
  copy_bytes(record + record_.data, action.data.data(), length);
  if (record_.has_reference) store(record + record_.reference, action.reference);
  write_resources(slot, action.resources);
}

void MatchTable::clear_cells(uint32_t slot) {
  if (record_.has_counter) store(slots_.at(slot) + record_.counter, EntryCounters{});
  if (record_.has_meter) store(slots_.at(slot) + record_.meter, pipe_mgr_meter_spec_t{});
}

bf_status_t MatchTable::check(const EntryAction &action) const {
  if (action.type == PIPE_ACTION_DATA) {
    if (action.data.size() > record_.data_bytes) return BF_WRONG_LENGTH;
  } else if (action.type != PIPE_ACTION_MEMBER && action.type != PIPE_ACTION_GROUP) {
    return BF_INVALID_ARGUMENT;
  } else if (!record_.has_reference) {
    return BF_INVALID_ARGUMENT;
  }
  return action.resources.size() > record_.resources ? BF_INVALID_ARGUMENT : BF_SUCCESS;
}

// ---- Groups ----

uint32_t MatchTable::find_group(uint64_t hash, const uint8_t *value, uint32_t mask) const {
  return index_.find(hash, [this, value, mask](uint32_t slot) {
    return mask_of(slot) == mask &&
           equal_masked(value_of(slot), value, mask_bytes(mask), record_.key_bytes);
  });
}

uint32_t MatchTable::find_in_group(uint32_t root, uint32_t priority, uint8_t pipe) const {
  if (has_twins(root)) return twins_.find(root, priority, pipe);
  return priority_of(root) == priority && pipe_of(root) == pipe ? root : kNone;
}

// Entries without an age of their own get one here: what matters is the order within the group.
void MatchTable::start_twin(uint32_t slot) {
  uint8_t *record = slots_.at(slot);
  const uint64_t age = record_.has_age ? load<uint64_t>(record + record_.age) : next_age_++;
  twins_.start(slot, priority_of(slot), age, pipe_of(slot));
  record[RecordLayout::kState] |= SlotStore::kOwnerFlag;
}

void MatchTable::link(uint64_t hash, uint32_t root, uint32_t slot) {
  if (root == kNone) return index_.insert(hash, slot);
  if (!has_twins(root)) start_twin(root);
  start_twin(slot);
  const uint32_t new_root = twins_.join(root, slot);
  if (new_root != root) index_.replace(hash, root, new_root);
}

void MatchTable::unlink(uint32_t slot) {
  const uint32_t mask = mask_of(slot);
  const uint64_t of_slot = hash(value_of(slot), mask_bytes(mask), mask_hash(mask));
  if (!has_twins(slot)) return index_.erase(of_slot, slot);
  const uint32_t root = find_group(of_slot, value_of(slot), mask);
  const uint32_t new_root = twins_.leave(root, slot);
  if (new_root != root) index_.replace(of_slot, root, new_root);
  if (twins_.is_single(new_root))
    slots_.at(new_root)[RecordLayout::kState] &= static_cast<uint8_t>(~SlotStore::kOwnerFlag);
}

// ---- Entries ----

// Everything that a new entry may need memory for.
void MatchTable::reserve(uint64_t hash, uint32_t root) {
  slots_.reserve();
  if (record_.ages) wheel_.reserve();
  if (!record_.has_mask) ones_.resize(record_.key_bytes, 0xff);
  if (root == kNone) return index_.reserve(hash);
  twins_.reserve(root);
  twins_.reserve(slots_.upcoming());
}

MatchTable::Hashes MatchTable::hashes_of(const EntryKey &key) const {
  if (!record_.has_mask) return {nullptr, 0, hash(key.value, nullptr, 0)};
  const uint64_t of_mask = masks_.hash(key.mask);
  return {key.mask, of_mask, hash(key.value, key.mask, of_mask)};
}

bf_status_t MatchTable::insert(const EntryKey &key, uint32_t mask, uint64_t hash, uint32_t *slot) {
  const uint32_t root = find_group(hash, key.value, mask);
  const uint32_t priority = record_.has_mask ? key.priority : 0;
  if (root != kNone && refuses_duplicates_ &&
      find_in_group(root, priority, stored_pipe(key.pipe)) != kNone)
    return BF_ALREADY_EXISTS;
  if (slots_.full()) return BF_TABLE_FULL;
  try {
    reserve(hash, root);
  } catch (const std::bad_alloc &) {
    return BF_NO_MEMORY;
  }
  *slot = slots_.take();
  write_key(*slot, key, mask);
  if (record_.has_age) store(slots_.at(*slot) + record_.age, next_age_++);
  link(hash, root, *slot);
  rules_.insert(*slot);
  return BF_SUCCESS;
}

bf_status_t MatchTable::add(const EntryKey &key, const EntryAction &action, uint32_t ttl_ms,
                            uint64_t now_ms, pipe_entry_handle_t *entry) {
  if (!is_pipe(key.pipe)) return BF_INVALID_PIPE;
  if (const bf_status_t status = check(action); status != BF_SUCCESS) return status;
  const auto [given_mask, of_mask, of_key] = hashes_of(key);
  uint32_t mask = kNoMask;
  try {
    if (record_.has_mask) mask = masks_.acquire(given_mask, of_mask, key.priority);
  } catch (const std::bad_alloc &) {
    return BF_NO_MEMORY;
  }
  uint32_t slot;
  if (const bf_status_t status = insert(key, mask, of_key, &slot); status != BF_SUCCESS) {
    if (record_.has_mask) masks_.release(mask);
    return status;
  }
  write_action(slot, action);
  clear_cells(slot);
  if (record_.ages) wheel_.start(slot, ttl_ms, now_ms);
  *entry = slots_.handle_of(slot);
  return BF_SUCCESS;
}

bf_status_t MatchTable::find(const EntryKey &key, pipe_entry_handle_t *entry) const {
  if (!is_pipe(key.pipe)) return BF_OBJECT_NOT_FOUND;
  const auto [given_mask, of_mask, of_key] = hashes_of(key);
  const uint32_t mask = record_.has_mask ? masks_.find(given_mask, of_mask) : kNoMask;
  if (record_.has_mask && mask == MaskPool::kNone) return BF_OBJECT_NOT_FOUND;
  const uint32_t root = find_group(of_key, key.value, mask);
  if (root == kNone) return BF_OBJECT_NOT_FOUND;
  const uint32_t priority = record_.has_mask ? key.priority : 0;
  const uint32_t slot = find_in_group(root, priority, stored_pipe(key.pipe));
  if (slot == kNone) return BF_OBJECT_NOT_FOUND;
  *entry = slots_.handle_of(slot);
  return BF_SUCCESS;
}

bf_status_t MatchTable::erase(pipe_entry_handle_t entry) {
  if (!slots_.knows(entry)) return BF_OBJECT_NOT_FOUND;
  const uint32_t slot = SlotStore::slot_of(entry);
  rules_.erase(slot);
  unlink(slot);
  if (record_.has_mask) masks_.release(mask_of(slot));
  if (record_.ages) wheel_.stop(slot);
  if (slots_.release(slot)) {
    index_.reset();
    twins_.reset();
    rules_.reset();
  }
  return BF_SUCCESS;
}

bf_status_t MatchTable::set_action(pipe_entry_handle_t entry, const EntryAction &action) {
  if (!slots_.knows(entry)) return BF_OBJECT_NOT_FOUND;
  if (const bf_status_t status = check(action); status != BF_SUCCESS) return status;
  write_action(SlotStore::slot_of(entry), action);
  return BF_SUCCESS;
}

bf_status_t MatchTable::set_resources(pipe_entry_handle_t entry,
                                      std::span<const EntryResource> resources) {
  if (!slots_.knows(entry)) return BF_OBJECT_NOT_FOUND;
  if (resources.size() > record_.resources) return BF_INVALID_ARGUMENT;
  write_resources(SlotStore::slot_of(entry), resources);
  return BF_SUCCESS;
}

void MatchTable::copy_from(const MatchTable &other) {
  slots_.copy_from(other.slots_);
  index_.copy_from(other.index_);
  masks_.copy_from(other.masks_);
  twins_ = other.twins_;
  wheel_.copy_from(other.wheel_);
  ones_ = other.ones_;
  refuses_duplicates_ = other.refuses_duplicates_;
  next_age_ = other.next_age_;
}

}  // namespace soft
