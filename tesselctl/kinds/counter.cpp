// Counters: those of entries and those that are addressed by an index; the latter in images.
#include <algorithm>
#include <map>

#include "soft_traffic.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/entry_texts.hpp"
#include "tesselctl/kinds/synchronise.hpp"
#include "tesselctl/metrics/device_metrics.hpp"

namespace tesselctl {

namespace {

using CounterLine = ObjectLine<soft_counter_t>;
using Values = p4_pd_counter_values_t;

constexpr uint64_t kLastCell = SOFT_COUNTER_CELLS - 1;

bool has_counted(const Values &values) { return (values.packets | values.bytes) != 0; }

// Sets the address of a cell in calls: the handle of an entry, or an index.
Call &set_cell(Call &call, const soft_counter_t &counter, uint32_t cell) {
  return call.set(counter.table != 0 ? "entry" : "index", uint64_t{cell});
}

Values read_cell(const Device &device, const soft_counter_t &counter, uint32_t cell,
                 const p4_pd_device_target_t &target, uint64_t flags, Word word) {
  Values values = {};
  Call call = device.prepare("counter_read", counter.name);
  set_cell(call, counter, cell).set("target", &target).set("flags", flags);
  check(call.set("values", &values).run(), word);
  return values;
}

void write_cell(const Device &device, const soft_counter_t &counter, uint32_t cell,
                const p4_pd_device_target_t &target, const Values &values, Word word) {
  Call call = device.prepare("counter_write", counter.name);
  set_cell(call, counter, cell).set("target", &target);
  check(call.set("values", &values).run(), word);
}

// ---- Items ----

// "cell 3 pipe=0 packets=10 bytes=640": cells that have counted.
class CounterCells : public NumberItems {
 public:
  static bool exist(const soft_counter_t &counter) { return counter.table == 0; }
  explicit CounterCells(const soft_counter_t &counter)
      : NumberItems({.columns = {{.name = "index"},
                                 {.name = "pipe"},
                                 {.name = "packets", .limit = ~uint64_t{0}},
                                 {.name = "bytes", .limit = ~uint64_t{0}}},
                     .identity = 2,
                     .nameless = 1}),
        counter_(counter) {}

 protected:
  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    for_each_cell(
        from.device, counter_.handle,
        [&](uint32_t cell) {
          for (uint32_t pipe = 0; pipe < from.device.pipes(); ++pipe) {
            const Values values =
                read_cell(from.device, counter_, cell, from.device.target_of(pipe),
                          P4_PD_READ_FROM_HARDWARE, {});
            if (has_counted(values)) visit({cell, pipe, values.packets, values.bytes});
          }
        },
        from.only);
  }
  void write_numbers(Target &to, Edit edit, const Numbers &cell, Word word) const override {
    if (cell[1] >= to.device.pipes()) throw Fault(word, "the device has no such pipe");
    const Values values = edit == Edit::remove ? Values{} : Values{cell[2], cell[3]};
    write_cell(to.device, counter_, static_cast<uint32_t>(cell[0]),
               to.device.target_of(static_cast<uint32_t>(cell[1])), values, word);
  }

 private:
  const soft_counter_t &counter_;
};

// ---- Commands ----

Row cell_row(const soft_counter_t &counter, uint32_t cell, const Values &values,
             const std::string &label) {
  Row row;
  row.object("counter", counter.name).number(counter.table != 0 ? "entry" : "index", cell);
  row.amount("packets", values.packets).amount("bytes", values.bytes);
  return label.empty() ? row : row.text("label", label);
}

// With a label of what the entry counts, for a counter of a table.
Row labelled_row(const Device &device, const soft_counter_t &counter, uint32_t cell, uint64_t flags,
                 Word word) {
  const Values values = read_cell(device, counter, cell, device.target(), flags, word);
  return cell_row(counter, cell, values,
                  counter.table == 0 ? "" : counter_label(device, counter.table, cell));
}

void read(Context &context, const Invocation &invocation) {
  const CounterLine line(context, invocation, {"index", "source"});
  context.results.row(labelled_row(context.device, line.object, line.cell(kLastCell),
                                   read_flags(line.options), line.word));
}

// The cells of a counter that go by index and have counted, with the entries whose actions name
// them.
class CountedCells {
 public:
  CountedCells(const Device &device, const soft_counter_t &counter, Word word, uint64_t flags)
      : device_(device), counter_(counter), word_(word) {
    for_each_cell(device, counter.handle, [&](uint32_t cell) {
      const Values values = read_cell(device, counter, cell, device.target(), flags, word);
      if (has_counted(values)) cells_[cell].values = values;
    });
    if (cells_.empty()) return;
    for (const TableInfo &table : all_tables()) label_entries(table);
  }

  void print(Results &results) const {
    for (const auto &[index, cell] : cells_) {
      results.row(cell_row(counter_, index, cell.values, cell.label));
    }
  }

