// Every export of a library as data: name, what it belongs to, its parameters, and a way to call it
// through words. The generator fills it from the same list that it prints the header from. Tools
// find a function by family, object and action and pass the arguments by parameter name; tests
// sweep over all of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

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
  size_t parameter_count;
  Call call;

  std::span<const Parameter> parameter_list() const { return {parameters, parameter_count}; }
};

struct ExportList {
  const Export *rows;
  size_t count;
};

enum class Role : uint8_t { value, mask, prefix_length };

// A member of a match spec or action spec record. storage 16 is an array of bytes.
struct Member {
  const char *name;
  Role role;
  size_t offset;
  unsigned storage;  // bytes
  unsigned width;    // bits of the field; 16 for a prefix length
};

// The match spec of a table or the action spec of an action; no members when it has none.
struct Record {
  const char *name;
  uint32_t number;  // table handle, or action enumeration value
  const Member *members;
  size_t member_count;
  size_t size;

  std::span<const Member> member_list() const { return {members, member_count}; }
};

struct Binding {
  const char *program;
  const ExportList *const *lists;
  size_t list_count;
  const Record *tables;
  size_t table_count;
  const Record *actions;
  size_t action_count;
};

extern const Binding binding;

}  // namespace bindings
