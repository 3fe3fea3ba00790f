#include "frame.hpp"

#include "codec/bytes.hpp"
#include "device_state.hpp"

namespace pd {

namespace {

// Behind the clients that the profiles' contents depend on.
constexpr uint32_t client_priority = 2;

}  // namespace

p4_pd_status_t initialize(uint32_t *client) {
  p4_pd_ms_init();
  for (uint32_t i = 0; i < program.profile_count; ++i) {
    if (profile_states[i] == nullptr) profile_states[i] = p4_pd_ms_init_state();
    if (profile_states[i] == nullptr) return P4_PD_NO_MEMORY;
  }
  if (bf_drv_register(program.client_name, client) != BF_SUCCESS) return P4_PD_DRIVER_REFUSED;
  bf_drv_client_callbacks_t callbacks;
  clear(callbacks);
  callbacks.device_remove = device_remove;
  callbacks.device_log = device_log;
  callbacks.device_restore = device_restore;
  return bf_drv_client_register_callbacks(*client, &callbacks, client_priority);
}

p4_pd_status_t clean_up(uint32_t client) { return bf_drv_deregister(client); }

}  // namespace pd
