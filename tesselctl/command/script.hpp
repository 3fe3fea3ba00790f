// Scripts: one command a line.
#pragma once

#include <string_view>

#include "tesselctl/command/runner.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

struct ScriptOptions {
  bool keep_going = false;  // go on behind a line with a fault
  uint64_t from = 1;        // the first line that is run

  static ScriptOptions of(const Settings &settings) { return {settings.keep_going, settings.from}; }
};

// What the lines of a script take from the settings of its run.
inline Settings settings_of_lines(Settings settings) {
  settings.atomic = settings.dry_run = settings.keep_going = false;
  settings.from = 1;
  return settings;
}

struct ScriptResult {
  uint64_t lines = 0;
  uint64_t commands = 0;
  uint64_t faults = 0;
  bool differs = false;  // a command found a difference

  LineOutcome outcome() const {
    if (faults != 0) return LineOutcome::fault;
    return differs ? LineOutcome::differs : LineOutcome::done;
  }
};

// Runs the lines of text, which came from a file of that name. Throws Fault between two lines when
// an interrupt came.
ScriptResult run_script(Runner &runner, std::string_view file, std::string_view text,
                        const ScriptOptions &options);
ScriptResult run_script(Runner &runner, std::string_view file, const LineSource &next,
                        const ScriptOptions &options);

inline constexpr std::string_view kTriedNote = "on a copy of the device, nothing is changed";

// "x.tessel: 3 commands, 1 fault", and a note behind it.
void print_summary(Output &out, std::string_view file, const ScriptResult &result,
                   std::string_view note = {});

}  // namespace tesselctl
