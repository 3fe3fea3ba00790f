// The registry: commands, words and kinds of items, by topic.
#pragma once

#include "tesselctl/completion/subject.hpp"
#include "tesselctl/state/kind.hpp"

namespace tesselctl {

// What a file of tesselctl/kinds adds to the tool. Topics of one title follow one another.
struct Topic {
  std::string_view title;
  std::span<const Command> commands;
  std::span<const ObjectWord> words = {};
  std::span<const ItemKind> kinds = {};
};
std::span<const Topic *const> command_topics();

// Visits the commands that are not hidden.
template <class Visit>
void for_each_shown_command(Visit visit) {
  for (const Topic *topic : command_topics()) {
    for (const Command &command : topic->commands) {
      if (!command.hidden) visit(command);
    }
  }
}

}  // namespace tesselctl
