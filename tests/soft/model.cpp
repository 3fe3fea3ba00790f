#include "model.hpp"

namespace soft_test {

ModelDevice::ModelDevice() {
  const soft_program_t &program = small_program();
  for (uint32_t i = 0; i < program.table_count; ++i) {
    const soft_table_t &description = program.tables[i];
    ModelTable &table = tables[description.handle];
    table.description = &description;
    table.members = description.action_data_table;
    table.selector = table.members == kMembers ? kSelector : 0;
    table.defaults[0] = table.declared_default();
    table.capacity = description.size;
  }
  capacity[kMembers] = program.profiles[0].most_members;
  capacity[kSelector] = program.profiles[0].most_groups;
  tables[kHost].counter = kHostCount;
  tables[kAcl].counter = kRuleCount;
  tables[kAcl].meter = kAclMeter;
}

const std::vector<const soft_action_t *> ModelTable::actions() const {
  const soft_action_t *first = description->actions;
  uint32_t count = description->action_count;
  if (members != 0) {
    first = small_program().profiles[0].actions;
    count = 2;
  }
  std::vector<const soft_action_t *> all;
  for (uint32_t i = 0; i < count; ++i) all.push_back(first + i);
  return all;
}

std::optional<ModelEntry> ModelTable::declared_default() const {
  const soft_default_t *declared = description->default_entry;
  if (declared == nullptr) return std::nullopt;
  ModelEntry entry;
  entry.action = declared->action;
  for (const soft_action_t *action : actions()) {
    if (action->handle != entry.action) continue;
    entry.data.assign(declared->data, declared->data + action->data_bytes);
  }
  for (uint32_t i = 0; i < declared->cell_count; ++i) {
    entry.resources[declared->cells[i].resource] = declared->cells[i].index;
  }
  return entry;
}

ModelEntry *ModelTable::look_up(const Bytes &key, uint32_t pipe) {
  ModelEntry *best = nullptr;
  for (ModelEntry &entry : entries) {
    Bytes mask = entry.mask;
    for (size_t i = 0; i < mask.size() && description->compared != nullptr; ++i) {
      mask[i] &= description->compared[i];
    }
    if (!entry.is_in(pipe) || !agree(entry.value, key, mask)) continue;
    if (best == nullptr || entry.priority < best->priority) best = &entry;
  }
  return best;
}

bf_status_t ModelTable::admit(uint32_t *ttl) const {
  if (!ageing || ageing->mode != PIPE_IDLE_NOTIFY) return BF_SUCCESS;
  if (*ttl == 0) {
    *ttl = ageing->default_ttl_ms;
    return BF_SUCCESS;
  }
  const bool too_long = ageing->max_ttl_ms != 0 && *ttl > ageing->max_ttl_ms;
  return too_long || *ttl < ageing->min_ttl_ms ? BF_INVALID_ARGUMENT : BF_SUCCESS;
}

bf_status_t ModelTable::apply(const std::vector<pipe_mgr_resource_t> &resources,
                              ModelEntry *entry) const {
  for (const pipe_mgr_resource_t &resource : resources) {
    const uint32_t handle = resource.handle;
    const bool foreign =
        (handle == kHostCount || handle == kRuleCount || handle == kAclMeter) && !is_direct(handle);
    if (handle == 0x04000099) return BF_INVALID_HANDLE;
    if (foreign || resource.tag > PIPE_RESOURCE_DETACH) return BF_INVALID_ARGUMENT;
    const bool attaches = resource.tag == PIPE_RESOURCE_ATTACH;
    if (attaches && resource.index >= SOFT_COUNTER_CELLS) return BF_INVALID_ARGUMENT;
    if (resource.tag == PIPE_RESOURCE_DETACH) entry->resources.erase(handle);
    if (attaches) entry->resources[handle] = resource.index;
    if (entry->resources.size() > PIPE_RESOURCES_PER_ACTION) return BF_INVALID_ARGUMENT;
    const pipe_mgr_meter_spec_t &meter_data = resource.data.meter;
    if (attaches && handle == meter && meter_data.peak_rate.unit != PIPE_RATE_BYTES) {
      return BF_INVALID_ARGUMENT;
    }
    if (resource.tag == PIPE_RESOURCE_KEEP) continue;
    if (handle == counter) entry->counter = {};
    if (handle == counter && attaches) {
      entry->counter.software = {resource.data.counter.packets, resource.data.counter.bytes};
    }
    if (handle == meter) entry->meter = {};
    if (handle == meter && attaches) entry->meter.spec = meter_data;
  }
  return BF_SUCCESS;
}

uint64_t ModelDevice::cost(uint32_t meter, const Count &traffic) const {
  if (meter == kFlowMeter) return traffic.packets * 1000;
  const auto at = adjustments.find(meter);
  const int64_t each = at == adjustments.end() ? 0 : at->second;
  const int64_t bytes =
      static_cast<int64_t>(traffic.bytes) + each * static_cast<int64_t>(traffic.packets);
  return static_cast<uint64_t>(std::max<int64_t>(bytes, 0)) * 8;
}

size_t ModelDevice::uses(uint32_t type, uint32_t action_data_table, uint32_t reference) const {
  size_t count = 0;
  const auto add = [&](const ModelEntry &entry) {
    if (entry.type == type && entry.reference == reference) ++count;
  };
  for (const auto &[handle, table] : tables) {
    if (table.members != action_data_table) continue;
    for (const ModelEntry &entry : table.entries) add(entry);
    for (const auto &entry : table.defaults) {
      if (entry) add(*entry);
    }
  }
  if (type != PIPE_ACTION_MEMBER || action_data_table != kMembers) return count;
  for (const auto &[handle, group] : groups) count += group.members.count(reference);
  return count + (fallback == reference ? 1 : 0);
}

uint32_t ModelDevice::choose(uint32_t group, const Bytes &hash) const {
  Words active;
  for (const auto &[member, is_active] : groups.at(group).members) {
    if (is_active) active.push_back(member);
  }
  if (active.empty()) return fallback;
  size_t remainder = 0;
  for (const uint8_t byte : hash) remainder = (remainder * 256 + byte) % active.size();
  return active[remainder];
}

soft_hit_t ModelDevice::pass(ModelTable &table, uint32_t pipe, const Bytes &key,
                             const Count &traffic, const Bytes &hash) {
  ModelEntry *entry = table.look_up(key, pipe);
  soft_hit_t hit{};
  hit.is_default = entry == nullptr;
  if (entry == nullptr) entry = table.default_in(pipe);
  const uint64_t now = this->now();
  entry->hit(now);
  hit.entry = entry->handle;
  for (const auto &[handle, index] : entry->resources) {
    uint8_t color = SOFT_COLOR_GREEN;
    if (handle == table.counter) entry->counter.hardware.add(traffic);
    if (handle == kAclCount) counters[{pipe, index}].hardware.add(traffic);
    if (handle == table.meter) color = entry->meter.mark(cost(handle, traffic), now);
    const auto cell = meters.find({handle, pipe, index});
    if (cell != meters.end()) color = cell->second.mark(cost(handle, traffic), now);
    hit.color = std::max(hit.color, color);
  }
  if (entry->type == PIPE_ACTION_DATA) {
    hit.action = entry->action;
    return hit;
  }
  hit.group = entry->type == PIPE_ACTION_GROUP ? entry->reference : 0;
  hit.member = hit.group != 0 ? choose(hit.group, hash) : entry->reference;
  if (hit.member != 0) hit.action = profiles[table.members].at(hit.member).action;
  return hit;
}

}  // namespace soft_test
