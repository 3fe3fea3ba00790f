// What the program consists of, and what entries are made of, as the library itself tells it.
#include <fmt/format.h>

#include "soft_sdk.h"
#include "tesselctl/entry_texts.hpp"
#include "tesselctl/options.hpp"
#include "tesselctl/read_back.hpp"
#include "tesselctl/schema_value.hpp"

namespace tesselctl {

namespace {

constexpr size_t kLineWidth = 100;

const char *match_name(Match match) {
  if (match == Match::exact) return "exact";
  return match == Match::lpm ? "lpm" : "ternary";
}

const char *kind_of(const TableSchema &schema) {
  return schema.fields.empty() ? "keyless" : match_name(schema.match());
}

uint32_t entry_count(const Context &context, const TableInfo &table, Word word) {
  uint32_t count = 0;
  Call call = context.device.prepare("get_entry_count", table.name());
  check(call.set("count", &count).run(), word);
  return count;
}

// How many entries the table may have.
std::string size_text(const Context &context, const TableInfo &table) {
  uint32_t capacity = 0;
  soft_table_capacity_get(context.device.id(), table.description->handle, &capacity);
  return capacity == 0 ? "unlimited" : grouped(capacity);
}

// ---- tables ----

// "vrfId,dip/lpm,dstPort/mask", or the first fields and how many more there are.
std::string key_text(const TableSchema &schema, size_t most) {
  std::string text;
  for (size_t i = 0; i < schema.fields.size(); ++i) {
    if (i > 0) text += ',';
    if (i == most && schema.fields.size() > most + 1) {
      return text + fmt::format("+{}", schema.fields.size() - most);
    }
    text += schema.fields[i].label;
    if (schema.fields[i].match != Match::exact) {
      text += schema.fields[i].match == Match::lpm ? "/lpm" : "/mask";
    }
  }
  return text;
}

void list_tables(Context &context, const Invocation &invocation) {
  std::vector<TableInfo> chosen;
  for (const Word &word : invocation.arguments) chosen.push_back(resolve_table(word));
  // People who read through all of them want short lines.
  const bool clipped = chosen.empty() && !context.settings.json && !context.settings.terse;
  if (chosen.empty()) {
    for (const bindings::Record &record : tables())
      chosen.push_back(resolve_table({record.name, 0}));
  }
  for (const TableInfo &table : chosen) {
    const TableSchema schema = table_schema(table.name());
    Row row;
    row.object("table", table.name()).text("match", kind_of(schema));
    row.number("actions", schema.bound ? 0 : schema.actions.size());
    row.text("size", size_text(context, table))
        .number("entries", entry_count(context, table, invocation.command));
    if (!schema.fields.empty()) row.text("fields", key_text(schema, clipped ? 3 : ~size_t{0}));
    context.results.row(row);
  }
}

// ---- schema ----

void print_schema(Context &context, const Invocation &invocation) {
  const Word name = need_argument(invocation, 0, "the name of a table, action or profile");
  refuse_arguments_from(invocation, 1);
  const SchemaKind kind = resolve_schema(name);
  const std::string text = schema_text(kind, name.text);
  if (context.settings.raw) return context.results.text(text);
  context.results.text(indented_literal(parse_literal({text, 1}), kLineWidth));
}

// ---- describe ----

// "nextHop:14 dip:32/v4addr"
std::string parameters_text(const ActionSchema &action) {
  std::string text;
  for (const SchemaParameter &parameter : action.parameters) {
    text += fmt::format("{}{}:{}", text.empty() ? "" : " ", parameter.name, parameter.width);
    if (!parameter.hint.empty()) text += "/" + parameter.hint;
  }
  return text;
}

// Rows that have the same items, in columns of their own.
void print_columns(Context &context, const std::vector<Row> &rows) {
  if (context.settings.json || context.settings.terse) {
    for (const Row &row : rows) context.results.row(row);
    return;
  }
  if (rows.empty()) return;
  std::vector<std::string> headings;
  for (const Item &item : rows.front().items()) {
    headings.push_back((item.kind == Item::Kind::number ? ">" : "") + item.name);
  }
  Listing listing(headings);
  for (const Row &row : rows) {
    std::vector<std::string> cells;
    for (const Item &item : row.items()) cells.push_back(item.value);
    listing.add(std::move(cells));
  }
  listing.print(context.out);
}

std::string shown_as(const std::string &hint) { return hint.empty() ? "number" : hint; }

Row field_row(const SchemaField &field) {
  const bool whole = field.key_bits == low_ones(field.width);
  return Row()
      .object("field", field.label)
      .number("bits", field.width)
      .text("match", match_name(field.match))
      .text("key_bits", whole ? "all" : hexadecimal(field.key_bits))
      .text("shown_as", shown_as(field.hint))
      .text("record_field", field.name);
}

// Where an action of a table may stand.
const char *use_of(const char *table, std::string_view action) {
  const bool entry = find_export("table_add", table, action) != nullptr;
  const bool by_default = find_export("set_default_action", table, action) != nullptr;
  if (entry) return by_default ? "entry, default" : "entry";
  return "default";
}

// A sentence for people, the row for programs.
void tell(Context &context, const Row &row, const std::string &sentence) {
  if (context.settings.terse) return context.results.row(row);
  context.results.row(row, sentence);
}

// The counters and meters of which every entry has a cell.
template <class Resource>
void tell_cells(Context &context, const TableInfo &table, const char *kind) {
  for (const Resource &resource : program_rows<Resource>()) {
    if (resource.table != table.description->handle) continue;
    tell(context, Row().object(kind, resource.name),
         fmt::format("{} {}, a cell for each entry", kind, resource.name));
  }
}

void describe_table(Context &context, const TableInfo &table, Word word) {
  const TableSchema schema = table_schema(table.name());
  const std::string handle = fmt::format("{:#010x}", table.description->handle);
  const uint32_t entries = entry_count(context, table, word);
  const std::string size = size_text(context, table);
  Row head;
  head.object("table", schema.name).text("match", kind_of(schema)).text("handle", handle);
  tell(context, head.text("size", size).number("entries", entries),
       fmt::format("{}: {} table, handle {}, size {}, entries {}", schema.name, kind_of(schema),
                   handle, size, grouped(entries)));
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    if (!schema.bound || profile.action_data_table != table.description->action_data_table)
      continue;
    tell(context, Row().object("profile", profile.name),
         fmt::format("entries name a member or a group of {}", profile.name));
  }
  tell_cells<soft_counter_t>(context, table, "counter");
  tell_cells<soft_meter_t>(context, table, "meter");
  if (table.ages()) tell(context, Row().text("ageing", "yes"), "entries age");
  std::vector<Row> rows;
  for (const SchemaField &field : schema.fields) rows.push_back(field_row(field));
  print_columns(context, rows);
  if (schema.bound) return;
  rows.clear();
  for (const ActionSchema &action : schema.actions) {
    rows.push_back(Row()
                       .object("action", action.name)
                       .text("in", use_of(table.name(), action.name))
                       .text("parameters", parameters_text(action)));
  }
  print_columns(context, rows);
}

void describe_action(Context &context, std::string_view name) {
  const ActionSchema action = action_schema(name);
  const size_t count = action.parameters.size();
  tell(context, Row().object("action", name).number("parameters", count),
       fmt::format("{}: action with {} parameter{}", name, count, count == 1 ? "" : "s"));
  std::vector<Row> rows;
  for (const SchemaParameter &parameter : action.parameters) {
    rows.push_back(Row()
                       .object("parameter", parameter.name)
                       .number("bits", parameter.width)
                       .text("shown_as", shown_as(parameter.hint)));
  }
  print_columns(context, rows);
  rows.clear();
  for (const bindings::Record &table : tables()) {
    const TableSchema schema = table_schema(table.name);
    if (schema.bound || schema.find_action(name) == nullptr) continue;
    rows.push_back(Row().object("table", schema.name).text("in", use_of(table.name, name)));
  }
  print_columns(context, rows);
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    for (const ActionSchema &known : profile_schema(profile.name)) {
      if (known.name != name) continue;
      tell(context, Row().object("profile", profile.name),
           fmt::format("members of {}", profile.name));
    }
  }
}

