#include "stateful/meter.hpp"

#include "soft_sdk.h"
#include "soft_traffic.h"

namespace soft {
namespace {

const EngineSet meters{EngineOrder::kStateful,
                       add_all<Meter, &soft_program_t::meters, &soft_program_t::meter_count>};

}  // namespace

Meter::Meter(const Device &device, const soft_meter_t &description)
    : ObjectOf(description.handle),
      direct_(description.table != 0),
      unit_(description.unit),
      memory_(std::pmr::new_delete_resource()),
      cells_(direct_ ? 0 : device.pipes(), &memory_) {}

bf_status_t Meter::check(uint32_t index) const {
  if (direct_) return BF_NOT_SUPPORTED;
  return index < SOFT_METER_CELLS ? BF_SUCCESS : BF_INVALID_ARGUMENT;
}

bf_status_t Meter::set(bf_pipe_id_t pipe, uint32_t index, const pipe_mgr_meter_spec_t *spec) {
  if (const bf_status_t status = check(index); status != BF_SUCCESS) return status;
  if (spec == nullptr || !fits_meter(*spec, unit_)) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  cells_.in(pipe, [&](Cells &cells) { cells.at(index); });  // all the memory before any change
  cells_.in(pipe, [&](Cells &cells) { cells.at(index) = {*spec, {}, true}; });
  return BF_SUCCESS;
}

bf_status_t Meter::get(bf_pipe_id_t pipe, uint32_t index, pipe_mgr_meter_spec_t *spec) {
  if (const bf_status_t status = check(index); status != BF_SUCCESS) return status;
  if (spec == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  const Cell *cell = nullptr;
  cells_.in(pipe == BF_ALL_PIPES ? 0 : pipe, [&](const Cells &cells) { cell = cells.find(index); });
  const bool is_set = cell != nullptr && cell->set;
  *spec = is_set ? cell->spec
                 : pipe_mgr_meter_spec_t{PIPE_METER_COLOR_UNAWARE, {unit_, 0}, 0, {unit_, 0}, 0};
  return BF_SUCCESS;
}

void Meter::set_adjustment(uint32_t adjustment) {
  const std::lock_guard lock(mutex_);
  adjustment_ = adjustment;
}

uint32_t Meter::adjustment() {
  const std::lock_guard lock(mutex_);
  return adjustment_;
}

uint64_t Meter::cost(uint64_t packets, uint64_t bytes) {
  return meter_cost(unit_, packets, bytes, static_cast<int32_t>(adjustment()));
}

bf_status_t Meter::mark(bf_pipe_id_t pipe, uint32_t index, uint64_t packets, uint64_t bytes,
                        uint8_t *color) {
  if (const bf_status_t status = check(index); status != BF_SUCCESS) return status;
  const uint64_t tokens = cost(packets, bytes);
  const std::lock_guard lock(mutex_);
  *color = SOFT_COLOR_GREEN;
  cells_.in(pipe, [&](Cells &cells) {
    Cell *cell = cells.find(index);
    if (cell == nullptr || !cell->set) return;
    *color = mark_traffic(cell->spec, tokens, soft_clock_now(), &cell->buckets);
  });
  return BF_SUCCESS;
}

bf_status_t Meter::next_cell(uint32_t from, uint32_t *cell) {
  if (direct_) return BF_NOT_SUPPORTED;
  const std::lock_guard lock(mutex_);
  return cells_.next(from, cell, [](const Cell &candidate) { return candidate.set; });
}

uint64_t Meter::memory_bytes() {
  const std::lock_guard lock(mutex_);
  return sizeof(*this) + memory_.bytes();
}

void Meter::copy_from(Object &object) {
  Meter &other = *object.as<Meter>();
  const std::scoped_lock lock(mutex_, other.mutex_);
  cells_.copy_from(other.cells_);
  adjustment_ = other.adjustment_;
}

}  // namespace soft
