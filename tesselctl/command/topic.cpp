#include "tesselctl/command/topic.hpp"

#include <algorithm>

#include "common/nearest.hpp"

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
  throw Fault(words[1], wants, common::nearest(words[1].text, seconds));
}

[[noreturn]] void throw_unknown_first(Word word) {
  common::Nearest near(word.text);
  for_each_shown_command([&](const Command &command) { near.consider(command.first_word()); });
  throw Fault(word, "no command has this name", near.name());
}

}  // namespace

const Command &find_command(Words words, Invocation &invocation) {
  const Command *found = nullptr;
  bool first_is_known = false;
  for (const Topic *topic : command_topics()) {
    if (!topic->is_there()) continue;
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

const ObjectWord *find_object_word(std::string_view placeholder) {
  for (const Topic *topic : command_topics()) {
    for (const ObjectWord &word : topic->words) {
      if (word.placeholder == placeholder) return &word;
    }
  }
  return nullptr;
}

void add_subject(Subject &subject, const std::vector<Argument> &grammar, size_t at, Word word) {
  const auto argument = std::find_if(grammar.begin(), grammar.end(), [&](const Argument &it) {
    return it.stands_alone() && at-- == 0;
  });
  if (argument == grammar.end()) return;
  for (const std::string_view value : alternatives_of(argument->value)) {
    const ObjectWord *kind = find_object_word(value);
    if (kind != nullptr && kind->choose != nullptr) kind->choose(subject, word.text);
  }
}

}  // namespace tesselctl
