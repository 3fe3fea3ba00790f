// Entries of keyed tables.
#include <fmt/format.h>

#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/device/entry_texts.hpp"
#include "tesselctl/kinds/table_items.hpp"

namespace tesselctl {

namespace {

// ---- Items ----

class Entries : public TableItems {
 public:
  static bool exist(const soft_table_t &table) { return table.field_count != 0; }
  explicit Entries(const soft_table_t &table)
      : TableItems(table, true, {"table_add", "table_modify_by_match_spec"}) {}

  void read(Source &from, const ItemVisitor &visit) override {
    EntryReader reader(from.device, table(), EntryReader::Resources::all);
    ItemBytes item;
    for_each_entry(from.device, table(), {}, [&](p4_pd_entry_handle_t entry) {
      read_entry(from, reader, entry, item);
      visit(item.view());
    });
  }

  void write(Target &to, Edit edit, const ItemView &item, Word word) override {
    const EntryHead head = head_of(item.value);
    const p4_pd_bytes_meter_spec_t meter = meter_spec(head.meter);
    const void *const spec = head.has_meter != 0 ? &meter : nullptr;
    p4_pd_entry_handle_t entry = 0;
    const auto run = [&](Call &call) {
      call.set("match_spec", static_cast<const void *>(item.identity.data()));
      call.set_if_taken("entry", static_cast<const void *>(&entry));
      call.set_if_taken("priority", uint64_t{priority_of(table(), item.identity)});
      call.set_if_taken("ttl", uint64_t{head.ttl});
      check(call.set_if_taken("meter_spec", spec).run(), word);
    };
    if (head.outcome == EntryHead::kAction && edit != Edit::remove) {
      run(action_call(to, item.value, edit));
    } else {
      Call call = other_call(to, edit, head, word);
      run(call);
    }
    if (edit == Edit::remove) return;
    if (edit == Edit::add) {
      ++to.counts.entries;
    } else {
      Call find = to.device.prepare("match_spec_to_entry_hdl", table().name());
      run(find);
      if (table().ages()) {
        Call call = to.device.prepare("set_ttl", table().name());
        check(call.set("entry", uint64_t{entry}).set("ttl", uint64_t{head.ttl}).run(), word);
      }
    }
    write_counter(to, edit, head, entry, word);
  }

