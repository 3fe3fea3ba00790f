#include "tesselctl/command_help.hpp"

namespace tesselctl {

std::string flags_of(const Command &command) {
  std::string flags = "--json --terse --trace --verbose";
  if (command.kind == Kind::lists) flags += " --count --filter NAME=PATTERN --sort NAME";
  if (command.kind == Kind::changes) flags += " --dry-run";
  if (!command.flags.empty()) flags += " " + std::string(command.flags);
  return flags;
}

std::string command_help() {
  std::string text = "Commands:\n";
  for (const std::span<const Command> topic : command_topics()) {
    for (const Command &command : topic) {
      text += fmt::format("  {} {}\n      {}\n", command.name, command.arguments, command.summary);
    }
  }
  return text +
         "OUTCOME is action=NAME [PARAM=VALUE...], or member=HANDLE or group=HANDLE for a table\n"
         "that is bound to a profile. $NAME stands for a handle that as=NAME remembered.\n"
         "Every command takes --json, --terse, --trace and --verbose; those that list rows also\n"
         "--count, --filter NAME=PATTERN and --sort NAME; those that change something --dry-run.";
}

}  // namespace tesselctl
