// A match table: ageing on the virtual clock.
//
// Times to live are kept also while ageing is off. In notify mode an entry is active until it was
// idle for its time to live at a sweep; then it is reported once and idle until it is hit again. In
// poll mode an entry is active until the client marks it idle. Entries start active in both.
#include "tables/match_engine.hpp"

#include <mutex>

namespace soft {

// ---- Switching ----

bf_status_t MatchEngine::start_ageing(const pipe_mgr_idle_params_t &params) {
  if (!description_.ages_entries) return BF_NOT_SUPPORTED;
  if (params.mode > PIPE_IDLE_NOTIFY) return BF_INVALID_ARGUMENT;
  const uint32_t greatest = params.max_ttl_ms == 0 ? UINT32_MAX : params.max_ttl_ms;
  const uint32_t preset = params.default_ttl_ms;
  if (params.mode == PIPE_IDLE_NOTIFY &&
      (params.min_ttl_ms > greatest ||
       (preset != 0 && (preset < params.min_ttl_ms || preset > greatest)))) {
    return BF_INVALID_ARGUMENT;
  }
  const std::lock_guard lock(mutex_);
  const uint64_t now = now_ms();
  ageing_ = true;
  ageing_params_ = params;
  ageing_since_ms_ = swept_ms_ = std::max(now, swept_ms_);
  marked_idle_.clear();
  entries_->each([&](pipe_entry_handle_t entry) {
    EntryView view;
    entries_->get(entry, &view);
    uint32_t ttl = view.ttl_ms;
    if (params.mode == PIPE_IDLE_NOTIFY) {
      ttl = ttl == 0 ? preset : std::clamp(ttl, params.min_ttl_ms, greatest);
    }
    entries_->set_ttl(entry, ttl, now);
  });
  return BF_SUCCESS;
}

bf_status_t MatchEngine::stop_ageing() {
  if (!description_.ages_entries) return BF_NOT_SUPPORTED;
  const std::lock_guard lock(mutex_);
  ageing_ = false;
  return BF_SUCCESS;
}

bf_status_t MatchEngine::ageing(pipe_mgr_idle_params_t *params) {
  if (!description_.ages_entries) return BF_NOT_SUPPORTED;
  if (params == nullptr) return BF_INVALID_ARGUMENT;
  const std::shared_lock lock(mutex_);
  if (!ageing_) return BF_NOT_READY;
  *params = ageing_params_;
  return BF_SUCCESS;
}

bf_status_t MatchEngine::listen_to_expiry(pipe_mgr_idle_cb_t callback, void *client_data) {
  if (!description_.ages_entries) return BF_NOT_SUPPORTED;
  const std::lock_guard lock(mutex_);
  expiry_listener_ = {callback, client_data};
  return BF_SUCCESS;
}

// ---- Entries ----

// Puts the default in for 0 and refuses what the limits of the table do not allow.
bf_status_t MatchEngine::admit_ttl(uint32_t *ttl) const {
  if (!ageing_ || ageing_params_.mode != PIPE_IDLE_NOTIFY) return BF_SUCCESS;
  if (*ttl == 0) {
    *ttl = ageing_params_.default_ttl_ms;
    return BF_SUCCESS;
  }
  const bool too_long = ageing_params_.max_ttl_ms != 0 && *ttl > ageing_params_.max_ttl_ms;
  return too_long || *ttl < ageing_params_.min_ttl_ms ? BF_INVALID_ARGUMENT : BF_SUCCESS;
}

bf_status_t MatchEngine::set_ttl(pipe_entry_handle_t entry, uint32_t ttl, bool restart_only) {
  if (!description_.ages_entries) return BF_NOT_SUPPORTED;
  const std::lock_guard lock(mutex_);
  if (!entries_->contains(entry)) return BF_OBJECT_NOT_FOUND;
  if (!restart_only) {
    if (const bf_status_t status = admit_ttl(&ttl); status != BF_SUCCESS) return status;
    entries_->set_ttl(entry, ttl, now_ms());
  }
  note_hit(entry);
  return BF_SUCCESS;
}

bf_status_t MatchEngine::get_ttl(pipe_entry_handle_t entry, uint32_t *ttl) {
  if (!description_.ages_entries) return BF_NOT_SUPPORTED;
  if (ttl == nullptr) return BF_INVALID_ARGUMENT;
  const std::shared_lock lock(mutex_);
  EntryView view;
  const bf_status_t status = entries_->get(entry, &view);
  if (status == BF_SUCCESS) *ttl = view.ttl_ms;
  return status;
}

bf_status_t MatchEngine::set_hit_state(pipe_entry_handle_t entry, uint32_t state) {
  if (!description_.ages_entries) return BF_NOT_SUPPORTED;
  if (state > PIPE_ENTRY_ACTIVE) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  if (!ageing_) return BF_NOT_READY;
  if (!entries_->contains(entry)) return BF_OBJECT_NOT_FOUND;
  if (state == PIPE_ENTRY_ACTIVE) {
    note_hit(entry);
  } else {
    marked_idle_.insert(entry);
  }
  return BF_SUCCESS;
}

bf_status_t MatchEngine::get_hit_state(pipe_entry_handle_t entry, uint32_t *state) {
  if (!description_.ages_entries) return BF_NOT_SUPPORTED;
  if (state == nullptr) return BF_INVALID_ARGUMENT;
  const std::shared_lock lock(mutex_);
  if (!ageing_) return BF_NOT_READY;
  EntryView view;
  const bf_status_t status = entries_->get(entry, &view);
  if (status == BF_SUCCESS) *state = is_idle(entry, view) ? PIPE_ENTRY_IDLE : PIPE_ENTRY_ACTIVE;
  return status;
}

bool MatchEngine::is_idle(pipe_entry_handle_t entry, const EntryView &view) const {
  return view.expired || marked_idle_.contains(entry);
}

void MatchEngine::note_hit(pipe_entry_handle_t entry) {
  entries_->hit(entry, now_ms());
  if (!marked_idle_.empty()) marked_idle_.erase(entry);
}

// ---- Sweeps ----

// The last moment up to now_ms at which the entries are looked at.
uint64_t MatchEngine::sweep_time(uint64_t now_ms) const {
  const uint64_t interval = ageing_params_.sweep_interval_ms;
  if (interval == 0 || now_ms < ageing_since_ms_) return now_ms;
  return now_ms - (now_ms - ageing_since_ms_) % interval;
}

// Expired entries are taken in lots, so that no memory is needed and no callback runs under the
// lock. A callback may delete entries of its lot; those are not reported.
void MatchEngine::clock_advanced(uint64_t now_ms) {
  constexpr size_t kLot = 256;
  std::array<pipe_entry_handle_t, kLot> lot;
  size_t taken = kLot;
  while (taken == kLot) {
    taken = 0;
    Listener<pipe_mgr_idle_cb_t> listener;
    {
      const std::lock_guard lock(mutex_);
      if (!ageing_ || ageing_params_.mode != PIPE_IDLE_NOTIFY) return;
      const uint64_t time = sweep_time(now_ms);
      if (time < swept_ms_) return;
      swept_ms_ = time;
      listener = expiry_listener_;
      while (taken < kLot) {
        const pipe_entry_handle_t entry = entries_->next_expired(time);
        if (entry == 0) break;
        if (!marked_idle_.contains(entry)) lot[taken++] = entry;
      }
    }
    if (listener.callback == nullptr) continue;
    for (size_t i = 0; i < taken; ++i) {
      {
        const std::shared_lock lock(mutex_);
        if (!entries_->contains(lot[i])) continue;
      }
      listener.notify(device_.id(), handle(), lot[i]);
    }
  }
}

}  // namespace soft
