// Default entries of tables.
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/device/group_call.hpp"
#include "tesselctl/kinds/table_items.hpp"

namespace tesselctl {

namespace {

class DefaultEntry : public TableItems {
 public:
  explicit DefaultEntry(const soft_table_t &table)
      : TableItems(table, false, {"set_default_action", "set_default_action"}) {}

  void add_to(Row &row, const ItemView &item, Naming naming) const override {
    row.object("which", "default");
    TableItems::add_to(row, item, naming);
  }
  void add_samples_to(Row &row, Naming naming) const override {
    TableItems::add_samples_to(row.object("which", "default"), naming);
  }

  void read(Source &from, const ItemVisitor &visit) override {
    EntryReader reader(from.device, table(), EntryReader::Resources::all);
    const auto entry = reader.default_entry();
    if (!entry) return;
    ItemBytes item;
    read_entry(from, reader, *entry, item);
    visit(item.view());
  }

  void write(Target &to, Edit edit, const ItemView &item, Word word) override {
    const EntryHead head = head_of(item.value);
    if (edit == Edit::remove || head.outcome == EntryHead::kNothing) {
      return check(to.device.prepare("table_reset_default_entry", table().name()).run(), word);
    }
    // The program's own default may have what no call can set: an index that names no cell.
    if (edit == Edit::add && is_there(to, item)) return;
    const p4_pd_bytes_meter_spec_t meter = meter_spec(head.meter);
    p4_pd_entry_handle_t entry = 0;
    Call call = set_call(to, item.value, word);
    call.set_if_taken("entry", static_cast<const void *>(&entry));
    const void *const spec = head.has_meter != 0 ? &meter : nullptr;
    call.set_if_taken("meter_spec", spec);
    check(run_with_group(to.device, table(), call), word);
    if (entry != 0) write_counter(to, edit, head, entry, word);
  }

 private:
  bool is_there(const Target &to, const ItemView &item) {
    EntryReader reader(to.device, table(), EntryReader::Resources::all);
    const auto entry = reader.default_entry();
    ItemBytes now;
    return !table().indirect() && entry && reader.read(*entry, now) == BF_SUCCESS &&
           now.view() == item;
  }

  Call set_call(Target &to, std::string_view value, Word word) {
    const EntryHead head = head_of(value);
    if (head.outcome == EntryHead::kAction) return action_call(to, value, Edit::modify);
    const bool group = head.outcome == EntryHead::kGroup;
    Call call = to.device.prepare(group ? "set_default_entry_with_selector" : "set_default_entry",
                                  table().name());
    return call.set(group ? "group" : "member", uint64_t{target_of(to, head, word)});
  }
};

constexpr Step kSteps[] = {
    {Phase::entries, Edit::modify}, {Phase::entries, Edit::add}, {Phase::entries, Edit::remove}};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_table_t>,
                                "default",
                                20,
                                kSteps,
                                {"default set", {}, "default reset"},
                                open_items<DefaultEntry, soft_table_t>}};

// ---- Commands ----

// Not every action of a table may be its default.
const bindings::Export &need_default_export(const EntryLine &line) {
  const bindings::Export *found =
      find_export("set_default_action", line.table().name(), line.action());
  if (found != nullptr) return *found;
  throw Fault(line.table_word(), std::string(line.action()) + " cannot be the default action of " +
                                     line.table().name());
}

void set(Context &context, const Invocation &invocation) {
  EntryLine line(context, invocation);
  line.refuse_key();
  const char *table = line.table().name();
  Call call = context.device.prepare(
      line.need_outcome()
          ? need_default_export(line)
          : need_export(line.member() ? "set_default_entry" : "set_default_entry_with_selector",
                        table));
  p4_pd_entry_handle_t entry = 0;
  line.fill(call, false);
  call.set("entry", &entry);
  check_outcome(run_with_group(context.device, line.table(), call), context.device, line,
                line.table_word());
  line.remember(context, entry);
  Row row;
  context.results.done(row.object("table", table).object("which", "default").number("entry", entry),
                       "set");
}

void get(Context &context, const Invocation &invocation) {
  const TableLine line(context, invocation);
  context.results.row(default_entry_row(context.device, line.table, line.word));
}

void reset(Context &context, const Invocation &invocation) {
  const TableLine line(context, invocation);
  line.run(line.call("table_reset_default_entry"));
  line.done(line.row().object("which", "default"), "reset");
}

constexpr Command kCommands[] = {
    {"default set", "TABLE [meter=CIR,CBS,PIR,PBS] [as=NAME] OUTCOME",
     "sets what a table does without a hit", set, Kind::changes},
    {"default get", "TABLE", "prints what a table does without a hit", get},
    {"default reset", "TABLE", "puts back the default entry of the program", reset, Kind::changes},
};

}  // namespace

extern const Topic kDefaultTopic = {"Default entries", kCommands, {}, kKinds};

}  // namespace tesselctl
