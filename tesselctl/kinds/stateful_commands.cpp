// Counters and registers.
#include <algorithm>
#include <map>

#include "soft_contents.h"
#include "soft_state.h"
#include "soft_traffic.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/subject.hpp"
#include "tesselctl/device/entry_texts.hpp"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

// source=hardware brings a value up to date before it is read; that is what people want to see.
uint64_t read_flags(const Options &options) {
  return options.choice_or("source", {"hardware", "software"}, 0) == 0 ? P4_PD_READ_FROM_HARDWARE
                                                                       : 0;
}

void note_synchronised(bf_device_id_t, void *done) { *static_cast<bool *>(done) = true; }

void synchronise(Context &context, const char *family, const char *object, Word word) {
  bool done = false;
  Call call = context.device.prepare(family, object);
  call.set("callback", reinterpret_cast<const void *>(&note_synchronised)).set("cookie", &done);
  check(call.run(), word);
  Row row;
  row.object("object", object).object("state", done ? "synchronised" : "not yet synchronised");
  context.results.row(row);
}

// ---- Counters ----

const soft_counter_t &counter_of(const Invocation &invocation) {
  return resolve_object<soft_counter_t>(need_argument(invocation, 0, "the name of a counter"),
                                        "counter");
}

// The counter of a table goes by the handle of an entry, the others by an index.
const char *cell_of(const soft_counter_t &counter) {
  return counter.table != 0 ? "entry" : "index";
}

uint32_t cell_word(const Context &context, const soft_counter_t &counter, const Options &options) {
  if (counter.table != 0) return options.handle(context, cell_of(counter));
  return static_cast<uint32_t>(options.number(cell_of(counter), SOFT_COUNTER_CELLS - 1));
}

p4_pd_counter_values_t read_cell(const Context &context, const soft_counter_t &counter, uint32_t at,
                                 uint64_t flags, Word word) {
  p4_pd_counter_values_t values = {};
  Call call = context.device.prepare("counter_read", counter.name);
  call.set(cell_of(counter), uint64_t{at}).set("flags", flags).set("values", &values);
  check(call.run(), word);
  return values;
}

// The label says what the cell counts.
Row cell_row(const soft_counter_t &counter, uint32_t at, const p4_pd_counter_values_t &values,
             const std::string &label) {
  Row row;
  row.object("counter", counter.name).number(cell_of(counter), at);
  row.number("packets", values.packets).number("bytes", values.bytes);
  return label.empty() ? row : row.text("label", label);
}

// With a label for a counter of a table.
Row cell_row(const Context &context, const soft_counter_t &counter, uint32_t at,
             const p4_pd_counter_values_t &values) {
  const std::string label =
      counter.table != 0 ? counter_label(context.device, counter.table, at) : "";
  return cell_row(counter, at, values, label);
}

void counter_read(Context &context, const Invocation &invocation) {
  const soft_counter_t &counter = counter_of(invocation);
  const Options options(invocation, 1, {cell_of(counter), "source"});
  const uint32_t at = cell_word(context, counter, options);
  const p4_pd_counter_values_t values =
      read_cell(context, counter, at, read_flags(options), invocation.arguments[0]);
  context.results.row(cell_row(context, counter, at, values));
}

void list_entries(Context &context, const soft_counter_t &counter, Word word, uint64_t flags) {
  const auto rows = program_rows<soft_table_t>();
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const soft_table_t &table) {
    return table.handle == counter.table;
  });
  const TableInfo table = resolve_table({found->name, 0});
  for_each_entry(context.device, table, word, [&](p4_pd_entry_handle_t entry) {
    const p4_pd_counter_values_t values = read_cell(context, counter, entry, flags, word);
    context.results.row(cell_row(context, counter, entry, values));
  });
}

// The cells of a counter that go by index and have counted, with the entries whose actions name
// them.
class CountedCells {
 public:
  CountedCells(const Context &context, const soft_counter_t &counter, Word word, uint64_t flags)
      : context_(context), counter_(counter), word_(word) {
    uint32_t cell = 0;
    while (soft_next_cell(context.device.id(), counter.handle, cell, &cell) == BF_SUCCESS) {
      const p4_pd_counter_values_t values = read_cell(context, counter, cell, flags, word);
      if ((values.packets | values.bytes) != 0) cells_[cell].values = values;
      if (++cell == 0) break;
    }
    if (cells_.empty()) return;
    for (const bindings::Record &table : tables()) label_entries(resolve_table({table.name, 0}));
  }

