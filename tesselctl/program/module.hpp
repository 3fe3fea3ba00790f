// Programs as modules: shared objects that hold the binding of one P4 program each and bring its
// library along. They stand in one folder, found from where the tool stands.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "bindings/export_table.hpp"
#include "tesselctl/text/fault.hpp"

namespace tesselctl {

std::filesystem::path module_folder();

// Of the modules that are installed, in order.
std::vector<std::string> program_names();

// Why the dlopen before failed.
std::string load_error();

// The binding of a module, which stays loaded. Throws Fault.
const bindings::Binding &open_module(const std::filesystem::path &path);

struct ProgramChoice {
  Word name = {};          // of a program, or of a file ending in .so; empty when nobody names one
  std::string image = {};  // whose first line names a program; a file that need not be there
};

// Makes a program the one that the process works on: the one that is named, or the image's, or the
// one that the tool was configured for, or the only one there is. Does nothing when there is one
// already. Throws Fault.
void load_program(const ProgramChoice &choice);

}  // namespace tesselctl
