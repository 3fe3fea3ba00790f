// One copy of the cells of a register in one pipe.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace soft {

// An array of unsigned cells without a length: every cell is there from the start, holds zero, and
// takes no memory until it differs from its neighbours. Cells lie in pages; a page whose cells are
// all alike is one number, and so are all pages that nobody wrote to.
class CellPlane {
 public:
  static constexpr uint32_t kPageCells = 1024;

  // A cell keeps the low 8 * cell_bytes bits of what is stored; cell_bytes is 1, 2 or 4.
  explicit CellPlane(uint8_t cell_bytes) : cell_bytes_(cell_bytes) {}

  uint32_t get(uint32_t index) const;

  // Takes the memory that storing into these cells may need, so that it cannot fail. May throw
  // std::bad_alloc, and then no cell has changed.
  void reserve(uint32_t first, uint32_t count);

  // Only after reserve() for these cells.
  void set(uint32_t index, uint32_t value);
  void fill(uint32_t first, uint32_t count, uint32_t value);

  // Every cell there is; needs no reserve and gives all memory back.
  void fill_all(uint32_t value);

  // Takes over every cell of another plane with the same cell_bytes. May throw std::bad_alloc, and
  // then no cell has changed.
  void copy(const CellPlane &other);

  // The first cell at or behind from and before end that holds another value, or end.
  uint32_t next_other(uint32_t from, uint32_t end, uint32_t value) const;

  size_t memory_bytes() const;

 private:
  struct Page {
    uint32_t alike;                    // what every cell holds while there are no cells
    std::unique_ptr<uint8_t[]> cells;  // kPageCells * cell_bytes_ bytes, or null
  };

  void spread(Page &page) const;
  void store(Page &page, uint32_t at, uint32_t value) const;
  uint32_t load(const Page &page, uint32_t at) const;

  uint8_t cell_bytes_;
  uint32_t elsewhere_ = 0;  // what every cell behind the last page holds
  std::vector<Page> pages_;
};

}  // namespace soft
