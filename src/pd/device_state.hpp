// The library's state: one member-selector state per action profile. The driver framework has it
// dropped, saved and restored, as a JSON document, when a device goes away, is saved or comes back;
// the pipeline manager reports what belongs there while it replays a virtual device.
#pragma once

#include "descriptor.hpp"
#include "p4_pd_types.h"

namespace pd {

// Created at the start and never destroyed; the same objects for the life of the process.
extern p4_pd_ms_state_t *profile_states[limits::profiles];

inline p4_pd_ms_state_t *state_of(const Profile &profile) { return profile_states[profile.index]; }

// Drops what the states hold of the device. Returns 0.
p4_pd_status_t device_remove(uint32_t device);

// Adds "name" and "act_profs", an array of one object per profile, to the document. Returns 0; what
// could not be allocated is missing from the document.
p4_pd_status_t device_log(uint8_t device, cJSON *document);

// Restores each element of "act_profs" whose "name" is a profile's into that profile's state. Skips
// all else. Returns 0.
p4_pd_status_t device_restore(uint8_t device, cJSON *document);

// Records a replayed member (group 0), group (member 0) or membership. P4_PD_UNKNOWN_HANDLE for an
// action-data table of no profile and P4_PD_FOREIGN_ACTION for resources of an action that is not
// the profile's; nothing is recorded then.
p4_pd_status_t replay(p4_pd_session_handle_t session, uint8_t device, uint32_t action_data_table,
                      uint32_t action, p4_pd_group_handle_t group, p4_pd_member_handle_t member,
                      uint32_t has_resources);

}  // namespace pd
