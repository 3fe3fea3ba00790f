// The arguments of a command as data, read from its grammar text:
//
//   TABLE entry=HANDLE|FIELD=VALUE... [priority=N] OUTCOME
//
// A word in capitals is to be replaced. Brackets hold what may be left out, "..." follows what may
// come again, and '|' stands between words of which one is given.
#pragma once

#include <string_view>
#include <vector>

#include "tesselctl/command/command.hpp"

namespace tesselctl {

struct Argument {
  std::string_view name;   // before '='; empty for a word that stands by itself
  std::string_view value;  // "HANDLE", "hardware|software"
  bool optional = false;
  bool repeated = false;
  size_t choice = 0;  // arguments of one number exclude each other

  bool stands_alone() const { return name.empty(); }
};

std::vector<Argument> grammar_of(std::string_view arguments);

// What has a name in a grammar, or in a list like "hardware|software".
std::vector<std::string_view> alternatives_of(std::string_view value);
bool is_placeholder(std::string_view word);  // in capitals

// What a word means, in a few words: "MS" or "priority". Empty when it speaks for itself.
std::string_view meaning_of_value(std::string_view placeholder);
std::string_view meaning_of_name(std::string_view name);

// How values are written, for people: a notation and what takes it.
struct NotationHelp {
  std::string_view notation;
  std::string_view takes;
};
std::span<const NotationHelp> notations();

}  // namespace tesselctl
