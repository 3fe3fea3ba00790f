// Tables, actions and profiles as their schema texts tell them. Nothing here is compiled in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/literal.hpp"
#include "tesselctl/shape.hpp"

namespace tesselctl {

// A key field with its mask or prefix length, which follows it in schemas and value strings.
struct SchemaField {
  std::string label;  // short name
  std::string name;   // of the record
  unsigned width = 0;
  Number key_bits;   // that take part in the key
  std::string hint;  // how to show it: "v4addr"; empty for a plain number
  Match match = Match::exact;
  size_t position = 0;  // of its number in a value string
};

struct SchemaParameter {
  std::string name;
  std::string hint;
  unsigned width = 0;
};

struct ActionSchema {
  std::string name;
  std::vector<SchemaParameter> parameters;
};

struct TableSchema {
  std::string name;
  bool bound = false;  // to a profile: its entries name a member or a group
  std::vector<SchemaField> fields;
  size_t number_count = 0;  // of the key in a value string
  std::vector<ActionSchema> actions;

  // Ternary where any field is, else lpm where one is.
  Match match() const;
  const ActionSchema *find_action(std::string_view action) const;
};

// ---- From the library ----

enum class SchemaKind : uint8_t { table, action, profile };

// What the name is of. Throws Fault with a near name.
SchemaKind resolve_schema(Word name);
// The text itself, from the exported function of that kind and name.
std::string schema_text(SchemaKind kind, std::string_view name);
TableSchema table_schema(std::string_view name);
ActionSchema action_schema(std::string_view name);
std::vector<ActionSchema> profile_schema(std::string_view name);

// ---- From a literal ----

// Throw Fault at the place where the literal is none of its kind.
TableSchema read_table_schema(const Literal &literal);
ActionSchema read_action_schema(const Literal &literal);
std::vector<ActionSchema> read_profile_schema(const Literal &literal);

}  // namespace tesselctl
