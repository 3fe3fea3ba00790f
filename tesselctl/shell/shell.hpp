// The interactive shell: one command a line, run by a Runner, until the input ends.
#pragma once

#include <string>

#include "tesselctl/command/runner.hpp"
#include "tesselctl/text/output.hpp"

namespace tesselctl {

struct ShellOptions {
  std::string history;  // a file; empty for none
};

// Standard input is a terminal. An interrupt ends the command that runs or clears the line, and
// never the tool; "exit", "quit" and the end of the input end the shell. Throws Fault when the
// runner cannot go on.
void run_shell(Runner &runner, Output &out, const ShellOptions &options);

}  // namespace tesselctl
