#include "tesselctl/command/script.hpp"

#include <fmt/format.h>

#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

ScriptResult run_script(Runner &runner, std::string_view file, std::string_view text,
                        const ScriptOptions &options) {
  return run_script(runner, file, lines_of(text), options);
}

ScriptResult run_script(Runner &runner, std::string_view file, const LineSource &next,
                        const ScriptOptions &options) {
  ScriptResult result;
  for (std::string_view line; next(line);) {
    check_interrupt();
    if (++result.lines < options.from) continue;
    const LineOutcome outcome = runner.run({file, result.lines, line});
    if (outcome == LineOutcome::blank) continue;
    ++result.commands;
    if (outcome == LineOutcome::differs) result.differs = true;
    if (outcome != LineOutcome::fault) continue;
    ++result.faults;
    if (!options.keep_going) break;
  }
  if (result.lines >= options.from || options.from == 1) return result;
  throw Fault(fmt::format("the script has no line {}, only {}", options.from, result.lines));
}

void print_summary(Output &out, std::string_view file, const ScriptResult &result,
                   std::string_view note) {
  out.line("{}: {} command{}, {} fault{}{}{}", file, result.commands,
           result.commands == 1 ? "" : "s", result.faults, result.faults == 1 ? "" : "s",
           note.empty() ? "" : "; ", note);
}

}  // namespace tesselctl
