// A naive device: what tables, profiles, counters and meters hold, in lists that are searched from
// end to end.
#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <optional>

#include "program.hpp"

namespace soft_test {

struct Count {
  uint64_t packets = 0, bytes = 0;
  void add(const Count &more) {
    packets += more.packets;
    bytes += more.bytes;
  }
  bool operator==(const Count &) const = default;
};

struct CounterCell {
  Count hardware, software;
  void synchronise() {
    software.add(hardware);
    hardware = {};
  }
};

struct MeterCell {
  pipe_mgr_meter_spec_t spec{};
  bool full = true;
  uint64_t committed = 0, peak = 0, filled_ms = 0;  // tokens: bits, or thousandths of a packet

  uint8_t mark(uint64_t cost, uint64_t now) {
    const uint64_t most_committed = spec.committed_burst * 1000, most_peak = spec.peak_burst * 1000;
    if (full) *this = {spec, false, most_committed, most_peak, now};
    committed = std::min(most_committed, committed + spec.committed_rate.value * (now - filled_ms));
    peak = std::min(most_peak, peak + spec.peak_rate.value * (now - filled_ms));
    filled_ms = now;
    if (peak < cost) return SOFT_COLOR_RED;
    peak -= cost;
    if (committed < cost) return SOFT_COLOR_YELLOW;
    committed -= cost;
    return SOFT_COLOR_GREEN;
  }
};

// What a call asks of an entry, with the record for it.
struct Wanted {
  uint32_t action = 0, type = PIPE_ACTION_DATA, reference = 0;
  Bytes data;
  std::vector<pipe_mgr_resource_t> resources;
  pipe_mgr_action_spec_t spec{};
};

struct ModelEntry {
  uint32_t handle = 0;
  Bytes value, mask;
  uint32_t priority = 0, pipe = kAll;
  uint32_t action = 0, type = PIPE_ACTION_DATA, reference = 0;
  Bytes data;
  std::map<uint32_t, uint32_t> resources;  // cells
  CounterCell counter;
  MeterCell meter;
  uint32_t ttl = 0;
  uint64_t hit_ms = 0;
  bool expired = false, idle = false;

  bool is_in(uint32_t in) const { return in == kAll || pipe == kAll || pipe == in; }
  uint64_t ends_ms() const { return hit_ms + ttl; }
  void hit(uint64_t now) {
    hit_ms = now;
    expired = idle = false;
  }
};

inline bool agree(const Bytes &a, const Bytes &b, const Bytes &mask) {
  for (size_t i = 0; i < mask.size(); ++i) {
    if (((a[i] ^ b[i]) & mask[i]) != 0) return false;
  }
  return true;
}

struct ModelTable {
  const soft_table_t *description = nullptr;
  uint32_t counter = 0, meter = 0;  // direct ones
  uint32_t members = 0, selector = 0;
  uint32_t scope = 0, checks = 1, capacity = 0;
  std::vector<ModelEntry> entries;  // the oldest first
  std::optional<ModelEntry> defaults[3];
  std::optional<pipe_mgr_idle_params_t> ageing;
  uint64_t ageing_since_ms = 0;

  bool is_direct(uint32_t handle) const {
    return handle == counter || handle == meter || handle >> 24 == 0x06;
  }
  bool is_exact() const { return description->match == SOFT_EXACT; }
  uint32_t stored_pipe(uint32_t pipe) const { return scope == 0 ? kAll : pipe; }
  size_t default_index(uint32_t pipe) const { return scope == 0 || pipe == kAll ? 0 : pipe + 1; }
  ModelEntry *default_in(uint32_t pipe) {
    auto &own = defaults[default_index(pipe)];
    if (own) return &*own;
    return defaults[0] ? &*defaults[0] : nullptr;
  }
  const std::vector<const soft_action_t *> actions() const;
  std::optional<ModelEntry> declared_default() const;

  ModelEntry *by_handle(uint32_t handle) {
    const auto at = std::ranges::find(entries, handle, &ModelEntry::handle);
    return at == entries.end() ? nullptr : &*at;
  }
  // The oldest one where there are several.
  ModelEntry *by_key(const ModelEntry &key) {
    for (ModelEntry &entry : entries) {
      if (entry.mask == key.mask && entry.priority == key.priority && entry.pipe == key.pipe &&
          agree(entry.value, key.value, key.mask)) {
        return &entry;
      }
    }
    return nullptr;
  }
  ModelEntry *look_up(const Bytes &key, uint32_t pipe);
  // What the call for a time to live makes of it.
  bf_status_t admit(uint32_t *ttl) const;
  // Applies the resources of a call to an entry that keeps some already.
  bf_status_t apply(const std::vector<pipe_mgr_resource_t> &resources, ModelEntry *entry) const;
};

struct ModelMember {
  uint32_t action = 0;
  Bytes data;
};

struct ModelGroup {
  uint32_t max_size = 0;
  std::map<uint32_t, bool> members;  // active
};

// A slot of the selector that a membership holds: group and member, or 0.
using ModelSlot = std::pair<uint32_t, uint32_t>;

struct ModelDevice {
  std::map<uint32_t, ModelTable> tables;
  std::map<uint32_t, std::map<uint32_t, ModelMember>> profiles;  // by action-data table
  std::map<uint32_t, ModelGroup> groups;
  std::vector<ModelSlot> slots;
  uint32_t fallback = 0;
  std::map<uint32_t, uint32_t> capacity;                          // of profiles
  std::map<std::pair<uint32_t, uint32_t>, CounterCell> counters;  // by pipe and index
  std::map<std::array<uint32_t, 3>, MeterCell> meters;            // by meter, pipe and index
  std::map<uint32_t, int32_t> adjustments;                        // of meters
  uint64_t lead_ms = 0;

  ModelDevice();
  uint64_t now() const { return soft_clock_now() + lead_ms; }
  uint64_t cost(uint32_t meter, const Count &traffic) const;
  // Entries, memberships and the fallback that refer to a member; entries that refer to a group.
  size_t uses(uint32_t type, uint32_t action_data_table, uint32_t reference) const;
  // The member that a hash chooses, or 0.
  uint32_t choose(uint32_t group, const Bytes &hash) const;
  // What traffic that hits an entry does to it, and what it meets.
  soft_hit_t pass(ModelTable &table, uint32_t pipe, const Bytes &key, const Count &traffic,
                  const Bytes &hash);
};

}  // namespace soft_test
