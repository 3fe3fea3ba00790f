// Start-up and teardown.
#pragma once

#include <cstdint>

#include "p4_pd_types.h"

namespace pd {

// Creates the states of the profiles, registers the client and binds the device callbacks.
// P4_PD_NO_MEMORY when a state cannot be made; nothing is registered then, and a later call makes
// those that are missing. A second call while the client is registered is passed on to the
// framework, which refuses it; the states stay.
p4_pd_status_t initialize(uint32_t *client);

p4_pd_status_t clean_up(uint32_t client);

}  // namespace pd
