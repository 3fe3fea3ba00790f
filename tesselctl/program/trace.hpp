// The C calls behind commands, ready to be pasted into a program.
#pragma once

#include "bindings/export_table.hpp"
#include "tesselctl/text/results.hpp"

namespace tesselctl {

// While it lives, calls of this thread are printed to the results; null prints none.
class TraceScope {
 public:
  explicit TraceScope(Results *results);
  ~TraceScope();
  TraceScope(const TraceScope &) = delete;
  TraceScope &operator=(const TraceScope &) = delete;

 private:
  Results *before_;
};

// Prints a call that was made with these words and gave this result.
void trace_call(const bindings::Export &target, const uint64_t *words, uint64_t result);

}  // namespace tesselctl
