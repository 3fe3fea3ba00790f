#include "tesselctl/command_help.hpp"

#include "tesselctl/grammar.hpp"

namespace tesselctl {

std::string flags_of(const Command &command) {
  std::string flags = "--json --terse --trace --verbose";
  if (command.kind == Kind::lists) flags += " --count --filter NAME=PATTERN --sort NAME";
  if (command.kind == Kind::changes) flags += " --dry-run";
  if (!command.flags.empty()) flags += " " + std::string(command.flags);
  return flags;
}

namespace {

std::string help_line(std::string_view word, std::string_view text) {
  return fmt::format("    {:<22} {}", word, text) + "\n";
}

std::string help_of_arguments(const std::vector<Argument> &grammar) {
  std::string text;
  for (const Argument &argument : grammar) {
    if (argument.stands_alone()) continue;
    std::string_view meaning = meaning_of_name(argument.name);
    if (meaning.empty()) meaning = meaning_of_value(argument.value);
    if (is_placeholder(argument.name) || meaning.empty()) continue;
    text += help_line(fmt::format("{}={}", argument.name, argument.value), meaning);
  }
  return text;
}

std::string help_of_flags(const Command &command) {
  std::string text;
  const std::string flags = flags_of(command);
  for (size_t at = flags.find("--"); at != std::string::npos; at = flags.find("--", at + 1)) {
    const std::string flag = flags.substr(at, flags.find(' ', at) - at);
    const std::string_view value = flag_value(flag);
    text += help_line(value.empty() ? flag : fmt::format("{} {}", flag, value), flag_help(flag));
  }
  return text;
}

bool takes_values(const std::vector<Argument> &grammar) {
  for (const Argument &argument : grammar) {
    if (argument.value == "VALUE" || argument.value == "OUTCOME") return true;
  }
  return false;
}

}  // namespace

std::string help_of(const Command &command) {
  const std::vector<Argument> grammar = grammar_of(command.arguments);
  std::string text =
      fmt::format("{} {}\n    {}\n", command.name, command.arguments, command.summary);
  if (const std::string words = help_of_arguments(grammar); !words.empty()) {
    text += "  Words:\n" + words;
  }
  for (const Argument &argument : grammar) {
    if (argument.value != "OUTCOME") continue;
    text += "  OUTCOME:\n" + help_line("action=NAME", "and [PARAM=VALUE...]") +
            help_line("member=HANDLE", "or group=HANDLE, for a table that is bound to a profile");
  }
  text += "  Options:\n" + help_of_flags(command);
  if (takes_values(grammar)) {
    text += "  Values:\n";
    for (const NotationHelp &row : notations()) text += help_line(row.notation, row.takes);
  }
  text.pop_back();
  return text;
}

std::string command_help() {
  std::string text = "Commands:\n";
  for (const std::span<const Command> topic : command_topics()) {
    for (const Command &command : topic) {
      if (command.hidden) continue;
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
