// What can be typed: help for people, completion for shells, the manual page.
#include "tesselctl/command/command_help.hpp"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/completion/completion.hpp"

namespace tesselctl {

namespace {

void complete_line(Context &context, const Invocation &invocation) {
  const std::string line = decode_line(need_argument(invocation, 0, "the line").text);
  const Options options(invocation, 1, {"cursor"});
  const uint64_t cursor = options.number_or("cursor", line.size(), line.size());
  print_completion(complete(context, line, static_cast<size_t>(cursor)), context.results);
}

void list_commands(Context &context) {
  for_each_shown_command([&](const Command &command) {
    Row row;
    row.text("command", command.name).text("arguments", command.arguments);
    context.results.row(row.text("summary", command.summary),
                        fmt::format("{:<18} {}", command.name, command.summary));
  });
}

void help(Context &context, const Invocation &invocation) {
  const Words words = invocation.arguments;
  if (words.empty()) return list_commands(context);
  bool found = false;
  for_each_shown_command([&](const Command &command) {
    if (words.size() > 1 || command.first_word() != words[0].text) return;
    context.results.text(help_of(command));
    found = true;
  });
  if (found) return;
  Invocation named;
  const Command &command = find_command(words, named);
  // What stands behind "add" in "add nextHop --help" explains nothing.
  if (!context.settings.help) refuse_arguments_from(named, 0);
  context.results.text(help_of(command));
}

// Reached where the line does not come from the tool's own command line.
void refuse_manual(Context &, const Invocation &invocation) {
  throw Fault(invocation.command, "the manual page is printed by 'tesselctl manual FILE'");
}

constexpr Command kCommands[] = {
    {"help", "[COMMAND...]", "lists the commands, or explains one", help},
    {.name = "complete",
     .arguments = "LINE [cursor=N]",
     .summary = "lists what can stand at a point of a line",
     .run = complete_line,
     .hidden = true},
    {.name = "manual",
     .arguments = "FILE",
     .summary = "prints the manual page of a template",
     .run = refuse_manual,
     .hidden = true},
};

}  // namespace

extern const Topic kHelpTopic = {"Help", kCommands};

}  // namespace tesselctl
