// Every export of a library as data: name, what it belongs to, its parameters, and a way to call it
// through words. The generator fills it from the same list that it prints the header from. Tools
// find a function by family, object and action and pass the arguments by parameter name; tests
// sweep over all of it. Neither includes the header of a program.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "soft_program.h"

namespace bindings {

// As the header has it: type "const x *" and name.
struct Parameter {
  const char *type;
  const char *name;
};

// A word holds an integer, the address of an object for a pointer, or the address of a
// p4_pd_device_target_t or another record that is passed by value.
using Call = uint64_t (*)(const uint64_t *words);

struct Export {
  const char *name;    // of the C function
  const char *family;  // "table_add", "get_entry", ... the same for all objects that have it
  const char *object;  // table, profile, action, counter ... or ""
  const char *action;  // of an operation with an action, or ""
  const char *result;  // C type
  const Parameter *parameters;
  uint16_t parameter_count;
  uint16_t note;  // its place in Binding::notes
  Call call;

  std::span<const Parameter> parameter_list() const { return {parameters, parameter_count}; }
};

struct ExportList {
  const Export *rows;
  size_t count;
};

// What functions have in common, as the header says it, in one line. That of a function without one
// of its own is the first, which is about all functions.
struct Note {
  const char *title;
  const char *text;
};

enum class Role : uint8_t { value, mask, prefix_length };

// A member of a record. A mask or prefix length stands right behind the value that it belongs to.
// Numbers are integers of the host, unless they are bytes in network order.
struct Member {
  const char *name;
  Role role;
  size_t offset;
  unsigned storage;  // bytes
  unsigned width;    // bits of the field; 16 for a prefix length
  bool is_bytes = false;
};

enum class Match : uint8_t { exact, ternary, lpm };
// How people write a value. A protocol is that of an IP header, a service a TCP or UDP port:
// numbers that have names too.
enum class Notation : uint8_t { number, port, vport, ipv4, ipv6, mac, protocol, service };

// A value of a record as people name and write it: a member, or two that are the upper and the
// lower half of a MAC address.
struct Field {
  std::string_view label;  // short: "src"; no other field of the record has it
  std::string_view name;   // of the member: "eth_src"; of a pair what its halves share
  Notation notation;
  Match match;
  unsigned width;          // bits; 48 for a pair
  uint64_t key_bits_high;  // the bits that take part in the key, upper and lower half
  uint64_t key_bits_low;
  const Member *parts[2];  // values; the second is null but for a pair
  // The counters and meters whose cell the value of a parameter names.
  std::span<const char *const> cells;
  // The key field that the value of a parameter is written into, if any, and the tables that are to
  // have an entry for each such value.
  std::string_view joined_field;
  std::span<const char *const> joined_tables;

  bool is_pair() const { return parts[1] != nullptr; }
  size_t part_count() const { return is_pair() ? 2 : 1; }
};

// The match spec of a table, the action spec of an action, an entry of a digest, a record of
// snapshots. It has no members where an object has none.
struct Record {
  const char *name;
  uint32_t number;  // table or digest handle, or action enumeration value
  const Member *members;
  size_t member_count;
  size_t size;
  const Field *fields;
  size_t field_count;
  size_t shown_count;

  std::span<const Member> member_list() const { return {members, member_count}; }
  // What a record is shown as, in its order: a pair stands for its halves, in the place of the
  // first. All fields are these and the halves behind them.
  std::span<const Field> shown() const { return {fields, shown_count}; }
  std::span<const Field> field_list() const { return {fields, field_count}; }
};

struct RecordList {
  const Record *rows;
  size_t count;

  std::span<const Record> list() const { return {rows, count}; }
};

// Where routes go: a table for each kind of address that has one, and an action of all of them
// whose one parameter is the next hop.
struct Routes {
  const char *const *tables;
  size_t table_count;
  const char *action;  // null without such tables
};

// A ternary table for access rules, and the fields of its key that a rule is about: source and
// destination address, source and destination port, protocol, and TCP flags or null.
struct Acl {
  const char *table;
  const char *fields[6];  // names of members
};

// Bytes that callers make room for, the NUL of a text included. Constants of the header.
struct Sizes {
  size_t action_name;
  size_t schema;
  size_t match_spec_value;
  size_t action_value;
  size_t value;
  size_t label;
  size_t action_specs;  // an action as it is read back, with room for the parameters of any
  size_t action_spec;   // where the parameters begin in it
};

struct Binding {
  uint32_t layout;  // kLayout of the compilation; the first member in every layout
  const char *program;
  const char *library_version;        // "1.0.0"
  const soft_program_t *description;  // for the soft SDK
  Sizes sizes;
  const char *const *action_names;  // in full, by enumeration value
  size_t action_count;
  const ExportList *const *lists;
  size_t list_count;
  std::span<const Note> notes;
  RecordList tables;
  RecordList actions;
  RecordList digests;
  // By direction: triggers, with a mask of each value in a second record behind the first, and what
  // packets carry; then the one capture record.
  RecordList triggers;
  RecordList packets;
  RecordList captures;
  size_t capture_limit;  // records that a caller has room for
  Routes routes;
  std::span<const Acl> acls;
};

// A number of the sizes of all records that a module hands over: one that was built with others has
// another number. A change that keeps every size adds to the first number.
template <class... Records>
constexpr uint32_t layout_of() {
  uint32_t layout = 1;
  ((layout = layout * 31 + static_cast<uint32_t>(sizeof(Records))), ...);
  return layout;
}
inline constexpr uint32_t kLayout =
    layout_of<Parameter, Export, ExportList, Note, Member, Field, Record, RecordList, Routes, Acl,
              Sizes, Binding, soft_key_field_t, soft_action_t, soft_cell_t, soft_default_t,
              soft_table_t, soft_profile_t, soft_counter_t, soft_meter_t, soft_register_t,
              soft_hash_t, soft_digest_field_t, soft_digest_t, soft_value_set_t,
              soft_snapshot_field_t, soft_snapshot_layout_t, soft_program_t>();

// The only symbol of a module.
extern "C" {
extern const Binding pd_binding;
}

}  // namespace bindings
