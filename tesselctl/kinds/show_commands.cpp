// Reading back: default entries, and what tables hold.
#include "tesselctl/command/options.hpp"
#include "tesselctl/device/entry_texts.hpp"
#include "tesselctl/device/read_back.hpp"

namespace tesselctl {

namespace {

// Not every action of a table may be its default.
const bindings::Export &need_default_export(const EntryLine &line) {
  const bindings::Export *found =
      find_export("set_default_action", line.table().name(), line.action());
  if (found != nullptr) return *found;
  throw Fault(line.table_word(), std::string(line.action()) + " cannot be the default action of " +
                                     line.table().name());
}

void default_set(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_entry();
  if (line.has_key()) throw Fault(line.table_word(), "a default entry has no key");
  const char *table = line.table().name();
  Call call = context.device.prepare(
      line.need_outcome()
          ? need_default_export(line)
          : need_export(line.member() ? "set_default_entry" : "set_default_entry_with_selector",
                        table));
  p4_pd_entry_handle_t entry = 0;
  line.fill(call, false);
  check_outcome(call.set("entry", &entry).run(), context.device, line, line.table_word());
  if (line.label()) remember(context, *line.label(), entry);
  Row row;
  context.results.done(row.object("table", table).object("which", "default").number("entry", entry),
                       "set");
}

void default_get(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a table");
  const TableInfo table = resolve_table(word);
  refuse_arguments_from(invocation, 1);
  context.results.row(default_entry_row(context.device, table, word));
}

void default_reset(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a table");
  const TableInfo table = resolve_table(word);
  refuse_arguments_from(invocation, 1);
  check(context.device.prepare("table_reset_default_entry", table.name()).run(), word);
  Row row;
  context.results.done(row.object("table", table.name()).object("which", "default"), "reset");
}

void show(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a table");
  const TableInfo table = resolve_table(word);
  const Options options(invocation, 1, {"entry"});
  if (!context.settings.raw) expect_entries(context.results, table);
  EntryReader reader(context.device, table, EntryReader::Resources::settings);
  const auto print = [&](p4_pd_entry_handle_t entry) {
    if (context.settings.raw) return dump_value(context, table, entry, word);
    context.results.row(entry_row(reader, entry, word));
  };
  if (options.has("entry")) return print(options.handle(context, "entry"));
  if (context.settings.raw) return dump_values(context, table, word);
  for_each_entry(context.device, table, word, print);
}

constexpr Command kCommands[] = {
    {"show", "TABLE [entry=HANDLE]", "prints the entries of a table, or one of them", show,
     Kind::lists, "--raw"},
    {"default set", "TABLE [meter=CIR,CBS,PIR,PBS] [as=NAME] OUTCOME",
     "sets what a table does without a hit", default_set, Kind::changes},
    {"default get", "TABLE", "prints what a table does without a hit", default_get},
    {"default reset", "TABLE", "puts back the default entry of the program", default_reset,
     Kind::changes},
};

}  // namespace

std::span<const Command> show_commands() { return kCommands; }

}  // namespace tesselctl
