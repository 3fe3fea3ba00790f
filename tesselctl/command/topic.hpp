// The registry: commands, words and kinds of items, by topic.
#pragma once

#include "tesselctl/completion/subject.hpp"
#include "tesselctl/state/kind.hpp"

namespace tesselctl {

// A word in capitals that stands for the objects of a kind.
struct ObjectWord {
  std::string_view placeholder;
  // Offers their names; given are the words behind the command.
  void (*offer)(Offers &offers, const Context &context, const Command &command, Words given);
  // Says what the object of that name is about, if there is one; null for nothing.
  void (*choose)(Subject &subject, std::string_view name) = nullptr;
};

// What a file of tesselctl/kinds or tesselctl/topics adds to the tool. Topics of one title follow
// one another.
struct Topic {
  std::string_view title;
  std::span<const Command> commands;
  std::span<const ObjectWord> words = {};
  std::span<const ItemKind> kinds = {};
  bool (*is_there)() = [] { return true; };  // for the program at hand
};
std::span<const Topic *const> command_topics();

// Visits the commands that are not hidden.
template <class Visit>
void for_each_shown_command(Visit visit) {
  for (const Topic *topic : command_topics()) {
    if (!topic->is_there()) continue;
    for (const Command &command : topic->commands) {
      if (!command.hidden) visit(command);
    }
  }
}

// The command that the words name. Throws Fault with a near name.
const Command &find_command(Words words, Invocation &invocation);

// Null for a word that stands for something else.
const ObjectWord *find_object_word(std::string_view placeholder);

// Adds what is known by the word, the one at that place of those that stand alone.
void add_subject(Subject &subject, const std::vector<Argument> &grammar, size_t at, Word word);

}  // namespace tesselctl
