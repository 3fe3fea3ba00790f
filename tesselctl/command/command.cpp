#include "tesselctl/command/command.hpp"
#include "tesselctl/command/topic.hpp"

#include "tesselctl/program/value.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/suggest.hpp"

namespace tesselctl {

namespace {

// The second word of a command whose first word is right was wrong or is missing.
[[noreturn]] void throw_unknown_second(Words words) {
  std::string list;
  std::vector<std::string_view> seconds;
  for_each_shown_command([&](const Command &command) {
    if (command.first_word() != words[0].text) return;
    seconds.push_back(command.second_word());
    list += (list.empty() ? "" : ", ") + std::string(seconds.back());
  });
  const std::string wants = std::string(words[0].text) + " wants one of " + list;
  if (words.size() < 2) throw Fault(words[0], wants);
  throw Fault(words[1], wants, nearest(words[1].text, seconds));
}

[[noreturn]] void throw_unknown_first(Word word) {
  Nearest near(word.text);
  for_each_shown_command([&](const Command &command) { near.consider(command.first_word()); });
  throw Fault(word, "no command has this name", near.name());
}

}  // namespace

const Command &find_command(Words words, Invocation &invocation) {
  const Command *found = nullptr;
  bool first_is_known = false;
  for (const Topic *topic : command_topics()) {
    for (const Command &command : topic->commands) {
      if (command.first_word() != words[0].text) continue;
      first_is_known = true;
      const std::string_view second = command.second_word();
      const bool is_named = words.size() > 1 && second == words[1].text;
      if (is_named || (second.empty() && found == nullptr)) found = &command;
    }
  }
  if (found == nullptr && first_is_known) throw_unknown_second(words);
  if (found == nullptr) throw_unknown_first(words[0]);
  invocation = {words[0], words.subspan(found->second_word().empty() ? 1 : 2)};
  return *found;
}

std::string Context::path(Word word) const {
  if (directory.empty()) return std::string(word.text);
  std::string path = path_in(directory, std::string(word.text));
  if (word.text == "-" || is_no_regular_file(path)) {
    throw Fault(word, "the server reads and writes regular files only");
  }
  return path;
}

std::string Context::output_path(Word word) const {
  return is_trial || settings.dry_run ? "/dev/null" : path(word);
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
