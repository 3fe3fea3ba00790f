// A match table: read-back, enumeration and properties.
#include "tables/match_engine.hpp"

#include <cstring>
#include <mutex>

namespace soft {
// ---- Read-back ----

bf_status_t MatchEngine::read(pipe_entry_handle_t entry, pipe_mgr_match_spec_t *match,
                              pipe_mgr_action_spec_t *spec, pipe_object_handle_t *action) {
  const std::shared_lock lock(mutex_);
  if (const DefaultEntry *found = default_of(entry)) {
    const bf_status_t status = fill_action(action_of(*found), found->resources, entry, spec);
    if (status != BF_SUCCESS) return status;
    *match = {};
    *action = found->action;
    return BF_SUCCESS;
  }
  EntryView view;
  bf_status_t status = entries_->get(entry, &view);
  if (status != BF_SUCCESS) return status;
  if (match->value == nullptr || match->mask == nullptr) return BF_INVALID_ARGUMENT;
  if (match->byte_count < description_.key_bytes) return BF_WRONG_LENGTH;
  status = fill_action({view.action, view.type, view.data, view.reference, {}},
                       resources_of(entry, view), entry, spec);
  if (status != BF_SUCCESS) return status;
  *action = view.action;
  return fill_key(view, match);
}

bf_status_t MatchEngine::fill_key(const EntryView &view, pipe_mgr_match_spec_t *match) const {
  std::memcpy(match->value, view.value, description_.key_bytes);
  std::memcpy(match->mask, view.mask, description_.key_bytes);
  match->scope = 0;
  match->valid_bit_count = description_.key_bits;
  match->byte_count = description_.key_bytes;
  match->priority = view.priority;
  return BF_SUCCESS;
}

// The only thing that can fail is the caller's room for the data; nothing is written then.
bf_status_t MatchEngine::fill_action(const EntryAction &action, const ResourceList &resources,
                                     pipe_entry_handle_t entry,
                                     pipe_mgr_action_spec_t *spec) const {
  const auto length = static_cast<uint16_t>(
      action.type == PIPE_ACTION_DATA ? action_of(action.action)->data_bytes : 0);
  if (spec->data.bytes != nullptr && spec->data.byte_count < length) return BF_WRONG_LENGTH;
  if (spec->data.bytes != nullptr && length != 0) {
    std::memcpy(spec->data.bytes, action.data.data(), length);
  }
  spec->type = action.type;
  spec->data.byte_count = length;
  spec->data.valid_bit_count = length == 0 ? uint16_t{0} : action_of(action.action)->data_bits;
  spec->member = action.type == PIPE_ACTION_MEMBER ? action.reference : 0;
  spec->group = action.type == PIPE_ACTION_GROUP ? action.reference : 0;
  spec->resource_count = static_cast<uint32_t>(resources.all().size());
  for (uint32_t i = 0; i < spec->resource_count; ++i) {
    const EntryResource &held = resources.all()[i];
    spec->resources[i] = {held.handle, held.index, {}, PIPE_RESOURCE_ATTACH};
    if (meters_here(held.handle)) spec->resources[i].data.meter = meter_of(entry);
  }
  return BF_SUCCESS;
}

// ---- Enumeration ----

bf_status_t MatchEngine::entry_count(bf_pipe_id_t pipe, uint32_t *count) {
  const std::shared_lock lock(mutex_);
  if (scope_ == 0 || pipe == BF_ALL_PIPES) {
    *count = static_cast<uint32_t>(entries_->count());
  } else {
    *count = *count_of(pipe) + *count_of(BF_ALL_PIPES);
  }
  return BF_SUCCESS;
}

bf_status_t MatchEngine::first_entry(bf_pipe_id_t pipe, uint32_t *entry) {
  const std::shared_lock lock(mutex_);
  return entries_->first_in(scope_ == 0 ? BF_ALL_PIPES : pipe, entry);
}

bf_status_t MatchEngine::next_entries(bf_pipe_id_t pipe, uint32_t entry, uint32_t count,
                                      uint32_t *entries) {
  const std::shared_lock lock(mutex_);
  return entries_->next_in(scope_ == 0 ? BF_ALL_PIPES : pipe, entry, {entries, count});
}

// ---- Properties ----

bf_status_t MatchEngine::set_property(uint32_t property, uint32_t value, uint32_t argument) {
  if (argument != 0) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  switch (property) {
    case PIPE_TABLE_ENTRY_SCOPE:
      if (value > 1) return BF_INVALID_ARGUMENT;
      if (value == scope_) return BF_SUCCESS;
      // What the entries were meant for would change under them.
      if (entries_->count() != 0) return BF_IN_USE;
      for (size_t i = 1; i < defaults_.size(); ++i) {
        if (defaults_[i]) release_reference(defaults_[i]->type, defaults_[i]->reference);
      }
      defaults_.resize(value == 0 ? 1 : size_t{1} + device_.pipes());
      scope_ = value;
      return BF_SUCCESS;
    case PIPE_TABLE_DUPLICATE_CHECK:
      if (value > 1) return BF_INVALID_ARGUMENT;
      entries_->set_duplicate_check(value == 1);
      return BF_SUCCESS;
    case PIPE_TABLE_CAPACITY:
      capacity_ = value;
      return BF_SUCCESS;
    default:
      return BF_INVALID_ARGUMENT;
  }
}

bf_status_t MatchEngine::get_property(uint32_t property, uint32_t *value, uint32_t *argument) {
  const std::shared_lock lock(mutex_);
  switch (property) {
    case PIPE_TABLE_ENTRY_SCOPE:
      *value = scope_;
      break;
    case PIPE_TABLE_DUPLICATE_CHECK:
      *value = entries_->duplicate_check() ? 1 : 0;
      break;
    case PIPE_TABLE_CAPACITY:
      *value = capacity_;
      break;
    default:
      return BF_INVALID_ARGUMENT;
  }
  *argument = 0;
  return BF_SUCCESS;
}

bf_status_t MatchEngine::listen(pipe_mgr_mat_update_cb_t callback, void *cookie) {
  const std::lock_guard lock(mutex_);
  listener_ = {callback, cookie};
  return BF_SUCCESS;
}

}  // namespace soft
