#include "tesselctl/command/local_runner.hpp"

#include "tesselctl/command/script.hpp"
#include "tesselctl/device/device_copy.hpp"
#include "tesselctl/state/save_point.hpp"

namespace tesselctl {

void LocalRunner::begin_trial() {
  if (trial_) return trial_->begin_trial();
  copy_ = copy_of(context_.device);
  trial_ = std::make_unique<LocalRunner>(*copy_, context_.out, *errors_, context_.defaults);
  trial_->context_.labels = context_.labels;
  trial_->context_.directory = context_.directory;
  trial_->context_.journal = context_.journal;
  trial_->context_.is_trial = true;
}

void LocalRunner::end_trial() {
  if (trial_->trial_) return trial_->end_trial();
  trial_.reset();
  copy_.reset();
}

std::string LocalRunner::ask(std::string_view line) {
  if (trial_) return trial_->ask(line);
  Output answer;
  Context context = {.device = context_.device,
                     .out = answer,
                     .defaults = {.terse = true, .paths = context_.defaults.paths},
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
  if (trial_) return trial_->run(source);
  try {
    if (!run_line(context_, source.text)) return LineOutcome::blank;
    return context_.differs ? LineOutcome::differs : LineOutcome::done;
  } catch (const Fault &fault) {
    report_fault(fault, source, context_.results, context_.settings.json, context_.out, *errors_);
    return LineOutcome::fault;
  }
}

LineOutcome LocalRunner::run_whole(const WholeScript &script) {
  if (trial_) return trial_->run_whole(script);
  try {
    return run_all_or_nothing(script);
  } catch (const Fault &fault) {
    const SourceLine source = {script.name, 0, {}};
    report_fault(fault, source, context_.results, script.settings.json, context_.out, *errors_);
    return LineOutcome::fault;
  }
}

LineOutcome LocalRunner::run_all_or_nothing(const WholeScript &script) {
  const SavePoint before(context_.device);
  LocalRunner lines(context_.device, context_.out, *errors_, settings_of_lines(script.settings));
  lines.context_.labels = context_.labels;
  lines.context_.directory = context_.directory;
  lines.context_.is_trial = context_.is_trial;
  ScriptResult result;
  try {
    result = run_script(lines, script.name, script.text, ScriptOptions::of(script.settings));
  } catch (...) {
    before.go_back();
    throw;
  }
  if (result.faults != 0) {
    before.go_back();
  } else {
    context_.labels = std::move(lines.context_.labels);
    context_.changed = std::max(context_.changed, lines.changed());
  }
  if (!script.settings.json) {
    print_summary(context_.out, script.name, result,
                  result.faults != 0  ? "the device is as it was"
                  : context_.is_trial ? kTriedNote
                                      : "");
  }
  return result.outcome();
}

}  // namespace tesselctl
