// What the tool does with lines itself, for the one who typed them: it repeats commands (watch) and
// runs scripts (run). All other lines go to another runner, as does every round and every line of a
// script, so that a server is free between two of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tesselctl/command/runner.hpp"

namespace tesselctl {

class ToolRunner : public Runner {
 public:
  // The outputs are those that runner answers and reports to. terminal: the window that out is, -1
  // for none.
  ToolRunner(Runner &runner, Output &out, Output &errors, int terminal)
      : runner_(&runner), out_(&out), errors_(&errors), terminal_(terminal) {}

  // What watch does before each round but the first; may throw Fault.
  void before_each(std::function<void()> prepare) { prepare_ = std::move(prepare); }
  LineOutcome run(const SourceLine &source) override;
  LineOutcome run_whole(const WholeScript &script) override { return runner_->run_whole(script); }
  std::string ask(std::string_view line) override { return runner_->ask(line); }
  Settings &defaults() override { return runner_->defaults(); }

 private:
  LineOutcome run_file(Word file, const Settings &settings);

  Runner *runner_;
  Output *out_;
  Output *errors_;
  int terminal_;
  std::function<void()> prepare_ = {};
  std::vector<std::string> running_ = {};  // scripts that run one another, by path
};

}  // namespace tesselctl
