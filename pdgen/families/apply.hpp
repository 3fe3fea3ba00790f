// The families and outputs applied to a program.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pdgen/families/api.hpp"
#include "pdgen/families/families.hpp"

namespace pdgen {

// The whole interface. The families have no fault; without them, those that were compiled in.
Api build_api(const Program &program, const Families &families);
Api build_api(const Program &program);

// What an output makes of the interface: name and text of each file.
std::vector<TextFile> written(const Output &output, const Api &api);
// The text of an output of one file that was compiled in.
std::string written(std::string_view output, const Api &api);

}  // namespace pdgen
