// What runs command lines: a device of this process, or a server.
#pragma once

#include <string>
#include <string_view>

#include "tesselctl/command/fault_report.hpp"

namespace tesselctl {

// differs: done, and what was compared is not equal.
enum class LineOutcome { blank, done, fault, differs };

// All lines of a script, with the settings that it is run with.
struct WholeScript {
  std::string_view name;
  std::string_view text;
  Settings settings;
};

class Runner {
 public:
  virtual ~Runner() = default;
  // Runs a line, prints its answer, and reports its fault:
  //   FILE:LINE:COLUMN: 'TOKEN': what is wrong; did you mean 'SUGGESTION'?
  // with the line and a mark below it; in JSON within the answer. Throws Fault when the line cannot
  // be run at all: the output or the server is gone.
  virtual LineOutcome run(const SourceLine &source) = 0;
  // Runs a script as one transaction: no line of others comes between its lines, and the device is
  // as it was when a line has a fault. Throws Fault like run.
  virtual LineOutcome run_whole(const WholeScript &script) = 0;
  // Until the trial ends, lines run on a copy of the device as it is now, and nothing that they do
  // stays. A trial may begin within another one. Both throw Fault.
  virtual void begin_trial() = 0;
  virtual void end_trial() = 0;
  // What a line answers, for the tool itself; nothing after a fault.
  virtual std::string ask(std::string_view line) = 0;
  // Of every line that does not say otherwise.
  virtual Settings &defaults() = 0;
};

}  // namespace tesselctl
