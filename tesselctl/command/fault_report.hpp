// Faults as users see them.
#pragma once

#include "tesselctl/text/output.hpp"
#include "tesselctl/text/results.hpp"

namespace tesselctl {

// A line of a file, or with an empty file and line 0 one that came from no file.
struct SourceLine {
  std::string_view file;
  uint64_t line = 0;
  std::string_view text;
};

// The fault as one line of text, without its source. line 0 leaves the place out.
std::string fault_text(const Fault &fault, std::string_view file, uint64_t line);
// Prints it with its source line and a mark below the word.
void print_fault(const Fault &fault, const SourceLine &source, Output &errors);

// Ends the answer of a command by its fault: within the JSON, otherwise on errors, behind what the
// command has printed.
void report_fault(const Fault &fault, const SourceLine &source, Results &results, bool json,
                  Output &out, Output &errors);

}  // namespace tesselctl
