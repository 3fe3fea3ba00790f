// The rules between rows. Rules within a row are checked where the row is read.
#pragma once

#include <string>
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
void check_joins(const Program &program, Diagnostics &diagnostics);
void check_labels(const Program &program, Diagnostics &diagnostics);
void check_limits(const Program &program, Diagnostics &diagnostics);
void check_names(const Program &program, Diagnostics &diagnostics);

// Whether a resource row of a table goes with one of its pairs.
bool applies_to(const ResourceRow &row, const Pair &pair);

// Whether the join is that of a parameter of the action.
bool writes(const Join &join, const Action &action, const Param &param);

// A name and the row that it is made from.
struct MadeName {
  std::string name;
  std::string origin;  // "table fdb"
  Place place;
  std::string key = "name";
};

// Reports each name that two rows make; `kind` is what it is the name of.
void check_distinct(const std::vector<MadeName> &names, std::string_view kind,
                    Diagnostics &diagnostics);

}  // namespace pdgen
