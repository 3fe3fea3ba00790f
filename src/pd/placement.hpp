// Placement data of a virtual device decoded into the records of read-back, and the start of a
// replay.
#pragma once

#include "descriptor.hpp"
#include "pipe_mgr_placement.h"
#include "read_back.hpp"

namespace pd {

// What an entry of a table with actions of its own decodes into; everything that the table has is
// mandatory.
struct PlacedEntryOut {
  void *match_spec = nullptr;
  uint32_t *priority = nullptr;
  void *action_specs = nullptr;
  bool *no_key = nullptr;
};

// P4_PD_FOREIGN_ACTION for an action that the table does not have; nothing is written on failure.
p4_pd_status_t decode_placed_entry(const Table &table, const pipe_mgr_placement_t *placement,
                                   const PlacedEntryOut &out);

// An entry that points at neither a member nor a group writes neither handle nor flag.
p4_pd_status_t decode_placed_indirect_entry(const Table &table,
                                            const pipe_mgr_placement_t *placement,
                                            const IndirectOut &out);

// A member. With the resources that the member-selector state holds for it, or with none.
p4_pd_status_t decode_placed_member(const Profile &profile, const pipe_mgr_placement_t *placement,
                                    void *action_specs);
p4_pd_status_t decode_placed_member_with_resources(const Profile &profile, uint8_t device,
                                                   p4_pd_member_handle_t member,
                                                   const pipe_mgr_placement_t *placement,
                                                   void *action_specs);

// Replays a virtual device; the pipeline manager reports what it restores to replay().
p4_pd_status_t restore_virtual_device(p4_pd_session_handle_t session, uint32_t device,
                                      uint32_t virtual_device, uint32_t pipe, uint32_t flags);

}  // namespace pd
