// Parser value sets.
#include "tesselctl/library.hpp"
#include "tesselctl/options.hpp"
#include "tesselctl/read_back.hpp"

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

constexpr uint32_t kAllParsers = 0xff;

// Without pipe= or parser= all of them.
p4_pd_parser_target_t parser_of(const Context &context, const Options &options) {
  p4_pd_parser_target_t target = {};
  target.device_id = context.device.id();
  target.direction =
      static_cast<uint32_t>(options.choice_or("direction", {"ingress", "egress"}, 0));
  target.pipe_id =
      static_cast<uint16_t>(options.number_or("pipe", context.device.pipes() - 1, BF_ALL_PIPES));
  target.parser_id = static_cast<uint8_t>(options.number_or("parser", 254, kAllParsers));
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
  Call first = context.device.prepare("pvs_entry_get_first_entry_handle", set.name);
  Call next = context.device.prepare("pvs_entry_get_next_entry_handles", set.name);
  first.set("target", &target);
  next.set("target", &target);
  for_each_handle({first, next, "entry", "entries", "entry"}, word, [&](uint32_t entry) {
    uint32_t value = 0;
    uint32_t mask = 0;
    Call call = context.device.prepare("pvs_entry_get", set.name);
    call.set("entry", uint64_t{entry}).set("value", &value).set("mask", &mask);
    check(call.run(), word);
    Row row = set_row(set).number("entry", entry);
    context.results.row(row.text("value", hexadecimal(value)).text("mask", hexadecimal(mask)));
  });
}

constexpr Command kCommands[] = {
    {"valueset add",
     "SET value=N [mask=N] [direction=ingress|egress] [pipe=N] [parser=N] [as=NAME]",
     "adds a value to parsers, to all of them unless told otherwise", add, Kind::changes},
    {"valueset modify", "SET entry=HANDLE value=N [mask=N]", "changes a value", modify,
     Kind::changes},
    {"valueset delete", "SET entry=HANDLE", "deletes a value", remove, Kind::changes},
    {"valueset show", "SET [direction=ingress|egress] [pipe=N] [parser=N]", "prints values", show,
     Kind::lists},
};

}  // namespace

std::span<const Command> value_set_commands() { return kCommands; }

}  // namespace tesselctl
