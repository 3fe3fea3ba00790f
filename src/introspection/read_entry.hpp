// One entry read back for rendering, by the same read-back that callers have, with all its checks.
#pragma once

#include "read_back.hpp"

namespace pd {

// What an entry is, apart from its records.
struct EntryFacts {
  bool no_key = true;
  bool has_member = false;
  bool has_group = false;
  p4_pd_member_handle_t member = 0;
  p4_pd_group_handle_t group = 0;
  uint32_t priority = 0;  // 0 where entries have none
  uint32_t action = 0;    // enumeration value; tables with actions of their own
};

// The records of one entry of a table, T being its texts. match_spec holds nothing when there is no
// key, action_spec nothing for an action without parameters.
template <class T>
struct EntryRecords {
  static constexpr size_t match_spec_size = T::Layout::table.record_size;
  static constexpr size_t action_spec_size = T::Actions::largest_record;

  alignas(4) uint8_t match_spec[match_spec_size == 0 ? 1 : match_spec_size];
  alignas(4) uint8_t action_spec[action_spec_size == 0 ? 1 : action_spec_size];
};

// Which entry to read.
struct EntryAddress {
  p4_pd_session_handle_t session;
  uint8_t device;
  p4_pd_entry_handle_t entry;
  bool read_from_hardware;
};

p4_pd_status_t read_entry(const Table &table, const EntryAddress &address, void *match_spec,
                          void *action_spec, EntryFacts &facts);

}  // namespace pd
