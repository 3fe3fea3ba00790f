// Match tables by name, and the resources of their entries.
#pragma once

#include "tesselctl/program/field.hpp"
#include "tesselctl/program/library.hpp"

namespace tesselctl {

struct TableInfo {
  const bindings::Record *record;
  const soft_table_t *description;

  const char *name() const { return record->name; }
  bool keyed() const { return record->member_count != 0; }
  bool has_priority() const { return description->match == SOFT_TERNARY; }
  bool ages() const { return description->ages_entries; }
  // Bound to an action profile, so that entries name a member or a group.
  bool indirect() const { return description->action_data_table != 0; }
  // That profile, or null.
  const soft_profile_t *profile() const;
};

// "exact", "ternary", "lpm" or, of a table without a key, "keyless".
const char *match_name(const TableInfo &table);
// "domain,address/lpm,port/mask" with that separator, or the first fields and how many more there
// are.
std::string key_text(const TableInfo &table, std::string_view separator, size_t most = ~size_t{0});

// The key of the table as packets carry it: the fields of the record big-endian at their places.
std::vector<uint8_t> packet_key(const TableInfo &table, const uint8_t *record);

// In the order of the program.
const std::vector<TableInfo> &all_tables();
// Throws Fault when no table has this name.
TableInfo resolve_table(Word word);
// Of a handle that the program has.
TableInfo table_of_handle(uint32_t handle);

// The counter or meter of which every entry of the table has a cell, or null.
template <class Resource>
const Resource *resource_of(const TableInfo &table) {
  for (const Resource &resource : program_rows<Resource>()) {
    if (resource.table != 0 && resource.table == table.description->handle) return &resource;
  }
  return nullptr;
}

}  // namespace tesselctl
