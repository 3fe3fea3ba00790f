// Counters and registers.
#include <algorithm>

#include "tesselctl/entry_texts.hpp"
#include "tesselctl/number.hpp"
#include "tesselctl/options.hpp"
#include "tesselctl/read_back.hpp"

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

p4_pd_counter_values_t read_cell(const Context &context, const soft_counter_t &counter, uint32_t at,
                                 uint64_t flags, Word word) {
  p4_pd_counter_values_t values = {};
  Call call = context.device.prepare("counter_read", counter.name);
  call.set(cell_of(counter), uint64_t{at}).set("flags", flags).set("values", &values);
  check(call.run(), word);
  return values;
}

// With a label of what the entry counts, for a counter of a table.
Row cell_row(const Context &context, const soft_counter_t &counter, uint32_t at,
             const p4_pd_counter_values_t &values) {
  Row row;
  row.object("counter", counter.name).number(cell_of(counter), at);
  row.number("packets", values.packets).number("bytes", values.bytes);
  if (counter.table == 0) return row;
  const std::string label = counter_label(context.device, counter.table, at);
  return label.empty() ? row : row.text("label", label);
}

void counter_read(Context &context, const Invocation &invocation) {
  const soft_counter_t &counter = counter_of(invocation);
  const char *cell = cell_of(counter);
  const Options options(invocation, 1, {cell, "source"});
  const uint32_t at = options.handle(context, cell);
  const p4_pd_counter_values_t values =
      read_cell(context, counter, at, read_flags(options), invocation.arguments[0]);
  context.results.row(cell_row(context, counter, at, values));
}

const soft_table_t &table_of(const soft_counter_t &counter) {
  const auto rows = program_rows<soft_table_t>();
  return *std::find_if(rows.begin(), rows.end(),
                       [&](const soft_table_t &table) { return table.handle == counter.table; });
}

void list_cells(Context &context, const soft_counter_t &counter, Word word, uint64_t flags) {
  const TableInfo table = resolve_table({table_of(counter).name, 0});
  for_each_entry(context.device, table, word, [&](p4_pd_entry_handle_t entry) {
    const p4_pd_counter_values_t values = read_cell(context, counter, entry, flags, word);
    context.results.row(cell_row(context, counter, entry, values));
  });
}

void counter_list(Context &context, const Invocation &invocation) {
  const bool one = !invocation.arguments.empty() &&
                   invocation.arguments[0].text.find('=') == std::string_view::npos;
  const Options options(invocation, one ? 1 : 0, {"source"});
  if (one) {
    const soft_counter_t &counter = counter_of(invocation);
    if (counter.table == 0) {
      throw Fault(invocation.arguments[0], "the cells of this counter go by index, not by entry");
    }
    return list_cells(context, counter, invocation.arguments[0], read_flags(options));
  }
  for (const soft_counter_t &counter : program_rows<soft_counter_t>()) {
    if (counter.table != 0) list_cells(context, counter, invocation.command, read_flags(options));
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
  call.set(cell, uint64_t{options.handle(context, cell)}).set("values", &values);
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
  const uint64_t index = options.number("index", 0xffffffffu);
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
  const uint64_t first = options.number("first", 0xffffffffu);
  const uint64_t wanted = options.number("count", kRangeLimit);
  std::vector<uint32_t> values(static_cast<size_t>(wanted) * context.device.pipes() + 1);
  uint32_t indexes = 0;
  uint32_t count = 0;
  Call call = context.device.prepare("register_range_read", reg.name);
  call.set("first", first).set("index_count", wanted).set("flags", read_flags(options));
  call.set("indexes_read", &indexes).set("values", values.data()).set("value_count", &count);
  check(call.run(), invocation.arguments[0]);
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
  if (one) call.set("index", options.number("index", 0xffffffffu));
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
    call.set("first", options.number("first", 0xffffffffu));
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

constexpr Command kCommands[] = {
    {"counter read", "COUNTER index=N|entry=HANDLE [source=hardware|software]",
     "prints the packets and bytes of a counter cell", counter_read},
    {"counter list", "[COUNTER] [source=hardware|software]",
     "prints every counted entry and what it counts", counter_list, Kind::lists},
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

}  // namespace tesselctl
