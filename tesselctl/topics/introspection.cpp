// What the program consists of, and what entries are made of, as the library itself describes it.
#include <fmt/format.h>

#include <algorithm>

#include "soft_traffic.h"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/entry_texts.hpp"
#include "tesselctl/device/entry_value.hpp"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/kinds/table_items.hpp"
#include "tesselctl/program/field.hpp"
#include "tesselctl/program/trace.hpp"
#include "tesselctl/text/literal.hpp"

namespace tesselctl {

namespace {

constexpr size_t kLineWidth = 100;

// ---- tables ----

void list_tables(Context &context, const Invocation &invocation) {
  std::vector<TableInfo> chosen;
  for (const Word &word : invocation.arguments) chosen.push_back(resolve_table(word));
  // People who read through all of them want short lines.
  const bool clipped = chosen.empty() && !context.settings.json && !context.settings.terse;
  if (chosen.empty()) chosen = all_tables();
  for (const TableInfo &table : chosen) {
    Row row;
    row.object("table", table.name()).choice("match", match_name(table));
    row.number("actions", table.indirect() ? 0u : table.description->action_count);
    const uint32_t capacity = table_capacity(context.device, table);
    add_capacity(row, "size", capacity);
    add_occupancy(row, entry_count(context.device, table, invocation.command), capacity);
    if (table.keyed()) row.text("fields", key_text(table, ",", clipped ? 3 : ~size_t{0}));
    context.results.row(row);
  }
}

// ---- schema ----

enum class Described : uint8_t { table, profile, action };

constexpr const char *kSchemaFamilies[] = {"table_schema", "profile_schema", "action_schema"};

// What the name is of. Throws Fault with a near name.
Described resolve_described(Word name) {
  std::vector<std::string_view> names;
  for (const Described kind : {Described::table, Described::profile, Described::action}) {
    const char *family = kSchemaFamilies[static_cast<size_t>(kind)];
    if (find_export(family, name.text) != nullptr) return kind;
    for_each_export(family, [&](const bindings::Export &known) { names.push_back(known.object); });
  }
  throw_unknown(name, "table, action or profile", names);
}

std::string schema_text(Described kind, std::string_view name) {
  // What the tool asks for itself is no call behind a command.
  const TraceScope quiet(nullptr);
  Call call(need_export(kSchemaFamilies[static_cast<size_t>(kind)], name));
  if (kind == Described::action) {
    return reinterpret_cast<const char *>(static_cast<uintptr_t>(call.run()));
  }
  std::string text(binding().sizes.schema, '\0');
  text.resize(static_cast<size_t>(call.set("buffer", text.data()).run()));
  return text;
}

void print_schema(Context &context, const Invocation &invocation) {
  const Word name = need_argument(invocation, 0, "the name of a table, action or profile");
  refuse_arguments_from(invocation, 1);
  const std::string text = schema_text(resolve_described(name), name.text);
  context.results.text(context.settings.raw ? text : indented_literal(text, kLineWidth));
}

// ---- describe ----

// "hop:14 address:32/v4addr"
std::string parameters_text(const bindings::Record &action) {
  std::string text;
  for (const Field &field : action.shown()) {
    text += fmt::format("{}{}:{}", text.empty() ? "" : " ", field.label, field.width);
    if (field.notation != Notation::number)
      text += fmt::format("/{}", notation_name(field.notation));
  }
  return text;
}

template <class Object>
std::vector<const bindings::Record *> sorted_actions(const Object &object) {
  std::vector<const bindings::Record *> actions = actions_of(object);
  std::ranges::sort(actions, {}, [](const auto *action) { return std::string_view(action->name); });
  return actions;
}

// Rows that have the same items, in columns of their own.
void print_columns(Context &context, const std::vector<Row> &rows) {
  if (context.settings.json || context.settings.terse) {
    for (const Row &row : rows) context.results.row(row);
    return;
  }
  if (rows.empty()) return;
  std::vector<TextColumn> columns;
  for (const Item &item : rows.front().items()) {
    columns.push_back({item.name, item.kind == Item::Kind::number});
  }
  Listing listing(columns);
  for (const Row &row : rows) {
    std::vector<std::string> cells;
    for (const Item &item : row.items()) cells.push_back(item.value);
    listing.add(std::move(cells));
  }
  listing.print(context.out);
}

// Of a pair both, the upper half first.
std::string member_names(const Field &field) {
  std::string names = field.parts[0]->name;
  if (field.is_pair()) names += std::string(",") + field.parts[1]->name;
  return names;
}

Row field_row(const Field &field) {
  const bool whole = key_bits(field) == low_ones(field.width);
  return Row()
      .object("field", field.label)
      .number("bits", field.width)
      .text("match", match_name(field.match))
      .text("key_bits", whole ? "all" : hexadecimal(key_bits(field)))
      .text("shown_as", notation_name(field.notation))
      .text("record_field", member_names(field));
}

// Where an action of a table may stand.
const char *use_of(const char *table, std::string_view action) {
  const bool entry = find_export("table_add", table, action) != nullptr;
  const bool by_default = find_export("set_default_action", table, action) != nullptr;
  if (entry) return by_default ? "entry, default" : "entry";
  return "default";
}

// A sentence for people, the row for programs.
void print(Context &context, const Row &row, const std::string &sentence) {
  if (context.settings.terse) return context.results.row(row);
  context.results.row(row, sentence);
}

// The counters and meters of which every entry has a cell.
template <class Resource>
void print_cells(Context &context, const TableInfo &table, const char *kind) {
  for (const Resource &resource : program_rows<Resource>()) {
    if (resource.table != table.description->handle) continue;
    print(context, Row().object(kind, resource.name),
          fmt::format("{} {}, a cell for each entry", kind, resource.name));
  }
}

void describe_table(Context &context, const TableInfo &table, Word word) {
  const std::string handle = fmt::format("{:#010x}", table.description->handle);
  const uint32_t entries = entry_count(context.device, table, word);
  const uint32_t capacity = table_capacity(context.device, table);
  Row head;
  head.object("table", table.name()).text("match", match_name(table)).text("handle", handle);
  add_capacity(head, "size", capacity);
  print(context, add_occupancy(head, entries, capacity),
        fmt::format("{}: {} table, handle {}, size {}, entries {}", table.name(), match_name(table),
                    handle, capacity == 0 ? kUnlimited : grouped(capacity), grouped(entries)));
  if (const soft_profile_t *profile = table.profile()) {
    print(context, Row().object("profile", profile->name),
          fmt::format("entries name a member or a group of {}", profile->name));
  }
  print_cells<soft_counter_t>(context, table, "counter");
  print_cells<soft_meter_t>(context, table, "meter");
  if (table.ages()) print(context, Row().text("ageing", "yes"), "entries age");
  std::vector<Row> rows;
  for (const Field &field : table.record->shown()) rows.push_back(field_row(field));
  print_columns(context, rows);
  if (table.indirect()) return;
  rows.clear();
  for (const bindings::Record *action : sorted_actions(*table.description)) {
    rows.push_back(Row()
                       .object("action", action->name)
                       .text("in", use_of(table.name(), action->name))
                       .text("parameters", parameters_text(*action)));
  }
  print_columns(context, rows);
}

void describe_action(Context &context, std::string_view name) {
  const std::span<const Field> parameters = action_record(name).shown();
  const size_t count = parameters.size();
  print(context, Row().object("action", name).number("parameters", count),
        fmt::format("{}: action with {} parameter{}", name, count, count == 1 ? "" : "s"));
  std::vector<Row> rows;
  for (const Field &field : parameters) {
    rows.push_back(Row()
                       .object("parameter", field.label)
                       .number("bits", field.width)
                       .text("shown_as", notation_name(field.notation)));
  }
  print_columns(context, rows);
  rows.clear();
  for (const soft_table_t &table : program_rows<soft_table_t>()) {
    if (find_action(table, name) == nullptr) continue;
    rows.push_back(Row().object("table", table.name).text("in", use_of(table.name, name)));
  }
  print_columns(context, rows);
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    if (find_action(profile, name) == nullptr) continue;
    print(context, Row().object("profile", profile.name),
          fmt::format("members of {}", profile.name));
  }
}

void print_limit(Context &context, uint32_t table, const char *of) {
  uint32_t capacity = 0;
  soft_profile_capacity_get(context.device.id(), table, &capacity);
  if (capacity == 0) return;
  print(context, Row().number(fmt::format("most_{}", of), capacity),
        fmt::format("at most {} {}", grouped(capacity), of));
}

void describe_profile(Context &context, std::string_view name) {
  const soft_profile_t &profile = *find_object<soft_profile_t>(name);
  const std::string members = fmt::format("{:#010x}", profile.action_data_table);
  const std::string groups = fmt::format("{:#010x}", profile.selector);
  print(context,
        Row().object("profile", name).text("member_handle", members).text("group_handle", groups),
        fmt::format("{}: action profile, handles {} of members and {} of groups", name, members,
                    groups));
  print_limit(context, profile.action_data_table, "members");
  print_limit(context, profile.selector, "groups");
  std::vector<Row> rows;
  for (const bindings::Record *action : sorted_actions(profile)) {
    rows.push_back(
        Row().object("action", action->name).text("parameters", parameters_text(*action)));
  }
  print_columns(context, rows);
  for (const soft_table_t &table : program_rows<soft_table_t>()) {
    if (table.action_data_table != profile.action_data_table) continue;
    print(context, Row().object("table", table.name), fmt::format("entries of {}", table.name));
  }
}

void describe(Context &context, const Invocation &invocation) {
  const Word name = need_argument(invocation, 0, "the name of a table, action or profile");
  refuse_arguments_from(invocation, 1);
  switch (resolve_described(name)) {
    case Described::table:
      return describe_table(context, resolve_table(name), name);
    case Described::action:
      return describe_action(context, name.text);
    case Described::profile:
      return describe_profile(context, name.text);
  }
}

// ---- Entries ----

void dump(Context &context, const Invocation &invocation) {
  const TableLine line(context, invocation, {"entry"});
  if (!line.options.has("entry")) return dump_values(context, line.table, line.word);
  dump_value(context, line.table, line.options.handle(context, "entry"), line.word);
}

void display(Context &context, const Invocation &invocation) {
  const TableLine line(context, invocation, {"entry"});
  expect_entries(context.results, line.table);
  ValueStrings values(context.device, line.table);
  const bindings::Record *action = nullptr;
  line.for_each_entry([&](p4_pd_entry_handle_t entry) {
    std::string_view text = values.line(entry, line.word);
    text.remove_suffix(1);
    ValueScanner scanner(text, 1);
    ItemBytes item;
    parse_entry(scanner, line.table, action, item);
    Row row = line.row().number("entry", entry);
    add_entry(row, line.table, item.view(), Naming::handles);
    context.results.row(row);
  });
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

extern const Topic kIntrospectionTopic = {"Names and shapes", kCommands};

}  // namespace tesselctl
