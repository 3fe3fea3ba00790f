#pragma once

#include "tesselctl/command/command.hpp"

namespace tesselctl {

// Prints the digest messages that were delivered since it was called last.
void print_messages(Context &context);

}  // namespace tesselctl
