#include "stateful/meter.hpp"

#include "soft_sdk.h"

namespace soft {
namespace {

const EngineSet meters{EngineOrder::kStateful,
                       add_all<Meter, &soft_program_t::meters, &soft_program_t::meter_count>};

}  // namespace

Meter::Meter(const Device &device, const soft_meter_t &description)
    : CellEngine(device, description), unit_(description.unit) {}

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
  const MeterCell *cell = nullptr;
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
    MeterCell *cell = cells.find(index);
    if (cell == nullptr || !cell->set) return;
    *color = mark_traffic(cell->spec, tokens, now_ms(), &cell->buckets);
  });
  return BF_SUCCESS;
}

void Meter::take_over(Meter &other) {
  CellEngine::take_over(other);
  adjustment_ = other.adjustment_;
}

}  // namespace soft
