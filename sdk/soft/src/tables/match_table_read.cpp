// Read-back, enumeration, lookup, ageing and cells of a match table.
#include "tables/match_table.hpp"

namespace soft {

void MatchTable::read_resources(const uint8_t *record, EntryView &view) const {
  const uint8_t *at = record + record_.resource;
  view.resource_count = *at++;
  for (uint32_t i = 0; i < view.resource_count; ++i, at += sizeof(EntryResource))
    view.resources[i] = load<EntryResource>(at);
}

bf_status_t MatchTable::get(pipe_entry_handle_t entry, EntryView *view) const {
  if (!slots_.knows(entry)) return BF_OBJECT_NOT_FOUND;
  const uint32_t slot = SlotStore::slot_of(entry);
  const uint8_t *record = slots_.at(slot);
  const auto data = load<uint16_t>(record + RecordLayout::kData);
  const uint8_t pipe = record[RecordLayout::kPipe];
  view->value = record + record_.value;
  view->mask = record_.has_mask ? masks_.bytes(mask_of(slot)) : ones_.data();
  view->priority = priority_of(slot);
  view->age = record_.has_age ? load<uint64_t>(record + record_.age) : 0;
  view->pipe = pipe == KeyTwins::kAllPipes ? BF_ALL_PIPES : pipe;
  view->action = load<uint32_t>(record + RecordLayout::kAction);
  view->type = data >> RecordLayout::kLengthBits;
  view->data = {record + record_.data, static_cast<size_t>(data & RecordLayout::kMostDataBytes)};
  view->reference = record_.has_reference ? load<uint32_t>(record + record_.reference) : 0;
  view->resource_count = 0;
  if (record_.resources != 0) read_resources(record, *view);
  view->ttl_ms = record_.ages ? wheel_.ttl(slot) : 0;
  view->last_hit_ms = record_.ages ? wheel_.last_hit(slot) : 0;
  view->expired = record_.ages && wheel_.has_expired(slot);
  return BF_SUCCESS;
}

// ---- Cells ----

bf_status_t MatchTable::get_counters(pipe_entry_handle_t entry, EntryCounters *counters) const {
  return visit_part(entry, record_.has_counter, [&](uint32_t slot) {
    *counters = load<EntryCounters>(slots_.at(slot) + record_.counter);
  });
}

bf_status_t MatchTable::set_counters(pipe_entry_handle_t entry, const EntryCounters &counters) {
  return visit_part(entry, record_.has_counter,
                    [&](uint32_t slot) { store(slots_.at(slot) + record_.counter, counters); });
}

bf_status_t MatchTable::get_meter(pipe_entry_handle_t entry, pipe_mgr_meter_spec_t *meter) const {
  return visit_part(entry, record_.has_meter, [&](uint32_t slot) {
    *meter = load<pipe_mgr_meter_spec_t>(slots_.at(slot) + record_.meter);
  });
}

bf_status_t MatchTable::set_meter(pipe_entry_handle_t entry, const pipe_mgr_meter_spec_t &meter) {
  return visit_part(entry, record_.has_meter,
                    [&](uint32_t slot) { store(slots_.at(slot) + record_.meter, meter); });
}

// ---- Enumeration ----

bf_status_t MatchTable::first_in(bf_pipe_id_t pipe, pipe_entry_handle_t *entry) const {
  return slots_.first_handle(entry, [&](uint32_t slot) { return is_in(slot, pipe); });
}

bf_status_t MatchTable::next_in(bf_pipe_id_t pipe, pipe_entry_handle_t previous,
                                std::span<pipe_entry_handle_t> entries) const {
  return slots_.next_handles(previous, static_cast<uint32_t>(entries.size()), entries.data(),
                             [&](uint32_t slot) { return is_in(slot, pipe); });
}

// ---- Lookup ----

void MatchTable::probe(const uint8_t *key, uint32_t mask, uint8_t pipe, Candidate &best) const {
  uint32_t slot = find_group(hash(key, mask_bytes(mask), mask_hash(mask)), key, mask);
  if (slot == kNone) return;
  if (has_twins(slot)) {
    slot = twins_.best(slot, pipe);
    if (slot == kNone) return;
  } else if (pipe_of(slot) != pipe && pipe_of(slot) != KeyTwins::kAllPipes) {
    return;
  }
  const uint32_t priority = priority_of(slot);
  if (best.slot == kNone || priority < best.priority) best = {slot, priority};
}

// Entries that may tie with one another stand in the index of rules. Of the others, masks come by
// the smallest priority that their entries may have: behind the best entry found so far there is
// nothing better. Each mask of an lpm table has one priority, so the first hit wins.
pipe_entry_handle_t MatchTable::lookup(const uint8_t *key, bf_pipe_id_t pipe) {
  const uint8_t in_pipe =
      pipe < KeyTwins::kAllPipes ? static_cast<uint8_t>(pipe) : KeyTwins::kAllPipes;
  Candidate best{kNone, 0};
  if (record_.has_age) {
    best.slot = rules_.find(key, in_pipe);
  } else if (!record_.has_mask) {
    probe(key, kNoMask, in_pipe, best);
  } else {
    for (const uint32_t mask : masks_.in_order()) {
      if (best.slot != kNone && masks_.least_priority(mask) > best.priority) break;
      probe(key, mask, in_pipe, best);
    }
  }
  return best.slot == kNone ? 0 : slots_.handle_of(best.slot);
}

// ---- Ageing ----

bf_status_t MatchTable::set_ttl(pipe_entry_handle_t entry, uint32_t ttl_ms, uint64_t now_ms) {
  return visit_part(entry, record_.ages,
                    [&](uint32_t slot) { wheel_.restart(slot, ttl_ms, now_ms); });
}

bf_status_t MatchTable::hit(pipe_entry_handle_t entry, uint64_t now_ms) {
  return visit_part(entry, record_.ages, [&](uint32_t slot) { wheel_.hit(slot, now_ms); });
}

pipe_entry_handle_t MatchTable::next_expired(uint64_t now_ms) {
  const uint32_t slot = record_.ages ? wheel_.next_expired(now_ms) : kNone;
  return slot == kNone ? 0 : slots_.handle_of(slot);
}

}  // namespace soft
