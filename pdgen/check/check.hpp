// The rules between rows. Rules within a row are checked where the row is read.
#pragma once

#include <string_view>
#include <vector>

#include "pdgen/check/diagnostics.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

// Reports every rule that the program breaks. References without a target have been reported and
// are passed over.
void check_program(const Program &program, Diagnostics &diagnostics);

// Parts of check_program.
void check_resources(const Program &program, Diagnostics &diagnostics);
void check_labels(const Program &program, Diagnostics &diagnostics);
void check_limits(const Program &program, Diagnostics &diagnostics);
void check_names(const Program &program, Diagnostics &diagnostics);

// Whether a resource row of a table goes with one of its pairs.
bool applies_to(const ResourceRow &row, const Pair &pair);

// A function that the emitters derived, and the object it is made for (empty: the program).
struct ExportedFunction {
  std::string_view name;
  std::string_view object;
};

// Reports each C name that is made twice, among the functions and the declared names.
void check_exports(const Program &program, const std::vector<ExportedFunction> &functions,
                   Diagnostics &diagnostics);

}  // namespace pdgen
