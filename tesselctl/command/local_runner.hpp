// Runs command lines on a device of this process.
#pragma once

#include "tesselctl/command/run_line.hpp"
#include "tesselctl/command/runner.hpp"

namespace tesselctl {

class LocalRunner : public Runner {
 public:
  LocalRunner(Device &device, Output &out, Output &errors, const Settings &defaults)
      : errors_(&errors), context_{.device = device, .out = out, .defaults = defaults} {}

  LineOutcome run(const SourceLine &source) override;
  LineOutcome run_whole(const WholeScript &script) override;
  std::string ask(std::string_view line) override;
  Settings &defaults() override { return context_.defaults; }
  Context &context() { return context_; }
  // Since the runner was made.
  Changed changed() const { return context_.changed; }

 private:
  LineOutcome try_whole(const WholeScript &script);
  LineOutcome run_all_or_nothing(const WholeScript &script);

  Output *errors_;
  Context context_;
};

}  // namespace tesselctl
