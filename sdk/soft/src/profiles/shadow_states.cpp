#include "profiles/shadow_states.hpp"

#include <forward_list>

namespace soft {
namespace {

// All states of the process: nobody gives one back.
struct States {
  std::mutex mutex;
  std::forward_list<p4_pd_ms_state> list;
};

States &states() {
  static States *const instance = new States;
  return *instance;
}

}  // namespace

p4_pd_ms_state_t *new_shadow_state() {
  const std::lock_guard lock(states().mutex);
  return &states().list.emplace_front();
}

ShadowCopy::ShadowCopy(uint8_t from, uint8_t to) : to_(to) {
  const std::lock_guard states_lock(states().mutex);
  for (p4_pd_ms_state_t &state : states().list) {
    Copy &copy = copies_.emplace_back(Copy{&state, {}});
    const std::lock_guard lock(state.mutex);
    const auto held = state.devices.find(from);
    if (held != state.devices.end()) copy.shadow.emplace(to, held->second);
  }
}

void ShadowCopy::commit() noexcept {
  for (Copy &copy : copies_) {
    const std::lock_guard lock(copy.state->mutex);
    copy.state->devices.erase(to_);
    copy.state->devices.merge(copy.shadow);
  }
}

}  // namespace soft
