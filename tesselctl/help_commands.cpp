// What can be typed: help for people, completion for shells.
#include <algorithm>

#include "tesselctl/command_help.hpp"
#include "tesselctl/completion.hpp"
#include "tesselctl/grammar.hpp"
#include "tesselctl/options.hpp"

namespace tesselctl {

namespace {

void complete_line(Context &context, const Invocation &invocation) {
  const std::string line = decode_line(need_argument(invocation, 0, "the line").text);
  const Options options(invocation, 1, {"cursor"});
  const uint64_t cursor = options.number_or("cursor", line.size(), line.size());
  const Completion completion = complete(context, line, static_cast<size_t>(cursor));
  const auto add = [&](const std::string &word, const std::string &help) {
    Row row;
    row.number("start", completion.start).text("word", word).text("help", help);
    context.results.row(row, fmt::format("{}\t{}\t{}", completion.start, word, help));
  };
  for (const Candidate &candidate : completion.candidates) add(candidate.word, candidate.help);
  if (!completion.hint.empty()) add("", completion.hint);
}

void list_commands(Context &context) {
  for (const std::span<const Command> topic : command_topics()) {
    for (const Command &command : topic) {
      if (command.hidden) continue;
      Row row;
      row.text("command", command.name).text("arguments", command.arguments);
      context.results.row(row.text("summary", command.summary),
                          fmt::format("{:<18} {}", command.name, command.summary));
    }
  }
}

void help(Context &context, const Invocation &invocation) {
  if (invocation.arguments.empty()) return list_commands(context);
  refuse_arguments_from(invocation, 2);
  const std::string_view first = invocation.arguments[0].text;
  const bool one_word = invocation.arguments.size() == 1;
  bool found = false;
  for (const std::span<const Command> topic : command_topics()) {
    for (const Command &command : topic) {
      if (one_word && command.name.substr(0, command.name.find(' ')) == first) {
        context.results.text(help_of(command));
        found = true;
      }
    }
  }
  if (found) return;
  Invocation unused;
  const Command &command = find_command(invocation.arguments, unused);
  // A command of one word takes no second one.
  if (!one_word && command.name.find(' ') == std::string_view::npos) {
    refuse_arguments_from(invocation, 1);
  }
  context.results.text(help_of(command));
}

constexpr Command kCommands[] = {
    {"help", "[COMMAND...]", "lists the commands, or explains one", help},
    {.name = "complete",
     .arguments = "LINE [cursor=N]",
     .summary = "tells what can stand at a point of a line",
     .run = complete_line,
     .hidden = true},
};

}  // namespace

std::span<const Command> help_commands() { return kCommands; }

}  // namespace tesselctl
