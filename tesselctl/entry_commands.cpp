// Entries of keyed tables: add, modify, delete, find, count.
#include "tesselctl/entry_line.hpp"

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

void add(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_entry();
  line.need_key();
  Call call = context.device.prepare(
      outcome_export(line, "table_add", "add_entry", "add_entry_with_selector"));
  p4_pd_entry_handle_t entry = 0;
  line.fill(call, true);
  check(call.set("entry", &entry).run(), line.table_word());
  if (line.label()) remember(context, *line.label(), entry);
  if (context.verbose) context.out.line("{} entry={} added", line.table().name(), entry);
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
  check(call.run(), by_handle ? line.entry()->word : line.table_word());
  if (context.verbose) context.out.line("{} modified", line.table().name());
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
  if (context.verbose) context.out.line("{} deleted", line.table().name());
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
  context.out.line("{} entry={}", line.table().name(), entry);
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
      context.out.line("{} {}", table.name(), entry_count(context, table, word));
    }
    return;
  }
  Listing listing({"table", ">entries"});
  for (const bindings::Record &record : tables()) {
    const TableInfo table = resolve_table({record.name, 0});
    const uint32_t entries = entry_count(context, table, invocation.command);
    if (entries != 0) listing.add({table.name(), grouped(entries)});
  }
  if (listing.empty()) return context.out.line("all tables are empty");
  listing.print(context.out);
}

constexpr Command kCommands[] = {
    {"add", "TABLE FIELD=VALUE... [priority=N] [ttl=MS] [meter=CIR,CBS,PIR,PBS] [as=NAME] OUTCOME",
     "adds an entry", add},
    {"modify", "TABLE entry=HANDLE|FIELD=VALUE... [priority=N] [meter=CIR,CBS,PIR,PBS] OUTCOME",
     "gives an entry another action, member or group", modify},
    {"delete", "TABLE entry=HANDLE|FIELD=VALUE... [priority=N]", "deletes an entry", remove},
    {"find", "TABLE FIELD=VALUE... [priority=N] [as=NAME]", "tells the handle of an entry", find},
    {"count", "[TABLE...]", "counts the entries of tables, or of all that have any", count},
};

}  // namespace

std::span<const Command> entry_commands() { return kCommands; }

}  // namespace tesselctl
