// Reads what tools show, field hints and labels, and the layouts of snapshots.
#include <fmt/format.h>

#include <utility>

#include "pdgen/load/load_sections.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

constexpr std::uint32_t kAnyNumber = 0xffffffff;

// --- Field hints ----------------------------------------------------------------------------

std::vector<std::string> texts_of(std::vector<Word> words) {
  std::vector<std::string> texts;
  for (Word &word : words) texts.push_back(std::move(word.text));
  return texts;
}

FieldHint read_hint(const TomlValue &value, Diagnostics &diagnostics) {
  RowReader row(value, {"hints", "hint", "hint", ""}, diagnostics);
  FieldHint hint;
  hint.place = row.place("hint");
  if (const auto kind = row.choice("hint", {"mac", "v4addr", "v6addr", "port", "vport"})) {
    constexpr Hint kHints[] = {Hint::kMac, Hint::kV4Addr, Hint::kV6Addr, Hint::kPort, Hint::kVport};
    hint.hint = kHints[*kind];
  }
  hint.fields = texts_of(row.optional_identifiers("fields"));
  hint.suffixes = texts_of(row.optional_identifiers("suffixes"));
  hint.width = row.optional_number("width", 1, 128).value_or(0);
  if (!row.has("fields") && !row.has("suffixes") && !row.has("width")) {
    row.report("hint", fmt::format("{} needs fields, suffixes or a width to go with", row.what()));
  }
  return hint;
}

// --- Labels ---------------------------------------------------------------------------------

constexpr std::uint32_t kMostDigits = 8;
constexpr std::uint32_t kMostBlanks = 80;

void read_number_texts(RowReader &row, LabelItem &item) {
  item.texts_mask = row.optional_number("texts_mask", 1, kAnyNumber).value_or(kAnyNumber);
  if (row.has("texts_mask") && !row.has("texts")) {
    row.report("texts_mask", fmt::format("{} has a texts_mask but no texts", row.what()));
  }
  for (const TomlValue *value : row.optional_rows("texts")) {
    RowReader text(*value, {row.path("texts"), "text", "", row.what()}, row.diagnostics());
    LabelText entry;
    entry.place = text.place("value");
    entry.value = text.number("value", 0, kAnyNumber).value_or(0);
    entry.text = text.text("text");
    for (const LabelText &other : item.texts) {
      if (other.value != entry.value) continue;
      text.report("value", fmt::format("{} has two texts for {}", row.what(), hex(entry.value)));
    }
    item.texts.push_back(std::move(entry));
  }
}

void read_item_of_kind(RowReader &row, LabelItem &item) {
  if (item.kind == LabelKind::kMac) {
    item.oui = row.reference<KeyField>("oui");
    item.station = row.reference<KeyField>("station");
  } else {
    item.field = row.reference<KeyField>("field");
  }
  switch (item.kind) {
    case LabelKind::kFlag:
      item.bit = row.optional_number("bit", 1, kAnyNumber).value_or(0);
      item.after = row.optional_number("after", 1, kMostBlanks).value_or(1);
      [[fallthrough]];
    case LabelKind::kMac:
    case LabelKind::kV4Addr:
    case LabelKind::kV6Addr:
      item.label = row.text("label");
      break;
    case LabelKind::kNumber:
      read_number_texts(row, item);
      [[fallthrough]];
    case LabelKind::kExact:
      item.format = row.text("format");
      item.digits = row.number("digits", 1, kMostDigits).value_or(1);
      break;
    case LabelKind::kSilent:
      break;
  }
}

// False if the kind cannot be read, so that nothing is known of the other keys.
bool read_item(const TomlValue &value, const std::string &owner, LabelItem &item,
               Diagnostics &diagnostics) {
  RowReader row(value, {"label.items", "item", "field", owner}, diagnostics);
  item.place = row.place("kind");
  const auto kind =
      row.choice("kind", {"flag", "number", "exact", "silent", "mac", "v4addr", "v6addr"});
  if (!kind) {
    row.ignore_other_keys();
    return false;
  }
  item.kind = static_cast<LabelKind>(*kind);
  read_item_of_kind(row, item);
  return true;
}

// --- Snapshots ------------------------------------------------------------------------------

