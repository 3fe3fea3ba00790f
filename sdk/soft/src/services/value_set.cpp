#include "services/value_set.hpp"

#include <algorithm>
#include <set>

#include "pipe_mgr_types.h"
#include "soft_state.h"

namespace soft {
namespace {

constexpr pipe_entry_handle_t kNoHandle = 0xffffffff;

const EngineSet value_sets{
    EngineOrder::kServices,
    add_all<ValueSet, &soft_program_t::value_sets, &soft_program_t::value_set_count>};

}  // namespace

bool Parsers::meets(const Parsers &other) const {
  const auto agree = [](uint32_t mine, uint32_t theirs, uint32_t all) {
    return mine == theirs || mine == all || theirs == all;
  };
  return direction == other.direction && agree(pipe, other.pipe, BF_ALL_PIPES) &&
         agree(parser, other.parser, SOFT_ALL_PARSERS);
}

bool ValueSet::same(const Entry &entry, uint32_t value, uint32_t mask) {
  return entry.mask == mask && ((entry.value ^ value) & mask) == 0;
}

template <class Test>
ValueSet::Entries::const_iterator ValueSet::search(Entries::const_iterator from, Test test) const {
  return std::find_if(from, entries_.end(),
                      [&](const Entries::value_type &item) { return test(item.second); });
}

template <class Test>
bf_status_t ValueSet::search_first(Test test, pipe_entry_handle_t *entry) const {
  const auto found = search(entries_.begin(), test);
  if (found == entries_.end()) return BF_OBJECT_NOT_FOUND;
  *entry = found->first;
  return BF_SUCCESS;
}

bf_status_t ValueSet::set_property(uint32_t property, uint32_t value) {
  if (property != PIPE_PVS_CAPACITY) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  capacity_ = value;
  return BF_SUCCESS;
}

bf_status_t ValueSet::get_property(uint32_t property, uint32_t *value) {
  if (property != PIPE_PVS_CAPACITY) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  *value = capacity_;
  return BF_SUCCESS;
}

uint32_t ValueSet::count_in(const Parsers &where) const {
  return static_cast<uint32_t>(std::count_if(
      entries_.begin(), entries_.end(),
      [&](const Entries::value_type &item) { return item.second.where.meets(where); }));
}

// Whether any of the parsers has no room. Only parsers that an entry names by itself can differ
// from the rest, for which the wildcard stands.
bool ValueSet::is_full(const Parsers &where) const {
  if (capacity_ == 0 || count_in(where) < capacity_) return false;
  std::set<bf_pipe_id_t> pipes{where.pipe};
  std::set<uint8_t> parsers{where.parser};
  for (const auto &[handle, entry] : entries_) {
    if (!entry.where.meets(where)) continue;
    if (where.pipe == BF_ALL_PIPES) pipes.insert(entry.where.pipe);
    if (where.parser == SOFT_ALL_PARSERS) parsers.insert(entry.where.parser);
  }
  for (const bf_pipe_id_t pipe : pipes) {
    for (const uint8_t parser : parsers) {
      const auto holds = [&](const Entries::value_type &item) {
        const Parsers &at = item.second.where;
        return at.direction == where.direction && (at.pipe == BF_ALL_PIPES || at.pipe == pipe) &&
               (at.parser == SOFT_ALL_PARSERS || at.parser == parser);
      };
      const auto held = std::count_if(entries_.begin(), entries_.end(), holds);
      if (static_cast<uint64_t>(held) >= capacity_) return true;
    }
  }
  return false;
}

bf_status_t ValueSet::add(const Parsers &where, uint32_t value, uint32_t mask,
                          pipe_entry_handle_t *entry) {
  const std::lock_guard lock(mutex_);
  const auto clashes = [&](const Entry &other) {
    return other.where.meets(where) && same(other, value, mask);
  };
  if (search(entries_.begin(), clashes) != entries_.end()) return BF_ALREADY_EXISTS;
  if (is_full(where) || last_handle_ == kNoHandle - 1) return BF_TABLE_FULL;
  entries_.emplace_hint(entries_.end(), last_handle_ + 1, Entry{where, value, mask});
  *entry = ++last_handle_;
  return BF_SUCCESS;
}

bf_status_t ValueSet::modify(pipe_entry_handle_t entry, uint32_t value, uint32_t mask) {
  const std::lock_guard lock(mutex_);
  const auto found = entries_.find(entry);
  if (found == entries_.end()) return BF_OBJECT_NOT_FOUND;
  const auto clashes = [&](const Entry &other) {
    return &other != &found->second && other.where.meets(found->second.where) &&
           same(other, value, mask);
  };
  if (search(entries_.begin(), clashes) != entries_.end()) return BF_ALREADY_EXISTS;
  found->second.value = value;
  found->second.mask = mask;
  return BF_SUCCESS;
}

bf_status_t ValueSet::erase(pipe_entry_handle_t entry) {
  const std::lock_guard lock(mutex_);
  return entries_.erase(entry) != 0 ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
}

template <class Body>
bf_status_t ValueSet::on_entry(pipe_entry_handle_t entry, Body body) {
  const std::lock_guard lock(mutex_);
  const auto found = entries_.find(entry);
  if (found == entries_.end()) return BF_OBJECT_NOT_FOUND;
  body(found->second);
  return BF_SUCCESS;
}

bf_status_t ValueSet::get(pipe_entry_handle_t entry, uint32_t *value, uint32_t *mask) {
  return on_entry(entry, [&](const Entry &found) {
    *value = found.value;
    *mask = found.mask;
  });
}

bf_status_t ValueSet::parsers_of(pipe_entry_handle_t entry, soft_parsers_t *parsers) {
  return on_entry(entry, [&](const Entry &found) {
    *parsers = {found.where.direction, found.where.pipe, found.where.parser};
  });
}

bf_status_t ValueSet::find(const Parsers &where, uint32_t value, uint32_t mask,
                           pipe_entry_handle_t *entry) {
  const std::lock_guard lock(mutex_);
  return search_first(
      [&](const Entry &other) { return other.where.meets(where) && same(other, value, mask); },
      entry);
}

bf_status_t ValueSet::match(const Parsers &where, uint32_t value, pipe_entry_handle_t *entry) {
  if (where.parser == SOFT_ALL_PARSERS) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  return search_first(
      [&](const Entry &other) {
        return other.where.meets(where) && ((other.value ^ value) & other.mask) == 0;
      },
      entry);
}

uint32_t ValueSet::count(const Parsers &where) {
  const std::lock_guard lock(mutex_);
  return count_in(where);
}

bf_status_t ValueSet::first(const Parsers &where, pipe_entry_handle_t *entry) {
  const std::lock_guard lock(mutex_);
  return search_first([&](const Entry &other) { return other.where.meets(where); }, entry);
}

bf_status_t ValueSet::next(const Parsers &where, pipe_entry_handle_t entry,
                           std::span<pipe_entry_handle_t> entries) {
  const std::lock_guard lock(mutex_);
  if (entries.empty()) return BF_SUCCESS;
  if (entry == 0 || entry > last_handle_) return BF_OBJECT_NOT_FOUND;
  const auto here = [&](const Entry &other) { return other.where.meets(where); };
  auto at = search(entries_.upper_bound(entry), here);
  if (at == entries_.end()) return BF_OBJECT_NOT_FOUND;
  for (pipe_entry_handle_t &slot : entries) {
    slot = at == entries_.end() ? kNoHandle : at->first;
    if (at != entries_.end()) at = search(std::next(at), here);
  }
  return BF_SUCCESS;
}

uint64_t ValueSet::held_bytes() const {
  return entries_.size() * (sizeof(Entries::value_type) + 4 * sizeof(void *));
}

void ValueSet::take_over(ValueSet &other) {
  entries_ = other.entries_;
  last_handle_ = other.last_handle_;
  capacity_ = other.capacity_;
}

}  // namespace soft
