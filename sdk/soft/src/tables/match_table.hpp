// The entries of one match table: storage, search by key, lookup as a packet does it, enumeration
// and ageing.
//
// Built for millions of entries: fixed-size records in large chunks, one open-addressing index over
// (masked value, mask), nothing allocated per entry, no pause longer than the split of one index
// segment but for look-ups among rules (RuleIndex), of which some begin with a new index. A table
// that becomes empty gives its memory back but for what a few entries need.
//
// Identity. Two keys are the same when pipe, priority, mask and the value bits under the mask are:
// no packet would hit one and not the other. The value bytes are kept as given for read-back.
//
// Handles are never 0 and never 0xffffffff. The handle of an erased entry is unknown from then on;
// it comes back for another entry after 65,536 further additions at the earliest.
//
// Not thread-safe: the owner locks, exclusively for every member function that is not const. No
// member function throws; one that cannot get memory returns BF_NO_MEMORY and changes nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <span>
#include <vector>

#include "store/counting_resource.hpp"
#include "store/expiry_wheel.hpp"
#include "store/key_index.hpp"
#include "store/key_twins.hpp"
#include "store/mask_pool.hpp"
#include "store/region_resource.hpp"
#include "store/slot_store.hpp"
#include "tables/match_table_record.hpp"
#include "tables/match_table_types.hpp"
#include "tables/rule_index.hpp"

namespace soft {

class MatchTable {
 public:
  // What table.compared leads to is kept, the rest is not. memory must outlive the table; all
  // storage comes from it. Allocates nothing itself.
  MatchTable(const soft_table_t &table, const EntryLayout &layout,
             std::pmr::memory_resource *memory = std::pmr::new_delete_resource());
  MatchTable(const MatchTable &) = delete;
  MatchTable &operator=(const MatchTable &) = delete;

  // Makes an empty table equal to another one with the same description and layout, handles and the
  // rest of the entries' state included. May throw std::bad_alloc; the table can then only be
  // destroyed.
  void copy_from(const MatchTable &other);

  // ---- Entries ----

  // Whether add refuses a key that an entry has already; it does at first.
  void set_duplicate_check(bool on) { refuses_duplicates_ = on; }
  bool duplicate_check() const { return refuses_duplicates_; }

  // Adds an entry. ttl_ms and now_ms count only in a table that ages its entries: the entry expires
  // at now_ms + ttl_ms unless it is hit, never if ttl_ms is 0. Counters and meter start at zero.
  // BF_ALREADY_EXISTS; BF_NO_MEMORY; BF_TABLE_FULL at 67,108,862 slots; for an action that does not
  // fit the layout as set_action; BF_INVALID_PIPE for a pipe above 254.
  bf_status_t add(const EntryKey &key, const EntryAction &action, uint32_t ttl_ms, uint64_t now_ms,
                  pipe_entry_handle_t *entry);

  // Fetches what add() of this key will look at first, where that pays: in tables beyond the
  // caches.
  void prefetch(const EntryKey &key) const {
    if (count() >= kFarEntries) index_.prefetch(hashes_of(key).of_key);
  }

  // The entry with this key, the oldest one where there are duplicates. BF_OBJECT_NOT_FOUND.
  bf_status_t find(const EntryKey &key, pipe_entry_handle_t *entry) const;

  // BF_OBJECT_NOT_FOUND for an unknown handle, here and in everything below that takes one.
  bf_status_t erase(pipe_entry_handle_t entry);
  bf_status_t get(pipe_entry_handle_t entry, EntryView *view) const;
  bool contains(pipe_entry_handle_t entry) const { return slots_.knows(entry); }

  // Replaces action, data, reference and resources; leaves counters, meter and ageing alone.
  // BF_WRONG_LENGTH for more data than the layout has room for; BF_INVALID_ARGUMENT for a reference
  // or resources that the layout has no room for, or an unknown type.
  bf_status_t set_action(pipe_entry_handle_t entry, const EntryAction &action);
  bf_status_t set_resources(pipe_entry_handle_t entry, std::span<const EntryResource> resources);

  // BF_NOT_SUPPORTED where the layout has no counter or no meter.
  bf_status_t get_counters(pipe_entry_handle_t entry, EntryCounters *counters) const;
  bf_status_t set_counters(pipe_entry_handle_t entry, const EntryCounters &counters);
  bf_status_t get_meter(pipe_entry_handle_t entry, pipe_mgr_meter_spec_t *meter) const;
  bf_status_t set_meter(pipe_entry_handle_t entry, const pipe_mgr_meter_spec_t &meter);

  // ---- Enumeration ----

  size_t count() const { return slots_.count(); }

  // Runs visit(handle) on all entries; it may not add or erase any.
  template <class Visit>
  void each(Visit visit) const {
    slots_.each_live([&](uint32_t slot) { visit(slots_.handle_of(slot)); });
  }

  // Walks the entries that are in a pipe, or all of them for BF_ALL_PIPES, in an order that never
  // changes while they live: whatever is in the table from first_in() to the end of the walk is met
  // exactly once, what comes or goes meanwhile at most once. As the functions of SlotStore;
  // previous may have been erased since: the walk goes on behind the place it had.
  bf_status_t first_in(bf_pipe_id_t pipe, pipe_entry_handle_t *entry) const;
  bf_status_t next_in(bf_pipe_id_t pipe, pipe_entry_handle_t previous,
                      std::span<pipe_entry_handle_t> entries) const;