 private:
  // Of what names no action.
  Call other_call(Target &to, Edit edit, const EntryHead &head, Word word) {
    const auto prepare = [&](const char *family) {
      return to.device.prepare(family, table().name());
    };
    if (edit == Edit::remove) return prepare("table_delete_by_match_spec");
    if (head.outcome == EntryHead::kNothing) {
      throw Fault(word, "the entry names no member and no group");
    }
    const bool add = edit == Edit::add;
    const uint64_t target = target_of(to, head, word);
    if (head.outcome == EntryHead::kGroup) {
      return prepare(add ? "add_entry_with_selector" : "modify_entry_with_selector_by_match_spec")
          .set("group", target);
    }
    return prepare(add ? "add_entry" : "modify_entry_by_match_spec").set("member", target);
  }
};

constexpr Step kSteps[] = {{Phase::entries_leave, Edit::remove},
                           {Phase::entries, Edit::modify},
                           {Phase::entries, Edit::add}};

// ---- Commands ----

// The function of the table for what the line says: one per action, or one for members and one for
// groups.
const bindings::Export &outcome_export(const EntryLine &line, std::string_view direct,
                                       std::string_view member, std::string_view group) {
  const char *table = line.table().name();
  if (line.need_outcome()) {
    const bindings::Export *found = find_export(direct, table, line.action());
    if (found != nullptr) return *found;
    throw Fault(line.table_word(),
                fmt::format("{} may only be the default action of {}", line.action(), table));
  }
  return need_export(line.member() ? member : group, table);
}

Row table_row(const TableInfo &table) {
  Row row;
  row.object("table", table.name());
  return row;
}

Row count_row(const TableInfo &table, uint32_t entries) {
  return table_row(table).number("entries", entries);
}

void add(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.need_key();
  Call call = context.device.prepare(
      outcome_export(line, "table_add", "add_entry", "add_entry_with_selector"));
  p4_pd_entry_handle_t entry = 0;
  line.fill(call, true);
  check_outcome(call.set("entry", &entry).run(), context.device, line, line.table_word());
  line.remember(context, entry);
  context.results.done(table_row(line.table()).number("entry", entry), "added");
}

// Gives an entry another ttl, where the table ages its entries. The former one.
uint32_t exchange_ttl(const Device &device, const EntryLine &line, p4_pd_entry_handle_t entry,
                      uint32_t ttl) {
  if (!line.table().ages()) return 0;
  const auto run = [&](const char *family, auto value) {
    Call call = device.prepare(family, line.table().name());
    check(call.set("entry", uint64_t{entry}).set("ttl", value).run(), line.table_word());
  };
  uint32_t before = 0;
  run("get_ttl", static_cast<const void *>(&before));
  run("set_ttl", uint64_t{ttl});
  return before;
}

// Makes the entry one that add would have added.
void make_as_added(Context &context, const EntryLine &line, p4_pd_entry_handle_t entry) {
  Call call = context.device.prepare(
      outcome_export(line, "table_modify", "modify_entry", "modify_entry_with_selector"));
  line.give(call.set("entry", uint64_t{entry}));
  const uint32_t ttl = exchange_ttl(context.device, line, entry, line.ttl());
  try {
    check_outcome(call.run(), context.device, line, line.table_word());
  } catch (const Fault &) {
    exchange_ttl(context.device, line, entry, ttl);
    throw;
  }
}

void replace(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.need_key();
  Call add = context.device.prepare(
      outcome_export(line, "table_add", "add_entry", "add_entry_with_selector"));
  Call find = context.device.prepare("match_spec_to_entry_hdl", line.table().name());
  p4_pd_entry_handle_t entry = 0;
  line.fill(add.set("entry", &entry), true);
  line.give(find.set("entry", &entry));
  const uint64_t found = find.run();
  const bool is_new = found == BF_OBJECT_NOT_FOUND;
  if (is_new) {
    check_outcome(add.run(), context.device, line, line.table_word());
  } else {
    check(found, line.table_word());
    make_as_added(context, line, entry);
  }
  line.remember(context, entry);
  context.results.done(table_row(line.table()).number("entry", entry),
                       is_new ? "added" : "modified");
}

// Fills a call that takes an entry by its handle or by its key. The word to blame.
Word fill_call(Call &call, EntryLine &line) {
  if (line.entry()) call.set("entry", uint64_t{line.entry()->value});
  line.fill(call, false);
  return line.entry() ? line.entry()->word : line.table_word();
}

void modify(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_label();
  Call call = context.device.prepare(
      line.need_key_or_entry()
          ? outcome_export(line, "table_modify", "modify_entry", "modify_entry_with_selector")
          : outcome_export(line, "table_modify_by_match_spec", "modify_entry_by_match_spec",
                           "modify_entry_with_selector_by_match_spec"));
  const Word word = fill_call(call, line);
  check_outcome(call.run(), context.device, line, word);
  context.results.done(table_row(line.table()), "modified");
}

void remove(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_outcome();
  line.refuse_label();
  Call call = context.device.prepare(
      line.need_key_or_entry() ? "table_delete" : "table_delete_by_match_spec",
      line.table().name());
  const Word word = fill_call(call, line);
  check(call.run(), word);
  context.results.done(table_row(line.table()), "deleted");
}

void find(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_outcome();
  line.need_key();
  Call call = context.device.prepare("match_spec_to_entry_hdl", line.table().name());
  p4_pd_entry_handle_t entry = 0;
  line.fill(call, false);
  check(call.set("entry", &entry).run(), line.table_word());
  line.remember(context, entry);
  context.results.row(table_row(line.table()).number("entry", entry));
}

void count(Context &context, const Invocation &invocation) {
  Results &results = context.results;
  for (const Word &word : invocation.arguments) {
    const TableInfo table = resolve_table(word);
    results.row(count_row(table, entry_count(context.device, table, word)));
  }
  if (!invocation.arguments.empty()) return;
  bool any = false;
  for (const TableInfo &table : all_tables()) {
    const uint32_t entries = entry_count(context.device, table, invocation.command);
    results.expect(count_row(table, entries));
    if (entries == 0) continue;
    any = true;
    results.row(count_row(table, entries));
  }
  if (!any && !context.settings.json && !context.settings.count && !results.asks_for_names()) {
    results.text("all tables are empty");
  }
}

void show(Context &context, const Invocation &invocation) {
  const TableLine line(context, invocation, {"entry"});
  const bool raw = context.settings.raw;
  if (!raw) expect_entries(context.results, line.table);
  if (raw && !line.options.has("entry")) return dump_values(context, line.table, line.word);
  EntryReader reader(context.device, line.table, EntryReader::Resources::settings);
  line.for_each_entry([&](p4_pd_entry_handle_t entry) {
    if (raw) return dump_value(context, line.table, entry, line.word);
    context.results.row(entry_row(reader, entry, line.word));
  });
}

// ---- Words ----

std::string table_help(const TableInfo &table) {
  static constexpr const char *kMatches[] = {"exact", "ternary", "prefix"};
  if (!table.keyed()) return "no key";
  std::string text = kMatches[std::min<size_t>(table.description->match, 2)];
  text += ":";
  for (const Field &field : table.record->shown()) text += " " + std::string(field.label);
  return text;
}

void offer_tables(Offers &offers, const Command &command, Words given) {
  const bool only_ageing = command.first_word() == "age";
  for (const TableInfo &table : all_tables()) {
    if (!offers.begins(table.name())) continue;
    const bool is_given = std::any_of(given.begin(), given.end(),
                                      [&](const Word &word) { return word.text == table.name(); });
    if (!is_given && (!only_ageing || table.ages())) offers.offer(table.name(), table_help(table));
  }
}

void choose(Subject &subject, const soft_table_t &table) {
  choose_table(subject, resolve_table({table.name, 0}));
}

void offer_all_actions(Offers &offers, const Command &, Words) {
  for (const bindings::Record &record : actions()) offers.offer(record.name, "an action");
}

constexpr ObjectWord kWords[] = {{"TABLE", offer_tables, choose_object<soft_table_t, choose>},
                                 {"ACTION", offer_all_actions}};

constexpr Command kCommands[] = {
    {"add", "TABLE FIELD=VALUE... [priority=N] [ttl=MS] [meter=CIR,CBS,PIR,PBS] [as=NAME] OUTCOME",
     "adds an entry", add, Kind::changes},
    {"modify", "TABLE entry=HANDLE|FIELD=VALUE... [priority=N] [meter=CIR,CBS,PIR,PBS] OUTCOME",
     "gives an entry another action, member or group", modify, Kind::changes},
    {"replace",
     "TABLE FIELD=VALUE... [priority=N] [ttl=MS] [meter=CIR,CBS,PIR,PBS] [as=NAME] OUTCOME",
     "adds an entry, or modifies the one with this key and priority", replace, Kind::changes},
    {"delete", "TABLE entry=HANDLE|FIELD=VALUE... [priority=N]", "deletes an entry", remove,
     Kind::changes},
    {"find", "TABLE FIELD=VALUE... [priority=N] [as=NAME]", "prints the handle of an entry", find},
    {"count", "[TABLE...]", "counts the entries of tables, or of all that have any", count,
     Kind::lists},
    {"show", "TABLE [entry=HANDLE]", "prints the entries of a table, or one of them", show,
     Kind::lists, "--raw"},
};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_table_t>,
                                "entry",
                                21,
                                kSteps,
                                {"add", "replace", "delete"},
                                open_items<Entries, soft_table_t>}};

}  // namespace

extern const Topic kEntryTopic = {"Entries", kCommands, kWords, kKinds};

}  // namespace tesselctl
