// A naive device: what tables, profiles, counters, meters and registers hold, in lists that are
// searched from end to end.
#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>

#include "oracle.hpp"
#include "soft_traffic.h"

namespace pd_test {

using Words = std::vector<uint32_t>;
inline constexpr uint32_t kAll = BF_ALL_PIPES;

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
  p4_pd_bytes_meter_spec_t spec{};
  bool full = true;
  uint64_t committed = 0, peak = 0, filled_ms = 0;  // tokens: bits, or thousandths of a packet

  uint8_t mark(uint64_t cost, uint64_t now);
};

struct RegisterCell {
  uint32_t hardware = 0, software = 0;
};

// A key that entries have and packets carry: what the caller gives, what reaches the device, what
// is read back and what of that is compared.
struct Key {
  Bytes record;
  MatchSpec image;
  Bytes kept, compared;
};

// What a call asks of an entry.
struct Wanted {
  const pdgen::Pair *pair = nullptr;  // none in a table that is bound to a profile
  Bytes record;
  const p4_pd_bytes_meter_spec_t *meter = nullptr;
  ActionSpec image;
  uint32_t action = 0;   // of the pair, or recorded of what the entry is to point at
  uint32_t refusal = 0;  // by the library, before the device is asked
  uint32_t reference() const {
    return image.type == PIPE_ACTION_GROUP ? image.group : image.member;
  }
};

struct ModelEntry {
  uint32_t handle = 0;
  const Key *key = nullptr;  // none of a default entry
  uint32_t priority = 0, pipe = kAll;
  const pdgen::Action *action = nullptr;
  uint32_t type = PIPE_ACTION_DATA, reference = 0;
  Bytes data;
  std::map<uint32_t, uint32_t> resources;  // cells
  CounterCell counter;
  MeterCell meter;
  uint32_t ttl = 0;
  uint64_t hit_ms = 0;
  bool expired = false, idle = false;

  const Bytes &value() const { return *key->image.value; }
  const Bytes &mask() const { return *key->image.mask; }
  bool is_in(uint32_t in) const { return in == kAll || pipe == kAll || pipe == in; }
  uint64_t ends_ms() const { return hit_ms + ttl; }
  void hit(uint64_t now) {
    hit_ms = now;
    expired = idle = false;
  }
  // The action spec record that read-back makes, found once.
  const Bytes &kept() const;
  mutable Bytes known_kept;
};

struct ModelTable {
  const pdgen::Table *row = nullptr;
  const soft_table_t *description = nullptr;
  const pdgen::Resource *counter = nullptr, *meter = nullptr;  // direct ones
  uint32_t scope = 0, checks = 1, capacity = 0;
  std::vector<ModelEntry> entries;  // the oldest first
  std::optional<ModelEntry> defaults[3];
  std::optional<p4_pd_idle_time_params_t> ageing;
  uint64_t ageing_since_ms = 0;

  bool stays(uint32_t resource) const;
  uint32_t stored_pipe(uint32_t pipe) const { return scope == 0 ? kAll : pipe; }
  size_t default_index(uint32_t pipe) const { return scope == 0 || pipe == kAll ? 0 : pipe + 1; }
  ModelEntry *default_in(uint32_t pipe) {
    auto &own = defaults[default_index(pipe)];
    if (own) return &*own;
    return defaults[0] ? &*defaults[0] : nullptr;
  }
  std::optional<ModelEntry> declared_default() const;
  ModelEntry *by_handle(uint32_t handle);
  // Of the same key, priority and pipe; the oldest one where there are several.
  ModelEntry *by_key(const ModelEntry &key);
  ModelEntry *look_up(const Bytes &key, uint32_t pipe);
  // But for what read-back does not show.
  bool alike(const ModelEntry &a, const ModelEntry &b) const;
  // What the call for a time to live makes of it.
  p4_pd_status_t admit(uint32_t *ttl) const;
  // Gives an entry the action and the resources of a call. It may have some already.
  p4_pd_status_t apply(const Wanted &wanted, ModelEntry *entry) const;
  p4_pd_status_t attach(const std::vector<pipe_mgr_resource_t> &resources, ModelEntry *entry) const;
};

struct ModelMember {
  const pdgen::ProfileAction *pair = nullptr;
  Bytes kept;
};

struct ModelGroup {
  uint32_t max_size = 0;
  uint32_t action = 0;               // that is recorded: of the member that joined last
  std::map<uint32_t, bool> members;  // active
};

struct ModelProfile {
  const pdgen::Profile *row = nullptr;
  std::map<uint32_t, ModelMember> members;
  std::map<uint32_t, ModelGroup> groups;
  // Those that memberships hold: group and member, or 0.
  std::vector<std::pair<uint32_t, uint32_t>> slots;
  uint32_t fallback = 0, most_members = 0, most_groups = 0;

  // The member that a hash chooses, or 0.
  uint32_t choose(uint32_t group, const Bytes &hash) const;
};

struct ModelValue {
  p4_pd_parser_target_t where;
  uint32_t value, mask;

  // Whether parsers have it in common with others.
  bool is_in(const p4_pd_parser_target_t &at) const;
};

struct ModelSet {
  const pdgen::ValueSet *row = nullptr;
  std::map<uint32_t, ModelValue> entries;
  uint32_t last = 0, capacity = 0;

  bool is_full(const ModelValue &value) const;
  // The first entry but one that is the same for a parser of the value, or 0.
  uint32_t find(const ModelValue &value, uint32_t but = 0) const;
};

// Of the objects that a run is about.
struct ModelDevice {
  using Cell = std::array<uint32_t, 3>;  // object, pipe and index
  std::vector<ModelTable> tables;
  std::vector<ModelProfile> profiles;
  std::map<Cell, CounterCell> counters;
  std::map<Cell, MeterCell> meters;
  std::map<Cell, RegisterCell> registers;
  std::map<uint32_t, int32_t> adjustments;  // of meters
  std::vector<ModelSet> sets;
  std::map<uint32_t, uint64_t> seeds;  // of hash calculations
  uint64_t lead_ms = 0;

  void add_table(const pdgen::Table &row);
  ModelProfile &profile_of(const ModelTable &table);
  uint64_t now() const;
  uint64_t cost(const pdgen::Resource &meter, const Count &traffic) const;
  // Entries, memberships and the fallback that refer to a member; entries that refer to a group.
  size_t uses(const ModelProfile &profile, uint32_t type, uint32_t reference) const;
  // What traffic that hits an entry does to it, and what it meets.
  soft_hit_t pass(ModelTable &table, uint32_t pipe, const Bytes &packet, const Count &traffic,
                  const Bytes &hash);
};

const pdgen::Resource *resource_of(uint32_t handle);
// Leaves no bits beyond the widths of parameters.
void cut_action(const pdgen::Action &action, uint8_t *record);

}  // namespace pd_test
