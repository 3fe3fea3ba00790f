// Entries and default entries read back as typed records, and enumeration. Nothing is written to
// the caller's records unless the whole read-back succeeds.
#pragma once

#include <string.h>

#include "codec/decode_unrolled.hpp"
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

PD_INLINE bool lacks_key_outputs(const Table &table, const void *match_spec,
                                 const uint32_t *priority, const bool *no_key) {
  if (table.kind == Kind::keyless) return false;
  if (match_spec == nullptr || no_key == nullptr) return true;
  return table.kind == Kind::ternary && priority == nullptr;
}

template <class Key>
PD_INLINE void report_key(const Table &table, const Key &key, void *match_spec, uint32_t *priority,
                          bool *no_key) {
  if (table.kind == Kind::keyless) return;
  *no_key = !key.has_key();
  if (key.has_key()) key.decode(match_spec);
  if (table.kind == Kind::ternary) *priority = key.spec.priority;
}

// Reads an entry with decoders of its table: key is what its key is read into, and decode_action
// what decode_action_of does. P4_PD_NO_ACTION_DATA for an entry that carries no action of its own,
// P4_PD_FOREIGN_ACTION for an action that the table does not have.
template <class Key, class DecodeAction>
PD_INLINE p4_pd_status_t get_entry_with(const Table &table, Key &key, DecodeAction decode_action,
                                        p4_pd_session_handle_t session, uint8_t device,
                                        p4_pd_entry_handle_t entry, bool read_from_hardware,
                                        const EntryOut &out) {
  if (lacks_key_outputs(table, out.match_spec, out.priority, out.no_key)) {
    return P4_PD_NULL_ARGUMENT;
  }
  ReadAction read(limits::action_data);
  uint32_t handle = 0;
  p4_pd_status_t status = pipe_mgr_get_entry(session, table.handle, device, entry, &key.spec,
                                             &read.spec, &handle, read_from_hardware);
  if (status != BF_SUCCESS) return status;
  if (read.spec.type != PIPE_ACTION_DATA) return P4_PD_NO_ACTION_DATA;
  uint32_t value = 0;
  {
    ResourceList resources;  // freed before the key is decoded, which needs the registers
    status = resources.build(read.spec);
    if (status != BF_SUCCESS) return status;
    status = decode_action(handle, read.bytes, resources, out.action_spec, value);
  }
  if (status != BF_SUCCESS) return status;
  if (out.action_name != nullptr) strcpy(out.action_name, program.action_names[value]);
  if (out.action != nullptr) *out.action = value;
  report_key(table, key, out.match_spec, out.priority, out.no_key);
  return BF_SUCCESS;
}

// In loops over the descriptors of the table.
p4_pd_status_t get_entry(const Table &table, p4_pd_session_handle_t session, uint8_t device,
                         p4_pd_entry_handle_t entry, bool read_from_hardware, const EntryOut &out);

// Unrolled, but for i386: there the loops are shared by all tables, as code is to be small.
template <class T>
PD_INLINE p4_pd_status_t get_entry(p4_pd_session_handle_t session, uint8_t device,
                                   p4_pd_entry_handle_t entry, bool read_from_hardware,
                                   const EntryOut &out) {
#ifdef __i386__
  return get_entry(T::table, session, device, entry, read_from_hardware, out);
#else
  UnrolledKey<T> key;
  return get_entry_with(T::table, key, decode_action_of<T>, session, device, entry,
                        read_from_hardware, out);
#endif
}

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
