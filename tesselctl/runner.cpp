#include "tesselctl/runner.hpp"

#include "tesselctl/script.hpp"

namespace tesselctl {

void LocalRunner::report(const Fault &fault, const SourceLine &source) {
  context_.results.fail(fault, source.file, source.line);
  // What the command printed before comes first.
  context_.out.flush();
  if (context_.settings.json) return;
  const std::string_view file = source.file.empty() ? "tesselctl" : source.file;
  print_fault(fault, file, source.line, source.text, *errors_);
  errors_->flush();
}

std::string LocalRunner::ask(std::string_view line) {
  Output answer;
  Context context = {.device = context_.device,
                     .out = answer,
                     .defaults = {.terse = true},
                     .labels = context_.labels,
                     .directory = context_.directory};
  try {
    run_line(context, line);
  } catch (const Fault &) {
    return {};
  }
  return answer.take();
}

LineOutcome LocalRunner::run(const SourceLine &source) {
  try {
    const Ran ran = run_line(context_, source.text);
    changed_ = changed_ || ran == Ran::changed;
    if (ran == Ran::nothing) return LineOutcome::blank;
    return ran == Ran::differs ? LineOutcome::differs : LineOutcome::done;
  } catch (const Fault &fault) {
    // The command may have changed something before it failed.
    changed_ = true;
    report(fault, source);
    return LineOutcome::fault;
  }
}

}  // namespace tesselctl
