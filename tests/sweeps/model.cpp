#include "model.hpp"

#include <cstring>

#include "soft_sdk.h"

namespace pd_test {

const pdgen::Resource *resource_of(uint32_t handle) {
  for (const auto *list : {&program().counters, &program().meters, &program().registers}) {
    const auto at = std::ranges::find(*list, handle, &pdgen::Resource::handle);
    if (at != list->end()) return &*at;
  }
  return nullptr;
}

void cut_action(const pdgen::Action &action, uint8_t *record) {
  for (const bindings::Member &member : record_of(action).member_list()) {
    for (unsigned bit = member.width; bit < 8 * member.storage; ++bit) {
      record[member.offset + bit / 8] &= static_cast<uint8_t>(~(1u << bit % 8));
    }
  }
}

uint8_t MeterCell::mark(uint64_t cost, uint64_t now) {
  const uint64_t most_committed = spec.committed_burst * uint64_t{1000};
  const uint64_t most_peak = spec.peak_burst * uint64_t{1000};
  if (full) *this = {spec, false, most_committed, most_peak, now};
  committed = std::min(most_committed, committed + spec.committed_rate * (now - filled_ms));
  peak = std::min(most_peak, peak + spec.peak_rate * (now - filled_ms));
  filled_ms = now;
  if (peak < cost) return SOFT_COLOR_RED;
  peak -= cost;
  if (committed < cost) return SOFT_COLOR_YELLOW;
  committed -= cost;
  return SOFT_COLOR_GREEN;
}

// ---- Tables ----

const Bytes &ModelEntry::kept() const {
  if (!known_kept.empty()) return known_kept;
  ActionSpec image;
  image.data.bytes = data;
  for (const auto &[resource, cell] : resources) {
    image.resources.push_back({resource, cell, {}, PIPE_RESOURCE_ATTACH});
  }
  return known_kept = kept_action_spec(*action, image);
}

bool ModelTable::stays(uint32_t resource) const {
  const pdgen::Resource &named = *resource_of(resource);
  return named.direct() || named.kind == pdgen::ResourceKind::kRegister;
}

std::optional<ModelEntry> ModelTable::declared_default() const {
  const auto &declared = row->default_entry;
  if (!declared) return std::nullopt;
  ModelEntry entry;
  entry.action = &*declared->pair->action;
  const bindings::Record &record = record_of(*entry.action);
  Bytes spec(record.size);
  for (size_t i = 0; i < declared->values.size(); ++i) {
    const bindings::Member &member = record.members[i];
    std::memcpy(&spec[member.offset], &declared->values[i], member.storage);
  }
  const ActionSpec image =
      action_image(*declared->pair, pdgen::Operation::kDefault, spec.data(), nullptr);
  entry.data = image.data.bytes.value_or(Bytes());
  if (!declared->cells.empty()) static_cast<void>(attach(image.resources, &entry));
  return entry;
}

namespace {

bool agree(const Bytes &a, const Bytes &b, const Bytes &mask) {
  for (size_t i = 0; i < mask.size(); ++i) {
    if (((a[i] ^ b[i]) & mask[i]) != 0) return false;
  }
  return true;
}

}  // namespace

ModelEntry *ModelTable::by_handle(uint32_t handle) {
  const auto at = std::ranges::find(entries, handle, &ModelEntry::handle);
  return at == entries.end() ? nullptr : &*at;
}

ModelEntry *ModelTable::by_key(const ModelEntry &key) {
  const auto is_same = [&](const ModelEntry &entry) {
    return entry.mask() == key.mask() && entry.priority == key.priority && entry.pipe == key.pipe &&
           agree(entry.value(), key.value(), key.mask());
  };
  const auto at = std::ranges::find_if(entries, is_same);
  return at == entries.end() ? nullptr : &*at;
}

ModelEntry *ModelTable::look_up(const Bytes &key, uint32_t pipe) {
  ModelEntry *best = nullptr;
  for (ModelEntry &entry : entries) {
    Bytes mask = entry.mask();
    for (size_t i = 0; i < mask.size() && description->compared != nullptr; ++i) {
      mask[i] &= description->compared[i];
    }
    if (!entry.is_in(pipe) || !agree(entry.value(), key, mask)) continue;
    if (best == nullptr || entry.priority < best->priority) best = &entry;
  }
  return best;
}

p4_pd_status_t ModelTable::admit(uint32_t *ttl) const {
  if (!ageing || ageing->mode != PIPE_IDLE_NOTIFY) return BF_SUCCESS;
  if (*ttl == 0) {
    *ttl = ageing->default_ttl_ms;
    return BF_SUCCESS;
  }
  const bool too_long = ageing->max_ttl_ms != 0 && *ttl > ageing->max_ttl_ms;
  return too_long || *ttl < ageing->min_ttl_ms ? BF_INVALID_ARGUMENT : BF_SUCCESS;
}

p4_pd_status_t ModelTable::attach(const std::vector<pipe_mgr_resource_t> &resources,
                                  ModelEntry *entry) const {
  entry->known_kept.clear();
  for (const pipe_mgr_resource_t &resource : resources) {
    const uint32_t handle = resource.handle;
    const bool attaches = resource.tag == PIPE_RESOURCE_ATTACH;
    if (attaches && resource.index >= SOFT_COUNTER_CELLS) return BF_INVALID_ARGUMENT;
    if (resource.tag == PIPE_RESOURCE_DETACH) entry->resources.erase(handle);
    if (attaches) entry->resources[handle] = resource.index;
    if (entry->resources.size() > PIPE_RESOURCES_PER_ACTION) return BF_INVALID_ARGUMENT;
    if (resource.tag == PIPE_RESOURCE_KEEP) continue;
    if (counter != nullptr && handle == counter->handle) entry->counter = {};
    if (meter == nullptr || handle != meter->handle) continue;
    const pipe_mgr_meter_spec_t &spec = resource.data.meter;
    entry->meter = {};
    if (!attaches) continue;
    entry->meter.spec = {static_cast<uint32_t>(spec.committed_rate.value),
                         static_cast<uint32_t>(spec.committed_burst),
                         static_cast<uint32_t>(spec.peak_rate.value),
                         static_cast<uint32_t>(spec.peak_burst), PD_METER_TYPE_COLOR_UNAWARE};
  }
  return BF_SUCCESS;
}

bool ModelTable::alike(const ModelEntry &a, const ModelEntry &b) const {
  if (a.key == nullptr || b.key == nullptr ? a.key != b.key : a.key->compared != b.key->compared) {
    return false;
  }
  if (row->indirect()) return a.type == b.type && a.reference == b.reference;
  if (a.action != b.action || !a.action->has_params()) return a.action == b.action;
  Bytes left = a.kept(), right = b.kept();
  cut_action(*a.action, left.data());
  cut_action(*b.action, right.data());
  return left == right;
}

p4_pd_status_t ModelTable::apply(const Wanted &wanted, ModelEntry *entry) const {
  const p4_pd_status_t status = attach(wanted.image.resources, entry);
  entry->action = wanted.pair == nullptr ? nullptr : &*wanted.pair->action;
  entry->type = wanted.image.type;
  entry->reference = wanted.reference();
  entry->data = wanted.image.data.bytes.value_or(Bytes());
  return status;
}

// ---- Profiles ----

uint32_t ModelProfile::choose(uint32_t group, const Bytes &hash) const {
  Words active;
  for (const auto &[member, is_active] : groups.at(group).members) {
    if (is_active) active.push_back(member);
  }
  if (active.empty()) return fallback;
  size_t remainder = 0;
  for (const uint8_t byte : hash) remainder = (remainder * 256 + byte) % active.size();
  return active[remainder];
}

// ---- Devices ----

void ModelDevice::add_table(const pdgen::Table &row) {
  const auto of_table = [&](auto &list) -> const pdgen::Resource * {
    const auto is_direct = [&](const pdgen::Resource &one) { return one.table.target == &row; };
    const auto at = std::ranges::find_if(list, is_direct);
    return at == list.end() ? nullptr : &*at;
  };
  const soft_program_t &all = *binding().description;
  ModelTable &table = tables.emplace_back();
  table.row = &row;
  table.description = std::find_if(all.tables, all.tables + all.table_count,
                                   [&](auto &one) { return one.handle == row.handle; });
  table.counter = of_table(program().counters);
  table.meter = of_table(program().meters);
  table.capacity = row.size;
  table.defaults[0] = table.declared_default();
  const auto is_there = [&](auto &profile) { return profile.row == row.profile.target; };
  if (!row.indirect() || std::ranges::any_of(profiles, is_there)) return;
  ModelProfile &profile = profiles.emplace_back();
  profile.row = row.profile.target;
  profile.most_members = profile.row->most_members;
  profile.most_groups = profile.row->most_groups;
}

ModelProfile &ModelDevice::profile_of(const ModelTable &table) {
  return *std::ranges::find(profiles, table.row->profile.target, &ModelProfile::row);
}

uint64_t ModelDevice::now() const { return soft_clock_now() + lead_ms; }

uint64_t ModelDevice::cost(const pdgen::Resource &meter, const Count &traffic) const {
  if (meter.unit == pdgen::MeterUnit::kPackets) return traffic.packets * 1000;
  const auto at = adjustments.find(meter.handle);
  const int64_t each = at == adjustments.end() ? 0 : at->second;
  const int64_t bytes =
      static_cast<int64_t>(traffic.bytes) + each * static_cast<int64_t>(traffic.packets);
  return static_cast<uint64_t>(std::max<int64_t>(bytes, 0)) * 8;
}

size_t ModelDevice::uses(const ModelProfile &profile, uint32_t type, uint32_t reference) const {
  size_t count = 0;
  const auto add = [&](const ModelEntry &entry) {
    if (entry.type == type && entry.reference == reference) ++count;
  };
  for (const ModelTable &table : tables) {
    if (table.row->profile.target != profile.row) continue;
    std::ranges::for_each(table.entries, add);
    for (const auto &entry : table.defaults) {
      if (entry) add(*entry);
    }
  }
  if (type != PIPE_ACTION_MEMBER) return count;
  for (const auto &[handle, group] : profile.groups) count += group.members.count(reference);
  return count + (profile.fallback == reference ? 1 : 0);
}

soft_hit_t ModelDevice::pass(ModelTable &table, uint32_t pipe, const Bytes &packet,
                             const Count &traffic, const Bytes &hash) {
  ModelEntry *entry = table.look_up(packet, pipe);
  soft_hit_t hit{};
  hit.is_default = entry == nullptr;
  if (entry == nullptr) entry = table.default_in(pipe);
  entry->hit(now());
  hit.entry = entry->handle;
  for (const auto &[handle, index] : entry->resources) {
    const pdgen::Resource &resource = *resource_of(handle);
    const ModelDevice::Cell cell{handle, pipe, index};
    uint8_t color = SOFT_COLOR_GREEN;
    if (resource.kind == pdgen::ResourceKind::kCounter) {
      (resource.direct() ? entry->counter : counters[cell]).hardware.add(traffic);
    }
    if (resource.kind == pdgen::ResourceKind::kMeter) {
      const auto at = meters.find(cell);
      MeterCell *set = resource.direct()    ? &entry->meter
                       : at == meters.end() ? nullptr
                                            : &at->second;
      if (set != nullptr) color = set->mark(cost(resource, traffic), now());
    }
    hit.color = std::max(hit.color, color);
  }
  if (entry->type == PIPE_ACTION_DATA) {
    hit.action = pair_of(*table.row, entry->action->name)->handle;
    return hit;
  }
  const ModelProfile &profile = profile_of(table);
  hit.group = entry->type == PIPE_ACTION_GROUP ? entry->reference : 0;
  hit.member = hit.group != 0 ? profile.choose(hit.group, hash) : entry->reference;
  if (hit.member != 0) hit.action = profile.members.at(hit.member).pair->handle;
  return hit;
}

}  // namespace pd_test
