// A match table: entries by handle and by key, and what the program says of the table.
#include "tables/match_engine.hpp"

#include <mutex>

namespace soft {
namespace {

// The handle of the direct counter or meter of a table, or 0.
template <class T>
pipe_object_handle_t direct_of(std::span<const T> all, pipe_object_handle_t table) {
  const T *direct = described_as(all, table, &T::table);
  return direct == nullptr ? 0 : direct->handle;
}

const soft_profile_t *profile_of(const soft_program_t &p, const soft_table_t &table) {
  return described_as(described(p.profiles, p.profile_count), table.action_data_table,
                      &soft_profile_t::action_data_table);
}

const EngineSet match_engines{
    EngineOrder::kTables,
    add_all<MatchEngine, &soft_program_t::tables, &soft_program_t::table_count>};

}  // namespace

MatchEngine::MatchEngine(Device &device, const soft_table_t &table)
    : ObjectOf(table.handle),
      device_(device),
      description_(table),
      actions_(described(table.actions, table.action_count)),
      profile_(profile_of(device.program(), table)),
      direct_counter_(direct_of(
          described(device.program().counters, device.program().counter_count), table.handle)),
      direct_meter_(direct_of(described(device.program().meters, device.program().meter_count),
                              table.handle)),
      entries_(new_table()),
      defaults_(1),
      capacity_(table.size) {
  if (profile_ != nullptr) actions_ = described(profile_->actions, profile_->action_count);
  defaults_[0] = declared_default();
}

std::unique_ptr<MatchTable> MatchEngine::new_table() const {
  EntryLayout layout = EntryLayout::of(description_);
  layout.direct_counter = direct_counter_ != 0;
  layout.direct_meter = direct_meter_ != 0;
  layout.resources = static_cast<uint8_t>(layout.direct_counter + layout.direct_meter);
  return std::make_unique<MatchTable>(description_, layout);
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
    const EntryKey key = key_of(*match, pipe);
    entries_->prefetch(key);
    Checked checked;
    status = check_entry_action(action, spec, &checked);
    if (status != BF_SUCCESS) return status;
    status = insert(key, checked, ttl, added);
    if (status == BF_SUCCESS) *entry = *added;
    return status;
  });
}

// A key that is there already is the answer also when the table is full.
bf_status_t MatchEngine::insert(const EntryKey &key, Checked &checked, uint32_t ttl,
                                pipe_entry_handle_t *entry) {
  if (const bf_status_t status = admit_ttl(&ttl); status != BF_SUCCESS) return status;
  if (capacity_ != 0 && entries_->count() >= capacity_) {
    const bool there = entries_->find(key, entry) == BF_SUCCESS;
    return there && entries_->duplicate_check() ? BF_ALREADY_EXISTS : BF_TABLE_FULL;
  }
  const EntryAction &action = checked.action;
  bf_status_t status = acquire_reference(action);
  if (status != BF_SUCCESS) return status;
  status = entries_->add(key, action, ttl, now_ms(), entry);
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
    const bf_status_t status = check_default_action(action, spec, &checked);
    if (status != BF_SUCCESS) return status;
    return store_default(defaults_[index_of_default(entry)], checked);
  }
  EntryView view;
  bf_status_t status = entries_->get(entry, &view);
  if (status != BF_SUCCESS) return status;
  checked.resources = keep(resources_of(entry, view));
  status = check_entry_action(action, spec, &checked);
  if (status != BF_SUCCESS) return status;
  const uint32_t old_type = view.type;
  const uint32_t old_reference = view.reference;
  status = acquire_reference(checked.action);
  if (status != BF_SUCCESS) return status;
  if (status = store_resources(entry, checked); status == BF_SUCCESS) {
    const ResourceList inside = cells_of(checked.resources);
    checked.action.resources = inside.all();
    status = entries_->set_action(entry, checked.action);
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
  const bf_status_t status = entries_->get(entry, &view);
  if (status != BF_SUCCESS) return status;
  release_reference(view.type, view.reference);
  --*count_of(view.pipe);
  beside_.forget(entry);
  if (!marked_idle_.empty()) forget(marked_idle_, entry);
  if (!buckets_.empty()) forget(buckets_, entry);
  return entries_->erase(entry);
}

// ---- By key ----

bf_status_t MatchEngine::find(bf_pipe_id_t pipe, const pipe_mgr_match_spec_t *match,
                              pipe_entry_handle_t *entry) {
  const std::shared_lock lock(mutex_);
  return locate({{}, match, pipe}, entry);
}

bf_status_t MatchEngine::locate(const Name &name, pipe_entry_handle_t *entry) const {
  if (name.handle) {
    *entry = *name.handle;
    return BF_SUCCESS;
  }
  if (const bf_status_t status = check_key(name.match); status != BF_SUCCESS) return status;
  return entries_->find(key_of(*name.match, name.pipe), entry);
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
  return sizeof(*this) + entries_->memory_bytes() + beside_.memory_bytes() +
         hashed_bytes(marked_idle_) + hashed_bytes(buckets_);
}

void MatchEngine::copy_from(Object &object) {
  MatchEngine &other = *object.as<MatchEngine>();
  const std::scoped_lock lock(mutex_, other.mutex_);
  ResourceLists beside = other.beside_;
  auto defaults = other.defaults_;
  auto marked_idle = other.marked_idle_;
  auto buckets = other.buckets_;
  auto entries = new_table();
  entries->copy_from(*other.entries_);

  entries_.swap(entries);
  std::swap(beside_, beside);
  defaults_.swap(defaults);
  marked_idle_.swap(marked_idle);
  buckets_.swap(buckets);
  pipe_counts_ = other.pipe_counts_;
  scope_ = other.scope_;
  capacity_ = other.capacity_;
  ageing_ = other.ageing_;
  ageing_params_ = other.ageing_params_;
  ageing_since_ms_ = other.ageing_since_ms_;
  swept_ms_ = other.swept_ms_;
}

void MatchEngine::inherit(Object &predecessor) noexcept {
  MatchEngine &old = *predecessor.as<MatchEngine>();
  const std::lock_guard lock(old.mutex_);
  listener_ = old.listener_;
  expiry_listener_ = old.expiry_listener_;
}

}  // namespace soft
