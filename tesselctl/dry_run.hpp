// Commands tried on a copy of the device.
#pragma once

#include "tesselctl/command.hpp"

namespace tesselctl {

// Runs the command on a copy of the device, which is gone afterwards. It answers and fails as it
// would on the device itself.
void run_on_copy(Context &context, const Command &command, const Invocation &invocation);

}  // namespace tesselctl
