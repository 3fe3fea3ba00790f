// The WRED profiles of a device. The program does not describe their tables: a table is there from
// the first cell that the host sets in it.
#pragma once

#include <unordered_map>

#include "device/engine.hpp"
#include "pipe_mgr_types.h"
#include "store/cell_array.hpp"
#include "store/counting_resource.hpp"

namespace soft {

class WredUnit : public Engine<WredUnit> {
 public:
  static constexpr pipe_object_handle_t kHandle = kServiceHandles | 0x77;

  explicit WredUnit(const Device &device);

  // BF_INVALID_HANDLE: not the handle of a WRED table; BF_INVALID_ARGUMENT: no spec, or the index
  // is SOFT_WRED_CELLS or more. BF_ALL_PIPES sets the cells of all pipes.
  bf_status_t set(bf_pipe_id_t pipe, pipe_object_handle_t table, uint32_t index,
                  const pipe_mgr_wred_spec_t *spec);
  // Of one pipe. BF_OBJECT_NOT_FOUND: the cell was never set.
  bf_status_t get(bf_pipe_id_t pipe, pipe_object_handle_t table, uint32_t index,
                  pipe_mgr_wred_spec_t *spec);
  // As soft_next_wred_cell.
  bf_status_t next(bf_pipe_id_t pipe, pipe_object_handle_t *table, uint32_t *index);

  uint64_t held_bytes() const;
  void take_over(WredUnit &other);

 private:
  struct Cell {
    pipe_mgr_wred_spec_t spec;
    bool set;
  };
  using Cells = CellArray<Cell>;

  uint32_t pipes_;
  CountingResource memory_;
  std::pmr::unordered_map<pipe_object_handle_t, PipedCells<Cell>> tables_;
};

}  // namespace soft
