// A match table: which entry a packet hits, and what traffic does to that entry.
#include <mutex>

#include "profiles/selector.hpp"
#include "stateful/counter.hpp"
#include "stateful/meter.hpp"
#include "tables/match_engine.hpp"

namespace soft {

// Fills entry and is_default of the hit.
bf_status_t MatchEngine::find_hit(bf_pipe_id_t pipe, const uint8_t *key, uint32_t length,
                                  soft_hit_t *hit) {
  if (key == nullptr && length != 0) return BF_INVALID_ARGUMENT;
  if (length != description_.key_bytes) return BF_WRONG_LENGTH;
  hit->entry = length == 0 ? 0 : entries_->lookup(key, pipe);
  hit->is_default = hit->entry == 0;
  if (!hit->is_default) return BF_SUCCESS;
  size_t index = 0;
  if (default_at(pipe, &index) != BF_SUCCESS) return BF_TABLE_MISS;
  hit->entry = default_handle_at(index);
  return BF_SUCCESS;
}

bf_status_t MatchEngine::lookup(bf_pipe_id_t pipe, const uint8_t *key, uint32_t length,
                                pipe_entry_handle_t *entry, bool *is_default) {
  soft_hit_t hit{};
  {
    const std::lock_guard lock(mutex_);
    const bf_status_t status = find_hit(pipe, key, length, &hit);
    if (status != BF_SUCCESS) return status;
  }
  *entry = hit.entry;
  if (is_default != nullptr) *is_default = hit.is_default;
  return BF_SUCCESS;
}

bf_status_t MatchEngine::pass(bf_pipe_id_t pipe, const soft_traffic_t *traffic, soft_hit_t *hit) {
  soft_hit_t found{};
  const std::lock_guard lock(mutex_);
  const bf_status_t status = find_hit(pipe, traffic->key, traffic->key_length, &found);
  if (status != BF_SUCCESS) return status;
  if (found.is_default) {
    const DefaultEntry &entry = *default_of(found.entry);
    found.color = note_traffic(pipe, *traffic, found.entry, entry.resources);
    follow(action_of(entry), *traffic, &found);
  } else {
    EntryView view;
    entries_->get(found.entry, &view);
    found.color = note_traffic(pipe, *traffic, found.entry, resources_of(found.entry, view));
    if (description_.ages_entries) note_hit(found.entry);
    follow({view.action, view.type, {}, view.reference, {}}, *traffic, &found);
  }
  *hit = found;
  return BF_SUCCESS;
}

// Counts and marks; the worst colour is the answer.
uint8_t MatchEngine::note_traffic(bf_pipe_id_t pipe, const soft_traffic_t &traffic,
                                  pipe_entry_handle_t entry, const ResourceList &resources) {
  uint8_t worst = SOFT_COLOR_GREEN;
  for (const EntryResource &resource : resources.all()) {
    uint8_t color = SOFT_COLOR_GREEN;
    if (counts_here(resource.handle)) {
      change_counters_locked(entry, [&](EntryCounters &counters) {
        counters.hardware.packets += traffic.packets;
        counters.hardware.bytes += traffic.bytes;
      });
    } else if (meters_here(resource.handle)) {
      color = mark_direct(entry, traffic);
    } else if (Counter *counter = device_.find<Counter>(resource.handle)) {
      counter->count(pipe, resource.index, traffic.packets, traffic.bytes);
    } else if (Meter *meter = device_.find<Meter>(resource.handle)) {
      meter->mark(pipe, resource.index, traffic.packets, traffic.bytes, &color);
    }
    worst = std::max(worst, color);
  }
  return worst;
}

uint8_t MatchEngine::mark_direct(pipe_entry_handle_t entry, const soft_traffic_t &traffic) {
  const uint64_t cost = device_.find<Meter>(direct_meter_)->cost(traffic.packets, traffic.bytes);
  return mark_traffic(meter_of(entry), cost, now_ms(), &buckets_[entry]);
}

// Fills action, group and member of the hit. The entry keeps what it refers to in being.
void MatchEngine::follow(const EntryAction &action, const soft_traffic_t &traffic,
                         soft_hit_t *hit) {
  if (action.type == PIPE_ACTION_DATA) {
    hit->action = action.action;
    return;
  }
  if (action.type == PIPE_ACTION_MEMBER) {
    hit->member = action.reference;
  } else {
    hit->group = action.reference;
    const uint8_t no_hash = 0;
    const bool hashed = traffic.hash != nullptr && traffic.hash_length != 0;
    device_.find<Selector>(profile_->selector)
        ->choose(hit->group, hashed ? traffic.hash : &no_hash, hashed ? traffic.hash_length : 1,
                 &hit->member);
  }
  if (hit->member == 0) return;
  device_.find<ActionDataTable>(profile_->action_data_table)->action_of(hit->member, &hit->action);
}

}  // namespace soft
