// Placement data as text, as value strings, and compared with what the hardware holds; and the way
// to all of it by handle, for tools that know no names.
#pragma once

#include "by_handle.hpp"
#include "codec/decode.hpp"
#include "compare.hpp"
#include "pipe_mgr_placement.h"
#include "print.hpp"
#include "value.hpp"

namespace pd {

// How one kind of record is printed, written as a value and compared.
struct RecordText {
  const char *lines = nullptr;  // null: a record without members, which has no lines
  bool has_header = false;
  const RecordMember *members = nullptr;
  unsigned count = 0;
  const WideMask *wide_masks = nullptr;
  ValueWriter value = nullptr;
};

struct RenderedTable {
  uint32_t handle;
  const Table *table;
  const char *full_name;  // with the program's prefix
  RecordText key;
  const RecordText *actions;  // in the order of the table's pairs
  int (*entry_value)(const EntryAddress &address, char *buffer);
};

struct RenderedProfile {
  uint32_t handle;  // of the action-data table
  const Profile *profile;
  const char *full_name;
  const RecordText *actions;
};

// T is the text of a table or of an action.
template <class T>
constexpr RecordText record_text() {
  RecordText text;
  text.value = write_value<T>;
  if constexpr (T::Shape::count != 0) {
    text.lines = T::lines;
    text.has_header = T::has_header;
    text.members = T::Shape::members;
    text.count = T::Shape::count;
    text.wide_masks = T::Shape::wide_masks;
  }
  return text;
}

template <class Actions>
struct RenderedActions;

template <class... Text>
struct RenderedActions<ActionTexts<Text...>> {
  static constexpr RecordText rows[] = {record_text<Text>()..., {}};
};

template <class T>
constexpr RenderedTable rendered_table(const char *full_name) {
  RenderedTable table{T::Layout::table.handle, &T::Layout::table, full_name, {}, nullptr,
                      entry_value<T>};
  if constexpr (T::Layout::table.kind != Kind::keyless) table.key = record_text<T>();
  table.actions = RenderedActions<typename T::Actions>::rows;
  return table;
}

// 0, or the status of the decoder after a line that says so.
int print_placement(const RenderedTable &table, int descriptor, int indent,
                    const pipe_mgr_placement_t *placement);
int print_member_placement(const RenderedProfile &profile, int descriptor, int indent,
                           const pipe_mgr_placement_t *placement);

// Length of the value; 0 and nothing written for data that cannot be decoded or a null buffer.
int placement_value(const RenderedTable &table, const pipe_mgr_placement_t *placement,
                    char *buffer);
int member_placement_value(const RenderedProfile &profile, const pipe_mgr_placement_t *placement,
                           char *buffer);

// The table handle is not looked at. 1 when the placement data describes the entry that the
// hardware holds under the handle, apart from its priority; else, and when either cannot be read,
// 0. Groups must be the same group.
int placement_equals_hardware(const RenderedTable &table, p4_pd_session_handle_t session,
                              uint8_t device, uint32_t, p4_pd_entry_handle_t entry,
                              const pipe_mgr_placement_t *placement);

// All tables and profiles of the program, ascending by handle.
struct Rendered {
  const RenderedTable *tables;
  size_t table_count;
  const RenderedProfile *profiles;
  size_t profile_count;

  const RenderedTable *table(uint32_t handle) const {
    return find_by_handle(tables, table_count, handle);
  }
  const RenderedProfile *profile(uint32_t handle) const {
    return find_by_handle(profiles, profile_count, handle);
  }
};

// The above by handle. An unknown handle prints a line that says so and returns that line's result,
// has no value and equals nothing.
int print_placement_of(const Rendered &all, int descriptor, int indent, uint32_t table,
                       const pipe_mgr_placement_t *placement);
int print_member_placement_of(const Rendered &all, int descriptor, int indent, uint32_t profile,
                              const pipe_mgr_placement_t *placement);
int placement_value_of(const Rendered &all, uint32_t table, const pipe_mgr_placement_t *placement,
                       char *buffer);
int member_placement_value_of(const Rendered &all, uint32_t profile,
                              const pipe_mgr_placement_t *placement, char *buffer);
int placement_of_equals_hardware(const Rendered &all, p4_pd_session_handle_t session,
                                 uint8_t device, uint32_t table, p4_pd_entry_handle_t entry,
                                 const pipe_mgr_placement_t *placement);
int entry_value_of(const Rendered &all, p4_pd_session_handle_t session, uint32_t device,
                   uint32_t table, p4_pd_entry_handle_t entry, uint32_t read_from_hardware,
                   char *buffer);

// Enumeration by handle. An unknown handle stores 0xffffffff in the first output; the walks over
// entries return 0 then, that over members 0xffffffff.
p4_pd_status_t first_entry_of(const Rendered &all, p4_pd_session_handle_t session,
                              p4_pd_device_target_t target, uint32_t table,
                              p4_pd_entry_handle_t *entry);
p4_pd_status_t next_entries_of(const Rendered &all, p4_pd_session_handle_t session,
                               p4_pd_device_target_t target, uint32_t table,
                               p4_pd_entry_handle_t entry, uint32_t count,
                               p4_pd_entry_handle_t *entries);
p4_pd_status_t default_entry_of(const Rendered &all, p4_pd_session_handle_t session,
                                p4_pd_device_target_t target, uint32_t table,
                                p4_pd_entry_handle_t *entry);
p4_pd_status_t next_members_of(const Rendered &all, p4_pd_session_handle_t session,
                               p4_pd_device_target_t target, uint32_t profile,
                               p4_pd_member_handle_t member, uint32_t count,
                               p4_pd_member_handle_t *members);

}  // namespace pd
