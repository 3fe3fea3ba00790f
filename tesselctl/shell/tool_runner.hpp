// What the tool does with lines itself, for the one who typed them: it repeats commands (watch),
// runs scripts (run), and has long answers paged. All other lines go to another runner, as does
// every round and every line of a script, so that a server is free between two of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tesselctl/command/runner.hpp"
#include "tesselctl/command/script.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

struct RunningScript {
  std::string path;
  bool goes_on;  // behind a fault
};

class ToolRunner : public Runner {
 public:
  // The outputs are those that runner answers and reports to. terminal: the window that out is, -1
  // for none. device_stays: what is done is still there for a line that the user types next.
  ToolRunner(Runner &runner, Output &out, Output &errors, int terminal, bool device_stays)
      : runner_(&runner),
        out_(&out),
        errors_(&errors),
        terminal_(terminal),
        device_stays_(device_stays) {}

  // Long answers go through that pager; without one, through none.
  void page_answers(std::string pager) { pager_ = std::move(pager); }
  // What watch does before each round but the first; may throw Fault.
  void before_each(std::function<void()> prepare) { prepare_ = std::move(prepare); }
  LineOutcome run(const SourceLine &source) override;
  LineOutcome run_whole(const WholeScript &script) override { return runner_->run_whole(script); }
  void begin_trial() override { runner_->begin_trial(); }
  void end_trial() override { runner_->end_trial(); }
  std::string ask(std::string_view line) override { return runner_->ask(line); }
  Settings &defaults() override { return runner_->defaults(); }

 private:
  LineOutcome run_monitor(const SourceLine &source);
  bool is_paged(Words words) const;
  LineOutcome run_paged(const SourceLine &source);
  LineOutcome run_file(Word file, const Settings &settings);
  // Behind the summary: where a script that ended in its middle goes on, if the device is still
  // there.
  std::string note(Word file, const ScriptResult &result);

  Runner *runner_;
  Output *out_;
  Output *errors_;
  int terminal_;
  std::string pager_ = {};
  std::function<void()> prepare_ = {};
  bool device_stays_;
  std::vector<RunningScript> running_ = {};  // scripts that run one another
  size_t trials_ = 0;                        // that run within one another
  bool hint_is_given_ = false;               // since the last script began
};

}  // namespace tesselctl
