// The functions of the library: which there are, how they are declared and called.
#include <fmt/format.h>

#include <set>

#include "tesselctl/command/topic.hpp"
#include "tesselctl/program/c_call.hpp"
#include "tesselctl/topics/soft_functions.hpp"

namespace tesselctl {

namespace {

using bindings::Export;
using bindings::Note;

constexpr size_t kLineWidth = 100;
// Numbers of the library's statuses are below, but for one.
constexpr uint32_t kMostOwnStatus = 0x2000;

const Note &note_of(const Export &function) { return binding().notes[function.note]; }

// Without what the names of all functions begin with.
std::string_view short_name(const Export &function) {
  return std::string_view(function.name).substr(function_prefix().size());
}

bool belongs_to(const Export &function, std::string_view name) {
  if (name.empty()) return false;
  return name == function.family || name == function.object || name == function.action;
}

// ---- One function ----

void print_function(Context &context, const Export &function) {
  const Note &note = note_of(function);
  std::string declared = wrapped_code(prototype(function) + ";", kLineWidth);
  declared.pop_back();  // the end of the line that it is printed as
  std::string example = wrapped_code(example_call(function), kLineWidth);
  example.pop_back();
  Row row;
  row.object("function", function.name).choice("family", function.family);
  if (*function.object != '\0') row.choice("object", function.object);
  if (*function.action != '\0') row.choice("action", function.action);
  row.text("topic", note.title).text("note", note.text);
  row.text("prototype", declared).text("example", example);
  context.results.row(row, fmt::format("{}\n\n{}\n{}\n\n{}", declared, note.title,
                                       wrapped_text(note.text, kLineWidth), example));
}

// ---- The control interface of the soft SDK ----

constexpr std::string_view kSoftTopic = "Control of the soft SDK";

Row described(const SoftFunction &function) {
  return Row()
      .object("function", function.name)
      .choice("family", function.header)
      .choice("topic", kSoftTopic);
}

void print_soft_function(Context &context, const SoftFunction &function) {
  Row row = described(function);
  row.text("note", function.note).text("prototype", function.records + function.prototype);
  context.results.row(
      row, fmt::format("{}{}\n\n{}, {}\n{}", function.records, function.prototype, kSoftTopic,
                       function.header, wrapped_text(function.note, kLineWidth)));
}

// Explains the function of that name, or lists those of a header, or all for "soft". Returns false
// when it is none of these.
bool print_soft(Context &context, std::string_view name) {
  const auto functions = soft_functions();
  const auto named = std::ranges::find(functions, name, &SoftFunction::name);
  if (named != functions.end()) {
    print_soft_function(context, *named);
    return true;
  }
  bool is_known = false;
  for (const SoftFunction &function : functions) {
    if (name != "soft" && name != function.header) continue;
    context.results.row(described(function));
    is_known = true;
  }
  return is_known;
}

// ---- Statuses ----

struct Status {
  uint32_t number;
  std::string_view name;
  std::string_view text;
};

// Those of the device, then those of the library.
std::vector<Status> statuses() {
  std::vector<Status> statuses;
  for (uint32_t number = 0; number <= BF_TABLE_MISS; ++number) {
    statuses.push_back({number, soft_status_name(number), soft_status_text(number)});
  }
  for (uint32_t i = 0; i <= kMostOwnStatus; ++i) {
    const auto own = p4_pd_describe_status(i < kMostOwnStatus ? i : P4_PD_MEMBER_KEEPS_ACTION);
    if (own.name != nullptr) statuses.push_back({own.status, own.name, own.text});
  }
  return statuses;
}

// Without what begins the names of the device, or of the library.
std::string_view short_name(const Status &status) {
  return status.name.substr(status.name.find('_', status.name.starts_with("P4_") ? 3 : 0) + 1);
}

// The statuses of that name or number in words. Returns false when there is none.
bool print_status(Context &context, std::string_view word) {
  const auto number = parse_number(word);
  const std::string name = common::lower_case(word);
  bool is_known = false;
  for (const Status &status : statuses()) {
    const bool is_named =
        name == common::lower_case(status.name) || name == common::lower_case(short_name(status));
    if (!is_named && number != Number{0, status.number}) continue;
    context.results.row(
        Row().choice("name", status.name).number("status", status.number).text("text", status.text),
        fmt::format("{} ({}): {}", status.name, static_cast<int32_t>(status.number), status.text));
    is_known = true;
  }
  return is_known;
}

// ---- Lists ----

Row listed(const Export &function) {
  return Row()
      .object("function", function.name)
      .choice("family", function.family)
      .choice("topic", note_of(function).title);
}

struct Family {
  const Export *first;
  uint64_t functions;
};

// In the order of the header.
std::vector<Family> families() {
  std::vector<Family> families;
  std::map<std::string_view, size_t> places;
  for_each_export([&](const Export &function) {
    const auto [place, is_new] = places.try_emplace(function.family, families.size());
    if (is_new) families.push_back({&function, 0});
    ++families[place->second].functions;
  });
  return families;
}

void list_families(Context &context) {
  for (const auto &[first, functions] : families()) {
    context.results.row(Row()
                            .object("family", first->family)
                            .number("functions", functions)
                            .choice("topic", note_of(*first).title)
                            .text("first", first->name));
  }
}

// Without the prefix of functions, in upper case too.
std::string_view without_prefix(std::string_view name) {
  const std::string prefix = function_prefix();
  if (common::lower_case(name.substr(0, prefix.size())) == prefix)
    name.remove_prefix(prefix.size());
  return name;
}

[[noreturn]] void throw_unknown_name(Word word) {
  std::set<std::string_view> known;
  for_each_export([&](const Export &function) {
    known.insert({short_name(function), function.family, function.object});
  });
  const std::vector<SoftFunction> soft = soft_functions();
  for (const SoftFunction &function : soft) known.insert({function.name, function.header});
  for (const Status &status : statuses()) known.insert({status.name, short_name(status)});
  const std::string near = common::nearest(without_prefix(word.text), known);
  throw Fault(word, "no function, family, object or status has this name", near);
}

void print_api(Context &context, const Invocation &invocation) {
  refuse_arguments_from(invocation, 1);
  if (invocation.arguments.empty()) return list_families(context);
  const Word word = invocation.arguments[0];
  const Export *named = nullptr;
  std::vector<const Export *> members;
  for_each_export([&](const Export &function) {
    if (word.text == function.name || word.text == short_name(function)) named = &function;
    if (belongs_to(function, word.text)) members.push_back(&function);
  });
  if (named != nullptr) return print_function(context, *named);
  if (members.empty() && (print_soft(context, word.text) || print_status(context, word.text))) {
    return;
  }
  for (const Export *function : members) context.results.row(listed(*function));
  if (members.empty()) throw_unknown_name(word);
}

// ---- Completion ----

// A name is offered once it has a first letter: there are thousands.
void offer_functions(Offers &offers, const Context &, const Command &, Words) {
  if (offers.typed().empty()) return offers.hint("a function, with or without its prefix");
  const bool whole = offers.typed().starts_with("p4");
  for_each_export([&](const Export &function) {
    offers.offer(whole ? function.name : short_name(function), note_of(function).title);
  });
  for (const SoftFunction &function : soft_functions()) offers.offer(function.name, kSoftTopic);
}

void offer_statuses(Offers &offers, const Context &, const Command &, Words) {
  for (const Status &status : statuses()) offers.offer(status.name, status.text);
}

void offer_families(Offers &offers, const Context &, const Command &, Words) {
  for (const Family &family : families()) {
    offers.offer(family.first->family, note_of(*family.first).title);
  }
}

constexpr ObjectWord kWords[] = {
    {"FUNCTION", offer_functions}, {"FAMILY", offer_families}, {"STATUS", offer_statuses}};

constexpr Command kCommands[] = {
    {"api", "[FUNCTION|FAMILY|TABLE|ACTION|PROFILE|COUNTER|METER|REGISTER|HASH|SET|DIGEST|STATUS]",
     "explains a function or a status, or lists the functions of a name, or families", print_api,
     Kind::lists},
};

}  // namespace

extern const Topic kApiTopic = {"Names and shapes", kCommands, kWords};

}  // namespace tesselctl
