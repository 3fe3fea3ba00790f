// A match table of a device: its entries and default entries behind a lock of its own, with the
// checks that the contract asks for, ageing, and the update callback. A member function with the
// arguments of a contract function does what that function says.
//
// Pipes. In scope 0 an entry is in all pipes, whichever pipe the call names. In scope 1 it is in
// the named pipe, or in all of them for BF_ALL_PIPES; the same key may then be in several pipes.
// The same goes for default entries, where a pipe without one of its own has that of all pipes.
#pragma once

#include <array>
#include <optional>
#include <shared_mutex>
#include <unordered_set>
#include <vector>

#include "device/device.hpp"
#include "device/listener.hpp"
#include "soft_sdk.h"
#include "soft_traffic.h"
#include "stateful/meter_buckets.hpp"
#include "tables/entry_resources.hpp"
#include "tables/match_table.hpp"

namespace soft {

class MatchEngine : public ObjectOf<MatchEngine> {
 public:
  MatchEngine(Device &device, const soft_table_t &table);

  // ---- Entries ----

  // An entry by handle, or else by key.
  struct Name {
    std::optional<pipe_entry_handle_t> handle;
    const pipe_mgr_match_spec_t *match = nullptr;
    bf_pipe_id_t pipe = BF_ALL_PIPES;
  };

  bf_status_t add(pipe_session_handle_t session, bf_pipe_id_t pipe,
                  const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                  const pipe_mgr_action_spec_t *spec, uint32_t ttl, pipe_entry_handle_t *entry);
  bf_status_t set_action(pipe_session_handle_t session, const Name &name,
                         pipe_object_handle_t action, const pipe_mgr_action_spec_t *spec);
  bf_status_t set_resources(pipe_session_handle_t session, pipe_entry_handle_t entry,
                            std::span<const pipe_mgr_resource_t> resources);
  bf_status_t remove(pipe_session_handle_t session, const Name &name);
  bf_status_t find(bf_pipe_id_t pipe, const pipe_mgr_match_spec_t *match,
                   pipe_entry_handle_t *entry);
  bf_status_t read(pipe_entry_handle_t entry, pipe_mgr_match_spec_t *match,
                   pipe_mgr_action_spec_t *spec, pipe_object_handle_t *action);

  bf_status_t entry_count(bf_pipe_id_t pipe, uint32_t *count) override;
  bf_status_t first_entry(bf_pipe_id_t pipe, uint32_t *entry) override;
  bf_status_t next_entries(bf_pipe_id_t pipe, uint32_t entry, uint32_t count,
                           uint32_t *entries) override;

  // ---- Default entries: handles of their own, which the functions above take too ----

  bf_status_t set_default(pipe_session_handle_t session, bf_pipe_id_t pipe,
                          pipe_object_handle_t action, const pipe_mgr_action_spec_t *spec,
                          pipe_entry_handle_t *entry);
  bf_status_t reset_default(pipe_session_handle_t session, bf_pipe_id_t pipe);
  bf_status_t default_handle(bf_pipe_id_t pipe, pipe_entry_handle_t *entry);
  bf_status_t read_default(bf_pipe_id_t pipe, pipe_mgr_action_spec_t *spec,
                           pipe_object_handle_t *action);

  // ---- The table ----

  bf_status_t set_property(uint32_t property, uint32_t value, uint32_t argument);
  bf_status_t get_property(uint32_t property, uint32_t *value, uint32_t *argument);
  bf_status_t listen(pipe_mgr_mat_update_cb_t callback, void *cookie);

  // ---- Ageing ----

  bf_status_t start_ageing(const pipe_mgr_idle_params_t &params);
  bf_status_t stop_ageing();
  bf_status_t ageing(pipe_mgr_idle_params_t *params);
  bf_status_t listen_to_expiry(pipe_mgr_idle_cb_t callback, void *client_data);
  bf_status_t set_ttl(pipe_entry_handle_t entry, uint32_t ttl, bool restart_only);
  bf_status_t get_ttl(pipe_entry_handle_t entry, uint32_t *ttl);
  bf_status_t set_hit_state(pipe_entry_handle_t entry, uint32_t state);
  bf_status_t get_hit_state(pipe_entry_handle_t entry, uint32_t *state);
  void clock_advanced(uint64_t now_ms) override;

  // ---- Traffic ----

  // As soft_lookup and soft_traffic_hit.
  bf_status_t lookup(bf_pipe_id_t pipe, const uint8_t *key, uint32_t length,
                     pipe_entry_handle_t *entry, bool *is_default);
  bf_status_t pass(bf_pipe_id_t pipe, const soft_traffic_t *traffic, soft_hit_t *hit);