 private:
  struct Cell {
    Values values = {};
    std::string label;
  };

  // The parameter that names the cell, by the number of its action.
  std::map<uint32_t, const Field *> parameters_of(const TableInfo &table) const {
    std::map<uint32_t, const Field *> found;
    for (const bindings::Record *action : actions_of(*table.description)) {
      for (const Field &field : action->shown()) {
        const auto names = [&](const char *cells) {
          return counter_.name == std::string_view(cells);
        };
        if (std::any_of(field.cells.begin(), field.cells.end(), names))
          found[action->number] = &field;
      }
    }
    return found;
  }

  void label_entries(const TableInfo &table) {
    const std::map<uint32_t, const Field *> parameters = parameters_of(table);
    if (parameters.empty()) return;
    EntryReader reader(device_, table, EntryReader::Resources::none);
    ItemBytes item;
    for_each_entry(device_, table, word_, [&](p4_pd_entry_handle_t entry) {
      check(reader.read(entry, item), word_);
      const auto parameter = parameters.find(head_of(item.value).number);
      if (parameter == parameters.end()) return;
      const auto index =
          load_value(*parameter->second, tesselctl::parameters_of(item.value)).value.low;
      const auto cell = cells_.find(static_cast<uint32_t>(index));
      if (cell == cells_.end()) return;
      Row row;
      row.object("table", table.name()).number("entry", entry);
      add_key(row, table, item.view());
      cell->second.label += (cell->second.label.empty() ? "" : "; ") + row.words();
    });
  }

  const Device &device_;
  const soft_counter_t &counter_;
  Word word_;
  std::map<uint32_t, Cell> cells_;
};

void list_cells(Context &context, const soft_counter_t &counter, Word word, uint64_t flags) {
  const Device &device = context.device;
  context.results.expect(cell_row(counter, 0, {}, "label"));
  if (counter.table == 0) {
    return CountedCells(device, counter, word, flags).print(context.results);
  }
  for_each_entry(device, table_of_handle(counter.table), word, [&](p4_pd_entry_handle_t entry) {
    context.results.row(labelled_row(device, counter, entry, flags, word));
  });
}

// Of the counter, or of all.
void list_counters(Context &context, std::span<const soft_counter_t> counters, Word word,
                   uint64_t flags) {
  if (!context.settings.openmetrics) {
    for (const soft_counter_t &counter : counters) list_cells(context, counter, word, flags);
    return;
  }
  if (context.results.asks_for_names() || context.settings.count) {
    throw Fault(word, "--openmetrics goes without --filter, --sort and --count");
  }
  MetricsText metrics = metrics_of(context.device, MetricsFormat::open_metrics);
  add_counters(metrics, context.device, counters, flags, ~size_t{0});
  context.results.text(metrics.take());
}

void list(Context &context, const Invocation &invocation) {
  const Words words = invocation.arguments;
  if (!words.empty() && words[0].text.find('=') == std::string_view::npos) {
    const CounterLine line(context, invocation, {"source"});
    return list_counters(context, {&line.object, 1}, line.word, read_flags(line.options));
  }
  list_counters(context, program_rows<soft_counter_t>(), invocation.command,
                read_flags({invocation, 0, {"source"}}));
}

void write(Context &context, const Invocation &invocation) {
  const CounterLine line(context, invocation, {"index", "packets", "bytes", "pipe"});
  const Values values = {line.options.quantity("packets", kPackets, ~uint64_t{0}),
                         line.options.quantity("bytes", kBytes, ~uint64_t{0})};
  const auto target = context.device.target_of(pipe_of(context, line.options, BF_ALL_PIPES));
  write_cell(context.device, line.object, line.cell(kLastCell), target, values, line.word);
  line.done("written");
}

constexpr ObjectWord kWords[] = {{"COUNTER", offer_objects<soft_counter_t, cells_help>,
                                  choose_object<soft_counter_t, choose_cells>}};

constexpr Command kCommands[] = {
    {"counter read", "COUNTER index=N|entry=HANDLE [source=hardware|software]",
     "prints the packets and bytes of a counter cell", read},
    {"counter list", "[COUNTER] [source=hardware|software]",
     "prints counted entries, cells that have counted, and what they count", list, Kind::lists,
     "--openmetrics"},
    {"counter write", "COUNTER index=N|entry=HANDLE packets=N bytes=N [pipe=N]",
     "sets the packets and bytes of a counter cell", write, Kind::changes},
    {"counter sync", "COUNTER", "brings the software copy of a counter up to date",
     synchronise<soft_counter_t>, Kind::changes},
};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_counter_t>,
                                "cell",
                                30,
                                kCellSteps,
                                {"counter write"},
                                open_items<CounterCells, soft_counter_t>}};

}  // namespace

extern const Topic kCounterTopic = {"Counters and registers", kCommands, kWords, kKinds};

}  // namespace tesselctl
