// Ageing of tables, on the virtual clock.
#include "soft_sdk.h"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/kinds/digest.hpp"
#include "tesselctl/kinds/event_rows.hpp"
#include "tesselctl/kinds/table_items.hpp"
#include "tesselctl/program/value.hpp"

namespace tesselctl {

namespace {

using Params = p4_pd_idle_time_params_t;

// "ageing mode=1 sweep=1000 max=0 min=0 ttl=0"
class Ageing : public NumberItems {
 public:
  static bool exist(const soft_table_t &table) { return table.ages_entries; }
  explicit Ageing(const soft_table_t &table)
      : NumberItems({.columns = {{"mode"}, {"sweep"}, {"max"}, {"min"}, {"ttl"}},
                     .identity = 0,
                     .nameless = 0,
                     .what = "ageing"}),
        table_(table.name) {}

 protected:
  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    Params params = {};
    Call call = from.device.prepare("idle_params_get", table_);
    if (call.set("params", &params).run() != BF_SUCCESS) return;
    visit({params.mode, params.sweep_interval_ms, params.max_ttl_ms, params.min_ttl_ms,
           params.default_ttl_ms});
  }
  void write_numbers(Target &to, Edit edit, const Numbers &numbers, Word word) const override {
    Params params = {};
    uint32_t *const members[] = {&params.mode, &params.sweep_interval_ms, &params.max_ttl_ms,
                                 &params.min_ttl_ms, &params.default_ttl_ms};
    for (size_t i = 0; i < std::size(members); ++i) *members[i] = static_cast<uint32_t>(numbers[i]);
    const bool off = edit == Edit::remove;
    Call call = to.device.prepare(off ? "idle_tmo_disable" : "idle_tmo_enable", table_);
    check(call.set_if_taken("params", static_cast<const void *>(&params)).run(), word);
  }

 private:
  const char *table_;
};

// ---- Commands ----

TableLine ageing_line(Context &context, const Invocation &invocation,
                      std::initializer_list<std::string_view> names = {}) {
  TableLine line(context, invocation, names);
  if (line.table.ages()) return line;
  throw Fault(line.word, std::string(line.table.name()) + " does not age its entries");
}

void note_expired(bf_device_id_t, pipe_object_handle_t table, pipe_entry_handle_t entry,
                  void *events) {
  auto &all = *static_cast<Events *>(events);
  all.expired.push_back({table, entry});
  ++all.expired_count;
}

void listen(Device &device, const TableInfo &table, Word word) {
  Call call = device.prepare("idle_register_tmo_cb", table.name());
  call.set("callback", reinterpret_cast<const void *>(&note_expired));
  check(call.set("client_data", &device.events()).run(), word);
}

void enable(Context &context, const Invocation &invocation) {
  const TableLine line = ageing_line(context, invocation, {"mode", "sweep", "min", "max", "ttl"});
  const auto milliseconds = [&](const char *name, uint64_t otherwise) {
    return static_cast<uint32_t>(line.options.quantity_or(name, kMilliseconds, otherwise));
  };
  Params params = {};
  params.mode =
      static_cast<uint32_t>(line.options.number_or("mode", PIPE_IDLE_NOTIFY, PIPE_IDLE_NOTIFY));
  params.sweep_interval_ms = milliseconds("sweep", 1000);
  params.min_ttl_ms = milliseconds("min", 0);
  params.max_ttl_ms = milliseconds("max", 0);
  params.default_ttl_ms = milliseconds("ttl", 0);
  listen(context.device, line.table, line.word);
  line.run(line.call("idle_tmo_enable").set("params", &params));
  line.done("ages its entries");
}

void disable(Context &context, const Invocation &invocation) {
  const TableLine line = ageing_line(context, invocation);
  line.run(line.call("idle_tmo_disable"));
  line.done("no longer ages its entries");
}

void advance(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "a number of milliseconds");
  refuse_arguments_from(invocation, 1);
  constexpr uint64_t kYear = 366ull * 24 * 3600 * 1000;
  std::vector<ExpiredEntry> &all_expired = context.device.events().expired;
  all_expired.clear();
  if (context.is_trial) {  // copies of devices have no listeners
    for (const TableInfo &table : all_tables()) {
      if (table.ages()) listen(context.device, table, word);
    }
  }
  const uint64_t time = parse_limited(word, kYear, "the time", 0, &kMilliseconds);
  check(soft_device_clock_advance(context.device.id(), time), word);
  for (const ExpiredEntry &expired : all_expired) {
    context.results.row(expired_row(context.device, expired, word));
  }
  print_messages(context);
}

constexpr Command kCommands[] = {
    {"age enable", "TABLE [sweep=MS] [ttl=MS] [min=MS] [max=MS] [mode=N]",
     "starts ageing; ttl is that of entries added without one", enable, Kind::changes},
    {"age disable", "TABLE", "ends ageing", disable, Kind::changes},
    {.name = "age advance",
     .arguments = "MS",
     .summary = "lets time pass and lists the entries that expire and the messages that arrive",
     .run = advance,
     .kind = Kind::changes,
     .watched = true},
};

constexpr Step kSteps[] = {{Phase::ageing_off, Edit::remove},
                           {Phase::ageing_off, Edit::modify, Edit::remove},
                           {Phase::ageing, Edit::modify},
                           {Phase::ageing, Edit::add}};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_table_t>,
                                "ageing",
                                22,
                                kSteps,
                                {"age enable", {}, "age disable"},
                                open_items<Ageing, soft_table_t>}};

}  // namespace

Row expired_row(const Device &device, const ExpiredEntry &expired, Word word) {
  const TableInfo table = table_of_handle(expired.table);
  EntryReader reader(device, table, EntryReader::Resources::settings);
  ItemBytes item;
  check(reader.read(expired.entry, item), word);
  Row row;
  row.object("table", table.name()).number("entry", expired.entry).object("event", "expired");
  add_entry(row, table, item.view(), Naming::handles);
  return row;
}

extern const Topic kAgeingTopic = {"Time and state", kCommands, {}, kKinds};

}  // namespace tesselctl
