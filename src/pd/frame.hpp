// Start-up and teardown, and the library's only state: the client handle and one member-selector
// state per action profile.
#pragma once

#include <cstdint>

#include "descriptor.hpp"
#include "p4_pd_types.h"

namespace pd {

// Created by initialize and never destroyed; the same objects for the life of the process.
extern p4_pd_ms_state_t *profile_states[limits::profiles];

inline p4_pd_ms_state_t *state_of(const Profile &profile) { return profile_states[profile.index]; }

// Creates the states, registers the client and binds the device callbacks. P4_PD_NO_MEMORY when a
// state cannot be made; nothing is registered then, and a later call makes those that are missing.
// A second call while the client is registered is passed on to the framework, which refuses it; the
// states stay.
p4_pd_status_t initialize(uint32_t *client);

p4_pd_status_t clean_up(uint32_t client);

}  // namespace pd
