// Parser value sets.
#include "soft_contents.h"
#include "soft_state.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

using SetLine = ObjectLine<soft_value_set_t>;

p4_pd_parser_target_t parsers_of(const Device &device, uint64_t direction, uint64_t pipe,
                                 uint64_t parser) {
  p4_pd_parser_target_t target = {};
  target.device_id = device.id();
  target.direction = static_cast<uint32_t>(direction);
  target.pipe_id = static_cast<uint16_t>(pipe);
  target.parser_id = static_cast<uint8_t>(parser);
  return target;
}

p4_pd_parser_target_t all_parsers(const Device &device, uint64_t direction) {
  return parsers_of(device, direction, BF_ALL_PIPES, SOFT_ALL_PARSERS);
}

struct MaskedValue {
  uint32_t value = 0;
  uint32_t mask = 0;
};

MaskedValue read_value(const Device &device, const soft_value_set_t &set, uint32_t entry,
                       Word word) {
  MaskedValue found;
  Call call = device.prepare("pvs_entry_get", set.name);
  call.set("entry", uint64_t{entry}).set("value", &found.value).set("mask", &found.mask);
  check(call.run(), word);
  return found;
}

// family is pvs_entry_add or pvs_entry_handle_get.
uint32_t entry_of_value(const Device &device, std::string_view family, const soft_value_set_t &set,
                        const p4_pd_parser_target_t &target, uint64_t value, uint64_t mask,
                        Word word) {
  p4_pd_entry_handle_t entry = 0;
  Call call = device.prepare(family, set.name);
  call.set("target", &target).set("value", value).set("mask", mask).set("entry", &entry);
  check(call.run(), word);
  return entry;
}

void delete_value(const Device &device, const soft_value_set_t &set, uint64_t entry, Word word) {
  check(device.prepare("pvs_entry_delete", set.name).set("entry", entry).run(), word);
}

// ---- Items ----

// "value 0x40 mask=0xf0 direction=0 pipe=65535 parser=255": nothing of it changes for life.
class SetValues : public NumberItems {
 public:
  explicit SetValues(const soft_value_set_t &set)
      : NumberItems({.columns = {{.name = "value", .notation = Notation::hexadecimal},
                                 {.name = "mask",
                                  .otherwise = 0xffffffffu,
                                  .notation = Notation::hexadecimal},
                                 {.name = "direction", .limit = 1},
                                 {.name = "pipe", .limit = 0xffff, .otherwise = BF_ALL_PIPES},
                                 {.name = "parser", .limit = 0xff, .otherwise = SOFT_ALL_PARSERS}},
                     .identity = 5,
                     .nameless = 1}),
        set_(set) {}

 protected:
  void add_numbers(Row &row, const Numbers &value) const override {
    row.hexadecimal("value", static_cast<uint32_t>(value[0]));
    row.hexadecimal("mask", static_cast<uint32_t>(value[1]));
    row.choice("direction", value[2] == 0 ? "ingress" : "egress");
    if (value[3] != BF_ALL_PIPES) row.number("pipe", value[3]);
    if (value[4] != SOFT_ALL_PARSERS) row.number("parser", value[4]);
  }
  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    for (uint32_t direction = 0; direction < 2; ++direction) {
      const p4_pd_parser_target_t all = all_parsers(from.device, direction);
      for_each_handle(set_values_of(from.device, set_.name, all), {}, [&](uint32_t entry) {
        const MaskedValue value = read_value(from.device, set_, entry, {});
        soft_parsers_t where = {};
        check(soft_value_set_parsers(from.device.id(), set_.handle, entry, &where), {});
        visit({value.value, value.mask, where.direction, where.pipe, where.parser});
      });
    }
  }
  void write_numbers(Target &to, Edit edit, const Numbers &value, Word word) const override {
    const p4_pd_parser_target_t target = parsers_of(to.device, value[2], value[3], value[4]);
    if (edit != Edit::remove) {
      entry_of_value(to.device, "pvs_entry_add", set_, target, value[0], value[1], word);
      return;
    }
    delete_value(
        to.device, set_,
        entry_of_value(to.device, "pvs_entry_handle_get", set_, target, value[0], value[1], word),
        word);
  }

 private:
  const soft_value_set_t &set_;
};

// ---- Commands ----

