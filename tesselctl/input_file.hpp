// Whole files as text, plain or compressed with xz.
#pragma once

#include <string>

namespace tesselctl {

// The contents of the file, or of standard input for "-". A file that begins as xz files do is
// decompressed by the xz program. Throws Fault when it cannot be read.
std::string read_input(const std::string &path);

}  // namespace tesselctl
