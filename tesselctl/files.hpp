// Whole files as text; read plain or compressed with xz, written in one step.
#pragma once

#include <string>

namespace tesselctl {

// The contents of the file, or of standard input for "-". A file that begins as xz files do is
// decompressed by the xz program. Throws Fault when it cannot be read.
std::string read_input(const std::string &path);

// Replaces the file by one of that contents: writes a temporary file beside it, brings it to the
// disk and renames it. Throws Fault; the file is as it was then.
void write_file(const std::string &path, const std::string &text);

}  // namespace tesselctl
