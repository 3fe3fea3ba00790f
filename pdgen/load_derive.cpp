// Fills in what follows from the rows: positions, sizes, records, tool names, resource items.
#include <algorithm>

#include "pdgen/check.hpp"
#include "pdgen/load_sections.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

void place_params(Action &action) {
  for (Param &param : action.params) {
    param.offset = action.data_bytes;
    action.data_bytes += param.bytes;
    action.data_bits += param.width;
  }
}

void place_key(Table &table) {
  for (const std::size_t index : table.key_order) {
    KeyField &field = table.key[index];
    field.offset = table.key_bytes;
    table.key_bytes += field.bytes;
    table.key_bits += field.width;
  }
}

Hint hint_of(const KeyField &field, const FieldFacts &facts) {
  for (const FieldHint &row : facts.hints) {
    const bool named =
        std::find(row.fields.begin(), row.fields.end(), field.name) != row.fields.end();
    const bool ends_so =
        std::any_of(row.suffixes.begin(), row.suffixes.end(),
                    [&](const std::string &suffix) { return field.name.ends_with(suffix); });
    if (named || ends_so || (row.width != 0 && row.width == field.width)) return row.hint;
  }
  return Hint::kNone;
}

void name_fields(Table &table, const FieldFacts &facts) {
  const std::vector<std::string> names = cli_names(table.key, facts.instance_prefixes);
  for (std::size_t i = 0; i < table.key.size(); ++i) {
    table.key[i].cli_name = names[i];
    table.key[i].hint = hint_of(table.key[i], facts);
  }
}

RecordField companion(const KeyField &field, std::size_t index) {
  RecordField member;
  member.key_index = index;
  if (field.match == Match::kTernary) {
    member.role = RecordRole::kMask;
    member.name = mask_member(field.name);
    member.cli_name = mask_cli_name(field.cli_name);
    member.width = field.width;
    member.storage_bytes = field.storage_bytes;
  } else {
    member.role = RecordRole::kPrefixLength;
    member.name = prefix_length_member(field.name);
    member.cli_name = prefix_length_cli_name(field.cli_name);
    member.width = 16;
    member.storage_bytes = 2;
  }
  return member;
}

void lay_out_record(Table &table) {
  for (std::size_t i = 0; i < table.key.size(); ++i) {
    const KeyField &field = table.key[i];
    RecordField value;
    value.key_index = i;
    value.name = field.name;
    value.cli_name = field.cli_name;
    value.hint = field.hint;
    value.width = field.width;
    value.storage_bytes = field.storage_bytes;
    table.record.push_back(value);
    if (field.match != Match::kExact) table.record.push_back(companion(field, i));
  }
}

void list_resource_items(Table &table) {
  for (Pair &pair : table.pairs) {
    for (const ResourceRow &row : table.resources) {
      if (!applies_to(row, pair)) continue;
      const Param *index = row.index.empty() ? nullptr : find_row(pair.action->params, row.index);
      for (std::size_t operation = 0; operation < kOperationCount; ++operation) {
        if (row.in[operation]) {
          pair.items[operation].push_back({row.resource.target, index, row.tag});
        }
      }
    }
  }
}

void complete_labels(Program &program) {
  for (Label &label : program.labels) {
    for (LabelItem &item : label.items) {
      if (item.kind == LabelKind::kFlag && item.bit == 0) item.bit = 1;
    }
  }
}

}  // namespace

void derive_facts(Program &program) {
  for (Action &action : program.actions) place_params(action);
  for (Table &table : program.tables) {
    place_key(table);
    name_fields(table, program.field_facts);
    lay_out_record(table);
    list_resource_items(table);
  }
  complete_labels(program);
}

}  // namespace pdgen
