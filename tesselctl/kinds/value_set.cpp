// Parser value sets.
#include <fmt/format.h>

#include "soft_contents.h"
#include "soft_state.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/subject.hpp"
#include "tesselctl/device/handles.hpp"
#include "tesselctl/state/kind.hpp"
#include "tesselctl/state/line_words.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

const soft_value_set_t &set_of(const Invocation &invocation) {
  return resolve_object<soft_value_set_t>(need_argument(invocation, 0, "the name of a value set"),
                                          "value set");
}

Row set_row(const soft_value_set_t &set) {
  Row row;
  row.object("valueset", set.name);
  return row;
}

struct SetValue {
  uint32_t value;
  uint32_t mask;
  uint32_t direction;
  uint32_t pipe;
  uint32_t parser;
};

SetValue read_value(const Device &device, const soft_value_set_t &set, p4_pd_entry_handle_t entry,
                    Word word) {
  SetValue found = {};
  Call call = device.prepare("pvs_entry_get", set.name);
  call.set("entry", uint64_t{entry}).set("value", &found.value).set("mask", &found.mask);
  check(call.run(), word);
  soft_parsers_t where = {};
  check(soft_value_set_parsers(device.id(), set.handle, entry, &where), word);
  found.direction = where.direction;
  found.pipe = where.pipe;
  found.parser = where.parser;
  return found;
}

void add_value(Row &row, const SetValue &value) {
  row.text("value", hexadecimal(value.value)).text("mask", hexadecimal(value.mask));
}

// Without pipe= or parser= all of them.
p4_pd_parser_target_t parser_of(const Context &context, const Options &options) {
  p4_pd_parser_target_t target = {};
  target.device_id = context.device.id();
  target.direction =
      static_cast<uint32_t>(options.choice_or("direction", {"ingress", "egress"}, 0));
  target.pipe_id =
      static_cast<uint16_t>(options.number_or("pipe", context.device.pipes() - 1, BF_ALL_PIPES));
  target.parser_id = static_cast<uint8_t>(options.number_or("parser", 254, SOFT_ALL_PARSERS));
  return target;
}

void add(Context &context, const Invocation &invocation) {
  const soft_value_set_t &set = set_of(invocation);
  const Options options(invocation, 1, {"value", "mask", "direction", "pipe", "parser", "as"});
  const p4_pd_parser_target_t target = parser_of(context, options);
  p4_pd_entry_handle_t entry = 0;
  Call call = context.device.prepare("pvs_entry_add", set.name);
  call.set("target", &target).set("value", options.number("value", 0xffffffffu));
  call.set("mask", options.number_or("mask", 0xffffffffu, 0xffffffffu)).set("entry", &entry);
  check(call.run(), invocation.arguments[0]);
  if (options.has("as")) remember(context, options.need("as"), entry);
  context.results.done(set_row(set).number("entry", entry), "added");
}

void modify(Context &context, const Invocation &invocation) {
  const soft_value_set_t &set = set_of(invocation);
  const Options options(invocation, 1, {"entry", "value", "mask"});
  Call call = context.device.prepare("pvs_entry_modify", set.name);
  call.set("entry", uint64_t{options.handle(context, "entry")});
  call.set("value", options.number("value", 0xffffffffu));
  call.set("mask", options.number_or("mask", 0xffffffffu, 0xffffffffu));
  check(call.run(), invocation.arguments[0]);
  context.results.done(set_row(set), "modified");
}

void remove(Context &context, const Invocation &invocation) {
  const soft_value_set_t &set = set_of(invocation);
  const Options options(invocation, 1, {"entry"});
  Call call = context.device.prepare("pvs_entry_delete", set.name);
  check(call.set("entry", uint64_t{options.handle(context, "entry")}).run(),
        invocation.arguments[0]);
  context.results.done(set_row(set), "deleted");
}

void show(Context &context, const Invocation &invocation) {
  const soft_value_set_t &set = set_of(invocation);
  const Options options(invocation, 1, {"direction", "pipe", "parser"});
  const p4_pd_parser_target_t target = parser_of(context, options);
  const Word word = invocation.arguments[0];
  Row sample = set_row(set).number("entry", 0);
  add_value(sample, {});
  context.results.expect(sample);
  for_each_handle(set_values_of(context.device, set.name, target), word, [&](uint32_t entry) {
    Row row = set_row(set).number("entry", entry);
    add_value(row, read_value(context.device, set, entry, word));
    context.results.row(row);
  });
}

void offer_sets(Offers &offers, const Command &, Words) {
  offer_objects<soft_value_set_t>(offers, [](const soft_value_set_t &) { return "a value set"; });
}