  // ---- Direct counters and meters, for the statistics engines ----
  // BF_OBJECT_NOT_FOUND: no such entry, or none is attached to it. BF_NOT_SUPPORTED: the table has
  // no direct counter or meter.

  // Runs change(EntryCounters &) on the counters of an entry, default entries included.
  template <class Change>
  bf_status_t change_counters(pipe_entry_handle_t entry, Change change) {
    const std::lock_guard lock(mutex_);
    return change_counters_locked(entry, change);
  }
  // The same on the counters of every entry that has one attached.
  template <class Change>
  bf_status_t change_all_counters(Change change);
  bf_status_t get_meter(pipe_entry_handle_t entry, pipe_mgr_meter_spec_t *meter);

  // When it throws, nothing has changed.
  void copy_from(Object &object) override;
  void inherit(Object &predecessor) noexcept override;

  const soft_table_t &description() const { return description_; }
  uint64_t memory_bytes() override;

 private:
  struct DefaultEntry {
    pipe_object_handle_t action = 0;
    uint32_t type = PIPE_ACTION_DATA;
    std::vector<uint8_t> data;
    uint32_t reference = 0;
    ResourceList resources;
    EntryCounters counters{};
    pipe_mgr_meter_spec_t meter{};
  };

  // An action spec that passed the checks. The data stay with the caller.
  struct Checked {
    EntryAction action;
    ResourceList resources;                        // all of the entry, as they are to be
    const pipe_mgr_resource_t *counter = nullptr;  // attached or detached direct ones, if any
    const pipe_mgr_resource_t *meter = nullptr;
  };

  std::unique_ptr<MatchTable> new_table() const;

  // Runs body(entry handle out) under the lock and then, without it, the update callback.
  template <class Body>
  bf_status_t update(pipe_session_handle_t session, uint32_t what, Body body);

  // The members below are called under the lock.
  bool is_direct(pipe_object_handle_t resource) const;
  bool counts_here(pipe_object_handle_t resource) const { return resource == direct_counter_; }
  bool meters_here(pipe_object_handle_t resource) const { return resource == direct_meter_; }
  // What stands in the entry; everything else is beside the table.
  bool has_cell_here(pipe_object_handle_t r) const { return counts_here(r) || meters_here(r); }
  ResourceList cells_of(const ResourceList &list) const {
    return list.those([this](pipe_object_handle_t r) { return has_cell_here(r); });
  }
  const soft_action_t *action_of(pipe_object_handle_t action) const;

  bf_status_t check_key(const pipe_mgr_match_spec_t *match) const;
  EntryKey key_of(const pipe_mgr_match_spec_t &match, bf_pipe_id_t pipe) const;
  bf_status_t check_action(pipe_object_handle_t action, const pipe_mgr_action_spec_t *spec,
                           Checked *checked) const;
  // Of an entry with a key.
  bf_status_t check_entry_action(pipe_object_handle_t action, const pipe_mgr_action_spec_t *spec,
                                 Checked *checked) const;
  bf_status_t check_default_action(pipe_object_handle_t action, const pipe_mgr_action_spec_t *spec,
                                   Checked *checked) const;
  bf_status_t check_resources(std::span<const pipe_mgr_resource_t> resources,
                              Checked *checked) const;
  bf_status_t locate(const Name &name, pipe_entry_handle_t *entry) const;
  Object *owner_of(uint32_t type) const;
  bf_status_t acquire_reference(const EntryAction &action);
  void release_reference(uint32_t type, uint32_t reference);

  bf_status_t insert(const EntryKey &key, Checked &checked, uint32_t ttl,
                     pipe_entry_handle_t *entry);
  bf_status_t replace(pipe_entry_handle_t entry, pipe_object_handle_t action,
                      const pipe_mgr_action_spec_t *spec);
  bf_status_t store_resources(pipe_entry_handle_t entry, const Checked &checked);
  void store_cells(pipe_entry_handle_t entry, const Checked &checked);
  bf_status_t erase(pipe_entry_handle_t entry);
  ResourceList resources_of(pipe_entry_handle_t entry, const EntryView &view) const;
  // Of any entry, default ones included. BF_OBJECT_NOT_FOUND.
  bf_status_t get_resources(pipe_entry_handle_t entry, ResourceList *list) const;
  pipe_mgr_meter_spec_t meter_of(pipe_entry_handle_t entry) const;
  bf_status_t fill_key(const EntryView &view, pipe_mgr_match_spec_t *match) const;
  bf_status_t fill_action(const EntryAction &action, const ResourceList &resources,
                          pipe_entry_handle_t entry, pipe_mgr_action_spec_t *spec) const;
  uint32_t *count_of(bf_pipe_id_t pipe) {
    return &pipe_counts_[pipe == BF_ALL_PIPES ? SOFT_PIPE_LIMIT : pipe];
  }

