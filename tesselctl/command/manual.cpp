#include "tesselctl/command/manual.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/text/files.hpp"

#include "tesselctl/command/flags.hpp"

namespace tesselctl {

namespace {

// Text that means nothing to the formatter, which may break lines between alternatives.
std::string plain(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\\') {
      escaped += "\\e";
    } else if (c == '-') {
      escaped += "\\-";
    } else if (c == '\'') {
      escaped += "\\(aq";
    } else if (c == '|') {
      escaped += "|\\:";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string paragraph_of(const Flag &flag, std::string_view help) {
  std::string text = ".TP\n";
  if (!flag.letter.empty()) {
    text += ".BR " + plain(flag.letter) + " \", \" " + plain(flag.name);
  } else if (!flag.value.empty()) {
    text += ".BI " + plain(flag.name) + " \" " + plain(flag.value) + "\"";
  } else {
    text += ".B " + plain(flag.name);
  }
  return text + "\n" + plain(help) + "\n";
}

std::string tool_options() {
  std::string text;
  for (const Flag &flag : all_flags()) {
    if (flag.of <= FlagOf::all) text += paragraph_of(flag, flag.help);
  }
  return text;
}

// "of show, schema" or of a kind of commands.
std::string takers_of(const Flag &flag) {
  if (flag.of == FlagOf::listings) return "of commands that list: ";
  if (flag.of == FlagOf::changes) return "of commands that change something: ";
  std::string text;
  for_each_shown_command([&](const Command &command) {
    if (!takes_flag(command, flag) || command.name == "watch") return;
    text += (text.empty() ? "of " : ", ") + std::string(command.name);
  });
  return text + ": ";
}

std::string command_options() {
  std::string text;
  for (const Flag &flag : all_flags()) {
    if (flag.of > FlagOf::all) text += paragraph_of(flag, takers_of(flag) + std::string(flag.help));
  }
  return text;
}

std::string commands() {
  std::string text;
  std::string_view title;
  for (const Topic *topic : command_topics()) {
    if (topic->title != title) text += ".SS " + plain(topic->title) + "\n";
    title = topic->title;
    for (const Command &command : topic->commands) {
      if (command.hidden) continue;
      text += ".TP\n.B " + plain(command.name) + "\n";
      if (!command.arguments.empty()) text += ".I " + plain(command.arguments) + "\n";
      text += ".br\n" + plain(command.summary) + "\n";
    }
  }
  return text;
}

}  // namespace

std::string manual_page(std::string_view text) {
  std::string page;
  std::string_view line;
  for (const LineSource next = lines_of(text); next(line);) {
    if (line == "@options@") {
      page += tool_options();
    } else if (line == "@command options@") {
      page += command_options();
    } else if (line == "@commands@") {
      page += commands();
    } else {
      page += std::string(line) + "\n";
    }
  }
  return page;
}

}  // namespace tesselctl
