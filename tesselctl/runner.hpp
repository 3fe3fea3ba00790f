// What runs command lines: a device of this process, or a server.
#pragma once

#include <string>
#include <string_view>

#include "tesselctl/command.hpp"

namespace tesselctl {

// A line of a file, or with an empty file and line 0 one that came from no file.
struct SourceLine {
  std::string_view file;
  uint64_t line = 0;
  std::string_view text;
};

// differs: done, and what was compared is not equal.
enum class LineOutcome { blank, done, fault, differs };

class Runner {
 public:
  virtual ~Runner() = default;
  // Runs a line, prints what it answers, and tells of its fault:
  //   FILE:LINE:COLUMN: 'TOKEN': what is wrong; did you mean 'SUGGESTION'?
  // with the line and a mark below it; in JSON within the answer. Throws Fault when the line cannot
  // be run at all: the output or the server is gone.
  virtual LineOutcome run(const SourceLine &source) = 0;
  // What a line answers, for the tool itself; nothing after a fault.
  virtual std::string ask(std::string_view line) = 0;
};

class LocalRunner : public Runner {
 public:
  LocalRunner(Device &device, Output &out, Output &errors, const Settings &defaults)
      : errors_(&errors), context_{.device = device, .out = out, .defaults = defaults} {}

  LineOutcome run(const SourceLine &source) override;
  std::string ask(std::string_view line) override;
  Context &context() { return context_; }
  // Whether a command changed the device since the runner was made.
  bool has_changed() const { return changed_; }

 private:
  void report(const Fault &fault, const SourceLine &source);

  Output *errors_;
  Context context_;
  bool changed_ = false;
};

}  // namespace tesselctl
