// Scripts: one command a line.
#pragma once

#include <string>
#include <string_view>

#include "tesselctl/runner.hpp"

namespace tesselctl {

struct ScriptOptions {
  bool keep_going = false;  // go on behind a line with a fault
};

struct ScriptResult {
  uint64_t lines = 0;
  uint64_t commands = 0;
  uint64_t faults = 0;
  bool differs = false;  // a command found a difference
};

// Runs the lines of text, which came from a file of that name.
ScriptResult run_script(Runner &runner, std::string_view file, std::string_view text,
                        const ScriptOptions &options);

// The fault as one line of text, without its source. line 0 leaves the place out.
std::string fault_text(const Fault &fault, std::string_view file, uint64_t line);
// Prints it with its source line.
void print_fault(const Fault &fault, std::string_view file, uint64_t line, std::string_view source,
                 Output &errors);

}  // namespace tesselctl
