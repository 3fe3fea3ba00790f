#include "tesselctl/command.hpp"

#include <algorithm>
#include <new>

#include "tesselctl/dry_run.hpp"
#include "tesselctl/files.hpp"
#include "tesselctl/suggest.hpp"
#include "tesselctl/trace.hpp"
#include "tesselctl/value.hpp"

namespace tesselctl {

std::span<const std::span<const Command>> command_topics() {
  static const std::span<const Command> topics[] = {
      // One a line, so that topics are added without moving others.
      entry_commands(),          //
      show_commands(),           //
      profile_commands(),        //
      meter_commands(),          //
      stateful_commands(),       //
      hash_commands(),           //
      value_set_commands(),      //
      digest_commands(),         //
      snapshot_commands(),       //
      traffic_commands(),        //
      state_commands(),          //
      image_commands(),          //
      compare_commands(),        //
      routes_commands(),         //
      introspection_commands(),  //
      watch_commands(),          //
      help_commands(),           //
      report_commands(),         //
  };
  return topics;
}

namespace {

template <class Visit>
void for_each_command(Visit visit) {
  for (const std::span<const Command> topic : command_topics()) {
    for (const Command &command : topic) visit(command);
  }
}

std::string_view first_word(std::string_view name) { return name.substr(0, name.find(' ')); }

// The second word of a command whose first word is right was wrong or is missing.
[[noreturn]] void throw_unknown_second(Words words) {
  std::string list;
  std::vector<std::string_view> seconds;
  for_each_command([&](const Command &command) {
    if (first_word(command.name) != words[0].text) return;
    seconds.push_back(command.name.substr(words[0].text.size() + 1));
    list += (list.empty() ? "" : ", ") + std::string(seconds.back());
  });
  const std::string wants = std::string(words[0].text) + " wants one of " + list;
  if (words.size() < 2) throw Fault(words[0], wants);
  throw Fault(words[1], wants, nearest(words[1].text, seconds));
}

}  // namespace

const Command &find_command(Words words, Invocation &invocation) {
  const Command *found = nullptr;
  bool first_is_known = false;
  std::vector<std::string_view> names;
  for_each_command([&](const Command &command) {
    const std::string_view first = first_word(command.name);
    if (!command.hidden) names.push_back(first);
    if (first != words[0].text) return;
    first_is_known = true;
    if (first.size() == command.name.size()) {
      if (found == nullptr) found = &command;
      invocation = {words[0], words.subspan(1)};
    } else if (words.size() > 1 && command.name.substr(first.size() + 1) == words[1].text) {
      found = &command;
    }
  });
  if (found == nullptr && first_is_known) throw_unknown_second(words);
  if (found == nullptr) {
    throw Fault(words[0], "no command has this name", nearest(words[0].text, names));
  }
  const size_t count = first_word(found->name).size() == found->name.size() ? 1 : 2;
  invocation = {words[0], words.subspan(count)};
  return *found;
}

namespace {

std::string_view trimmed(std::string_view line) {
  const size_t first = line.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(" \t\r") - first + 1);
}

void run_command(Context &context, const Command &command, const Invocation &invocation) {
  const TraceScope trace(context.settings.trace ? &context.results : nullptr);
  if (context.settings.dry_run) return run_on_copy(context, command, invocation);
  command.run(context, invocation);
}

}  // namespace

std::string Context::path(Word word) const {
  if (directory.empty()) return std::string(word.text);
  std::string path = path_in(directory, std::string(word.text));
  if (word.text == "-" || is_no_regular_file(path)) {
    throw Fault(word, "the server reads and writes regular files only");
  }
  return path;
}

Ran run_line(Context &context, std::string_view line) {
  context.settings = context.defaults;
  context.differs = false;
  context.results.begin(context.settings, trimmed(line), false);
  std::vector<Word> words;
  split_words(line, words);
  const Flags flags = take_flags(words, context.settings);
  if (words.empty()) {
    if (!flags.given.empty()) throw Fault(flags.given[0], "there is no command on this line");
    return Ran::nothing;
  }
  Invocation invocation;
  const Command &command = find_command(words, invocation);
  context.results.begin(context.settings, trimmed(line), command.kind == Kind::lists);
  flags.check(command);
  try {
    run_command(context, command, invocation);
    context.results.end();
  } catch (const std::bad_alloc &) {
    throw Fault(invocation.command, "there is no memory for this");
  }
  const bool changes = command.kind == Kind::changes && !context.settings.dry_run;
  if (changes) return Ran::changed;
  return context.differs ? Ran::differs : Ran::asked;
}

Word need_argument(const Invocation &invocation, size_t at, std::string_view what) {
  if (at < invocation.arguments.size()) return invocation.arguments[at];
  throw Fault(invocation.command, std::string(what) + " is missing");
}

void refuse_arguments_from(const Invocation &invocation, size_t at) {
  if (at < invocation.arguments.size()) {
    throw Fault(invocation.arguments[at], "nothing should stand here");
  }
}

uint32_t parse_handle(const Context &context, Word text, const std::string &what) {
  if (!text.text.starts_with('$')) {
    return static_cast<uint32_t>(parse_limited(text, 0xffffffffu, what));
  }
  const auto found = context.labels.find(text.text.substr(1));
  if (found != context.labels.end()) return found->second;
  std::vector<std::string> names;
  for (const auto &[name, handle] : context.labels) names.push_back("$" + name);
  throw Fault(text, "no handle was remembered under this name", nearest(text.text, names));
}

void remember(Context &context, Word name, uint32_t handle) {
  context.labels.insert_or_assign(std::string(name.text), handle);
}

}  // namespace tesselctl
