// A match table: what its entries may do, and the resources that they refer to.
#include "tables/match_engine.hpp"

#include <mutex>

#include "profiles/action_data_table.hpp"
#include "soft_state.h"
#include "soft_traffic.h"

namespace soft {
namespace {

constexpr pipe_object_handle_t kCounterKind = 0x04;
constexpr pipe_object_handle_t kMeterKind = 0x05;
constexpr pipe_object_handle_t kRegisterKind = 0x06;

// An indirect resource of the program (carrier 0), or a direct one of the carrying table.
template <class T>
bf_status_t check_carrier(std::span<const T> all, pipe_object_handle_t handle,
                          pipe_object_handle_t table) {
  const T *found = described_as(all, handle);
  if (found == nullptr) return BF_INVALID_HANDLE;
  return found->table == 0 || found->table == table ? BF_SUCCESS : BF_INVALID_ARGUMENT;
}

// A cell that is attached must be one of the resource's; a direct one has none to name.
bool has_cell(const pipe_mgr_resource_t &resource) {
  if (resource.tag != PIPE_RESOURCE_ATTACH) return true;
  switch (resource.handle >> 24) {
    case kCounterKind:
      return resource.index < SOFT_COUNTER_CELLS;
    case kMeterKind:
      return resource.index < SOFT_METER_CELLS;
    default:
      return resource.index < SOFT_REGISTER_CELLS;
  }
}

bf_status_t check_resource(const soft_program_t &p, pipe_object_handle_t handle,
                           pipe_object_handle_t table) {
  switch (handle >> 24) {
    case kCounterKind:
      return check_carrier(described(p.counters, p.counter_count), handle, table);
    case kMeterKind:
      return check_carrier(described(p.meters, p.meter_count), handle, table);
    case kRegisterKind:
      return described_as(described(p.registers, p.register_count), handle) != nullptr
                 ? BF_SUCCESS
                 : BF_INVALID_HANDLE;
    default:
      return BF_INVALID_HANDLE;
  }
}

// A direct meter comes with its spec.
bf_status_t check_meter(const soft_program_t &p, const pipe_mgr_resource_t &resource) {
  const soft_meter_t *meter = described_as(described(p.meters, p.meter_count), resource.handle);
  return fits_meter(resource.data.meter, meter->unit) ? BF_SUCCESS : BF_INVALID_ARGUMENT;
}

}  // namespace

// The program does not tie registers to tables: one that an entry refers to is the entry's own.
bool MatchEngine::is_direct(pipe_object_handle_t resource) const {
  return has_cell_here(resource) || resource >> 24 == kRegisterKind;
}

const soft_action_t *MatchEngine::action_of(pipe_object_handle_t action) const {
  return described_as(actions_, action);
}

// checked->resources holds what the entry keeps from before.
bf_status_t MatchEngine::check_action(pipe_object_handle_t action,
                                      const pipe_mgr_action_spec_t *spec, Checked *checked) const {
  if (spec == nullptr) return BF_INVALID_ARGUMENT;
  const soft_action_t *declared = action_of(action);
  if (declared == nullptr) return BF_FOREIGN_ACTION;
  EntryAction &entry = checked->action;
  entry.action = action;
  entry.type = spec->type;
  if (description_.action_data_table == 0) {
    if (spec->type != PIPE_ACTION_DATA) return BF_INVALID_ARGUMENT;
    if (const bf_status_t status = check_data(spec->data, *declared); status != BF_SUCCESS) {
      return status;
    }
    entry.data = {spec->data.bytes, spec->data.byte_count};
  } else if (spec->type == PIPE_ACTION_MEMBER) {
    entry.reference = spec->member;
  } else if (spec->type == PIPE_ACTION_GROUP && profile_ != nullptr && profile_->selector != 0) {
    entry.reference = spec->group;
  } else {
    return BF_INVALID_ARGUMENT;
  }
  if (spec->resource_count > PIPE_RESOURCES_PER_ACTION) return BF_INVALID_ARGUMENT;
  return check_resources({spec->resources, spec->resource_count}, checked);
}

bf_status_t MatchEngine::check_entry_action(pipe_object_handle_t action,
                                            const pipe_mgr_action_spec_t *spec,
                                            Checked *checked) const {
  const bf_status_t status = check_action(action, spec, checked);
  if (status != BF_SUCCESS) return status;
  return action_of(action)->default_only ? BF_INVALID_ARGUMENT : BF_SUCCESS;
}

bf_status_t MatchEngine::check_default_action(pipe_object_handle_t action,
                                              const pipe_mgr_action_spec_t *spec,
                                              Checked *checked) const {
  const bf_status_t status = check_action(action, spec, checked);
  if (status != BF_SUCCESS || profile_ != nullptr) return status;
  return action_of(action)->may_be_default ? BF_SUCCESS : BF_INVALID_ARGUMENT;
}

bf_status_t MatchEngine::check_resources(std::span<const pipe_mgr_resource_t> resources,
                                         Checked *checked) const {
  for (const pipe_mgr_resource_t &resource : resources) {
    bf_status_t status = check_resource(device_.program(), resource.handle, handle());
    if (status != BF_SUCCESS) return status;
    if (!has_cell(resource)) return BF_INVALID_ARGUMENT;
    status = checked->resources.apply(resource);
    if (status != BF_SUCCESS) return status;
    if (resource.tag == PIPE_RESOURCE_ATTACH && meters_here(resource.handle)) {
      status = check_meter(device_.program(), resource);
      if (status != BF_SUCCESS) return status;
    }
    if (resource.tag == PIPE_RESOURCE_KEEP) continue;
    if (counts_here(resource.handle)) checked->counter = &resource;
    if (meters_here(resource.handle)) checked->meter = &resource;
  }
  return BF_SUCCESS;
}

// ---- Members and groups ----

Object *MatchEngine::owner_of(uint32_t type) const {
  return device_.find(type == PIPE_ACTION_MEMBER ? profile_->action_data_table
                                                 : profile_->selector);
}

bf_status_t MatchEngine::acquire_reference(const EntryAction &action) {
  if (action.type == PIPE_ACTION_DATA) return BF_SUCCESS;
  Object *owner = owner_of(action.type);
  return owner == nullptr ? bf_status_t{BF_NOT_SUPPORTED} : owner->acquire(action.reference);
}

void MatchEngine::release_reference(uint32_t type, uint32_t reference) {
  if (type == PIPE_ACTION_DATA) return;
  if (Object *owner = owner_of(type)) owner->release(reference);
}

// ---- Resources of entries ----

bf_status_t MatchEngine::set_resources(pipe_session_handle_t session, pipe_entry_handle_t entry,
                                       std::span<const pipe_mgr_resource_t> resources) {
  if (resources.size() > PIPE_RESOURCES_PER_ACTION) return BF_INVALID_ARGUMENT;
  return update(session, PIPE_UPDATE_MODIFY, [&](pipe_entry_handle_t *changed) {
    *changed = entry;
    Checked checked;
    bf_status_t status = get_resources(entry, &checked.resources);
    if (status == BF_SUCCESS) status = check_resources(resources, &checked);
    return status == BF_SUCCESS ? store_resources(entry, checked) : status;
  });
}

// Direct counter and meter stand in the entry, all else beside the table. The part that may run
// out of memory comes first.
bf_status_t MatchEngine::store_resources(pipe_entry_handle_t entry, const Checked &checked) {
  if (DefaultEntry *found = default_of(entry)) {
    found->resources = checked.resources;
    store_cells(entry, checked);
    return BF_SUCCESS;
  }
  try {
    beside_.set(entry, checked.resources.those([&](auto r) { return !has_cell_here(r); }));
  } catch (const std::bad_alloc &) {
    return BF_NO_MEMORY;
  }
  const ResourceList inside = cells_of(checked.resources);
  const bf_status_t status = entries_->set_resources(entry, inside.all());
  store_cells(entry, checked);
  return status;
}

void MatchEngine::store_cells(pipe_entry_handle_t entry, const Checked &checked) {
  EntryCounters counters{};
  pipe_mgr_meter_spec_t meter{};
  if (checked.counter != nullptr && checked.counter->tag == PIPE_RESOURCE_ATTACH) {
    counters.software = checked.counter->data.counter;
  }
  if (checked.meter != nullptr && checked.meter->tag == PIPE_RESOURCE_ATTACH) {
    meter = checked.meter->data.meter;
  }
  if (checked.meter != nullptr) buckets_.erase(entry);
  if (DefaultEntry *found = default_of(entry)) {
    if (checked.counter != nullptr) found->counters = counters;
    if (checked.meter != nullptr) found->meter = meter;
    return;
  }
  if (checked.counter != nullptr) entries_->set_counters(entry, counters);
  if (checked.meter != nullptr) entries_->set_meter(entry, meter);
}

ResourceList MatchEngine::resources_of(pipe_entry_handle_t entry, const EntryView &view) const {
  ResourceList list = beside_.of(entry);
  for (uint32_t i = 0; i < view.resource_count; ++i) list.attach(view.resources[i]);
  return list;
}

bf_status_t MatchEngine::get_resources(pipe_entry_handle_t entry, ResourceList *list) const {
  if (const DefaultEntry *found = default_of(entry)) {
    *list = found->resources;
    return BF_SUCCESS;
  }
  EntryView view;
  const bf_status_t status = entries_->get(entry, &view);
  if (status == BF_SUCCESS) *list = resources_of(entry, view);
  return status;
}

pipe_mgr_meter_spec_t MatchEngine::meter_of(pipe_entry_handle_t entry) const {
  if (const DefaultEntry *found = default_of(entry)) return found->meter;
  pipe_mgr_meter_spec_t meter{};
  entries_->get_meter(entry, &meter);
  return meter;
}

bf_status_t MatchEngine::get_meter(pipe_entry_handle_t entry, pipe_mgr_meter_spec_t *meter) {
  if (direct_meter_ == 0) return BF_NOT_SUPPORTED;
  const std::shared_lock lock(mutex_);
  ResourceList list;
  const bf_status_t status = get_resources(entry, &list);
  if (status != BF_SUCCESS) return status;
  if (!list.has(direct_meter_)) return BF_OBJECT_NOT_FOUND;
  *meter = meter_of(entry);
  return BF_SUCCESS;
}

}  // namespace soft
