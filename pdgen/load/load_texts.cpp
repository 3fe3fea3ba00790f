// Reads what tools show, field hints and labels, and the layouts of snapshots.
#include <algorithm>

#include "pdgen/load/load_sections.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

// --- Field hints ----------------------------------------------------------------------------

void read_hint(RowReader &row, FieldHint &hint) {
  hint.place = row.place("hint");
  row.choice("hint", hint.hint, kRequired, 1);
  row.words("fields", hint.fields);
  row.words("suffixes", hint.suffixes);
  row.number("width", hint.width, 1, 128, kOptional);
  if (!row.has("fields") && !row.has("suffixes") && !row.has("width")) {
    row.report("hint", "{} needs fields, suffixes or a width to go with", row.what());
  }
}

// --- Labels ---------------------------------------------------------------------------------

constexpr unsigned kMostDigits = 8;
constexpr unsigned kMostBlanks = 80;

void read_number_texts(RowReader &row, LabelItem &item) {
  row.number("texts_mask", item.texts_mask, 1, kAnyNumber, kOptional);
  if (row.has("texts_mask") && !row.has("texts")) {
    row.report("texts_mask", "{} has a texts_mask but no texts", row.what());
  }
  const auto read_text = [&](RowReader &reader, LabelText &text) {
    text.place = reader.place("value");
    reader.text("text", text.text);
    if (!reader.number("value", text.value)) return;
    if (std::ranges::count(item.texts, text.value, &LabelText::value) == 1) return;
    reader.report("value", "{} has two texts for {}", row.what(), hex(text.value));
  };
  row.rows("texts", "text", "", item.texts, read_text, kOptional);
}

void read_item(RowReader &row, const Ref<Table> &table, LabelItem &item) {
  item.place = row.place("kind");
  if (!row.choice("kind", item.kind)) return row.ignore_other_keys();
  // That the label has no table has been reported.
  static const KeyField kReported;
  const auto find = [&](std::string_view name) {
    return table ? find_row(table->key, name) : &kReported;
  };
  const auto read_field = [&](const char *key, Ref<KeyField> &field) {
    row.reference<KeyField>(key, field, "key field of the table", find);
  };
  const bool is_number = item.kind == LabelKind::kNumber || item.kind == LabelKind::kExact;
  if (item.kind == LabelKind::kMac) {
    read_field("oui", item.oui);
    read_field("station", item.station);
  } else {
    read_field("field", item.field);
  }
  if (item.kind == LabelKind::kFlag) {
    row.number("bit", item.bit, 1, kAnyNumber, kOptional);
    row.number("after", item.after, 1, kMostBlanks, kOptional);
  }
  if (item.kind == LabelKind::kNumber) read_number_texts(row, item);
  if (is_number) {
    row.text("format", item.format);
    row.number("digits", item.digits, 1, kMostDigits);
  } else if (item.kind != LabelKind::kSilent) {
    row.text("label", item.label);
  }
}

void read_label(RowReader &row, Label &label) {
  row.name(label, label.table, "table", row.program().tables);
  row.rows("items", "item", "field", label.items,
           [&](RowReader &reader, LabelItem &item) { read_item(reader, label.table, item); });
}

// --- Snapshots ------------------------------------------------------------------------------

// Fields follow one another up to the end of a record.
void read_snapshot_fields(RowReader &row, const char *key, unsigned record_bytes,
                          std::vector<PacketField> &fields) {
  unsigned end = 0;
  row.rows(key, "field", "name", fields, [&](RowReader &reader, PacketField &field) {
    reader.name(field);
    if (field.name == kPadding) {
      reader.report("name", "{} is the name of a record's padding", field.name);
    }
    field.offset = end;
    reader.number("bytes", field.bytes, 1, 0xffff);
    end += field.bytes;
    if (record_bytes == 0 || end <= record_bytes || field.offset > record_bytes) return;
    reader.report_at(field.place, "", "field {} ends at byte {}, beyond the {} bytes of a record",
                     field.name, end, record_bytes);
  });
}

void read_layout(RowReader &row, unsigned record_bytes, SnapshotLayout &layout) {
  row.name(layout);
  if (!layout.name.empty() && layout.name != "ingress" && layout.name != "egress") {
    row.report("name", "\"{}\" of {} must be one of ingress, egress", layout.name, row.what());
  }
  read_snapshot_fields(row, "fields", record_bytes, layout.fields);
  for (const PacketField &field : layout.fields) {
    if (field.bytes == 0 || field.bytes == 1 || field.bytes == 2 || field.bytes == 4) continue;
    row.report_at(field.place, "fields.bytes", "{} bytes of field {} of {} must be 1, 2 or 4",
                  field.bytes, field.name, row.what());
  }
}

}  // namespace

void read_fields(RowReader &file) {
  FieldFacts &facts = file.program().field_facts;
  file.words("instance_prefixes", facts.instance_prefixes);
  file.words("v4_addresses", facts.v4_addresses);
  file.rows("hints", "hint", "hint", facts.hints, read_hint, kOptional);
}

void read_labels(RowReader &file) {
  file.rows("label", "label", "table", file.program().labels, read_label);
}

void read_snapshots(RowReader &file) {
  Snapshots &snapshots = file.program().snapshots.emplace();
  snapshots.place = file.place("record_bytes");
  file.number("record_bytes", snapshots.record_bytes, 1, 0xffff);
  file.number("capture_limit", snapshots.capture_limit, 1, 0xffff);
  const unsigned record_bytes = snapshots.record_bytes;
  file.rows(
      "layout", "layout", "name", snapshots.layouts,
      [&](RowReader &row, SnapshotLayout &layout) { read_layout(row, record_bytes, layout); });
  read_snapshot_fields(file, "capture", record_bytes, snapshots.capture);
}

}  // namespace pdgen
