// Derived names, of which no two rows may make the same, and what sizes and widths may come to:
// limits of the core, and widths that go with one another.
#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <set>
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

// Actions, tables and profiles share the operations "schema" and "value", and with hashes and
// digests the place of their names in C names.
void check_object_names(const Program &program, Diagnostics &diagnostics) {
  std::vector<MadeName> names;
  const auto add_all = [&](const auto &rows, const std::string &kind, const std::string &key) {
    for (const auto &row : rows) {
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

// The fields of keys by their names.
struct Use {
  const Table *table;
  const KeyField *field;
};
using Uses = std::map<std::string_view, std::vector<Use>>;

Uses uses_of_fields(const Program &program) {
  Uses uses;
  for (const Table &table : program.tables) {
    for (const KeyField &field : table.key) uses[field.name].push_back({&table, &field});
  }
  return uses;
}

// The first with the width that most tables have.
const Use &usual(const std::vector<Use> &uses) {
  const auto width = [](const Use &use) { return use.field->width; };
  return *std::ranges::max_element(
      uses, {}, [&](const Use &use) { return std::ranges::count(uses, width(use), width); });
}

// A field is one and the same in all tables: packets carry it once.
void check_field_widths(const std::vector<Use> &uses, Diagnostics &diagnostics) {
  const Use &most = usual(uses);
  for (const auto &[table, field] : uses) {
    if (field->width == most.field->width) continue;
    diagnostics.report(field->place, "table.key.width",
                       "field {} of table {} has {} bits, but {} at {}", field->name, table->name,
                       field->width, most.field->width, place_text(most.field->place));
  }
}

// What is wrong with the width, a format of the hinted one; empty if the hint goes with it.
std::string wanted_width(Hint hint, unsigned width) {
  const unsigned wanted = hint == Hint::kMac      ? 24  // one half of an address
                          : hint == Hint::kV4Addr ? 32
                          : hint == Hint::kV6Addr ? 128
                                                  : 0;
  if (hint == Hint::kNone || width == wanted) return {};
  if (wanted != 0) return fmt::format("{} bits", wanted);
  return width <= 32 ? "" : "at most 32 bits";
}

void check_param_hints(const Program &program, Diagnostics &diagnostics) {
  for (const Action &action : program.actions) {
    for (const Param &param : action.params) {
      const std::string wanted = wanted_width(param.hint, param.width);
      if (wanted.empty()) continue;
      diagnostics.report(param.place, "actions.params.hint",
                         "the hint of parameter {} of action {} goes with {}, not {}", param.name,
                         action.name, wanted, param.width);
    }
  }
}

// A hint is wrong that names a field which it does not go with, or goes with none; else it is the
// field's width.
void check_field_hints(const Program &program, const Uses &fields, Diagnostics &diagnostics) {
  std::map<const FieldHint *, std::vector<Use>> faults;
  std::set<const FieldHint *> fitting;
  for (const auto &[name, uses] : fields) {
    const Use &use = usual(uses);
    const FieldHint *hint = hint_of(name, use.field->width, program.field_facts);
    if (hint == nullptr) continue;
    if (wanted_width(hint->hint, use.field->width).empty()) {
      fitting.insert(hint);
    } else {
      faults[hint].push_back(use);
    }
  }
  for (auto &[hint, uses] : faults) {
    if (!fitting.contains(hint)) uses.resize(1);
    for (const Use &use : uses) {
      const KeyField &field = *use.field;
      const bool of_hint = !fitting.contains(hint) || std::ranges::count(hint->fields, field.name);
      diagnostics.report(
          of_hint ? hint->place : field.place, of_hint ? "hints.hint" : "table.key.width",
          "the hint {} goes with {}, but field {} of table {} has {}",
          kNamesOf<Hint>[static_cast<std::size_t>(hint->hint)],
          wanted_width(hint->hint, field.width), field.name, use.table->name, field.width);
    }
  }
}

void check_key_order(const Table &table, Diagnostics &diagnostics) {
  for (const KeyField &field : table.key) {
    const auto names_it = [&](const Ref<KeyField> &ref) { return ref.target == &field; };
    if (table.key_order.empty() || std::ranges::any_of(table.key_order, names_it)) continue;
    diagnostics.report(table.key_order[0].place, "table.key_order",
                       "{} is missing from the key order of table {}", field.name, table.name);
  }
}

// Fields by their offsets lie behind one another within so many bytes. A field that does not is one
// fault.
void check_layout(std::vector<PacketField> fields, unsigned size, const std::string &owner,
                  const std::string &key, Diagnostics &diagnostics) {
  std::ranges::stable_sort(fields, {}, &PacketField::offset);
  const PacketField *last = nullptr;  // of those before, the one that ends last
  bool is_reported = false;
  for (const PacketField &field : fields) {
    const unsigned end = field.offset + field.bytes;
    const unsigned last_end = last == nullptr ? 0 : last->offset + last->bytes;
    if (field.offset < last_end && !is_reported) {
      diagnostics.report(field.place, key + ".offset",
                         "field {} of {} begins at byte {} inside field {}, which ends before byte "
                         "{}",
                         field.name, owner, field.offset, last->name, last_end);
      is_reported = true;
    }
    if (end <= last_end) continue;
    last = &field;
    is_reported = false;
    if (end <= size) continue;
    return diagnostics.report(field.place, key + ".bytes",
                              "field {} of {} ends at byte {}, beyond its {} bytes", field.name,
                              owner, end, size);
  }
}

// Where a part lies in a capture follows from its number.
void check_snapshots(const Snapshots &snapshots, Diagnostics &diagnostics) {
  check_layout(snapshots.capture, snapshots.record_bytes, "the capture", "capture", diagnostics);
  for (const SnapshotLayout &layout : snapshots.layouts) {
    check_layout(layout.fields, snapshots.record_bytes, "layout " + layout.name, "layout.fields",
                 diagnostics);
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
  for (const Table &table : program.tables) check_key_order(table, diagnostics);
  const Uses fields = uses_of_fields(program);
  for (const auto &[name, uses] : fields) check_field_widths(uses, diagnostics);
  check_field_hints(program, fields, diagnostics);
  check_param_hints(program, diagnostics);
  if (program.snapshots) check_snapshots(*program.snapshots, diagnostics);
  for (const Digest &digest : program.digests) {
    check_layout(digest.fields, digest.size, "digest " + digest.name, "digest.fields", diagnostics);
  }
}

}  // namespace pdgen
