// One cell of a counter.
#pragma once

#include "pipe_mgr_types.h"

namespace soft {

// What the device has counted since the last synchronisation,
// and the software copy that queries read.
struct EntryCounters {
  pipe_mgr_counter_t hardware;
  pipe_mgr_counter_t software;
};

inline void synchronise(EntryCounters &cell) {
  cell.software.packets += cell.hardware.packets;
  cell.software.bytes += cell.hardware.bytes;
  cell.hardware = {};
}

}  // namespace soft
