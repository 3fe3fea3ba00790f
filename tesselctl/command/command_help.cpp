#include "tesselctl/command/command_help.hpp"
#include "tesselctl/command/topic.hpp"

#include "tesselctl/command/flags.hpp"
#include "tesselctl/command/grammar.hpp"

namespace tesselctl {

namespace {

std::string line_of(const Command &command) {
  return std::string(command.name) + (command.arguments.empty() ? "" : " ") +
         std::string(command.arguments);
}

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

template <class Takes>
std::string help_of_flags(Takes takes) {
  std::string text;
  for (const Flag &flag : all_flags()) {
    if (!takes(flag)) continue;
    std::string words(flag.letter);
    words += (words.empty() ? "" : ", ") + std::string(flag.name);
    if (!flag.value.empty()) words += " " + std::string(flag.value);
    text += help_line(words, flag.help);
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
  std::string text = fmt::format("{}\n    {}\n", line_of(command), command.summary);
  if (const std::string words = help_of_arguments(grammar); !words.empty()) {
    text += "  Words:\n" + words;
  }
  for (const Argument &argument : grammar) {
    if (argument.value != "OUTCOME") continue;
    text += "  OUTCOME:\n" + help_line("action=NAME", "and [PARAM=VALUE...]") +
            help_line("member=HANDLE", "or group=HANDLE, for a table that is bound to a profile");
  }
  text +=
      "  Options:\n" + help_of_flags([&](const Flag &flag) { return takes_flag(command, flag); });
  if (takes_values(grammar)) {
    text += "  Values:\n";
    for (const NotationHelp &row : notations()) text += help_line(row.notation, row.takes);
  }
  text.pop_back();
  return text;
}

std::string tool_help() {
  std::string text =
      "tesselctl works on the tables of a P4 program, in a soft device.\n"
      "\n"
      "  tesselctl [OPTION...] COMMAND   runs a command\n"
      "  tesselctl [OPTION...]           opens a shell on a terminal, otherwise runs the commands\n"
      "                                  of standard input\n"
      "\nOptions:\n" +
      help_of_flags([](const Flag &flag) { return flag.of <= FlagOf::all; }) +
      "\nCommands ('COMMAND --help' explains one and lists its options):\n";
  for_each_shown_command([&](const Command &command) {
    text += fmt::format("  {}\n      {}\n", line_of(command), command.summary);
  });
  return text +
         "\nOUTCOME is action=NAME [PARAM=VALUE...], or member=HANDLE or group=HANDLE for a table\n"
         "that is bound to a profile. $NAME stands for a handle that as=NAME remembered.";
}

}  // namespace tesselctl
