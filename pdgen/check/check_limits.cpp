// What sizes and widths may come to: limits of the core, and widths that go with one another.
#include <fmt/format.h>

#include <map>

#include "pdgen/check/check.hpp"
#include "pdgen/load/load_row.hpp"
#include "pdgen/load/load_sections.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

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
  diagnostics.report(place, key,
                     fmt::format("{} has {} bytes; at most {} can be", what, bytes, kMostBytes));
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
      diagnostics.report(
          param.index_of[kMostCells].place, "actions.params.index_of",
          fmt::format("parameter {} of action {} names cells of {} resources; at most {} can be",
                      param.name, action.name, param.index_of.size(), kMostCells));
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
      diagnostics.report(
          field.place, "table.key.width",
          fmt::format("field {} of table {} has {} bits, but {} at {}", field.name, table.name,
                      field.width, other.width, place_text(other.place)));
    }
  }
}

// The only width that the hint makes sense of; 0 if it goes with every number.
unsigned width_of(Hint hint) {
  if (hint == Hint::kMac) return 24;  // one half of an address
  if (hint == Hint::kV4Addr) return 32;
  return hint == Hint::kV6Addr ? 128 : 0;
}

bool fits(Hint hint, unsigned width) {
  const unsigned wanted = width_of(hint);
  return width == 0 || (wanted == 0 ? hint == Hint::kNone || width <= 32 : width == wanted);
}

std::string wanted_width(Hint hint) {
  const unsigned wanted = width_of(hint);
  return wanted == 0 ? "at most 32 bits" : fmt::format("{} bits", wanted);
}

void check_hint_widths(const Program &program, Diagnostics &diagnostics) {
  for (const Action &action : program.actions) {
    for (const Param &param : action.params) {
      if (fits(param.hint, param.width)) continue;
      diagnostics.report(
          param.place, "actions.params.hint",
          fmt::format("the hint of parameter {} of action {} goes with {}, not {}", param.name,
                      action.name, wanted_width(param.hint), param.width));
    }
  }
  for (const Table &table : program.tables) {
    for (const KeyField &field : table.key) {
      const FieldHint *hint = hint_of(field.name, field.width, program.field_facts);
      if (hint == nullptr || fits(hint->hint, field.width)) continue;
      diagnostics.report(
          hint->place, "hints.hint",
          fmt::format("this hint goes with {}, but field {} of table {} has {}",
                      wanted_width(hint->hint), field.name, table.name, field.width));
    }
  }
}

// "sip" of "sip_2", a part of a captured field that is too long for a layout.
std::string_view captured_whole(const Snapshots &snapshots, std::string_view name) {
  if (find_row(snapshots.capture, name) != nullptr) return {};
  const std::size_t end = name.rfind('_');
  const bool numbered = end != std::string_view::npos && end + 2 == name.size() &&
                        name.back() >= '0' && name.back() <= '9';
  if (!numbered || find_row(snapshots.capture, name.substr(0, end)) == nullptr) return {};
  return name.substr(0, end);
}

// Where a part lies in a capture follows from its number.
void check_parts(const Snapshots &snapshots, Diagnostics &diagnostics) {
  for (const SnapshotLayout &layout : snapshots.layouts) {
    for (const SnapshotField &field : layout.fields) {
      const std::string_view whole = captured_whole(snapshots, field.name);
      if (whole.empty()) continue;
      const unsigned number = static_cast<unsigned>(field.name.back() - '0');
      if ((number + 1) * field.bytes > find_row(snapshots.capture, whole)->bytes) {
        diagnostics.report(field.place, "layout.fields.bytes",
                           fmt::format("{}, {} bytes of {} from byte {}, ends beyond it",
                                       field.name, field.bytes, whole, number * field.bytes));
      }
      if (number == 0) continue;
      std::string before = field.name;
      --before.back();
      if (find_row(layout.fields, before) != nullptr) continue;
      diagnostics.report(field.place, "layout.fields.name",
                         fmt::format("{} is a part of {}, whose part {} is missing in layout {}",
                                     field.name, whole, before, layout.name));
    }
  }
}

}  // namespace

void check_limits(const Program &program, Diagnostics &diagnostics) {
  check_sizes(program, diagnostics);
  check_field_widths(program, diagnostics);
  check_hint_widths(program, diagnostics);
  if (program.snapshots) check_parts(*program.snapshots, diagnostics);
}

}  // namespace pdgen
