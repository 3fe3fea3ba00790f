// Fills in what follows from the rows: positions, sizes, records, tool names, resource items.
#include <algorithm>
#include <map>

#include "pdgen/check/check.hpp"
#include "pdgen/load/load_sections.hpp"
#include "pdgen/names.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

namespace {

// The size of a C record of members of that storage; 16 bytes are an array, aligned like one byte.
template <typename Row>
unsigned lay_out(std::vector<Row> &members) {
  unsigned size = 0;
  unsigned largest = 1;
  const auto align = [&](unsigned alignment) {
    size += (alignment - size % alignment) % alignment;
  };
  for (Row &member : members) {
    const unsigned alignment = member.storage_bytes == 16 ? 1 : member.storage_bytes;
    align(alignment);
    member.record_offset = size;
    size += member.storage_bytes;
    largest = std::max(largest, alignment);
  }
  align(largest);
  return size;
}

void place_params(Action &action) {
  for (Param &param : action.params) {
    param.offset = action.data_bytes;
    action.data_bytes += param.bytes;
    action.data_bits += param.width;
  }
  action.record_bytes = lay_out(action.params);
}

void place_key(Table &table) {
  if (table.key_order.empty()) {
    for (const KeyField &field : table.key) table.key_order.push_back({field.name, {}, &field});
  }
  for (const Ref<KeyField> &ref : table.key_order) {
    table.key[static_cast<std::size_t>(ref.target - table.key.data())].offset = table.key_bytes;
    table.key_bytes += ref->bytes;
    table.key_bits += ref->width;
  }
}

void name_fields(Table &table, const FieldFacts &facts) {
  const std::vector<std::string> names = cli_names(table.key, facts.instance_prefixes);
  for (std::size_t i = 0; i < table.key.size(); ++i) {
    table.key[i].cli_name = names[i];
    const FieldHint *hint = hint_of(table.key[i].name, table.key[i].width, facts);
    if (hint != nullptr) table.key[i].hint = hint->hint;
  }
}

void lay_out_record(Table &table) {
  for (std::size_t i = 0; i < table.key.size(); ++i) {
    const KeyField &field = table.key[i];
    table.record.push_back({RecordRole::kValue, i, field.name, field.cli_name, field.hint,
                            field.width, field.storage_bytes});
    if (field.match == Match::kExact) continue;
    RecordField companion = table.record.back();
    companion.role = RecordRole::kMask;
    companion.name = companion_member(field);
    companion.cli_name += "Mask";
    companion.hint = Hint::kNone;
    if (field.match == Match::kLpm) {
      companion.role = RecordRole::kPrefixLength;
      companion.cli_name = field.cli_name + "PrefixLength";
      companion.width = 16;
      companion.storage_bytes = 2;
    }
    table.record.push_back(std::move(companion));
  }
  table.record_bytes = lay_out(table.record);
}

void list_resource_items(Table &table) {
  for (Pair &pair : table.pairs) {
    for (const ResourceRow &row : table.resources) {
      if (!applies_to(row, pair)) continue;
      const Param *index = row.index.empty() ? nullptr : find_row(pair.action->params, row.index);
      pair.items.push_back({row.resource.target, index, row.tag, row.operations});
    }
  }
}

// Of what a default entry refers to, the fresh device has what a call could have set without a
// meter spec; where the catalogue states none, it has the action alone.
void complete_default_entry(Table &table) {
  const bool is_stated = table.default_entry.has_value();
  const auto is_it = [&](const Pair &pair) {
    return is_stated ? pair.action.target == table.default_entry->action.target : pair.as_default;
  };
  if (!is_stated && std::ranges::count_if(table.pairs, is_it) != 1) return;
  const Pair &pair = *std::ranges::find_if(table.pairs, is_it);
  if (!is_stated) {
    table.default_entry.emplace().values.assign(pair.action->params.size(), 0);
  } else {
    table.default_entry->cells = pair.sent_in(Operation::kDefault);
    std::erase_if(table.default_entry->cells,
                  [](const ResourceItem &item) { return item.tag != ResourceTag::kAttach; });
  }
  table.default_entry->pair = &pair;
}

void share_key_schemas(std::vector<Table> &tables) {
  std::map<std::string, const Table *> first;
  for (Table &table : tables) {
    table.first_of_key = first.try_emplace(match_spec_schema(table), &table).first->second;
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
    complete_default_entry(table);
  }
  share_key_schemas(program.tables);
  complete_labels(program);
  program.tool_records = tool_records(program);
}

}  // namespace pdgen
