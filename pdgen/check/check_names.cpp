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

// Remembers who made a name and reports whoever makes it again, one fault for each pair of rows.
class MadeNames {
 public:
  explicit MadeNames(Diagnostics &diagnostics) : diagnostics_(diagnostics) {}

  void add(const DerivedName &made, std::string_view key, std::string_view kind) {
    const auto [first, added] = first_.try_emplace(made.name, made);
    if (added) return;
    const DerivedName &other = first->second;
    diagnostics_.report(made.place, key, "{} and {} at {} make the same {} {}", made.origin,
                        other.origin, place_text(other.place), kind, made.name);
  }

 private:
  Diagnostics &diagnostics_;
  std::map<std::string, DerivedName> first_;
};

// Each object is a C++ name in the generated code, beside these.
constexpr std::string_view kTakenNames =
    " Action ActionTexts ActionType Actions Attach Digest DigestField Digests Hash HashNames "
    "KeyField Kind LabelItem LabelKind LabelText Layout Match NamedHash Pair Param Profile Record "
    "RecordMember RenderedActions RenderedProfile RenderedTable Resource Shape Table TableType "
    "Text "
    "WideMask action count digits_at entries handle has_header items key lines members named names "
    "no_index pairs params profile record rendered_table resource_count resources rows size table "
    "text value wide_masks ";

// Actions, tables and profiles share the operations "schema" and "value", and with hashes and
// digests the place of their names in C names.
void check_object_names(const Program &program, Diagnostics &diagnostics) {
  MadeNames names(diagnostics);
  const auto add_all = [&](const auto &rows, const std::string &kind, std::string_view key) {
    std::map<std::string, int> seen;  // a name twice in one list has been reported
    for (const auto &row : rows) {
      if (row.name.empty() || seen[row.name]++ > 0) continue;
      if (kTakenNames.find(" " + row.name + " ") != std::string_view::npos) {
        diagnostics.report(row.place, key, "{} {} has a name that the generated code uses itself",
                           kind, row.name);
      }
      names.add({name_prefix(program) + row.name, kind + " " + row.name, row.place}, key,
                "beginning of C names");
    }
  };
  add_all(program.actions, "action", "actions.name");
  add_all(program.tables, "table", "table.name");
  add_all(program.profiles, "profile", "profile.name");
  add_all(program.hashes, "hash", "hashes.name");
  add_all(program.digests, "digest", "digest.name");
}

// The members of a match record and the names of its width functions.
void check_key_names(const Program &program, const Table &table, Diagnostics &diagnostics) {
  MadeNames members(diagnostics);
  MadeNames widths(diagnostics);
  MadeNames shown(diagnostics);  // with all words, as fields of one short name are
  std::map<std::string, int> seen;
  for (const KeyField &field : table.key) {
    if (field.name.empty() || seen[field.name]++ > 0) continue;
    const std::string origin = fmt::format("field {} of table {}", field.name, table.name);
    const auto add_member = [&](const std::string &name) {
      members.add({name, origin, field.place}, "table.key.field", "record member");
    };
    add_member(field.name);
    if (field.match == Match::kTernary) add_member(mask_member(field.name));
    if (field.match == Match::kLpm) add_member(prefix_length_member(field.name));
    shown.add({long_name(field.name), origin, field.place}, "table.key.field", "tool name");
    widths.add({width_function(program, table, field), origin, field.place}, "table.key.field",
               "function");
  }
}

// Where the row of that name stands; the program's own place if it is none of an object.
Place place_of(const Program &program, std::string_view object) {
  const Place *found = nullptr;
  const auto look_in = [&](const auto &rows) {
    const auto *row = find_row(rows, object);
    if (found == nullptr && row != nullptr) found = &row->place;
  };
  look_in(program.tables);
  look_in(program.actions);
  look_in(program.profiles);
  look_in(program.counters);
  look_in(program.meters);
  look_in(program.registers);
  look_in(program.hashes);
  look_in(program.digests);
  look_in(program.value_sets);
  return found == nullptr ? program.place : *found;
}

}  // namespace

void check_names(const Program &program, Diagnostics &diagnostics) {
  check_object_names(program, diagnostics);
  for (const Table &table : program.tables) check_key_names(program, table, diagnostics);
}

void check_exports(const Program &program, const std::vector<ExportedFunction> &functions,
                   Diagnostics &diagnostics) {
  MadeNames names(diagnostics);
  for (const ExportedFunction &function : functions) {
    const bool of_object = !function.object.empty();
    names.add({std::string(function.name), of_object ? std::string(function.object) : "the program",
               place_of(program, function.object)},
              "name", "C name");
  }
  for (const DerivedName &declared : declared_names(program)) {
    names.add(declared, "name", "C name");
  }
}

}  // namespace pdgen
