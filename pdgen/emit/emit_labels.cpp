// The labels of counted entries as data.
#include <fmt/format.h>

#include <map>

#include "pdgen/emit/emit.hpp"
#include "pdgen/names.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

namespace {

std::string label_field(const KeyField &field) {
  const std::string mask = field.match == Match::kTernary ? mask_member(field.name) : field.name;
  return fmt::format("{{offsetof(Record, {}), offsetof(Record, {}), {}, {}}}", field.name, mask,
                     field.storage_bytes, hex32(field.key_bits));
}

std::string number_parts(const LabelItem &item, const std::string &texts) {
  std::string parts = fmt::format(".digits = {}, ", item.digits);
  if (!item.texts.empty()) {
    parts += fmt::format(".text_count = {}, ", item.texts.size());
  }
  parts += fmt::format(".field = {}, ", label_field(*item.field));
  if (!item.texts.empty()) parts += fmt::format(".bits = {}, ", hex32(item.texts_mask));
  parts += ".text = " + c_literal(item.format + " 0x");
  if (item.kind == LabelKind::kNumber) parts += ", .masked = " + c_literal(item.format + " & 0x");
  if (!item.texts.empty()) parts += ", .texts = " + texts;
  return parts;
}

// The parts of an item; `texts` names the array of its texts.
std::string item_row(const LabelItem &item, const std::string &texts) {
  const auto row = [](const char *kind, const std::string &parts) {
    return fmt::format("    {{.kind = LabelKind::{}, {}}},\n", kind, parts);
  };
  const auto address = [&](const KeyField &field) {
    return fmt::format(".field = {}, .text = {}", label_field(field), c_literal(item.label));
  };
  switch (item.kind) {
    case LabelKind::kFlag:
      return row("flag", fmt::format(".field = {}, .bits = {}, .text = {}",
                                     label_field(*item.field), hex32(item.bit),
                                     c_literal("!" + item.label + std::string(item.after, ' '))));
    case LabelKind::kNumber:
      return row("number", number_parts(item, texts));
    case LabelKind::kExact:
      return row("exact", number_parts(item, texts));
    case LabelKind::kSilent:
      return "";
    case LabelKind::kMac:
      return row("mac", fmt::format(".field = {}, .lower = {}, .text = {}", label_field(*item.oui),
                                    label_field(*item.station), c_literal(item.label)));
    case LabelKind::kV4Addr:
      return row("v4addr", address(*item.field));
    case LabelKind::kV6Addr:
      return row("v6addr", address(*item.field));
  }
  return "";
}

std::string text_rows(const LabelItem &item) {
  std::string rows;
  for (const LabelText &text : item.texts) {
    rows += fmt::format("{{{}, {}}}, ", hex32(text.value), c_literal(text.text));
  }
  return rows;
}

std::string label_struct(const Program &program, const Label &label) {
  std::string texts;
  std::string items;
  std::size_t count = 0;
  for (const LabelItem &item : label.items) {
    const std::string name = fmt::format("texts_{}", count);
    if (!item.texts.empty()) {
      texts += fmt::format("  static constexpr LabelText {}[] = {{{}}};\n", name, text_rows(item));
    }
    const std::string row = item_row(item, name);
    items += row;
    if (!row.empty()) ++count;
  }
  // One item more than count, so that a label of silent fields alone is an array too.
  return expand(
      "struct $0 {\n  using Text = text::table::$0;\n  using Record = $1;\n$2"
      "  static constexpr unsigned count = $3;\n"
      "  static constexpr LabelItem items[] = {\n$4    {},\n  };\n};\n",
      {label.table->name, match_spec_type(program, *label.table), texts, std::to_string(count),
       items});
}

}  // namespace

std::string emit_labels(const Program &program) {
  std::string structs;
  std::map<std::uint32_t, std::string> rows;
  for (const Label &label : program.labels) {
    structs += label_struct(program, label);
    rows[label.table->handle] = fmt::format("    {{{}, entry_label<table::{}>}},\n",
                                            hex32(label.table->handle), label.table->name);
  }
  std::string by_handle;
  for (const auto &row : rows) by_handle += row.second;
  return origin(program, "// ") +
         expand(
             "#pragma once\n\n#include \"label.hpp\"\n#include \"texts.hpp\"\n\n"
             "namespace pd::label {\n\nnamespace table {\n\n$0\n}  // namespace table\n\n"
             "inline constexpr HandleLabel by_handle[] = {\n$1    {0, nullptr},\n};\n"
             "inline constexpr size_t handle_count = $2;\n\n}  // namespace pd::label\n",
             {structs, by_handle, std::to_string(rows.size())});
}

}  // namespace pdgen
