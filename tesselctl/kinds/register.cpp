// Registers in images: the value that most cells have, and those cells that have another one.
#include <fmt/format.h>

#include "soft_state.h"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/state/kind.hpp"
#include "tesselctl/state/line_words.hpp"

namespace tesselctl {

namespace {

// One value for every pipe.
struct RegisterValues {
  static constexpr uint32_t kMost = 8;
  uint32_t count;
  std::array<uint32_t, kMost> values;

  std::span<const uint32_t> span() const { return {values.data(), count}; }
  bool are_zero() const { return values == decltype(values){}; }
};

RegisterValues read_register(const Device &device, const soft_register_t &reg, uint32_t index) {
  RegisterValues values = {};
  uint32_t raw[RegisterValues::kMost] = {};
  Call call = device.prepare("register_read", reg.name);
  call.set("index", uint64_t{index}).set("flags", uint64_t{P4_PD_READ_FROM_HARDWARE});
  check(call.set("values", raw).set("value_count", &values.count).run(), {});
  for (uint32_t i = 0; i < values.count; ++i) values.values[i] = register_value(reg.width, raw, i);
  return values;
}

// Into one cell, or into all without one.
void write_register(const Device &device, const soft_register_t &reg, const uint32_t *index,
                    const RegisterValues &values, Word word) {
  if (values.count != device.pipes()) {
    throw Fault(word, fmt::format("there should be {} values, one a pipe", device.pipes()));
  }
  for (uint32_t pipe = 0; pipe < values.count; ++pipe) {
    const p4_pd_device_target_t target = device.target_of(pipe);
    Call call =
        device.prepare(index == nullptr ? "register_write_all" : "register_write", reg.name);
    call.set("target", &target).set("value", &values.values[pipe]);
    if (index != nullptr) call.set("index", uint64_t{*index});
    check(call.run(), word);
  }
}

// The value that most cells have: that of the last one.
RegisterValues common_values(const Device &device, const soft_register_t &reg) {
  return read_register(device, reg, SOFT_REGISTER_CELLS - 1);
}

RegisterValues parse_values(ValueScanner &line, const soft_register_t &reg) {
  const Word word = line.word();
  const std::vector<uint32_t> numbers = number_list(word);
  RegisterValues values = {};
  if (numbers.size() > values.values.size()) throw Fault(word, "no device has so many pipes");
  for (const uint32_t number : numbers) {
    if (reg.width < 32 && number >> reg.width != 0) {
      throw Fault(word, fmt::format("the cells have {} bits", reg.width));
    }
    values.values[values.count++] = number;
  }
  return values;
}

void print_values(std::string &text, const RegisterValues &values) {
  fmt::format_to(std::back_inserter(text), "{}", fmt::join(values.span(), ","));
}

void add_values(Row &row, const RegisterValues &values) {
  row.list("values", {values.span().begin(), values.span().end()});
}

// "all 1,1,1,1": of the cells that have no line.
class CommonValues : public CellItems<NoIdentity, RegisterValues> {
 public:
  explicit CommonValues(const soft_register_t &reg) : reg_(reg) {}

 protected:
  void parse_cell(ValueScanner &line, NoIdentity &, RegisterValues &values) const override {
    values = parse_values(line, reg_);
  }
  void print_cell(std::string &text, const NoIdentity &,
                  const RegisterValues &values) const override {
    print_values(text, values);
  }
  void add_cell(Row &row, const NoIdentity &, const RegisterValues &values) const override {
    add_values(row.object("what", "all"), values);
  }
  void read_cells(Source &from, const CellVisitor &visit) const override {
    const RegisterValues values = common_values(from.device, reg_);
    if (!values.are_zero()) visit({}, values);
  }
  // Cells that have another value keep it.
  void write_cell(Target &to, Edit edit, const NoIdentity &, const RegisterValues &values,
                  Word word) const override {
    std::vector<std::pair<uint32_t, RegisterValues>> others;
    for_each_cell(to.device, reg_.handle, [&](uint32_t index) {
      others.emplace_back(index, read_register(to.device, reg_, index));
    });
    const RegisterValues zeros = {to.device.pipes(), {}};
    write_register(to.device, reg_, nullptr, edit == Edit::remove ? zeros : values, word);
    for (const auto &[index, kept] : others) write_register(to.device, reg_, &index, kept, word);
  }

 private:
  const soft_register_t &reg_;
};

// "cell 8 0,0,0,0": removed, it gets the value that most have.
class RegisterCells : public CellItems<uint32_t, RegisterValues> {
 public:
  explicit RegisterCells(const soft_register_t &reg) : reg_(reg) {}

 protected:
  void parse_cell(ValueScanner &line, uint32_t &index, RegisterValues &values) const override {
    index = parse_index(line);
    line.expect(" ");
    values = parse_values(line, reg_);
  }
  void print_cell(std::string &text, const uint32_t &index,
                  const RegisterValues &values) const override {
    text += std::to_string(index) + " ";
    print_values(text, values);
  }
  void add_cell(Row &row, const uint32_t &index, const RegisterValues &values) const override {
    add_values(row.number("index", index), values);
  }
  void read_cells(Source &from, const CellVisitor &visit) const override {
    for_each_cell(from.device, reg_.handle,
                  [&](uint32_t index) { visit(index, read_register(from.device, reg_, index)); });
  }
  void write_cell(Target &to, Edit edit, const uint32_t &index, const RegisterValues &values,
                  Word word) const override {
    write_register(to.device, reg_, &index,
                   edit == Edit::remove ? common_values(to.device, reg_) : values, word);
  }

 private:
  const soft_register_t &reg_;
};

constexpr ObjectKind kRegisterObjects = {"register", "register",
                                         row_name<&program_rows<soft_register_t>>};

template <class Items>
std::unique_ptr<ObjectItems> open(const char *name) {
  return std::make_unique<Items>(need_row<soft_register_t>(name));
}

}  // namespace

extern const ItemKind kRegisterKind = {kRegisterObjects, "all", kCellSteps, open<CommonValues>};
extern const ItemKind kRegisterCellKind = {kRegisterObjects, "cell", kCellSteps,
                                           open<RegisterCells>};

}  // namespace tesselctl
