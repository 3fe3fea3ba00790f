// A counter of the program. The cells of an indirect one are here; those of a direct one belong to
// the entries of its table, and the counter itself takes no calls (BF_NOT_SUPPORTED).
//
// Every cell counts twice: in hardware, where traffic counts, and in the software copy, which
// queries read. A synchronisation moves what the hardware has counted into the copy. Setting a cell
// sets the copy and clears the hardware.
//
// Each pipe has cells of its own. BF_ALL_PIPES reads their sum; it sets the cell of pipe 0 and
// clears the others, so that the sum is what was set.
#pragma once

#include "soft_traffic.h"
#include "stateful/cell_engine.hpp"
#include "stateful/counter_cell.hpp"

namespace soft {

// BF_INVALID_ARGUMENT: the index is SOFT_COUNTER_CELLS or more. Pipes are checked by the caller.
class Counter : public CellEngine<Counter, EntryCounters, SOFT_COUNTER_CELLS> {
 public:
  using CellEngine::CellEngine;

  bf_status_t query(bf_pipe_id_t pipe, uint32_t index, pipe_mgr_counter_t *value);
  bf_status_t set(bf_pipe_id_t pipe, uint32_t index, const pipe_mgr_counter_t *value);
  bf_status_t sync(bf_pipe_id_t pipe, uint32_t index);
  bf_status_t sync_all(bf_pipe_id_t pipe);

  // Traffic, in one pipe.
  bf_status_t count(bf_pipe_id_t pipe, uint32_t index, uint64_t packets, uint64_t bytes);

  static bool is_set(const EntryCounters &cell) {
    return (cell.hardware.packets | cell.hardware.bytes | cell.software.packets |
            cell.software.bytes) != 0;
  }
};

}  // namespace soft