// Fields follow one another; `used` is the end of the last one.
SnapshotField read_snapshot_field(const TomlValue &value, const std::string &path,
                                  const std::string &owner, NameScope &names, unsigned &used,
                                  Diagnostics &diagnostics) {
  RowReader row(value, {path, "field", "name", owner}, diagnostics);
  SnapshotField field;
  row.name("name", names, field);
  if (field.name == padding_member()) {
    row.report("name", fmt::format("{} is the name of a record's padding", field.name));
  }
  field.offset = used;
  field.bytes = row.number("bytes", 1, 0xffff).value_or(0);
  used += field.bytes;
  return field;
}

void check_record_end(unsigned used, const Snapshots &snapshots, const SnapshotField &field,
                      const std::string &path, Diagnostics &diagnostics) {
  const bool crosses = used > snapshots.record_bytes && field.offset <= snapshots.record_bytes;
  if (snapshots.record_bytes == 0 || !crosses) return;
  diagnostics.report(field.place, path,
                     fmt::format("field {} ends at byte {}, beyond the {} bytes of a record",
                                 field.name, used, snapshots.record_bytes));
}

SnapshotLayout read_layout(const TomlValue &value, const Snapshots &snapshots, NameScope &names,
                           Diagnostics &diagnostics) {
  RowReader row(value, {"layout", "layout", "name", ""}, diagnostics);
  SnapshotLayout layout;
  layout.place = row.place("name");
  static constexpr std::string_view kNames[] = {"ingress", "egress"};
  if (const auto name = row.choice("name", {kNames[0], kNames[1]})) layout.name = kNames[*name];
  names.add(layout.name, layout.place, row.path("name"), diagnostics);
  NameScope field_names;
  for (const TomlValue *field_value : row.rows("fields")) {
    const SnapshotField field = read_snapshot_field(*field_value, "layout.fields", row.what(),
                                                    field_names, layout.used_bytes, diagnostics);
    if (field.bytes != 0 && field.bytes != 1 && field.bytes != 2 && field.bytes != 4) {
      diagnostics.report(field.place, "layout.fields.bytes",
                         fmt::format("{} bytes of field {} of {} must be 1, 2 or 4", field.bytes,
                                     field.name, row.what()));
    }
    check_record_end(layout.used_bytes, snapshots, field, "layout.fields", diagnostics);
    layout.fields.push_back(field);
  }
  return layout;
}

}  // namespace

void read_fields(RowReader &file, LoadContext &context) {
  FieldFacts &facts = context.program.field_facts;
  facts.instance_prefixes = texts_of(file.optional_identifiers("instance_prefixes"));
  facts.v4_addresses = texts_of(file.optional_identifiers("v4_addresses"));
  for (const TomlValue *hint : file.optional_rows("hints")) {
    facts.hints.push_back(read_hint(*hint, context.diagnostics));
  }
}

void read_labels(RowReader &file, LoadContext &context) {
  NameScope tables;
  for (const TomlValue *value : file.rows("label")) {
    RowReader row(*value, {"label", "label", "table", ""}, context.diagnostics);
    Label label;
    label.table = row.reference<Table>("table");
    label.place = label.table.place;
    tables.add(label.table.name, label.place, row.path("table"), context.diagnostics);
    for (const TomlValue *item_value : row.rows("items")) {
      LabelItem item;
      if (read_item(*item_value, row.what(), item, context.diagnostics)) {
        label.items.push_back(std::move(item));
      }
    }
    context.program.labels.push_back(std::move(label));
  }
}

void read_snapshots(RowReader &file, LoadContext &context) {
  Snapshots snapshots;
  snapshots.place = file.place("record_bytes");
  snapshots.record_bytes = file.number("record_bytes", 1, 0xffff).value_or(0);
  snapshots.capture_limit = file.number("capture_limit", 1, 0xffff).value_or(0);
  NameScope layout_names;
  for (const TomlValue *layout : file.rows("layout")) {
    snapshots.layouts.push_back(read_layout(*layout, snapshots, layout_names, context.diagnostics));
  }
  NameScope field_names;
  unsigned used = 0;
  for (const TomlValue *value : file.rows("capture")) {
    const SnapshotField field = read_snapshot_field(*value, "capture", "the capture record",
                                                    field_names, used, context.diagnostics);
    check_record_end(used, snapshots, field, "capture", context.diagnostics);
    snapshots.capture.push_back(field);
  }
  context.program.snapshots = std::move(snapshots);
}

}  // namespace pdgen