  // ---- Lookup ----

  // The entry that a packet with this key (key_bytes) hits in a pipe, or 0: the entry whose value
  // agrees under its mask, with the smallest priority number. Ties go to the longer prefix in an
  // lpm table and then, as in the others, to the older entry. Entries of all pipes and of this pipe
  // take part; BF_ALL_PIPES looks at the former only. Changes no entry: hit() does. Packets of a
  // table that compares some bits of its keys count in these alone. The first of them after many
  // additions pays for the index that the others use.
  pipe_entry_handle_t lookup(const uint8_t *key, bf_pipe_id_t pipe = BF_ALL_PIPES);

  // ---- Ageing: BF_NOT_SUPPORTED or nothing where the layout has none ----

  // Gives an entry another time to live and restarts its idle time.
  bf_status_t set_ttl(pipe_entry_handle_t entry, uint32_t ttl_ms, uint64_t now_ms);

  // The entry was in use: its idle time starts over, and it may expire (again).
  bf_status_t hit(pipe_entry_handle_t entry, uint64_t now_ms);

  // Takes the next entry that was idle for its time to live at now_ms, or returns 0. Entries come
  // in the order in which they expired, to the millisecond; each is reported once until it is hit
  // or given a ttl again, and stays in the table. now_ms must not run backwards. The cost depends
  // on what expires and, now and then, on what was hit since; idle others are not looked at.
  pipe_entry_handle_t next_expired(uint64_t now_ms);

  // ---- Measures ----

  // Bytes held: the object and everything it has allocated, without the allocator's own overhead.
  size_t memory_bytes() const { return sizeof(*this) + memory_.bytes(); }

  size_t distinct_masks() const { return record_.has_mask ? masks_.count() : 1; }

 private:
  static constexpr size_t kFarEntries = 1u << 18;

  struct Candidate {
    uint32_t slot;
    uint32_t priority;
  };

  // Shorthand for the stored record of a slot. A mask is an id of the pool, kNoMask in exact
  // tables.
  static constexpr uint32_t kNoMask = MaskPool::kNone;
  static constexpr uint32_t kNone = SlotStore::kNone;
  const uint8_t *value_of(uint32_t slot) const { return slots_.at(slot) + record_.value; }
  uint32_t mask_of(uint32_t slot) const;
  uint32_t priority_of(uint32_t slot) const;
  uint8_t pipe_of(uint32_t slot) const { return slots_.at(slot)[RecordLayout::kPipe]; }
  bool is_in(uint32_t slot, bf_pipe_id_t pipe) const {
    return pipe == BF_ALL_PIPES || pipe_of(slot) == pipe || pipe_of(slot) == KeyTwins::kAllPipes;
  }
  bool has_twins(uint32_t slot) const;
  const uint8_t *mask_bytes(uint32_t mask) const;

  // A group is the entries that agree in mask and in the value bits under it. The index holds one
  // slot of each, the root of its tree if there are several.
  uint64_t mask_hash(uint32_t mask) const { return mask == kNoMask ? 0 : masks_.hash_of(mask); }
  uint64_t hash(const uint8_t *value, const uint8_t *mask, uint64_t mask_hash) const {
    return hash_masked(value, mask, record_.key_bytes, mask_hash);
  }
  uint32_t find_group(uint64_t hash, const uint8_t *value, uint32_t mask) const;
  uint32_t find_in_group(uint32_t root, uint32_t priority, uint8_t pipe) const;
  void link(uint64_t hash, uint32_t root, uint32_t slot);
  void unlink(uint32_t slot);
  void start_twin(uint32_t slot);

  // The mask that counts, its hash and that of the whole key.
  struct Hashes {
    const uint8_t *mask;
    uint64_t of_mask;
    uint64_t of_key;
  };
  Hashes hashes_of(const EntryKey &key) const;

  // BF_OBJECT_NOT_FOUND; BF_NOT_SUPPORTED: the layout has no such part.
  template <class Visit>
  bf_status_t visit_part(pipe_entry_handle_t entry, bool present, Visit visit) const {
    if (!slots_.knows(entry)) return BF_OBJECT_NOT_FOUND;
    if (!present) return BF_NOT_SUPPORTED;
    visit(SlotStore::slot_of(entry));
    return BF_SUCCESS;
  }

  bf_status_t check(const EntryAction &action) const;
  bf_status_t insert(const EntryKey &key, uint32_t mask, uint64_t hash, uint32_t *slot);
  void reserve(uint64_t hash, uint32_t root);
  void write_key(uint32_t slot, const EntryKey &key, uint32_t mask);
  void write_action(uint32_t slot, const EntryAction &action);
  void write_resources(uint32_t slot, std::span<const EntryResource> resources);
  void clear_cells(uint32_t slot);
  void read_resources(const uint8_t *record, EntryView &view) const;
  void probe(const uint8_t *key, uint32_t mask, uint8_t pipe, Candidate &best) const;

  RegionResource regions_;
  CountingResource memory_;  // before the others, which allocate from it
  RecordLayout record_;
  bool refuses_duplicates_ = true;
  uint64_t next_age_ = 1;
  SlotStore slots_;
  KeyIndex index_;
  MaskPool masks_;
  KeyTwins twins_;
  ExpiryWheel wheel_;
  RuleIndex rules_;  // of ternary tables and those that compare some bits of their keys
  std::pmr::vector<uint8_t> ones_;  // the mask of every entry of an exact table
};

}  // namespace soft
