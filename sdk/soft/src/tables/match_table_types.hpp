// What goes into a match table and what comes out: keys, actions, views of stored entries.
#pragma once

#include <cstdint>
#include <span>

#include "pipe_mgr_types.h"
#include "soft_program.h"
#include "stateful/counter_cell.hpp"

namespace soft {

// What the entries of one table have to remember besides key and action handle. An entry takes
// storage only for what is switched on here.
struct EntryLayout {
  uint16_t data_bytes = 0;      // of the action with most parameters; 0 in profile-bound tables
  bool references = false;      // entries may name a member or a group
  uint8_t resources = 0;        // most resource references of one entry, 0 to 4
  bool ages = false;            // entries have a time to live
  bool direct_counter = false;  // entries have counter cells of their own
  bool direct_meter = false;    // entries have a meter spec of their own

  // What the program says of a table: data bytes of its actions, ageing, references of a table that
  // is bound to a profile. Resources, counter and meter stay off; the caller knows them.
  static EntryLayout of(const soft_table_t &table);
};

// The key of an entry. The buffers belong to the caller and hold the table's key_bytes each.
// In an exact table mask and priority are not looked at (mask may be null): every bit counts and
// the priority is 0.
struct EntryKey {
  const uint8_t *value = nullptr;
  const uint8_t *mask = nullptr;
  uint32_t priority = 0;             // the smallest number wins
  bf_pipe_id_t pipe = BF_ALL_PIPES;  // the pipe it lives in, 0 to 254, or BF_ALL_PIPES
};

struct EntryResource {
  pipe_object_handle_t handle;
  uint32_t index;  // cell of an indirect resource, 0 of a direct one
};

// What an entry does. Data and resources belong to the caller and are copied.
struct EntryAction {
  pipe_object_handle_t action = 0;
  uint32_t type = PIPE_ACTION_DATA;  // PIPE_ACTION_*
  std::span<const uint8_t> data;     // of PIPE_ACTION_DATA
  uint32_t reference = 0;            // member of PIPE_ACTION_MEMBER, group of PIPE_ACTION_GROUP
  std::span<const EntryResource> resources;
};

// A stored entry. The pointers lead into the table and hold until the next call of add or erase on
// it; set_action changes the bytes behind data.
struct EntryView {
  const uint8_t *value;  // key_bytes, as given to add
  const uint8_t *mask;   // key_bytes; all ones in an exact table
  uint32_t priority;
  uint64_t age;  // grows from entry to entry; 0 in a table whose entries never tie
  bf_pipe_id_t pipe;
  pipe_object_handle_t action;
  uint32_t type;
  std::span<const uint8_t> data;
  uint32_t reference;  // member or group by type, otherwise 0
  uint32_t resource_count;
  EntryResource resources[PIPE_RESOURCES_PER_ACTION];  // the first resource_count are set
  // In a table that ages its entries, otherwise 0 and false:
  uint32_t ttl_ms;       // 0: never expires
  uint64_t last_hit_ms;  // when its idle time last started
  bool expired;          // next_expired() has reported it and it was not hit since
};

}  // namespace soft
