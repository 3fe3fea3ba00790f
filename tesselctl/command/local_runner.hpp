// Runs command lines on a device of this process.
#pragma once

#include <memory>

#include "tesselctl/command/run_line.hpp"
#include "tesselctl/command/runner.hpp"

namespace tesselctl {

class LocalRunner : public Runner {
 public:
  LocalRunner(Device &device, Output &out, Output &errors, const Settings &defaults)
      : errors_(&errors), context_{.device = device, .out = out, .defaults = defaults} {}

  LineOutcome run(const SourceLine &source) override;
  LineOutcome run_whole(const WholeScript &script) override;
  void begin_trial() override;
  void end_trial() override;
  std::string ask(std::string_view line) override;
  Settings &defaults() override { return context().defaults; }
  // Of the innermost trial, if there is one.
  Context &context() { return trial_ ? trial_->context() : context_; }
  // Since the runner was made, without trials.
  Changed changed() const { return context_.changed; }

 private:
  LineOutcome run_all_or_nothing(const WholeScript &script);

  Output *errors_;
  Context context_;
  std::unique_ptr<Device> copy_ = {};  // what a trial works on
  std::unique_ptr<LocalRunner> trial_ = {};
};

}  // namespace tesselctl