  static bool is_default_handle(pipe_entry_handle_t entry);
  static pipe_entry_handle_t default_handle_at(size_t index);
  static size_t index_of_default(pipe_entry_handle_t entry);
  size_t default_index(bf_pipe_id_t pipe) const;
  bf_status_t default_at(bf_pipe_id_t pipe, size_t *index) const;
  DefaultEntry *default_of(pipe_entry_handle_t entry);
  const DefaultEntry *default_of(pipe_entry_handle_t entry) const;
  std::optional<DefaultEntry> declared_default() const;
  bf_status_t store_default(std::optional<DefaultEntry> &place, const Checked &checked);
  static EntryAction action_of(const DefaultEntry &entry);

  bf_status_t admit_ttl(uint32_t *ttl) const;
  uint64_t sweep_time(uint64_t now_ms) const;
  bool is_idle(pipe_entry_handle_t entry, const EntryView &view) const;
  void note_hit(pipe_entry_handle_t entry);

  bf_status_t find_hit(bf_pipe_id_t pipe, const uint8_t *key, uint32_t length, soft_hit_t *hit);
  uint8_t note_traffic(bf_pipe_id_t pipe, const soft_traffic_t &traffic, pipe_entry_handle_t entry,
                       const ResourceList &resources);
  uint8_t mark_direct(pipe_entry_handle_t entry, const soft_traffic_t &traffic);
  void follow(const EntryAction &action, const soft_traffic_t &traffic, soft_hit_t *hit);

  template <class Change>
  bf_status_t change_counters_locked(pipe_entry_handle_t entry, Change change);

  Device &device_;
  const soft_table_t &description_;
  std::span<const soft_action_t> actions_;  // of the table or of the profile it is bound to
  const soft_profile_t *profile_ = nullptr;
  pipe_object_handle_t direct_counter_ = 0;  // 0: none
  pipe_object_handle_t direct_meter_ = 0;

  std::shared_mutex mutex_;
  std::unique_ptr<MatchTable> entries_;
  ResourceLists beside_;  // resources that have no place in the entry: all but direct ones
  std::array<uint32_t, SOFT_PIPE_LIMIT + 1> pipe_counts_{};  // the last one: of all pipes
  std::vector<std::optional<DefaultEntry>> defaults_;        // of all pipes, then of each pipe
  uint32_t scope_ = 0;
  uint32_t capacity_ = 0;
  Listener<pipe_mgr_mat_update_cb_t> listener_;

  bool ageing_ = false;
  pipe_mgr_idle_params_t ageing_params_{};
  uint64_t ageing_since_ms_ = 0;
  uint64_t swept_ms_ = 0;
  Listener<pipe_mgr_idle_cb_t> expiry_listener_;
  std::unordered_set<pipe_entry_handle_t> marked_idle_;  // by the client

  // Of direct meters that traffic has met since they were set.
  std::unordered_map<pipe_entry_handle_t, MeterBuckets> buckets_;
};

template <class Body>
bf_status_t MatchEngine::update(pipe_session_handle_t session, uint32_t what, Body body) {
  pipe_entry_handle_t entry = 0;
  return change_and_notify(
      mutex_, listener_, [&] { return body(&entry); }, session, device_.id(), handle(), what,
      entry);
}

template <class Change>
bf_status_t MatchEngine::change_counters_locked(pipe_entry_handle_t entry, Change change) {
  if (direct_counter_ == 0) return BF_NOT_SUPPORTED;
  if (DefaultEntry *found = default_of(entry)) {
    if (!found->resources.has(direct_counter_)) return BF_OBJECT_NOT_FOUND;
    change(found->counters);
    return BF_SUCCESS;
  }
  EntryView view;
  if (const bf_status_t status = entries_->get(entry, &view); status != BF_SUCCESS) return status;
  if (!resources_of(entry, view).has(direct_counter_)) return BF_OBJECT_NOT_FOUND;
  EntryCounters counters;
  entries_->get_counters(entry, &counters);
  change(counters);
  return entries_->set_counters(entry, counters);
}

template <class Change>
bf_status_t MatchEngine::change_all_counters(Change change) {
  if (direct_counter_ == 0) return BF_NOT_SUPPORTED;
  const std::lock_guard lock(mutex_);
  for (size_t i = 0; i < defaults_.size(); ++i) {
    if (defaults_[i]) change_counters_locked(default_handle_at(i), change);
  }
  entries_->each([&](pipe_entry_handle_t entry) { change_counters_locked(entry, change); });
  return BF_SUCCESS;
}

}  // namespace soft
