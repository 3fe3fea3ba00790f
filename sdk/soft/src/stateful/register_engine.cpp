#include "stateful/register_engine.hpp"

#include <algorithm>

#include "soft_state.h"

namespace soft {
namespace {

uint8_t bytes_of_width(uint16_t width) {
  if (width <= 8) return 1;
  return width <= 16 ? 2 : 4;
}

bool in_range(uint32_t first, uint32_t count) {
  return first <= SOFT_REGISTER_CELLS && count <= SOFT_REGISTER_CELLS - first;
}

const EngineSet registers{
    EngineOrder::kStateful,
    add_all<RegisterEngine, &soft_program_t::registers, &soft_program_t::register_count>};

}  // namespace

RegisterEngine::RegisterEngine(const Device &device, const soft_register_t &description)
    : Engine(description.handle),
      width_(description.width),
      mask_(width_ >= 32 ? 0xffffffffu : (1u << width_) - 1) {
  for (uint32_t pipe = 0; pipe < device.pipes(); ++pipe) {
    const uint8_t bytes = bytes_of_width(width_);
    instances_.push_back({CellPlane(bytes), CellPlane(bytes)});
  }
}

std::span<RegisterEngine::Instance> RegisterEngine::chosen(bf_pipe_id_t pipe) {
  const std::span<Instance> all(instances_);
  return pipe == BF_ALL_PIPES ? all : all.subspan(pipe, 1);
}

template <class Visit>
void RegisterEngine::each_plane(bf_pipe_id_t pipe, Visit visit) {
  for (Instance &instance : chosen(pipe)) {
    visit(instance.hardware);
    visit(instance.software);
  }
}

bool RegisterEngine::has_room(const pipe_stful_query_t &query, bf_pipe_id_t pipe) {
  return query.cells != nullptr && query.count >= chosen(pipe).size();
}

uint32_t RegisterEngine::value_of(const pipe_stful_cell_t *cell) const {
  if (cell == nullptr) return 0;
  return (width_ <= 8 ? cell->bit : cell->word) & mask_;
}

pipe_stful_cell_t RegisterEngine::cell_of(uint32_t value) const {
  pipe_stful_cell_t cell{};
  if (width_ <= 8) {
    cell.bit = static_cast<uint8_t>(value);
  } else {
    cell.word = value;
  }
  return cell;
}

// Brings the software copy of one cell up to date.
void RegisterEngine::refresh(bf_pipe_id_t pipe, uint32_t index) {
  for (Instance &instance : chosen(pipe)) {
    const uint32_t value = instance.hardware.get(index);
    if (value == instance.software.get(index)) continue;
    instance.software.reserve(index, 1);
    instance.software.set(index, value);
  }
}

void RegisterEngine::fill(bf_pipe_id_t pipe, uint32_t index, pipe_stful_query_t *query,
                          bool hardware) {
  if (hardware) refresh(pipe, index);
  query->count = 0;
  for (const Instance &instance : chosen(pipe)) {
    query->cells[query->count++] = cell_of(instance.software.get(index));
  }
}

bf_status_t RegisterEngine::query(bf_pipe_id_t pipe, uint32_t index, pipe_stful_query_t *query,
                                  bool hardware) {
  if (!in_range(index, 1) || !has_room(*query, pipe)) {
    return BF_INVALID_ARGUMENT;
  }
  const std::lock_guard lock(mutex_);
  fill(pipe, index, query, hardware);
  return BF_SUCCESS;
}

bf_status_t RegisterEngine::query_range(bf_pipe_id_t pipe, uint32_t first,
                                        std::span<pipe_stful_query_t> queries, uint32_t *filled,
                                        bool hardware) {
  if (first >= SOFT_REGISTER_CELLS) return BF_INVALID_ARGUMENT;
  const auto read = queries.first(std::min<size_t>(queries.size(), SOFT_REGISTER_CELLS - first));
  if (!std::ranges::all_of(read, [&](const auto &query) { return has_room(query, pipe); })) {
    return BF_INVALID_ARGUMENT;
  }
  const std::lock_guard lock(mutex_);
  uint32_t index = first;
  if (hardware) {
    // Beforehand, because it may run out of memory.
    for (uint32_t i = 0; i < read.size(); ++i) refresh(pipe, first + i);
  }
  for (pipe_stful_query_t &query : read) fill(pipe, index++, &query, false);
  for (pipe_stful_query_t &query : queries.subspan(read.size())) query.count = 0;
  *filled = static_cast<uint32_t>(read.size());
  return BF_SUCCESS;
}

bf_status_t RegisterEngine::reset(bf_pipe_id_t pipe, const pipe_stful_cell_t *cell) {
  const std::lock_guard lock(mutex_);
  each_plane(pipe, [&](CellPlane &plane) { plane.fill_all(value_of(cell)); });
  return BF_SUCCESS;
}

bf_status_t RegisterEngine::reset_range(bf_pipe_id_t pipe, uint32_t first, uint32_t count,
                                        const pipe_stful_cell_t *cell) {
  if (!in_range(first, count)) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  each_plane(pipe, [&](CellPlane &plane) { plane.reserve(first, count); });
  each_plane(pipe, [&](CellPlane &plane) { plane.fill(first, count, value_of(cell)); });
  return BF_SUCCESS;
}

void RegisterEngine::sync(bf_pipe_id_t pipe) {
  const std::lock_guard lock(mutex_);
  for (Instance &instance : chosen(pipe)) instance.software.copy(instance.hardware);
}

bf_status_t RegisterEngine::write_hardware(bf_pipe_id_t pipe, uint32_t index, uint32_t value) {
  if (!in_range(index, 1)) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  for (Instance &instance : chosen(pipe)) instance.hardware.reserve(index, 1);
  for (Instance &instance : chosen(pipe)) instance.hardware.set(index, value & mask_);
  return BF_SUCCESS;
}

bf_status_t RegisterEngine::next_cell(uint32_t from, uint32_t *cell) {
  const std::lock_guard lock(mutex_);
  const bool is_usual = std::ranges::all_of(instances_, [](const Instance &instance) {
    return instance.hardware.get(SOFT_REGISTER_USUAL) ==
           instance.hardware.get(2 * SOFT_REGISTER_USUAL);
  });
  const uint32_t usual = is_usual ? SOFT_REGISTER_USUAL : SOFT_REGISTER_CELLS - 1;
  uint32_t nearest = SOFT_REGISTER_CELLS;
  for (const Instance &instance : instances_) {
    const CellPlane &plane = instance.hardware;
    nearest = std::min(nearest, plane.next_other(from, SOFT_REGISTER_CELLS, plane.get(usual)));
  }
  if (nearest == SOFT_REGISTER_CELLS) return BF_OBJECT_NOT_FOUND;
  *cell = nearest;
  return BF_SUCCESS;
}

uint64_t RegisterEngine::held_bytes() const {
  uint64_t bytes = instances_.capacity() * sizeof(Instance);
  for (const Instance &instance : instances_) {
    bytes += instance.hardware.memory_bytes() + instance.software.memory_bytes();
  }
  return bytes;
}

void RegisterEngine::take_over(RegisterEngine &other) {
  for (size_t pipe = 0; pipe < instances_.size(); ++pipe) {
    instances_[pipe].hardware.copy(other.instances_[pipe].hardware);
    instances_[pipe].software.copy(other.instances_[pipe].software);
  }
}

}  // namespace soft
