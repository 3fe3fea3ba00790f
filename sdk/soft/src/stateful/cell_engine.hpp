// What counters and meters have in common: in each pipe the cells of an indirect one. A direct one
// has none, its cells belong to the entries of its table; calls that name a cell of it are
// BF_NOT_SUPPORTED.
#pragma once

#include "device/engine.hpp"
#include "store/cell_array.hpp"
#include "store/counting_resource.hpp"

namespace soft {

// T says which cells soft_next_cell finds: static bool is_set(const Cell &).
template <class T, class Cell, uint32_t limit>
class CellEngine : public Engine<T> {
 public:
  template <class Description>
  CellEngine(const Device &device, const Description &description)
      : Engine<T>(description.handle),
        direct_(description.table != 0),
        memory_(std::pmr::new_delete_resource()),
        cells_(direct_ ? 0 : device.pipes(), &memory_) {}

  bf_status_t next_cell(uint32_t from, uint32_t *cell) override {
    if (direct_) return BF_NOT_SUPPORTED;
    const std::lock_guard lock(this->mutex_);
    return cells_.next(from, cell, T::is_set);
  }
  uint64_t held_bytes() const { return memory_.bytes(); }
  void take_over(CellEngine &other) { cells_.copy_from(other.cells_); }

 protected:
  using Cells = CellArray<Cell>;

  bf_status_t check(uint32_t index) const {
    if (direct_) return BF_NOT_SUPPORTED;
    return index < limit ? BF_SUCCESS : BF_INVALID_ARGUMENT;
  }

  bool direct_;
  CountingResource memory_;
  PipedCells<Cell> cells_;
};

}  // namespace soft
