#include "stateful/counter.hpp"

namespace soft {
namespace {

const EngineSet counters{
    EngineOrder::kStateful,
    add_all<Counter, &soft_program_t::counters, &soft_program_t::counter_count>};

}  // namespace

bf_status_t Counter::query(bf_pipe_id_t pipe, uint32_t index, pipe_mgr_counter_t *value) {
  if (const bf_status_t status = check(index); status != BF_SUCCESS) return status;
  if (value == nullptr) return BF_INVALID_ARGUMENT;
  pipe_mgr_counter_t sum{};
  const std::lock_guard lock(mutex_);
  cells_.in(pipe, [&](const Cells &cells) {
    const EntryCounters *cell = cells.find(index);
    if (cell == nullptr) return;
    sum.packets += cell->software.packets;
    sum.bytes += cell->software.bytes;
  });
  *value = sum;
  return BF_SUCCESS;
}

bf_status_t Counter::set(bf_pipe_id_t pipe, uint32_t index, const pipe_mgr_counter_t *value) {
  if (const bf_status_t status = check(index); status != BF_SUCCESS) return status;
  if (value == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  // The one cell that may need memory comes first; in other pipes a cell without it is zero.
  cells_.in(pipe == BF_ALL_PIPES ? 0 : pipe, [&](Cells &cells) { cells.at(index); });
  pipe_mgr_counter_t rest = *value;
  cells_.in(pipe, [&](Cells &cells) {
    EntryCounters *cell = cells.find(index);
    if (cell == nullptr) return;
    *cell = {{}, rest};
    rest = {};
  });
  return BF_SUCCESS;
}

bf_status_t Counter::sync(bf_pipe_id_t pipe, uint32_t index) {
  if (const bf_status_t status = check(index); status != BF_SUCCESS) return status;
  const std::lock_guard lock(mutex_);
  cells_.in(pipe, [&](Cells &cells) {
    if (EntryCounters *cell = cells.find(index)) synchronise(*cell);
  });
  return BF_SUCCESS;
}

bf_status_t Counter::sync_all(bf_pipe_id_t pipe) {
  if (direct_) return BF_NOT_SUPPORTED;
  const std::lock_guard lock(mutex_);
  cells_.in(pipe, [](Cells &cells) { cells.each(synchronise); });
  return BF_SUCCESS;
}

bf_status_t Counter::count(bf_pipe_id_t pipe, uint32_t index, uint64_t packets, uint64_t bytes) {
  if (const bf_status_t status = check(index); status != BF_SUCCESS) return status;
  const std::lock_guard lock(mutex_);
  cells_.in(pipe, [&](Cells &cells) {
    pipe_mgr_counter_t &counted = cells.at(index).hardware;
    counted.packets += packets;
    counted.bytes += bytes;
  });
  return BF_SUCCESS;
}

}  // namespace soft
