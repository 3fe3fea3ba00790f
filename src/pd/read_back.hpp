// Entries and default entries read back as typed records, and enumeration. Nothing is written to
// the caller's records unless the whole read-back succeeds.
#pragma once

#include "descriptor.hpp"
#include "pipe_mgr_match.h"

namespace pd {

// Where the parts of an entry go. match_spec, no_key and (ternary tables) priority are mandatory in
// keyed tables; action_spec is when the entry's action has parameters; the others may be null.
struct EntryOut {
  void *match_spec = nullptr;
  uint32_t *priority = nullptr;
  char *action_name = nullptr;  // room for the longest full name
  void *action_spec = nullptr;
  uint32_t *action = nullptr;
  bool *no_key = nullptr;
};

// P4_PD_NO_ACTION_DATA for an entry that carries no action of its own, P4_PD_FOREIGN_ACTION for an
// action that the table does not have.
p4_pd_status_t get_entry(const Table &table, p4_pd_session_handle_t session, uint8_t device,
                         p4_pd_entry_handle_t entry, bool read_from_hardware, const EntryOut &out);

// Fills an action specs record. P4_PD_FOREIGN_ACTION for a default entry without direct action data
// or with an action that the table does not have.
p4_pd_status_t get_default_entry(const Table &table, p4_pd_session_handle_t session,
                                 p4_pd_device_target_t target, bool read_from_hardware,
                                 void *action_specs);

// Where an entry that points at a member or at a group says so: the handle that does not apply is
// left as it was. All pointers are mandatory, match_spec and no_key not for a default entry.
struct IndirectOut {
  void *match_spec = nullptr;
  uint32_t *priority = nullptr;
  bool *has_member = nullptr;
  bool *has_group = nullptr;
  p4_pd_group_handle_t *group = nullptr;
  p4_pd_member_handle_t *member = nullptr;
  bool *no_key = nullptr;
};

p4_pd_status_t get_indirect_entry(const Table &table, p4_pd_session_handle_t session,
                                  uint8_t device, p4_pd_entry_handle_t entry,
                                  bool read_from_hardware, const IndirectOut &out);

// P4_PD_FOREIGN_ACTION when the default entry points at neither a member nor a group.
p4_pd_status_t get_indirect_default_entry(const Table &table, p4_pd_session_handle_t session,
                                          p4_pd_device_target_t target, bool read_from_hardware,
                                          const IndirectOut &out);

inline p4_pd_status_t get_default_entry_handle(uint32_t table, p4_pd_session_handle_t session,
                                               p4_pd_device_target_t target,
                                               p4_pd_entry_handle_t *entry) {
  return pipe_mgr_table_get_default_entry_handle(session, target.device_id, target.pipe_id, table,
                                                 entry);
}

// Entries of a table, members of an action-data table or groups of a selector, by its handle.
inline p4_pd_status_t get_first(uint32_t object, p4_pd_session_handle_t session,
                                p4_pd_device_target_t target, uint32_t *first) {
  return pipe_mgr_get_first_entry_handle(session, object, target.device_id, target.pipe_id, first);
}

inline p4_pd_status_t get_next(uint32_t object, p4_pd_session_handle_t session,
                               p4_pd_device_target_t target, uint32_t after, uint32_t count,
                               uint32_t *next) {
  return pipe_mgr_get_next_entry_handles(session, object, target.device_id, target.pipe_id, after,
                                         count, next);
}

}  // namespace pd
