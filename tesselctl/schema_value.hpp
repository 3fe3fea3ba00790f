// Value strings in the words of scripts, with the schema of their table alone.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tesselctl/row.hpp"
#include "tesselctl/schema.hpp"

namespace tesselctl {

// The numbers of an entry.
struct EntryValue {
  std::optional<std::vector<Number>> key;  // nothing for an entry without a key
  std::string action;                      // empty for an entry that points at nothing
  std::vector<Number> parameters;
  uint32_t priority = 0;
};

// Throws Fault at the place where the literal is no value of the table.
EntryValue read_entry_value(const Literal &literal, const TableSchema &schema);

// A field or parameter as it is shown, or both halves of a MAC address, which the hints and their
// names tell: dmacOui and dmacStation.
struct ShownField {
  Field field;                       // without parts
  size_t position;                   // of its number in a value string
  std::optional<size_t> lower = {};  // of the number of the lower half
};

class EntryWords {
 public:
  // The schema must live as long.
  explicit EntryWords(const TableSchema &schema);

  // Adds what a value string tells: dip=10.0.0.0/8 priority=5 action=setNextHop nextHop=12. Fields
  // that match anything are left out.
  void add_to(Row &row, const EntryValue &value) const;

 private:
  const TableSchema *schema_;
  std::vector<ShownField> fields_;
  std::map<std::string, std::vector<ShownField>> parameters_;  // by action
};

}  // namespace tesselctl
