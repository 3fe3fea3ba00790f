// A register of a device: in every pipe an instance of each cell, in hardware and in a software
// copy. A write of the control plane goes into both; a write of the data plane into the hardware
// alone, and the software copy follows when the cell is read from the hardware or the register is
// synchronised.
//
// Cells are numbered from 0 to SOFT_REGISTER_CELLS - 1. A cell keeps the low bits of what is
// written, as many as it is wide; cells of at most 8 bits travel in the first byte of a cell
// record, wider ones in its word.
#pragma once

#include <vector>

#include "device/engine.hpp"
#include "pipe_mgr_types.h"
#include "store/cell_plane.hpp"

namespace soft {

// A member function with the arguments of a contract function does what that function says. Pipes
// are checked by the caller.
class RegisterEngine : public Engine<RegisterEngine> {
 public:
  RegisterEngine(const Device &device, const soft_register_t &description);

  uint32_t instances() const { return static_cast<uint32_t>(instances_.size()); }

  // BF_INVALID_ARGUMENT: the index is out of range, or a query has no room for one instance of each
  // pipe that is asked for. Nothing is filled then.
  bf_status_t query(bf_pipe_id_t pipe, uint32_t index, pipe_stful_query_t *query, bool hardware);
  bf_status_t query_range(bf_pipe_id_t pipe, uint32_t first, std::span<pipe_stful_query_t> queries,
                          uint32_t *filled, bool hardware);

  // A null cell is zero. BF_INVALID_ARGUMENT: a cell out of range; no cell is written then.
  bf_status_t reset(bf_pipe_id_t pipe, const pipe_stful_cell_t *cell);
  bf_status_t reset_range(bf_pipe_id_t pipe, uint32_t first, uint32_t count,
                          const pipe_stful_cell_t *cell);
  void sync(bf_pipe_id_t pipe);

  // A write of the data plane.
  bf_status_t write_hardware(bf_pipe_id_t pipe, uint32_t index, uint32_t value);

  bf_status_t next_cell(uint32_t from, uint32_t *cell) override;
  uint64_t held_bytes() const;
  void take_over(RegisterEngine &other);

 private:
  struct Instance {
    CellPlane hardware;
    CellPlane software;
  };

  std::span<Instance> chosen(bf_pipe_id_t pipe);
  template <class Visit>
  void each_plane(bf_pipe_id_t pipe, Visit visit);
  bool has_room(const pipe_stful_query_t &query, bf_pipe_id_t pipe);
  void refresh(bf_pipe_id_t pipe, uint32_t index);
  void fill(bf_pipe_id_t pipe, uint32_t index, pipe_stful_query_t *query, bool hardware);
  uint32_t value_of(const pipe_stful_cell_t *cell) const;
  pipe_stful_cell_t cell_of(uint32_t value) const;

  uint16_t width_;
  uint32_t mask_;
  std::vector<Instance> instances_;  // one of each pipe
};

}  // namespace soft
