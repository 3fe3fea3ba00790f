// Tables, schemas and entries as the library itself describes them.
#include <fmt/format.h>

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
