// Registers. Images have the value that most cells have, and those cells that have another one.
#include "soft_contents.h"
#include "soft_state.h"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/kinds/synchronise.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/state/script.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

using RegisterLine = ObjectLine<soft_register_t>;
using Numbers = NumberItems::Numbers;

// Kinds of items.
constexpr std::string_view kAll = "all";
constexpr std::string_view kCell = "cell";

constexpr uint32_t kRangeLimit = 4096;
constexpr uint32_t kLastCell = SOFT_REGISTER_CELLS - 1;

// Cells that a call wrote into an array: the smallest integers that hold one.
class CellBuffer {
 public:
  CellBuffer(const soft_register_t &reg, size_t cells)
      : size_(reg.width <= 8 ? 1 : reg.width / 8), words_(cells) {}

  uint32_t *data() { return words_.data(); }
  Numbers values(size_t first, size_t count) const {
    Numbers values(count);
    const auto *bytes = reinterpret_cast<const uint8_t *>(words_.data()) + first * size_;
    for (uint64_t &value : values) {
      memcpy(&value, bytes, size_);
      bytes += size_;
    }
    return values;
  }

 private:
  size_t size_;
  std::vector<uint32_t> words_;
};

// One value a pipe.
Numbers read_cell(const Device &device, const soft_register_t &reg, uint64_t index, uint64_t flags,
                  Word word) {
  CellBuffer buffer(reg, device.pipes());
  uint32_t count = 0;
  Call call = device.prepare("register_read", reg.name);
  call.set("index", index).set("flags", flags);
  check(call.set("values", buffer.data()).set("value_count", &count).run(), word);
  return buffer.values(0, count);
}

// Into one cell, or without an index into all.
void write_value(const Device &device, const p4_pd_device_target_t &target,
                 const soft_register_t &reg, const uint64_t *index, uint64_t number, Word word) {
  const auto value = static_cast<uint32_t>(number);
  Call call = device.prepare(index != nullptr ? "register_write" : "register_write_all", reg.name);
  if (index != nullptr) call.set("index", *index);
  check(call.set("target", &target).set("value", &value).run(), word);
}

// One value a pipe.
void write_values(const Device &device, const soft_register_t &reg, const uint64_t *index,
                  std::span<const uint64_t> values, Word word) {
  if (values.size() != device.pipes()) {
    throw Fault(word, fmt::format("there should be {} values, one a pipe", device.pipes()));
  }
  for (uint32_t pipe = 0; pipe < values.size(); ++pipe) {
    write_value(device, device.target_of(pipe), reg, index, values[pipe], word);
  }
}

// ---- Items ----

// "all 1,1,1,1" and "cell 8 0,0,0,0": one value a pipe.
class RegisterItems : public NumberItems {
 protected:
  RegisterItems(const soft_register_t &reg, Layout layout)
      : NumberItems(std::move(layout)), reg_(reg) {}

  static Column values(const soft_register_t &reg) {
    return {.name = "values", .limit = low_ones(reg.width).low, .count = 0};
  }
  // The values that most cells have: those of a cell that does not differ from them.
  Numbers common(const Device &device) const {
    bool differs = false;
    for_each_cell(
        device, reg_.handle, [&](uint64_t) { differs = true; }, SOFT_REGISTER_USUAL);
    return read_values(device, differs ? kLastCell : SOFT_REGISTER_USUAL);
  }
  Numbers read_values(const Device &device, uint64_t index) const {
    return read_cell(device, reg_, index, P4_PD_READ_FROM_HARDWARE, {});
  }

  const soft_register_t &reg_;
};

// Of the cells that have no line.
class CommonValues : public RegisterItems {
 public:
  explicit CommonValues(const soft_register_t &reg)
      : RegisterItems(reg, {.columns = {values(reg)}, .identity = 0, .nameless = 1, .what = kAll}) {
  }

  void print_commands(Script &script, const ItemEdit &edit) const override;

 protected:
  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    const Numbers values = common(from.device);
    if (values != Numbers(values.size())) visit(values);
  }
  // Cells that have another value keep it.
  void write_numbers(Target &to, Edit edit, const Numbers &values, Word word) const override {
    std::vector<std::pair<uint64_t, Numbers>> others;
    for_each_cell(to.device, reg_.handle, [&](uint64_t index) {
      others.emplace_back(index, read_values(to.device, index));
    });
    const Numbers zeros(to.device.pipes());
    write_values(to.device, reg_, nullptr, edit == Edit::remove ? zeros : values, word);
    for (const auto &[index, kept] : others) write_values(to.device, reg_, &index, kept, word);
  }
};

// Removed, one gets the value that most have.
class RegisterCells : public RegisterItems {
 public:
  explicit RegisterCells(const soft_register_t &reg)
      : RegisterItems(
            reg, {.columns = {{.name = "index"}, values(reg)}, .identity = 1, .nameless = 2}) {}

  void print_commands(Script &script, const ItemEdit &edit) const override {
    if (script.differ(edit, kAll)) return;  // its command has the cells behind it
    if (edit.edit != Edit::remove) return NumberItems::print_commands(script, edit);
    const auto all = script.after(edit, kAll);
    const std::string zeros(edit.item.value.size(), '\0');
    const std::string_view value = all.empty() ? zeros : all.front().view().value;
    NumberItems::print_commands(script, {.kind = edit.kind,
                                         .object = edit.object,
                                         .edit = Edit::modify,
                                         .item = {edit.item.identity, value}});
  }

