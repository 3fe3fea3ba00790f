// The objects of the program: all of them by kind, and what each is made of.
#include <fmt/format.h>

#include <algorithm>

#include "soft_state.h"
#include "soft_traffic.h"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/kinds/table_items.hpp"
#include "tesselctl/program/field.hpp"

namespace tesselctl {

namespace {

std::string handle_text(uint32_t handle) { return fmt::format("{:#010x}", handle); }

// ---- What is known of an object ----

template <class Value>
void add_fact(Row &row, std::string_view name, const Value &value) {
  row.field(Row::kAbout, name, fmt::format("{}", value), {matches_text});
}

void add_facts(Row &row, const soft_table_t &table) {
  add_fact(row, "match", match_name(table_of_handle(table.handle)));
  add_fact(row, "fields", table.field_count);
  add_fact(row, "actions", table.action_count);
}

void add_facts(Row &row, const bindings::Record &action) {
  add_fact(row, "parameters", action.shown_count);
}

void add_facts(Row &row, const soft_profile_t &profile) {
  add_fact(row, "groups", handle_text(profile.selector));
  add_fact(row, "actions", profile.action_count);
}

// Cells by index, or those of the entries of a table.
void add_cells(Row &row, uint32_t table, uint64_t cells) {
  if (table == 0) return add_fact(row, "cells", cells);
  add_fact(row, "table", table_of_handle(table).name());
}

void add_facts(Row &row, const soft_counter_t &counter) {
  add_cells(row, counter.table, SOFT_COUNTER_CELLS);
}

void add_facts(Row &row, const soft_meter_t &meter) {
  add_fact(row, "unit", meter.unit == PIPE_RATE_PACKETS ? "packets/s" : "kbit/s");
  add_cells(row, meter.table, SOFT_METER_CELLS);
}

void add_facts(Row &row, const soft_register_t &reg) {
  add_fact(row, "bits", reg.width);
  add_fact(row, "cells", uint64_t{SOFT_REGISTER_CELLS});
}

void add_facts(Row &row, const soft_hash_t &hash) {
  add_fact(row, "fields", hash.field_count);
  add_fact(row, "list", handle_text(hash.field_list));
  add_fact(row, "algorithm", handle_text(hash.algorithm));
}

void add_facts(Row &row, const soft_digest_t &digest) {
  add_fact(row, "fields", digest.field_count);
}

void add_facts(Row &row, const soft_value_set_t &) { add_fact(row, "bits", 32); }

template <class Object>
std::string handle_of(const Object &object) {
  if constexpr (std::is_same_v<Object, soft_profile_t>) {
    return handle_text(object.action_data_table);
  } else {
    return handle_text(object.handle);
  }
}

// ---- describe ----

// "hop:14 address:32/v4addr"
std::string parameters_text(const bindings::Record &action) {
  std::string text;
  for (const Field &field : action.shown()) {
    text += fmt::format("{}{}:{}", text.empty() ? "" : " ", field.label, field.width);
    const std::string_view notation = notation_name(field.notation);
    if (notation != notation_name(Notation::number)) text += fmt::format("/{}", notation);
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

void describe_object(Context &context, const soft_table_t &described, Word word) {
  const TableInfo table = table_of_handle(described.handle);
  const std::string handle = handle_of(described);
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

Row value_row(std::string_view what, const Field &field) {
  return Row()
      .object(what, field.label)
      .number("bits", field.width)
      .text("shown_as", notation_name(field.notation));
}

void describe_object(Context &context, const bindings::Record &action, Word word) {
  const std::string_view name = word.text;
  const std::span<const Field> parameters = action.shown();
  const size_t count = parameters.size();
  print(context, Row().object("action", name).number("parameters", count),
        fmt::format("{}: action with {} parameter{}", name, count, count == 1 ? "" : "s"));
  std::vector<Row> rows;
  for (const Field &field : parameters) {
    rows.push_back(value_row("parameter", field));
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

void describe_object(Context &context, const soft_profile_t &profile, Word word) {
  const std::string_view name = word.text;
  const std::string members = handle_of(profile);
  const std::string groups = handle_text(profile.selector);
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

// The parameters of actions that name a cell of the object.
void print_naming(Context &context, const char *object) {
  std::vector<Row> rows;
  for (const bindings::Record &action : actions()) {
    for (const Field &field : action.shown()) {
      const bool names =
          std::ranges::any_of(field.cells, [&](std::string_view cells) { return cells == object; });
      if (!names) continue;
      rows.push_back(Row().object("action", action.name).text("parameter", field.label));
    }
  }
  print_columns(context, rows);
}

// Of any other kind: what is known of it, then what it is made of or who refers to it.
template <class Object>
void describe_object(Context &context, const Object &object, Word) {
  Row facts;
  add_facts(facts, object);
  Row row = Row().object(kObjects<Object>.keyword, object.name).text("handle", handle_of(object));
  std::string sentence =
      fmt::format("{}: {}, handle {}", object.name, kObjects<Object>.noun, handle_of(object));
  for (const Item &fact : facts.items()) sentence += fmt::format(", {} {}", fact.name, fact.value);
  print(context, row.append(facts), sentence);
  if constexpr (std::is_same_v<Object, soft_digest_t>) {
    std::vector<Row> rows;
    for (const Field &field : find_record(binding().digests.list(), object.name)->shown()) {
      rows.push_back(value_row("field", field));
    }
    print_columns(context, rows);
  }
  print_naming(context, object.name);
}

// ---- All kinds ----

struct Kinds {
  const char *name;
  // Describes the object of that name, if there is one.
  bool (*describe)(Context &context, Word name);
  void (*list)(Results &results);
  void (*add_names)(std::vector<std::string_view> &names);
};

template <class Object>
std::span<const Object> all_of() {
  if constexpr (std::is_same_v<Object, bindings::Record>) {
    return actions();
  } else {
    return program_rows<Object>();
  }
}

template <class Object>
constexpr std::string_view keyword_of() {
  if constexpr (std::is_same_v<Object, bindings::Record>) {
    return "action";
  } else {
    return kObjects<Object>.keyword;
  }
}

template <class Object>
bool describe_if_known(Context &context, Word name) {
  const auto objects = all_of<Object>();
  const auto found = std::ranges::find_if(
      objects, [&](const Object &one) { return is_name(one.name, name.text); });
  if (found == objects.end()) return false;
  describe_object(context, *found, name);
  return true;
}

template <class Object>
void list_all(Results &results) {
  for (const Object &object : all_of<Object>()) {
    Row row = Row().choice("kind", keyword_of<Object>()).object("name", object.name);
    if constexpr (!std::is_same_v<Object, bindings::Record>) row.text("handle", handle_of(object));
    add_facts(row, object);
    results.row(row);
  }
}

template <class Object>
void add_all_names(std::vector<std::string_view> &names) {
  for (const Object &object : all_of<Object>()) names.push_back(object.name);
}

template <class Object>
constexpr Kinds kinds_of() {
  return {keyword_of<Object>().data(), describe_if_known<Object>, list_all<Object>,
          add_all_names<Object>};
}

constexpr Kinds kKinds[] = {
    kinds_of<soft_table_t>(),   kinds_of<bindings::Record>(), kinds_of<soft_profile_t>(),
    kinds_of<soft_counter_t>(), kinds_of<soft_meter_t>(),     kinds_of<soft_register_t>(),
    kinds_of<soft_hash_t>(),    kinds_of<soft_value_set_t>(), kinds_of<soft_digest_t>(),
};

// ---- Commands ----

void describe(Context &context, const Invocation &invocation) {
  const Word name = need_argument(invocation, 0, "the name of an object");
  refuse_arguments_from(invocation, 1);
  bool is_known = false;
  for (const Kinds &kind : kKinds) is_known = kind.describe(context, name) || is_known;
  if (is_known) return;
  std::vector<std::string_view> names;
  for (const Kinds &kind : kKinds) kind.add_names(names);
  throw_unknown(name, "object", names);
}

void list_objects(Context &context, const Invocation &invocation) {
  std::vector<const Kinds *> wanted;
  for (const Kinds &kind : kKinds) {
    if (invocation.arguments.empty()) wanted.push_back(&kind);
  }
  const NameIndex<Kinds> by_name(kKinds);
  for (const Word &word : invocation.arguments) {
    wanted.push_back(&by_name.resolve(word, "kind of object"));
  }
  for (const Kinds *kind : wanted) kind->list(context.results);
}

constexpr Command kCommands[] = {
    {"objects", "[table|action|profile|counter|meter|register|hash|valueset|digest...]",
     "lists the objects of the program, or those of some kinds", list_objects, Kind::lists},
    {"describe", "TABLE|ACTION|PROFILE|COUNTER|METER|REGISTER|HASH|SET|DIGEST",
     "explains keys, actions, parameters, cells and resources", describe},
};

}  // namespace

extern const Topic kObjectsTopic = {"Names and shapes", kCommands};

}  // namespace tesselctl
