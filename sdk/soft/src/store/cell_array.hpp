// An array of cells without a length: every cell is there from the start as T{}, and takes memory
// from the first time that it is written, together with its neighbours.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory_resource>
#include <utility>
#include <vector>

#include "bf_types.h"

namespace soft {

template <class T>
class CellArray {
 public:
  static constexpr uint32_t kPageCells = 512;

  explicit CellArray(std::pmr::memory_resource *memory) : pages_(memory) {}

  // Null for a cell that has no memory.
  const T *find(uint32_t index) const {
    const uint32_t page = index / kPageCells;
    if (page >= pages_.size() || pages_[page].empty()) return nullptr;
    return &pages_[page][index % kPageCells];
  }
  T *find(uint32_t index) { return const_cast<T *>(std::as_const(*this).find(index)); }

  // A cell that has memory.
  T &operator[](uint32_t index) { return pages_[index / kPageCells][index % kPageCells]; }
  const T &operator[](uint32_t index) const {
    return pages_[index / kPageCells][index % kPageCells];
  }

  // All cells are T{} again and take no memory.
  void reset() { Pages(pages_.get_allocator()).swap(pages_); }

  // Gives the cell memory. May throw std::bad_alloc, and then no cell has changed.
  T &at(uint32_t index) {
    const uint32_t page = index / kPageCells;
    if (page >= pages_.size()) pages_.resize(page + 1);
    if (pages_[page].empty()) pages_[page].resize(kPageCells);
    return pages_[page][index % kPageCells];
  }

  static constexpr uint32_t kNone = 0xffffffff;
  // The first cell at or behind from that test(const T &) holds for, or kNone.
  template <class Test>
  uint32_t next(uint32_t from, Test test) const {
    for (uint32_t page = from / kPageCells; page < pages_.size(); ++page) {
      const auto &cells = pages_[page];
      const uint32_t first = page * kPageCells;
      for (uint32_t at = from > first ? from - first : 0; at < cells.size(); ++at) {
        if (test(cells[at])) return first + at;
      }
    }
    return kNone;
  }

  // Runs visit(T &) on all cells that have memory.
  template <class Visit>
  void each(Visit visit) {
    for (auto &page : pages_) {
      for (T &cell : page) visit(cell);
    }
  }

 private:
  using Pages = std::pmr::vector<std::pmr::vector<T>>;
  Pages pages_;
};

// One array of cells for each pipe of a device.
template <class T>
class PipedCells {
 public:
  PipedCells(uint32_t pipes, std::pmr::memory_resource *memory) : arrays_(memory) {
    arrays_.reserve(pipes);
    for (uint32_t pipe = 0; pipe < pipes; ++pipe) arrays_.emplace_back(memory);
  }

  // The same in any pipe.
  template <class Test>
  bf_status_t next(uint32_t from, uint32_t *cell, Test test) const {
    uint32_t nearest = CellArray<T>::kNone;
    for (const auto &array : arrays_) nearest = std::min(nearest, array.next(from, test));
    if (nearest == CellArray<T>::kNone) return BF_OBJECT_NOT_FOUND;
    *cell = nearest;
    return BF_SUCCESS;
  }

  // Runs visit(CellArray<T> &) on the array of a pipe, or on all for BF_ALL_PIPES.
  template <class Visit>
  void in(bf_pipe_id_t pipe, Visit visit) {
    if (pipe != BF_ALL_PIPES) return visit(arrays_[pipe]);
    for (auto &array : arrays_) visit(array);
  }

  // Takes over the cells of as many pipes. May throw std::bad_alloc, and then some are copied.
  void copy_from(const PipedCells &other) {
    for (size_t pipe = 0; pipe < arrays_.size(); ++pipe) arrays_[pipe] = other.arrays_[pipe];
  }

 private:
  std::pmr::vector<CellArray<T>> arrays_;
};

}  // namespace soft