  void print(Results &results) const {
    for (const auto &[index, cell] : cells_) {
      results.row(cell_row(counter_, index, cell.values, cell.label));
    }
  }

 private:
  struct Cell {
    p4_pd_counter_values_t values = {};
    std::string label;
  };

  // The parameter that names the cell, by the number of its action.
  std::map<uint32_t, const Field *> parameters_of(const TableInfo &table) const {
    std::map<uint32_t, const Field *> found;
    for (uint32_t i = 0; i < table.description->action_count; ++i) {
      const bindings::Record &action = action_record(table.description->actions[i].name);
      for (const Field &field : action.shown()) {
        const auto names = [&](const char *cells) {
          return counter_.name == std::string_view(cells);
        };
        if (std::any_of(field.cells.begin(), field.cells.end(), names))
          found[action.number] = &field;
      }
    }
    return found;
  }

  void label_entries(const TableInfo &table) {
    const std::map<uint32_t, const Field *> parameters = parameters_of(table);
    if (parameters.empty()) return;
    EntryReader reader(context_.device, table, EntryReader::Resources::none);
    ItemBytes item;
    for_each_entry(context_.device, table, word_, [&](p4_pd_entry_handle_t entry) {
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

  const Context &context_;
  const soft_counter_t &counter_;
  Word word_;
  std::map<uint32_t, Cell> cells_;
};

void list_cells(Context &context, const soft_counter_t &counter, Word word, uint64_t flags) {
  context.results.expect(cell_row(counter, 0, {}, "label"));
  if (counter.table != 0) return list_entries(context, counter, word, flags);
  CountedCells(context, counter, word, flags).print(context.results);
}

void counter_list(Context &context, const Invocation &invocation) {
  const bool one = !invocation.arguments.empty() &&
                   invocation.arguments[0].text.find('=') == std::string_view::npos;
  const Options options(invocation, one ? 1 : 0, {"source"});
  const uint64_t flags = read_flags(options);
  if (one) return list_cells(context, counter_of(invocation), invocation.arguments[0], flags);
  for (const soft_counter_t &counter : program_rows<soft_counter_t>()) {
    list_cells(context, counter, invocation.command, flags);
  }
}

void counter_write(Context &context, const Invocation &invocation) {
  const soft_counter_t &counter = counter_of(invocation);
  const char *cell = cell_of(counter);
  const Options options(invocation, 1, {cell, "packets", "bytes"});
  p4_pd_counter_values_t values = {};
  values.packets = options.number("packets", ~uint64_t{0});
  values.bytes = options.number("bytes", ~uint64_t{0});
  Call call = context.device.prepare("counter_write", counter.name);
  call.set(cell, uint64_t{cell_word(context, counter, options)}).set("values", &values);
  check(call.run(), invocation.arguments[0]);
  Row row;
  context.results.done(row.object("counter", counter.name), "written");
}

void counter_sync(Context &context, const Invocation &invocation) {
  const soft_counter_t &counter = counter_of(invocation);
  refuse_arguments_from(invocation, 1);
  synchronise(context, "counter_hw_sync", counter.name, invocation.arguments[0]);
}

// ---- Registers ----

constexpr uint32_t kRangeLimit = 4096;
constexpr uint32_t kLastCell = SOFT_REGISTER_CELLS - 1;

const soft_register_t &register_of(const Invocation &invocation) {
  return resolve_object<soft_register_t>(need_argument(invocation, 0, "the name of a register"),
                                         "register");
}

uint64_t widest_value(const soft_register_t &reg) { return low_ones(reg.width).low; }

// The values that a read wrote: an array of the smallest integers that hold a cell.
Row values_row(const soft_register_t &reg, uint64_t index, const std::vector<uint32_t> &buffer,
               size_t first, size_t count) {
  std::vector<uint64_t> values;
  for (size_t i = first; i < first + count; ++i) {
    values.push_back(register_value(reg.width, buffer.data(), i));
  }
  Row row;
  return row.object("register", reg.name).number("index", index).list("values", values);
}

void register_read(Context &context, const Invocation &invocation) {
  const soft_register_t &reg = register_of(invocation);
  const Options options(invocation, 1, {"index", "source"});
  const uint64_t index = options.number("index", kLastCell);
  std::vector<uint32_t> values(context.device.pipes());
  uint32_t count = 0;
  Call call = context.device.prepare("register_read", reg.name);
  call.set("index", index).set("flags", read_flags(options));
  call.set("values", values.data()).set("value_count", &count);
  check(call.run(), invocation.arguments[0]);
  context.results.row(values_row(reg, index, values, 0, count));
}

void register_range(Context &context, const Invocation &invocation) {
  const soft_register_t &reg = register_of(invocation);
  const Options options(invocation, 1, {"first", "count", "source"});
  const uint64_t first = options.number("first", kLastCell);
  const uint64_t wanted =
      options.number("count", std::min<uint64_t>(kRangeLimit, SOFT_REGISTER_CELLS - first));
  std::vector<uint32_t> values(static_cast<size_t>(wanted) * context.device.pipes() + 1);
  uint32_t indexes = 0;
  uint32_t count = 0;
  Call call = context.device.prepare("register_range_read", reg.name);
  call.set("first", first).set("index_count", wanted).set("flags", read_flags(options));
  call.set("indexes_read", &indexes).set("values", values.data()).set("value_count", &count);
  check(call.run(), invocation.arguments[0]);
  context.results.expect(values_row(reg, first, values, 0, 0));
  const size_t each = indexes == 0 ? 0 : count / indexes;
  for (uint32_t i = 0; i < indexes; ++i) {
    context.results.row(values_row(reg, first + i, values, i * each, each));
  }
}

void register_write(Context &context, const Invocation &invocation) {
  const soft_register_t &reg = register_of(invocation);
  const Options options(invocation, 1, {"index", "value"});
  const auto value = static_cast<uint32_t>(options.number("value", widest_value(reg)));
  const bool one = options.has("index");
  Call call = context.device.prepare(one ? "register_write" : "register_write_all", reg.name);
  if (one) call.set("index", options.number("index", kLastCell));
  check(call.set("value", &value).run(), invocation.arguments[0]);
  Row row;
  context.results.done(row.object("register", reg.name), "written");
}

void register_reset(Context &context, const Invocation &invocation) {
  const soft_register_t &reg = register_of(invocation);
  const Options options(invocation, 1, {"first", "count"});
  const bool range = options.has("first") || options.has("count");
  Call call =
      context.device.prepare(range ? "register_range_reset" : "register_reset_all", reg.name);
  if (range) {
    call.set("first", options.number("first", kLastCell));
    call.set("index_count", options.number("count", 0xffffffffu));
  }
  check(call.run(), invocation.arguments[0]);
  Row row;
  context.results.done(row.object("register", reg.name), "reset");
}

void register_sync(Context &context, const Invocation &invocation) {
  const soft_register_t &reg = register_of(invocation);
  refuse_arguments_from(invocation, 1);
  synchronise(context, "register_hw_sync", reg.name, invocation.arguments[0]);
}

void offer_counters(Offers &offers, const Command &, Words) {
  offer_objects<soft_counter_t>(offers,
                                [](const soft_counter_t &row) { return cells_help(row.table); });
}

void choose(Subject &subject, std::string_view name) {
  const auto *counter = find_object<soft_counter_t>(name);
  choose_cells(subject, counter != nullptr ? counter->table : 0);
}

void offer_registers(Offers &offers, const Command &, Words) {
  offer_objects<soft_register_t>(
      offers, [](const soft_register_t &row) { return std::to_string(row.width) + " bits"; });
}

constexpr ObjectWord kWords[] = {{"COUNTER", offer_counters, choose},
                                 {"REGISTER", offer_registers}};

constexpr Command kCommands[] = {
    {"counter read", "COUNTER index=N|entry=HANDLE [source=hardware|software]",
     "prints the packets and bytes of a counter cell", counter_read},
    {"counter list", "[COUNTER] [source=hardware|software]",
     "prints counted entries, cells that have counted, and what they count", counter_list,
     Kind::lists},
    {"counter write", "COUNTER index=N|entry=HANDLE packets=N bytes=N",
     "sets the packets and bytes of a counter cell", counter_write, Kind::changes},
    {"counter sync", "COUNTER", "brings the software copy of a counter up to date", counter_sync,
     Kind::changes},
    {"register read", "REGISTER index=N [source=hardware|software]",
     "prints a register cell, one value a pipe", register_read},
    {"register range", "REGISTER first=N count=N [source=hardware|software]",
     "prints several cells", register_range, Kind::lists},
    {"register write", "REGISTER [index=N] value=N", "writes a register cell, or all of them",
     register_write, Kind::changes},
    {"register reset", "REGISTER [first=N count=N]", "clears a register, or cells of it",
     register_reset, Kind::changes},
    {"register sync", "REGISTER", "brings the software copy of a register up to date",
     register_sync, Kind::changes},
};

}  // namespace

std::span<const Command> stateful_commands() { return kCommands; }
std::span<const ObjectWord> stateful_words() { return kWords; }

}  // namespace tesselctl
