// Shapes of the program's objects as the core sees them: offsets, widths and handles, no names.
// The generator fills them from the catalogue (descriptors.hpp in the build folder) and says how
// large they get (limits.hpp beside it), so that buffers hold what this program has. The codec
// unrolls over them at compile time; read-back and introspection loop over the same arrays.
#pragma once

#include <cstddef>
#include <cstdint>

#include "limits.hpp"
#include "p4_pd_types.h"

namespace pd {

enum class Match : uint8_t { exact, ternary, lpm };
enum class Kind : uint8_t { keyless, exact, ternary, lpm };

// One key field. Offsets are those of the members of the match spec record.
struct KeyField {
  uint16_t offset;
  uint16_t companion;  // of the _mask or _prefix_length member; offset itself when exact
  uint16_t position;   // of the field's first byte in the key
  uint8_t storage;     // size of the member: 1, 2, 4 or 16
  uint8_t width;       // bits
  uint8_t bytes;       // in the key
  Match match;
};

// One parameter of an action. A resource-index parameter travels in the resource list: its bytes in
// the action data are zero, and read-back takes it from the last attached resource of index_of.
struct Param {
  uint16_t offset;
  uint16_t position;  // of its first byte in the action data
  uint8_t storage;    // size of the member: 1, 2 or 4
  uint8_t width;      // bits
  uint8_t bytes;      // in the action data
  uint32_t index_of[2];

  constexpr bool is_index() const { return index_of[0] != 0; }
};

// An action without parameters has neither record nor data.
struct Action {
  uint32_t value;  // of the action enumeration
  uint16_t record_size;
  uint16_t data_bits;
  uint16_t data_bytes;
  uint16_t param_count;
  const Param *params;
};

// Operations that install an action.
enum Operation : uint8_t { op_add = 1, op_modify = 2, op_default = 4 };

// How an operation refers to a resource.
enum class Attach : uint8_t {
  attach,
  detach,
  // With the caller's meter spec. Without one add refuses, modify keeps the meter as it is and the
  // default entry detaches it.
  meter_spec
};

inline constexpr uint16_t no_index = 0xffff;

struct Resource {
  uint32_t handle;
  uint16_t index_param;  // offset of the parameter that holds the index, or no_index
  Attach attach;
  uint8_t operations;  // those that name it, a set of Operation
  uint8_t rate_unit;   // of a meter
};

// An action as the entries of one table, or the members of one profile, carry it.
struct Pair {
  uint32_t handle;  // action function handle
  const Action *action;
};

struct Table {
  uint32_t handle;
  Kind kind;
  uint16_t field_count;
  uint32_t pair_count;
  int32_t profile;  // index of the profile that the table is bound to, or -1
  uint16_t record_size;
  uint16_t key_bits;
  uint16_t key_bytes;
  const KeyField *key;  // in declaration order
  const Pair *pairs;
};

// The index of a profile is that of its member-selector state.
struct Profile {
  const char *name;
  uint32_t action_data_table;
  uint32_t selector;
  uint32_t index;
  uint32_t pair_count;
  const Pair *pairs;
};

// A hash calculation. It has one input field list; its fields are known by number alone.
struct Hash {
  uint32_t handle;
  uint32_t field_list;
  uint32_t algorithm;
  uint32_t field_count;
};

// A field of a snapshot's trigger that network order turns round: bytes is 2 or 4.
struct TriggerField {
  uint16_t offset;
  uint8_t bytes;
};

struct TriggerLayout {
  const TriggerField *fields;
  uint32_t field_count;
};

struct Snapshots {
  uint32_t record_bytes;     // of a trigger or capture record
  uint32_t capture_limit;    // stages that a caller has room for
  TriggerLayout layouts[2];  // ingress, egress
};

// What the core needs to know of the program as a whole.
struct Program {
  const char *name;
  const char *client_name;
  const char *const *action_names;  // full names by enumeration value
  const Profile *const *profiles;   // in the order of their states
  uint32_t profile_count;
};

extern const Program program;

// The record that returns an action of any kind holds its enumeration value and then, at this
// offset, the union of all action specs.
inline constexpr size_t action_specs_union_offset = 4;

}  // namespace pd
