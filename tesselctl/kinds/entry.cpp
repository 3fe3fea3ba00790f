// Entries of keyed tables: add, modify, delete, find, count; and in images.
#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/kinds/table_items.hpp"

namespace tesselctl {

namespace {

// The function of the table for what the line says: one per action, or one for members and one for
// groups. direct is the family of the former, indirect the one for members; that for groups has
// "_with_selector" behind the verb.
const bindings::Export &outcome_export(const EntryLine &line, std::string_view direct,
                                       std::string_view member, std::string_view group) {
  if (line.need_outcome()) return need_export(direct, line.table().name(), line.action());
  return need_export(line.member() ? member : group, line.table().name());
}

Row table_row(const EntryLine &line) {
  Row row;
  row.object("table", line.table().name());
  return row;
}

Row count_row(const TableInfo &table, uint32_t entries) {
  Row row;
  row.object("table", table.name()).number("entries", entries);
  return row;
}

void add(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_entry();
  line.need_key();
  Call call = context.device.prepare(
      outcome_export(line, "table_add", "add_entry", "add_entry_with_selector"));
  p4_pd_entry_handle_t entry = 0;
  line.fill(call, true);
  check_outcome(call.set("entry", &entry).run(), context.device, line, line.table_word());
  if (line.label()) remember(context, *line.label(), entry);
  context.results.done(table_row(line).number("entry", entry), "added");
}

void modify(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_label();
  line.need_key_or_entry();
  const bool by_handle = line.entry().has_value();
  if (!by_handle) line.need_key();
  Call call = context.device.prepare(
      by_handle ? outcome_export(line, "table_modify", "modify_entry", "modify_entry_with_selector")
                : outcome_export(line, "table_modify_by_match_spec", "modify_entry_by_match_spec",
                                 "modify_entry_with_selector_by_match_spec"));
  if (by_handle) call.set("entry", uint64_t{line.entry()->value});
  line.fill(call, false);
  check_outcome(call.run(), context.device, line,
                by_handle ? line.entry()->word : line.table_word());
  context.results.done(table_row(line), "modified");
}

void remove(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_outcome();
  line.refuse_label();
  line.need_key_or_entry();
  const bool by_handle = line.entry().has_value();
  if (!by_handle) line.need_key();
  Call call = context.device.prepare(by_handle ? "table_delete" : "table_delete_by_match_spec",
                                     line.table().name());
  if (by_handle) call.set("entry", uint64_t{line.entry()->value});
  line.fill(call, false);
  check(call.run(), by_handle ? line.entry()->word : line.table_word());
  context.results.done(table_row(line), "deleted");
}

void find(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_entry();
  line.refuse_outcome();
  line.need_key();
  Call call = context.device.prepare("match_spec_to_entry_hdl", line.table().name());
  p4_pd_entry_handle_t entry = 0;
  line.fill(call, false);
  check(call.set("entry", &entry).run(), line.table_word());
  if (line.label()) remember(context, *line.label(), entry);
  context.results.row(table_row(line).number("entry", entry));
}

uint32_t entry_count(const Context &context, const TableInfo &table, Word word) {
  uint32_t count = 0;
  Call call = context.device.prepare("get_entry_count", table.name());
  check(call.set("count", &count).run(), word);
  return count;
}

void count(Context &context, const Invocation &invocation) {
  if (!invocation.arguments.empty()) {
    for (const Word &word : invocation.arguments) {
      const TableInfo table = resolve_table(word);
      context.results.row(count_row(table, entry_count(context, table, word)));
    }
    return;
  }
  bool any = false;
  for (const bindings::Record &record : tables()) {
    const TableInfo table = resolve_table({record.name, 0});
    const uint32_t entries = entry_count(context, table, invocation.command);
    context.results.expect(count_row(table, entries));
    if (entries == 0) continue;
    any = true;
    context.results.row(count_row(table, entries));
  }
  if (!any && !context.settings.json && !context.settings.count &&
      !context.results.asks_for_names()) {
    context.results.text("all tables are empty");
  }
}

constexpr Command kCommands[] = {
    {"add", "TABLE FIELD=VALUE... [priority=N] [ttl=MS] [meter=CIR,CBS,PIR,PBS] [as=NAME] OUTCOME",
     "adds an entry", add, Kind::changes},
    {"modify", "TABLE entry=HANDLE|FIELD=VALUE... [priority=N] [meter=CIR,CBS,PIR,PBS] OUTCOME",
     "gives an entry another action, member or group", modify, Kind::changes},
    {"delete", "TABLE entry=HANDLE|FIELD=VALUE... [priority=N]", "deletes an entry", remove,
     Kind::changes},
    {"find", "TABLE FIELD=VALUE... [priority=N] [as=NAME]", "prints the handle of an entry", find},
    {"count", "[TABLE...]", "counts the entries of tables, or of all that have any", count,
     Kind::lists},
};

// ---- In images ----

class Entries : public TableItems {
 public:
  explicit Entries(const char *table)
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

}  // namespace

extern const ItemKind kEntryKind = {kTableObjects, "entry", kSteps, [](const char *table) {
                                      std::unique_ptr<ObjectItems> items;
                                      if (resolve_table({table, 0}).keyed()) {
                                        items = std::make_unique<Entries>(table);
                                      }
                                      return items;
                                    }};

std::span<const Command> entry_commands() { return kCommands; }

}  // namespace tesselctl
