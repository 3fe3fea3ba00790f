#include "stateful/wred.hpp"

#include <algorithm>
#include <vector>

#include "soft_traffic.h"

namespace soft {
namespace {

constexpr uint32_t kWredKind = 0x07;

const EngineSet wred_units{EngineOrder::kServices,
                           [](Device &device) { device.add(std::make_unique<WredUnit>(device)); }};

bf_status_t check(pipe_object_handle_t table, uint32_t index, const void *spec) {
  if (table >> 24 != kWredKind || (table & 0xffffff) == 0) return BF_INVALID_HANDLE;
  return index >= SOFT_WRED_CELLS || spec == nullptr ? BF_INVALID_ARGUMENT : BF_SUCCESS;
}

}  // namespace

WredUnit::WredUnit(const Device &device)
    : Engine(kHandle),
      pipes_(device.pipes()),
      memory_(std::pmr::new_delete_resource()),
      tables_(&memory_) {}

bf_status_t WredUnit::set(bf_pipe_id_t pipe, pipe_object_handle_t table, uint32_t index,
                          const pipe_mgr_wred_spec_t *spec) {
  if (const bf_status_t status = check(table, index, spec); status != BF_SUCCESS) return status;
  const std::lock_guard lock(mutex_);
  auto &cells = tables_.try_emplace(table, pipes_, &memory_).first->second;
  cells.in(pipe, [&](Cells &array) { array.at(index); });  // all the memory before any change
  cells.in(pipe, [&](Cells &array) { array.at(index) = {*spec, true}; });
  return BF_SUCCESS;
}

bf_status_t WredUnit::get(bf_pipe_id_t pipe, pipe_object_handle_t table, uint32_t index,
                          pipe_mgr_wred_spec_t *spec) {
  if (const bf_status_t status = check(table, index, spec); status != BF_SUCCESS) return status;
  const std::lock_guard lock(mutex_);
  const auto found = tables_.find(table);
  const Cell *cell = nullptr;
  if (found != tables_.end()) {
    found->second.in(pipe, [&](const Cells &array) { cell = array.find(index); });
  }
  if (cell == nullptr || !cell->set) return BF_OBJECT_NOT_FOUND;
  *spec = cell->spec;
  return BF_SUCCESS;
}

bf_status_t WredUnit::next(bf_pipe_id_t pipe, pipe_object_handle_t *table, uint32_t *index) {
  const std::lock_guard lock(mutex_);
  std::vector<pipe_object_handle_t> handles;
  for (const auto &[handle, cells] : tables_) {
    if (handle >= *table) handles.push_back(handle);
  }
  std::ranges::sort(handles);
  for (const pipe_object_handle_t handle : handles) {
    uint32_t found = Cells::kNone;
    tables_.at(handle).in(pipe, [&](const Cells &cells) {
      found = cells.next(handle == *table ? *index : 0, [](const Cell &cell) { return cell.set; });
    });
    if (found == Cells::kNone) continue;
    *table = handle;
    *index = found;
    return BF_SUCCESS;
  }
  return BF_OBJECT_NOT_FOUND;
}

uint64_t WredUnit::held_bytes() const { return memory_.bytes(); }

void WredUnit::take_over(WredUnit &other) {
  tables_.clear();
  for (const auto &[table, cells] : other.tables_) {
    tables_.try_emplace(table, pipes_, &memory_).first->second.copy_from(cells);
  }
}

}  // namespace soft
