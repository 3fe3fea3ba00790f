// The commands in words, for people.
#pragma once

#include <string>

#include "tesselctl/command/command.hpp"

namespace tesselctl {

// How the tool is called, its options, and all commands by topic.
std::string tool_help();
// Grammar, purpose, arguments, options and notations of a command.
std::string help_of(const Command &command);

}  // namespace tesselctl
