// Entries of keyed tables.
#include <fmt/format.h>

#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/entry_adder.hpp"
#include "tesselctl/device/entry_texts.hpp"
#include "tesselctl/device/group_call.hpp"
#include "tesselctl/device/range_rows.hpp"
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
    if (reading_ != &from.device)
      reader_.emplace(from.device, table(), EntryReader::Resources::all);
    reading_ = &from.device;
    const auto read_one = [&](p4_pd_entry_handle_t entry) {
      if (!read_entry(from, *reader_, entry, item_)) return;
      // The default entry has a handle, too.
      if (!item_.identity.empty()) visit(item_.view());
    };
    if (from.only) return read_one(*from.only);
    for_each_entry(from.device, table(), {}, read_one);
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
      call.set_if_taken("meter_spec", spec);
      check(run_with_group(to.device, table(), call), word);
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

  // Of the device that was read last.
  const Device *reading_ = nullptr;
  std::optional<EntryReader> reader_;
  ItemBytes item_;
};

constexpr Step kSteps[] = {{Phase::entries_leave, Edit::remove},
                           {Phase::entries, Edit::modify},
                           {Phase::entries, Edit::add}};

// ---- Commands ----

Row table_row(const TableInfo &table) {
  Row row;
  row.object("table", table.name());
  return row;
}

template <class T>
Row count_row(const TableInfo &table, T entries) {
  return table_row(table).amount("entries", entries);
}

void add_entries(Context &context, const Invocation &invocation, bool replaces) {
  EntryLine line(context, invocation);
  line.need_key();
  EntryAdder adder(context.device, line, replaces);
  for (const AddedEntry &entry : adder.run()) {
    line.remember(context, entry.handle);
    context.results.done(table_row(line.table()).number("entry", entry.handle),
                         entry.is_new ? "added" : "modified");
  }
}

void add(Context &context, const Invocation &invocation) {
  add_entries(context, invocation, false);
}
void replace(Context &context, const Invocation &invocation) {
  add_entries(context, invocation, true);
}

// The handles of all entries of the key.
std::vector<p4_pd_entry_handle_t> find_entries(const Device &device, EntryLine &line) {
  p4_pd_entry_handle_t entry = 0;
  Call call = device.prepare("match_spec_to_entry_hdl", line.table().name());
  line.give(call.set("entry", &entry));
  std::vector<p4_pd_entry_handle_t> entries(line.count());
  for (size_t i = 0; i < entries.size(); ++i) {
    line.choose(i);
    try {
      check(call.run(), line.table_word());
    } catch (const Fault &fault) {
      throw line.with_chosen(fault, i, "");
    }
    entries[i] = entry;
  }
  return entries;
}

// Runs a call that takes an entry by its handle or by its key. Of several, all are there, and what
// the device takes for the first it takes for the others.
template <class Check>
void run_on_entries(const Device &device, Call &call, EntryLine &line, Check check_status) {
  if (line.entry()) call.set("entry", uint64_t{line.entry()->value});
  line.fill(call, false);
  if (line.count() > 1) find_entries(device, line);
  for (size_t i = 0; i < line.count(); ++i) {
    line.choose(i);
    check_status(run_with_group(device, line.table(), call),
                 line.entry() ? line.entry()->word : line.table_word());
  }
}

Row changed_row(const EntryLine &line) {
  return line.count() == 1 ? table_row(line.table()) : count_row(line.table(), line.count());
}

void modify(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_label();
  Call call = context.device.prepare(
      line.need_key_or_entry()
          ? outcome_export(line, "table_modify", "modify_entry", "modify_entry_with_selector")
          : outcome_export(line, "table_modify_by_match_spec", "modify_entry_by_match_spec",
                           "modify_entry_with_selector_by_match_spec"));
  run_on_entries(context.device, call, line, [&](uint64_t status, Word word) {
    check_outcome(status, context.device, line, word);
  });
  context.results.done(changed_row(line), "modified");
}

void remove(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_outcome();
  line.refuse_label();
  Call call = context.device.prepare(
      line.need_key_or_entry() ? "table_delete" : "table_delete_by_match_spec",
      line.table().name());
  run_on_entries(context.device, call, line, check);
  context.results.done(changed_row(line), "deleted");
}

void find(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_outcome();
  line.need_key();
  Call call = context.device.prepare("match_spec_to_entry_hdl", line.table().name());
  line.fill(call, false);
  for (const p4_pd_entry_handle_t entry : find_entries(context.device, line)) {
    line.remember(context, entry);
    context.results.row(table_row(line.table()).number("entry", entry));
  }
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

// Columns that nothing is picked from are for people, who read ranges; all else is about entries.
bool joins_ranges(const Context &context, const TableLine &line) {
  const Settings &settings = context.settings;
  return line.table.has_priority() && !settings.json && !settings.terse && !settings.count &&
         !context.results.asks_for_names() && !line.options.has("entry");
}

void show_ranges(Context &context, const TableLine &line) {
  RangeRows rows(line.table, [&](const Row &row) { context.results.row(row); });
  EntryReader reader(context.device, line.table, EntryReader::Resources::settings);
  ItemBytes item;
  line.for_each_entry([&](p4_pd_entry_handle_t entry) {
    check(reader.read(entry, item), line.word);
    rows.add(entry, item);
  });
  rows.finish();
}

void show(Context &context, const Invocation &invocation) {
  const TableLine line(context, invocation, {"entry"});
  const bool raw = context.settings.raw;
  if (!raw) expect_entries(context.results, line.table);
  if (raw && !line.options.has("entry")) return dump_values(context, line.table, line.word);
  if (!raw && joins_ranges(context, line)) return show_ranges(context, line);
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

void offer_tables(Offers &offers, const Context &, const Command &command, Words given) {
  const bool only_ageing = command.first_word() == "age";
  const bool only_acl = command.name == "acl";
  const auto is_acl = [](const TableInfo &table) {
    return std::ranges::any_of(binding().acls, [&](const bindings::Acl &acl) {
      return table.name() == std::string_view(acl.table);
    });
  };
  for (const TableInfo &table : all_tables()) {
    if (!offers.begins(table.name()) || (only_acl && !is_acl(table))) continue;
    const bool is_given = std::any_of(given.begin(), given.end(),
                                      [&](const Word &word) { return word.text == table.name(); });
    if (!is_given && (!only_ageing || table.ages())) offers.offer(table.name(), table_help(table));
  }
}

void choose(Subject &subject, const soft_table_t &table) {
  choose_table(subject, resolve_table({table.name, 0}));
}

void offer_all_actions(Offers &offers, const Context &, const Command &, Words) {
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
