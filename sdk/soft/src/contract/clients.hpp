// The driver framework's side of device life.
#pragma once

#include "bf_types.h"

namespace soft {

// Runs the device_remove callbacks of all clients in ascending order of priority.
void notify_clients_of_removal(bf_device_id_t device);

}  // namespace soft
