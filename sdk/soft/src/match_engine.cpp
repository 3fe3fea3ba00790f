// A match table: entries by handle and by key, and what the program says of the table.
#include "match_engine.hpp"

#include <mutex>

namespace soft {
namespace {

EntryLayout layout_of(const soft_table_t &table, bool counter, bool meter) {
  EntryLayout layout = EntryLayout::of(table);
  layout.direct_counter = counter;
  layout.direct_meter = meter;
  layout.resources = static_cast<uint8_t>((counter ? 1 : 0) + (meter ? 1 : 0));
  return layout;
}

// The handle of the direct counter or meter of a table, or 0.
template <class T>
pipe_object_handle_t direct_of(std::span<const T> all, pipe_object_handle_t table) {
  const auto it = std::ranges::find(all, table, &T::table);
  return it == all.end() ? 0 : it->handle;
}
pipe_object_handle_t counter_of(const soft_program_t &p, pipe_object_handle_t table) {
  return direct_of(described(p.counters, p.counter_count), table);
}
pipe_object_handle_t meter_of(const soft_program_t &p, pipe_object_handle_t table) {
  return direct_of(described(p.meters, p.meter_count), table);
}

const soft_profile_t *profile_of(const soft_program_t &p, const soft_table_t &table) {
  if (table.action_data_table == 0) return nullptr;
  const auto all = described(p.profiles, p.profile_count);
  const auto it =
      std::ranges::find(all, table.action_data_table, &soft_profile_t::action_data_table);
  return it == all.end() ? nullptr : &*it;
}

const EngineSet match_engines{
    EngineOrder::kTables, [](Device &device) {
      const soft_program_t &program = device.program();
      for (const soft_table_t &table : described(program.tables, program.table_count)) {
        device.add(std::make_unique<MatchEngine>(device, table));
      }
    }};

}  // namespace

MatchEngine::MatchEngine(Device &device, const soft_table_t &table)
    : ObjectOf(table.handle),
      device_(device),
      description_(table),
      actions_(described(table.actions, table.action_count)),
      profile_(profile_of(device.program(), table)),
      direct_counter_(counter_of(device.program(), table.handle)),
      direct_meter_(meter_of(device.program(), table.handle)),
      entries_(table, layout_of(table, direct_counter_ != 0, direct_meter_ != 0)),
      defaults_(1) {
  if (profile_ != nullptr) actions_ = described(profile_->actions, profile_->action_count);
  defaults_[0] = declared_default();
}

// ---- Changes ----

bf_status_t MatchEngine::add(pipe_session_handle_t session, bf_pipe_id_t pipe,
                             const pipe_mgr_match_spec_t *match, pipe_object_handle_t action,
                             const pipe_mgr_action_spec_t *spec, uint32_t ttl,
                             pipe_entry_handle_t *entry) {
  if (entry == nullptr) return BF_INVALID_ARGUMENT;
  return update(session, PIPE_UPDATE_ADD, [&](pipe_entry_handle_t *added) {
    bf_status_t status = check_key(match);
    if (status != BF_SUCCESS) return status;
    Checked checked;
    status = check_action(action, spec, &checked);
    if (status != BF_SUCCESS) return status;
    status = insert(key_of(*match, pipe), checked, ttl, added);
    if (status == BF_SUCCESS) *entry = *added;
    return status;
  });
}

// A key that is there already is the answer also when the table is full.
bf_status_t MatchEngine::insert(const EntryKey &key, Checked &checked, uint32_t ttl,
                                pipe_entry_handle_t *entry) {
  if (const bf_status_t status = admit_ttl(&ttl); status != BF_SUCCESS) return status;
  if (capacity_ != 0 && entries_.count() >= capacity_) {
    const bool there = entries_.find(key, entry) == BF_SUCCESS;
    return there && entries_.duplicate_check() ? BF_ALREADY_EXISTS : BF_TABLE_FULL;
  }
  const EntryAction &action = checked.action;
  bf_status_t status = acquire_reference(action);
  if (status != BF_SUCCESS) return status;
  status = entries_.add(key, action, ttl, soft_clock_now(), entry);
  if (status != BF_SUCCESS) {
    release_reference(action.type, action.reference);
    return status;
  }
  ++*count_of(key.pipe);
  if (checked.resources.empty()) return BF_SUCCESS;
  status = store_resources(*entry, checked);
  if (status != BF_SUCCESS) erase(*entry);
  return status;
}

bf_status_t MatchEngine::set_action(pipe_session_handle_t session, const Name &name,
                                    pipe_object_handle_t action,
                                    const pipe_mgr_action_spec_t *spec) {
  return update(session, PIPE_UPDATE_MODIFY, [&](pipe_entry_handle_t *entry) {
    const bf_status_t status = locate(name, entry);
    return status == BF_SUCCESS ? replace(*entry, action, spec) : status;
  });
}

// Direct resources that the action spec does not name stay; indirect ones go with the action that
// named them.
bf_status_t MatchEngine::replace(pipe_entry_handle_t entry, pipe_object_handle_t action,
                                 const pipe_mgr_action_spec_t *spec) {
  const auto keep = [&](const ResourceList &list) {
    return list.those([&](pipe_object_handle_t resource) { return is_direct(resource); });
  };
  Checked checked;
  if (DefaultEntry *found = default_of(entry)) {
    checked.resources = keep(found->resources);
    const bf_status_t status = check_action(action, spec, &checked);
    if (status != BF_SUCCESS) return status;
    return store_default(defaults_[index_of_default(entry)], checked);
  }
  EntryView view;
  bf_status_t status = entries_.get(entry, &view);
  if (status != BF_SUCCESS) return status;
  checked.resources = keep(resources_of(entry, view));
  status = check_action(action, spec, &checked);
  if (status != BF_SUCCESS) return status;
  const uint32_t old_type = view.type;
  const uint32_t old_reference = view.reference;
  status = acquire_reference(checked.action);
  if (status != BF_SUCCESS) return status;
  if (status = store_resources(entry, checked); status == BF_SUCCESS) {
    const ResourceList inside = checked.resources.those(
        [&](pipe_object_handle_t r) { return counts_here(r) || meters_here(r); });
    checked.action.resources = inside.all();
    status = entries_.set_action(entry, checked.action);
  }
  const bool changed = status == BF_SUCCESS;
  release_reference(changed ? old_type : checked.action.type,
                    changed ? old_reference : checked.action.reference);
  return status;
}

bf_status_t MatchEngine::remove(pipe_session_handle_t session, const Name &name) {
  return update(session, PIPE_UPDATE_DELETE, [&](pipe_entry_handle_t *entry) {
    const bf_status_t status = locate(name, entry);
    if (status != BF_SUCCESS) return status;
    return default_of(*entry) != nullptr ? bf_status_t{BF_NOT_SUPPORTED} : erase(*entry);
  });
}

bf_status_t MatchEngine::erase(pipe_entry_handle_t entry) {
  EntryView view;
  const bf_status_t status = entries_.get(entry, &view);
  if (status != BF_SUCCESS) return status;
  release_reference(view.type, view.reference);
  --*count_of(view.pipe);
  beside_.forget(entry);
  if (!marked_idle_.empty()) marked_idle_.erase(entry);
  if (!buckets_.empty()) buckets_.erase(entry);
  return entries_.erase(entry);
}

// ---- By key ----

bf_status_t MatchEngine::find(bf_pipe_id_t pipe, const pipe_mgr_match_spec_t *match,
                              pipe_entry_handle_t *entry) {
  if (entry == nullptr) return BF_INVALID_ARGUMENT;
  const std::shared_lock lock(mutex_);
  return locate({0, match, pipe}, entry);
}

bf_status_t MatchEngine::locate(const Name &name, pipe_entry_handle_t *entry) const {
  if (name.handle != 0) {
    *entry = name.handle;
    return BF_SUCCESS;
  }
  if (const bf_status_t status = check_key(name.match); status != BF_SUCCESS) return status;
  return entries_.find(key_of(*name.match, name.pipe), entry);
}

bf_status_t MatchEngine::check_key(const pipe_mgr_match_spec_t *match) const {
  if (description_.key_bytes == 0) return BF_NOT_SUPPORTED;
  if (match == nullptr || match->scope != 0) return BF_INVALID_ARGUMENT;
  if (match->value == nullptr || match->mask == nullptr) return BF_INVALID_ARGUMENT;
  if (match->byte_count != description_.key_bytes) return BF_WRONG_LENGTH;
  return match->valid_bit_count == description_.key_bits ? BF_SUCCESS : BF_WRONG_LENGTH;
}

EntryKey MatchEngine::key_of(const pipe_mgr_match_spec_t &match, bf_pipe_id_t pipe) const {
  return {match.value, match.mask, match.priority, scope_ == 0 ? BF_ALL_PIPES : pipe};
}

uint64_t MatchEngine::memory_bytes() {
  const std::shared_lock lock(mutex_);
  return sizeof(*this) - sizeof(entries_) + entries_.memory_bytes() + beside_.memory_bytes();
}

}  // namespace soft