// Without pipe= or parser= all of them.
p4_pd_parser_target_t parsers_of(const SetLine &line) {
  const Device &device = line.context.device;
  return parsers_of(device, line.options.choice_or("direction", {"ingress", "egress"}, 0),
                    line.options.number_or("pipe", device.pipes() - 1, BF_ALL_PIPES),
                    line.options.number_or("parser", 254, SOFT_ALL_PARSERS));
}

uint64_t mask_of(const SetLine &line) {
  return line.options.number_or("mask", 0xffffffffu, 0xffffffffu);
}

void add(Context &context, const Invocation &invocation) {
  const SetLine line(context, invocation, {"value", "mask", "direction", "pipe", "parser", "as"});
  const p4_pd_parser_target_t target = parsers_of(line);
  const uint32_t entry =
      entry_of_value(context.device, "pvs_entry_add", line.object, target,
                     line.options.number("value", 0xffffffffu), mask_of(line), line.word);
  line.remember(entry);
  line.done(line.row().number("entry", entry), "added");
}

void modify(Context &context, const Invocation &invocation) {
  const SetLine line(context, invocation, {"entry", "value", "mask"});
  Call call = line.call("pvs_entry_modify");
  call.set("entry", uint64_t{line.options.handle(context, "entry")});
  call.set("value", line.options.number("value", 0xffffffffu));
  line.run(call.set("mask", mask_of(line)));
  line.done("modified");
}

void remove(Context &context, const Invocation &invocation) {
  const SetLine line(context, invocation,
                     {"entry", "value", "mask", "direction", "pipe", "parser"});
  if (line.options.has("entry") && line.options.has("value")) {
    throw Fault(line.options.need("value"), "give entry= or value=, not both");
  }
  const uint32_t entry =
      line.options.has("entry")
          ? line.options.handle(context, "entry")
          : entry_of_value(context.device, "pvs_entry_handle_get", line.object, parsers_of(line),
                           line.options.number("value", 0xffffffffu), mask_of(line), line.word);
  delete_value(context.device, line.object, entry, line.word);
  line.done("deleted");
}

void show(Context &context, const Invocation &invocation) {
  const SetLine line(context, invocation, {"direction", "pipe", "parser"});
  const p4_pd_parser_target_t target = parsers_of(line);
  const Enumeration values = set_values_of(context.device, line.object.name, target);
  const auto row_of = [&](uint32_t entry, const MaskedValue &value) {
    Row row = line.row().number("entry", entry);
    return row.hexadecimal("value", value.value).hexadecimal("mask", value.mask);
  };
  context.results.expect(row_of(0, {}));
  for_each_handle(values, line.word, [&](uint32_t entry) {
    context.results.row(row_of(entry, read_value(context.device, line.object, entry, line.word)));
  });
}

std::string help_of(const soft_value_set_t &) { return "a value set"; }

void choose(Subject &subject, const soft_value_set_t &set) {
  subject.handles["entry"] = [&set](Offers &offers, const Device &device) {
    offer_handles(offers, set_values_of(device, set.name, all_parsers(device, 0)),
                  [](uint32_t) { return "a value"; });
  };
}

constexpr ObjectWord kWords[] = {
    {"SET", offer_objects<soft_value_set_t, help_of>, choose_object<soft_value_set_t, choose>}};

constexpr Command kCommands[] = {
    {"valueset add",
     "SET value=N [mask=N] [direction=ingress|egress] [pipe=N] [parser=N] [as=NAME]",
     "adds a value to parsers, without pipe= and parser= to all of them", add, Kind::changes},
    {"valueset modify", "SET entry=HANDLE value=N [mask=N]", "changes a value", modify,
     Kind::changes},
    {"valueset delete",
     "SET entry=HANDLE|value=N [mask=N] [direction=ingress|egress] [pipe=N] [parser=N]",
     "deletes a value of just those parsers", remove, Kind::changes},
    {"valueset show", "SET [direction=ingress|egress] [pipe=N] [parser=N]", "prints values", show,
     Kind::lists},
};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_value_set_t>,
                                "value",
                                70,
                                kCellSteps,
                                {"valueset add", {}, "valueset delete"},
                                open_items<SetValues, soft_value_set_t>}};

}  // namespace

extern const Topic kValueSetTopic = {"Value sets", kCommands, kWords, kKinds};

}  // namespace tesselctl
