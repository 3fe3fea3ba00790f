// Derived names, of which no two rows may make the same, and what sizes and widths may come to:
// limits of the core, and widths that go with one another.
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

// A key or the action data of an entry stands on the stack while it is read back, and positions in
// a record have 16 bits.
constexpr unsigned kMostBytes = 4096;
// The cells that read-back looks for when it fills one parameter.
constexpr std::size_t kMostCells = 2;

template <typename Row>
void check_bytes(const std::vector<Row> &parts, const Place &place, std::string_view key,
                 const std::string &what, Diagnostics &diagnostics) {
  std::uint64_t bytes = 0;
  for (const Row &part : parts) bytes += part.bytes;
  if (bytes <= kMostBytes) return;
  diagnostics.report(place, key, "{} has {} bytes; at most {} can be", what, bytes, kMostBytes);
}

void check_sizes(const Program &program, Diagnostics &diagnostics) {
  for (const Table &table : program.tables) {
    check_bytes(table.key, table.place, "table.key", "the key of table " + table.name, diagnostics);
  }
  for (const Action &action : program.actions) {
    check_bytes(action.params, action.place, "actions.params", "the data of action " + action.name,
                diagnostics);
    for (const Param &param : action.params) {
      if (param.index_of.size() <= kMostCells) continue;
      diagnostics.report(param.index_of[kMostCells].place, "actions.params.index_of",
                         "parameter {} of action {} names cells of {} resources; at most {} can be",
                         param.name, action.name, param.index_of.size(), kMostCells);
    }
  }
}

// A field is one and the same in all tables: packets carry it once.
void check_field_widths(const Program &program, Diagnostics &diagnostics) {
  std::map<std::string_view, const KeyField *> first;
  for (const Table &table : program.tables) {
    for (const KeyField &field : table.key) {
      const KeyField &other = *first.try_emplace(field.name, &field).first->second;
      if (field.width == 0 || other.width == 0 || field.width == other.width) continue;
      diagnostics.report(field.place, "table.key.width",
                         "field {} of table {} has {} bits, but {} at {}", field.name, table.name,
                         field.width, other.width, place_text(other.place));
    }
  }
}

// What is wrong with the width, a format of the hinted one; empty if the hint goes with it.
std::string wanted_width(Hint hint, unsigned width) {
  const unsigned wanted = hint == Hint::kMac      ? 24  // one half of an address
                          : hint == Hint::kV4Addr ? 32
                          : hint == Hint::kV6Addr ? 128
                                                  : 0;
  if (width == 0 || hint == Hint::kNone || width == wanted) return {};
  if (wanted != 0) return fmt::format("{} bits", wanted);
  return width <= 32 ? "" : "at most 32 bits";
}

void check_hint_widths(const Program &program, Diagnostics &diagnostics) {
  for (const Action &action : program.actions) {
    for (const Param &param : action.params) {
      const std::string wanted = wanted_width(param.hint, param.width);
      if (wanted.empty()) continue;
      diagnostics.report(param.place, "actions.params.hint",
                         "the hint of parameter {} of action {} goes with {}, not {}", param.name,
                         action.name, wanted, param.width);
    }
  }
  for (const Table &table : program.tables) {
    for (const KeyField &field : table.key) {
      const FieldHint *hint = hint_of(field.name, field.width, program.field_facts);
      const std::string wanted = hint == nullptr ? "" : wanted_width(hint->hint, field.width);
      if (wanted.empty()) continue;
      diagnostics.report(hint->place, "hints.hint",
                         "this hint goes with {}, but field {} of table {} has {}", wanted,
                         field.name, table.name, field.width);
    }
  }
}

// Where a part lies in a capture follows from its number.
void check_parts(const Snapshots &snapshots, Diagnostics &diagnostics) {
  for (const SnapshotLayout &layout : snapshots.layouts) {
    for (const PacketField &field : layout.fields) {
      const auto [whole, number] = captured_part(snapshots, field.name);
      if (whole == nullptr) continue;
      if ((number + 1) * field.bytes > whole->bytes) {
        diagnostics.report(field.place, "layout.fields.bytes",
                           "{}, {} bytes of {} from byte {}, ends beyond it", field.name,
                           field.bytes, whole->name, number * field.bytes);
      }
      const std::string before = fmt::format("{}_{}", whole->name, number - 1);
      if (number == 0 || find_row(layout.fields, before) != nullptr) continue;
      diagnostics.report(field.place, "layout.fields.name",
                         "{} is a part of {}, whose part {} is missing in layout {}", field.name,
                         whole->name, before, layout.name);
    }
  }
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

void check_limits(const Program &program, Diagnostics &diagnostics) {
  check_sizes(program, diagnostics);
  check_field_widths(program, diagnostics);
  check_hint_widths(program, diagnostics);
  if (program.snapshots) check_parts(*program.snapshots, diagnostics);
}

}  // namespace pdgen