void choose(Subject &subject, std::string_view name) {
  const auto *set = find_object<soft_value_set_t>(name);
  if (set == nullptr) return;
  subject.handles["entry"] = [set](Offers &offers, const Device &device) {
    p4_pd_parser_target_t target = {};
    target.device_id = device.id();
    target.pipe_id = BF_ALL_PIPES;
    target.parser_id = SOFT_ALL_PARSERS;
    offer_handles(offers, set_values_of(device, set->name, target),
                  [](uint32_t) { return "a value"; });
  };
}

constexpr ObjectWord kWords[] = {{"SET", offer_sets, choose}};

constexpr Command kCommands[] = {
    {"valueset add",
     "SET value=N [mask=N] [direction=ingress|egress] [pipe=N] [parser=N] [as=NAME]",
     "adds a value to parsers, without pipe= and parser= to all of them", add, Kind::changes},
    {"valueset modify", "SET entry=HANDLE value=N [mask=N]", "changes a value", modify,
     Kind::changes},
    {"valueset delete", "SET entry=HANDLE", "deletes a value", remove, Kind::changes},
    {"valueset show", "SET [direction=ingress|egress] [pipe=N] [parser=N]", "prints values", show,
     Kind::lists},
};

// ---- In images ----

struct NoValue {};

// "value 0x40 mask=0xf0 direction=0 pipe=65535 parser=255": nothing of it changes for life.
class SetValues : public CellItems<SetValue, NoValue> {
 public:
  explicit SetValues(const char *name) : set_(need_row<soft_value_set_t>(name)) {}

 protected:
  void parse_cell(ValueScanner &line, SetValue &value, NoValue &) const override {
    const Word word = line.here();
    const uint64_t number = line.hexadecimal();
    if (number > 0xffffffffu) throw Fault(word, "values have 32 bits");
    value.value = static_cast<uint32_t>(number);
    const LineWords words(line, {"mask", "direction", "pipe", "parser"});
    value.mask = words.number32("mask", 0xffffffffu);
    value.direction = static_cast<uint32_t>(words.number("direction", 1));
    value.pipe = static_cast<uint32_t>(words.number("pipe", 0xffff, BF_ALL_PIPES));
    value.parser = static_cast<uint32_t>(words.number("parser", 0xff, SOFT_ALL_PARSERS));
  }
  void print_cell(std::string &text, const SetValue &value, const NoValue &) const override {
    fmt::format_to(std::back_inserter(text), "{:#x} mask={:#x} direction={} pipe={} parser={}",
                   value.value, value.mask, value.direction, value.pipe, value.parser);
  }
  void add_cell(Row &row, const SetValue &value, const NoValue &) const override {
    add_value(row, value);
    row.text("direction", value.direction == 0 ? "ingress" : "egress");
    if (value.pipe != BF_ALL_PIPES) row.number("pipe", value.pipe);
    if (value.parser != SOFT_ALL_PARSERS) row.number("parser", value.parser);
  }
  void read_cells(Source &from, const CellVisitor &visit) const override {
    for (uint32_t direction = 0; direction < 2; ++direction) {
      const p4_pd_parser_target_t all = {from.device.id(), direction, BF_ALL_PIPES,
                                         SOFT_ALL_PARSERS};
      for_each_handle(set_values_of(from.device, set_.name, all), {},
                      [&](uint32_t entry) { visit(read_value(from.device, set_, entry, {}), {}); });
    }
  }
  void write_cell(Target &to, Edit edit, const SetValue &value, const NoValue &,
                  Word word) const override {
    p4_pd_parser_target_t target = {};
    target.device_id = to.device.id();
    target.direction = value.direction;
    target.pipe_id = static_cast<uint16_t>(value.pipe);
    target.parser_id = static_cast<uint8_t>(value.parser);
    p4_pd_entry_handle_t entry = 0;
    const bool remove = edit == Edit::remove;
    Call call = to.device.prepare(remove ? "pvs_entry_handle_get" : "pvs_entry_add", set_.name);
    call.set("target", &target).set("value", uint64_t{value.value}).set("entry", &entry);
    check(call.set("mask", uint64_t{value.mask}).run(), word);
    if (!remove) return;
    Call erase = to.device.prepare("pvs_entry_delete", set_.name);
    check(erase.set("entry", uint64_t{entry}).run(), word);
  }

 private:
  const soft_value_set_t &set_;
};

constexpr ObjectKind kSetObjects = {"valueset", "value set",
                                    row_name<&program_rows<soft_value_set_t>>};

}  // namespace

extern const ItemKind kValueSetKind = {kSetObjects, "value", kCellSteps,
                                       [](const char *name) -> std::unique_ptr<ObjectItems> {
                                         return std::make_unique<SetValues>(name);
                                       }};

std::span<const Command> value_set_commands() { return kCommands; }
std::span<const ObjectWord> value_set_words() { return kWords; }

}  // namespace tesselctl
