// Open sessions. A session carries no state of its own; the handle proves that it is open.
#pragma once

#include "bf_types.h"

namespace soft {

inline constexpr uint32_t kSessionLimit = 1024;

// Costs one load and takes no lock.
bool session_is_open(pipe_session_handle_t session);

}  // namespace soft