void describe_profile(Context &context, std::string_view name) {
  const soft_profile_t &profile = resolve_object<soft_profile_t>({name, 0}, "profile");
  const std::string members = fmt::format("{:#010x}", profile.action_data_table);
  const std::string groups = fmt::format("{:#010x}", profile.selector);
  tell(context,
       Row().object("profile", name).text("member_handle", members).text("group_handle", groups),
       fmt::format("{}: action profile, handles {} of members and {} of groups", name, members,
                   groups));
  std::vector<Row> rows;
  for (const ActionSchema &action : profile_schema(profile.name)) {
    rows.push_back(Row().object("action", action.name).text("parameters", parameters_text(action)));
  }
  print_columns(context, rows);
  for (const soft_table_t &table : program_rows<soft_table_t>()) {
    if (table.action_data_table != profile.action_data_table) continue;
    tell(context, Row().object("table", table.name), fmt::format("entries of {}", table.name));
  }
}

void describe(Context &context, const Invocation &invocation) {
  const Word name = need_argument(invocation, 0, "the name of a table, action or profile");
  refuse_arguments_from(invocation, 1);
  switch (resolve_schema(name)) {
    case SchemaKind::table:
      return describe_table(context, resolve_table(name), name);
    case SchemaKind::action:
      return describe_action(context, name.text);
    case SchemaKind::profile:
      return describe_profile(context, name.text);
  }
}

// ---- Entries ----

void dump(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a table");
  const TableInfo table = resolve_table(word);
  const Options options(invocation, 1, {"entry"});
  if (!options.has("entry")) return dump_values(context, table, word);
  dump_value(context, table, options.handle(context, "entry"), word);
}

void display(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a table");
  const TableInfo table = resolve_table(word);
  const Options options(invocation, 1, {"entry"});
  const TableSchema schema = table_schema(table.name());
  const EntryWords words(schema);
  ValueStrings values(context.device, table);
  const auto print = [&](p4_pd_entry_handle_t entry) {
    const Literal value = parse_literal({values.line(entry, word), 1});
    Row row;
    row.object("table", schema.name).number("entry", entry);
    words.add_to(row, read_entry_value(value, schema));
    context.results.row(row);
  };
  if (options.has("entry")) return print(options.handle(context, "entry"));
  for_each_entry(context.device, table, word, print);
}

constexpr Command kCommands[] = {
    {"tables", "[TABLE...]", "lists tables with their keys, sizes and numbers of entries",
     list_tables, Kind::lists},
    {"describe", "TABLE|ACTION|PROFILE", "explains keys, actions, parameters and resources",
     describe},
    {"schema", "TABLE|ACTION|PROFILE", "prints a schema, in lines or with --raw as it is",
     print_schema, Kind::asks, "--raw"},
    {"dump", "TABLE [entry=HANDLE]", "prints the value strings of a table's entries, or of one",
     dump, Kind::lists},
    {"display", "TABLE [entry=HANDLE]",
     "prints entries from their value strings, with the schema alone", display, Kind::lists},
};

}  // namespace

std::span<const Command> introspection_commands() { return kCommands; }

}  // namespace tesselctl
