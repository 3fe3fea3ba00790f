// A match table: its default entries.
#include "tables/match_engine.hpp"

#include <mutex>
#include <utility>

namespace soft {
namespace {

// Handles of default entries have zeroes where those of entries hold a slot number, which is never
// zero; above them stands which default entry it is.
constexpr uint32_t kSlotMask = (1u << SlotStore::kSlotBits) - 1;
constexpr pipe_entry_handle_t kFirstDefault = 0x80000000u;

}  // namespace

pipe_entry_handle_t MatchEngine::default_handle_at(size_t index) {
  return kFirstDefault + (static_cast<uint32_t>(index) << SlotStore::kSlotBits);
}

size_t MatchEngine::index_of_default(pipe_entry_handle_t entry) {
  return (entry - kFirstDefault) >> SlotStore::kSlotBits;
}

bool MatchEngine::is_default_handle(pipe_entry_handle_t entry) {
  return entry >= kFirstDefault && (entry & kSlotMask) == 0;
}

const MatchEngine::DefaultEntry *MatchEngine::default_of(pipe_entry_handle_t entry) const {
  if (!is_default_handle(entry)) return nullptr;
  const size_t index = index_of_default(entry);
  return index < defaults_.size() && defaults_[index] ? &*defaults_[index] : nullptr;
}

MatchEngine::DefaultEntry *MatchEngine::default_of(pipe_entry_handle_t entry) {
  return const_cast<DefaultEntry *>(std::as_const(*this).default_of(entry));
}

// Of the default entry that a call for this pipe sets.
size_t MatchEngine::default_index(bf_pipe_id_t pipe) const {
  return scope_ == 0 || pipe == BF_ALL_PIPES ? 0 : size_t{pipe} + 1;
}

// The default entry that a packet in this pipe meets.
bf_status_t MatchEngine::default_at(bf_pipe_id_t pipe, size_t *index) const {
  *index = default_index(pipe);
  if (!defaults_[*index]) *index = 0;
  return defaults_[*index] ? BF_SUCCESS : BF_OBJECT_NOT_FOUND;
}

std::optional<MatchEngine::DefaultEntry> MatchEngine::declared_default() const {
  const soft_default_t *declared = description_.default_entry;
  if (declared == nullptr) return std::nullopt;
  DefaultEntry entry;
  entry.action = declared->action;
  entry.data.assign(declared->data, declared->data + action_of(declared->action)->data_bytes);
  for (const soft_cell_t &cell : described(declared->cells, declared->cell_count)) {
    entry.resources.attach({cell.resource, cell.index});
  }
  return entry;
}

EntryAction MatchEngine::action_of(const DefaultEntry &entry) {
  return {entry.action, entry.type, entry.data, entry.reference, {}};
}

// place may hold the entry before; its direct cells stay unless the action spec names them.
bf_status_t MatchEngine::store_default(std::optional<DefaultEntry> &place, const Checked &checked) {
  DefaultEntry fresh = place.value_or(DefaultEntry{});
  fresh.action = checked.action.action;
  fresh.type = checked.action.type;
  fresh.data.assign(checked.action.data.begin(), checked.action.data.end());
  fresh.reference = checked.action.reference;
  fresh.resources = checked.resources;
  const bf_status_t status = acquire_reference(checked.action);
  if (status != BF_SUCCESS) return status;
  if (place) release_reference(place->type, place->reference);
  place = std::move(fresh);
  store_cells(default_handle_at(static_cast<size_t>(&place - defaults_.data())), checked);
  return BF_SUCCESS;
}

bf_status_t MatchEngine::set_default(pipe_session_handle_t session, bf_pipe_id_t pipe,
                                     pipe_object_handle_t action,
                                     const pipe_mgr_action_spec_t *spec,
                                     pipe_entry_handle_t *entry) {
  return update(session, PIPE_UPDATE_SET_DEFAULT, [&](pipe_entry_handle_t *changed) {
    Checked checked;
    bf_status_t status = check_default_action(action, spec, &checked);
    if (status != BF_SUCCESS) return status;
    const size_t index = default_index(pipe);
    status = store_default(defaults_[index], checked);
    if (status == BF_SUCCESS) *entry = *changed = default_handle_at(index);
    return status;
  });
}

bf_status_t MatchEngine::reset_default(pipe_session_handle_t session, bf_pipe_id_t pipe) {
  return update(session, PIPE_UPDATE_RESET_DEFAULT, [&](pipe_entry_handle_t *changed) {
    const size_t index = default_index(pipe);
    std::optional<DefaultEntry> declared = declared_default();
    std::optional<DefaultEntry> &place = defaults_[index];
    if (place) release_reference(place->type, place->reference);
    place = std::move(declared);
    *changed = default_handle_at(index);
    return bf_status_t{BF_SUCCESS};
  });
}

bf_status_t MatchEngine::default_handle(bf_pipe_id_t pipe, pipe_entry_handle_t *entry) {
  const std::shared_lock lock(mutex_);
  size_t index = 0;
  const bf_status_t status = default_at(pipe, &index);
  if (status == BF_SUCCESS) *entry = default_handle_at(index);
  return status;
}

bf_status_t MatchEngine::read_default(bf_pipe_id_t pipe, pipe_mgr_action_spec_t *spec,
                                      pipe_object_handle_t *action) {
  const std::shared_lock lock(mutex_);
  size_t index = 0;
  bf_status_t status = default_at(pipe, &index);
  if (status != BF_SUCCESS) return status;
  const DefaultEntry &found = *defaults_[index];
  status = fill_action(action_of(found), found.resources, default_handle_at(index), spec);
  if (status == BF_SUCCESS) *action = found.action;
  return status;
}

}  // namespace soft