 protected:
  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    // With some the value that most have may change, and so which cells have another one.
    const bool decides = from.only == SOFT_REGISTER_USUAL || from.only == 2 * SOFT_REGISTER_USUAL ||
                         from.only == kLastCell;
    const auto only = decides ? std::nullopt : from.only;
    for_each_cell(
        from.device, reg_.handle,
        [&](uint64_t index) {
          Numbers numbers = read_values(from.device, index);
          numbers.insert(numbers.begin(), index);
          visit(numbers);
        },
        only);
  }
  void write_numbers(Target &to, Edit edit, const Numbers &cell, Word word) const override {
    const Numbers all = edit == Edit::remove ? common(to.device) : Numbers();
    write_values(to.device, reg_, cell.data(),
                 edit == Edit::remove ? all : std::span(cell).subspan(1), word);
  }
};

// The command writes all cells, so those that have another value follow.
void CommonValues::print_commands(Script &script, const ItemEdit &edit) const {
  NumberItems::print_commands(script, edit);
  const RegisterCells cells(reg_);
  for (const ItemStore::Item &cell : script.after(edit, kCell)) {
    cells.NumberItems::print_commands(
        script, {.kind = edit.kind, .object = edit.object, .edit = Edit::add, .item = cell.view()});
  }
}

// ---- Commands ----

Row cell_row(const RegisterLine &line, uint64_t index, const Numbers &values) {
  return line.row().number("index", index).amounts("values", values);
}

void read(Context &context, const Invocation &invocation) {
  const RegisterLine line(context, invocation, {"index", "source"});
  const uint64_t index = line.options.number("index", kLastCell);
  context.results.row(
      cell_row(line, index,
               read_cell(context.device, line.object, index, read_flags(line.options), line.word)));
}

// The first cell, and how many.
std::pair<uint64_t, uint64_t> range_of(const Options &options, uint64_t limit) {
  const uint64_t first = options.number("first", kLastCell);
  return {first, options.number("count", std::min(limit, SOFT_REGISTER_CELLS - first), 1)};
}

void read_range(Context &context, const Invocation &invocation) {
  const RegisterLine line(context, invocation, {"first", "count", "source"});
  const auto [first, wanted] = range_of(line.options, kRangeLimit);
  CellBuffer buffer(line.object, static_cast<size_t>(wanted) * context.device.pipes() + 1);
  uint32_t indexes = 0;
  uint32_t count = 0;
  Call call = line.call("register_range_read");
  call.set("first", first).set("index_count", wanted).set("flags", read_flags(line.options));
  call.set("indexes_read", &indexes).set("values", buffer.data()).set("value_count", &count);
  line.run(call);
  const size_t each = indexes == 0 ? 0 : count / indexes;
  context.results.expect(cell_row(line, first, {}));
  for (uint32_t i = 0; i < indexes; ++i) {
    context.results.row(cell_row(line, first + i, buffer.values(i * each, each)));
  }
}

void write(Context &context, const Invocation &invocation) {
  const RegisterLine line(context, invocation, {"index", "value", "values"});
  const Device &device = context.device;
  const uint64_t limit = low_ones(line.object.width).low;
  const uint64_t cell = line.options.number_or("index", kLastCell, 0);
  const uint64_t *const index = line.options.has("index") ? &cell : nullptr;
  if (const Word *values = line.options.find("values")) {
    if (line.options.has("value")) throw Fault(*values, "give value= or values=, not both");
    write_values(device, line.object, index, number_list(*values, limit), *values);
  } else {
    write_value(device, device.target(), line.object, index, line.options.number("value", limit),
                line.word);
  }
  line.done("written");
}

void reset(Context &context, const Invocation &invocation) {
  const RegisterLine line(context, invocation, {"first", "count"});
  const bool range = line.options.has("first") || line.options.has("count");
  Call call = line.call(range ? "register_range_reset" : "register_reset_all");
  if (range) {
    const auto [first, count] = range_of(line.options, SOFT_REGISTER_CELLS);
    call.set("first", first).set("index_count", count);
  }
  line.run(call);
  line.done("reset");
}

std::string help_of(const soft_register_t &reg) { return fmt::format("{} bits", reg.width); }

constexpr ObjectWord kWords[] = {{"REGISTER", offer_objects<soft_register_t, help_of>}};

constexpr Command kCommands[] = {
    {"register read", "REGISTER index=N [source=hardware|software]",
     "prints a register cell, one value a pipe", read},
    {"register range", "REGISTER first=N count=N [source=hardware|software]",
     "prints several cells", read_range, Kind::lists},
    {"register write", "REGISTER [index=N] value=N|values=N,N",
     "writes a register cell, or all of them; values are one a pipe", write, Kind::changes},
    {"register reset", "REGISTER [first=N count=N]", "clears a register, or cells of it", reset,
     Kind::changes},
    {"register sync", "REGISTER", "brings the software copy of a register up to date",
     synchronise<soft_register_t>, Kind::changes},
};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_register_t>,
                                kAll,
                                50,
                                kCellSteps,
                                {"register write"},
                                open_items<CommonValues, soft_register_t>},
                               {kObjectKind<soft_register_t>,
                                kCell,
                                51,
                                kCellSteps,
                                {"register write"},
                                open_items<RegisterCells, soft_register_t>}};

}  // namespace

extern const Topic kRegisterTopic = {"Counters and registers", kCommands, kWords, kKinds};

}  // namespace tesselctl
