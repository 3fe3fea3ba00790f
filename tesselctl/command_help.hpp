// The commands in words, for people.
#pragma once

#include <string>

#include "tesselctl/command.hpp"

namespace tesselctl {

// All commands by topic, and what all have in common.
std::string command_help();
// Grammar, purpose, arguments, options and notations of a command.
std::string help_of(const Command &command);
// "--json --terse ... " that a command takes, with what they want behind them.
std::string flags_of(const Command &command);

}  // namespace tesselctl
