#include "store/cell_plane.hpp"

#include <algorithm>
#include <cstring>

namespace soft {

uint32_t CellPlane::load(const Page &page, uint32_t at) const {
  if (page.cells == nullptr) return page.alike;
  const uint8_t *cell = page.cells.get() + size_t{at} * cell_bytes_;
  if (cell_bytes_ == 1) return *cell;
  if (cell_bytes_ == 2) {
    uint16_t value = 0;
    std::memcpy(&value, cell, sizeof(value));
    return value;
  }
  uint32_t value = 0;
  std::memcpy(&value, cell, sizeof(value));
  return value;
}

void CellPlane::store(Page &page, uint32_t at, uint32_t value) const {
  uint8_t *cell = page.cells.get() + size_t{at} * cell_bytes_;
  if (cell_bytes_ == 1) {
    *cell = static_cast<uint8_t>(value);
  } else if (cell_bytes_ == 2) {
    const auto half = static_cast<uint16_t>(value);
    std::memcpy(cell, &half, sizeof(half));
  } else {
    std::memcpy(cell, &value, sizeof(value));
  }
}

// Gives a page cells of its own.
void CellPlane::spread(Page &page) const {
  if (page.cells != nullptr) return;
  page.cells.reset(new uint8_t[size_t{kPageCells} * cell_bytes_]);
  for (uint32_t at = 0; at < kPageCells; ++at) store(page, at, page.alike);
}

uint32_t CellPlane::get(uint32_t index) const {
  const size_t page = index / kPageCells;
  return page < pages_.size() ? load(pages_[page], index % kPageCells) : elsewhere_;
}

void CellPlane::reserve(uint32_t first, uint32_t count) {
  if (count == 0) return;
  const uint32_t last = first + (count - 1);
  const size_t had = pages_.size();
  pages_.resize(std::max<size_t>(had, last / kPageCells + 1));
  for (size_t page = had; page < pages_.size(); ++page) pages_[page].alike = elsewhere_;
  // Pages that are stored into as a whole stay one number.
  if (first % kPageCells != 0 || last - first < kPageCells - 1) spread(pages_[first / kPageCells]);
  if (last % kPageCells != kPageCells - 1) spread(pages_[last / kPageCells]);
}

void CellPlane::set(uint32_t index, uint32_t value) {
  store(pages_[index / kPageCells], index % kPageCells, value);
}

void CellPlane::fill(uint32_t first, uint32_t count, uint32_t value) {
  while (count != 0) {
    Page &page = pages_[first / kPageCells];
    const uint32_t at = first % kPageCells;
    const uint32_t here = std::min(count, kPageCells - at);
    if (here == kPageCells) {
      page.cells.reset();
      page.alike = value;
    } else {
      for (uint32_t i = 0; i < here; ++i) store(page, at + i, value);
    }
    first += here;
    count -= here;
  }
}

void CellPlane::fill_all(uint32_t value) {
  std::vector<Page>().swap(pages_);
  elsewhere_ = value;
}

void CellPlane::copy(const CellPlane &other) {
  std::vector<Page> pages;
  pages.reserve(other.pages_.size());
  const size_t bytes = size_t{kPageCells} * cell_bytes_;
  for (const Page &page : other.pages_) {
    pages.push_back({page.alike, nullptr});
    if (page.cells == nullptr) continue;
    pages.back().cells.reset(new uint8_t[bytes]);
    std::memcpy(pages.back().cells.get(), page.cells.get(), bytes);
  }
  pages_ = std::move(pages);
  elsewhere_ = other.elsewhere_;
}

uint32_t CellPlane::next_other(uint32_t from, uint32_t end, uint32_t value) const {
  while (from < end) {
    const size_t page = from / kPageCells;
    if (page >= pages_.size()) return elsewhere_ == value ? end : from;
    const Page &here = pages_[page];
    const uint32_t behind = std::min(end, static_cast<uint32_t>(page + 1) * kPageCells);
    if (here.cells == nullptr && here.alike != value) return from;
    for (; here.cells != nullptr && from < behind; ++from) {
      if (load(here, from % kPageCells) != value) return from;
    }
    from = behind;
  }
  return end;
}

size_t CellPlane::memory_bytes() const {
  size_t bytes = pages_.capacity() * sizeof(Page);
  for (const Page &page : pages_) {
    if (page.cells != nullptr) bytes += size_t{kPageCells} * cell_bytes_;
  }
  return bytes;
}

}  // namespace soft
