// What the first word behind a command names, and so what the words behind it can be. Each kind of
// object states its own part.
#pragma once

#include <functional>
#include <map>
#include <optional>

#include "tesselctl/command/grammar.hpp"
#include "tesselctl/completion/offers.hpp"
#include "tesselctl/device/read_back.hpp"

namespace tesselctl {

struct Subject {
  std::optional<TableInfo> table;           // also the one whose entries a counter or meter follows
  const soft_profile_t *profile = nullptr;  // also the one that the table is bound to
  bool is_cells = false;                    // a counter or meter
  // What offers the handles behind entry=, member= or group=. May throw Fault.
  std::map<std::string_view, std::function<void(Offers &, const Device &)>> handles;

  // Whether the object takes an argument of that name at all.
  bool takes(std::string_view name) const;
  // The field of the table that NAME=VALUE gives, unless the grammar has that name itself.
  const Field *field_of(std::string_view name, const std::vector<Argument> &grammar) const;
  std::span<const soft_action_t> actions() const;
  // The parameters of one of its actions, or null.
  const bindings::Record *action_of(std::string_view action) const;
};

// ---- For kinds ----

// Offers the objects of a kind with a line of help each.
template <class Object, std::string (*Help)(const Object &)>
void offer_objects(Offers &offers, const Context &, const Command &, Words) {
  for (const Object &object : program_rows<Object>()) {
    if (offers.begins(object.name)) offers.offer(object.name, Help(object));
  }
}
template <class Object, void (*Choose)(Subject &, const Object &)>
void choose_object(Subject &subject, std::string_view name) {
  if (const Object *object = find_object<Object>(name)) Choose(subject, *object);
}

// Offers what is enumerated until there is enough; describe may throw Fault.
void offer_handles(Offers &offers, Enumeration enumeration,
                   const std::function<std::string(uint32_t)> &describe);

// The entries of a table are what is meant, also by a counter or meter of them.
void choose_table(Subject &subject, const TableInfo &table);
// The same of the members and groups of a profile.
void choose_profile(Subject &subject, const soft_profile_t &profile);
// A counter or meter: of the entries of a table, or with cells of its own.
void choose_cells(Subject &subject, uint32_t table);
std::string cells_help(uint32_t table);

template <class Object>
void choose_cells(Subject &subject, const Object &object) {
  choose_cells(subject, object.table);
}
template <class Object>
std::string cells_help(const Object &object) {
  return cells_help(object.table);
}

}  // namespace tesselctl
