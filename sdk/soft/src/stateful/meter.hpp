// A meter of the program: its byte-count adjustment, and the cells of an indirect one. The rates of
// a direct meter belong to the entries of its table; calls that name a cell of it are
// BF_NOT_SUPPORTED.
//
// Each pipe has cells of its own. BF_ALL_PIPES sets them all and reads the one of pipe 0. A cell
// that was never set reads as a colour-unaware spec of zeros and marks all traffic green.
#pragma once

#include "soft_traffic.h"
#include "stateful/cell_engine.hpp"
#include "stateful/meter_buckets.hpp"

namespace soft {

struct MeterCell {
  pipe_mgr_meter_spec_t spec;
  MeterBuckets buckets;
  bool set;
};

// BF_INVALID_ARGUMENT: the index is SOFT_METER_CELLS or more, or the rates do not fit the meter.
// Pipes are checked by the caller.
class Meter : public CellEngine<Meter, MeterCell, SOFT_METER_CELLS> {
 public:
  Meter(const Device &device, const soft_meter_t &description);

  bf_status_t set(bf_pipe_id_t pipe, uint32_t index, const pipe_mgr_meter_spec_t *spec);
  bf_status_t get(bf_pipe_id_t pipe, uint32_t index, pipe_mgr_meter_spec_t *spec);

  // Of the whole meter, a signed number.
  void set_adjustment(uint32_t adjustment);
  uint32_t adjustment();

  // Tokens that traffic costs in this meter; also of a direct one.
  uint64_t cost(uint64_t packets, uint64_t bytes);

  // Traffic, in one pipe. One of SOFT_COLOR_*.
  bf_status_t mark(bf_pipe_id_t pipe, uint32_t index, uint64_t packets, uint64_t bytes,
                   uint8_t *color);

  static bool is_set(const MeterCell &cell) { return cell.set; }
  void take_over(Meter &other);

 private:
  uint32_t unit_;
  uint32_t adjustment_ = 0;
};

}  // namespace soft
