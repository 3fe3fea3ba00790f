// Derived names: no two rows may lead to the same C name.
#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <string>

#include "pdgen/check/check.hpp"
#include "pdgen/load/load_row.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

// Each object is a C++ name in the generated code, beside these.
constexpr std::string_view kTakenNames =
    " Action ActionTexts ActionType Actions Attach Digest DigestField Digests Hash HashNames "
    "KeyField Kind LabelItem LabelKind LabelText Layout Match NamedHash Pair Param Profile Record "
    "RecordMember RenderedActions RenderedProfile RenderedTable Resource Shape Table TableType "
    "Text "
    "WideMask action count digits_at entries handle has_header items key lines members named names "
    "no_index pairs params profile record rendered_table resource_count resources rows size table "
    "text value wide_masks ";

// Other rows of that name have been reported, and so have those without one.
template <typename Row>
bool is_first(const std::vector<Row> &rows, const Row &row) {
  return !row.name.empty() && find_row(rows, row.name) == &row;
}

// Actions, tables and profiles share the operations "schema" and "value", and with hashes and
// digests the place of their names in C names.
void check_object_names(const Program &program, Diagnostics &diagnostics) {
  std::vector<MadeName> names;
  const auto add_all = [&](const auto &rows, const std::string &kind, const std::string &key) {
    for (const auto &row : rows) {
      if (!is_first(rows, row)) continue;
      if (kTakenNames.find(" " + row.name + " ") != std::string_view::npos) {
        diagnostics.report(row.place, key + ".name",
                           "{} {} has a name that the generated code uses itself", kind, row.name);
      }
      names.push_back(
          {name_prefix(program) + row.name, kind + " " + row.name, row.place, key + ".name"});
    }
  };
  add_all(program.actions, "action", "actions");
  add_all(program.tables, "table", "table");
  add_all(program.profiles, "profile", "profile");
  add_all(program.hashes, "hash", "hashes");
  add_all(program.digests, "digest", "digest");
  check_distinct(names, "beginning of C names", diagnostics);
}

// The members of a match record and the names of its width functions.
void check_key_names(const Program &program, const Table &table, Diagnostics &diagnostics) {
  std::vector<MadeName> members;
  std::vector<MadeName> widths;
  std::vector<MadeName> shown;  // with all words, as fields of one short name are
  for (const KeyField &field : table.key) {
    if (!is_first(table.key, field)) continue;
    const std::string origin = fmt::format("field {} of table {}", field.name, table.name);
    const auto add = [&](std::vector<MadeName> &names, std::string name) {
      names.push_back({std::move(name), origin, field.place, "table.key.field"});
    };
    add(members, field.name);
    if (field.match != Match::kExact) add(members, companion_member(field));
    add(shown, long_name(field.name));
    add(widths, fmt::format("{}{}_{}_width", name_prefix(program), table.name, field.width_name));
  }
  check_distinct(members, "record member", diagnostics);
  check_distinct(shown, "tool name", diagnostics);
  check_distinct(widths, "function", diagnostics);
}

}  // namespace

void check_distinct(const std::vector<MadeName> &names, std::string_view kind,
                    Diagnostics &diagnostics) {
  std::map<std::string_view, const MadeName *> first;
  for (const MadeName &made : names) {
    const MadeName &other = *first.try_emplace(made.name, &made).first->second;
    if (&other == &made) continue;
    diagnostics.report(made.place, made.key, "{} and {} at {} make the same {} {}", made.origin,
                       other.origin, place_text(other.place), kind, made.name);
  }
}

void check_names(const Program &program, Diagnostics &diagnostics) {
  check_object_names(program, diagnostics);
  for (const Table &table : program.tables) check_key_names(program, table, diagnostics);
}

}  // namespace pdgen
