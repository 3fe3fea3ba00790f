#include "store/key_index.hpp"

#include <cstring>
#include <new>

namespace soft {

KeyIndex::~KeyIndex() { free_segments(); }

void KeyIndex::reset() {
  free_segments();
  std::pmr::vector<Segment *>(memory_).swap(directory_);
  depth_ = 0;
}

void KeyIndex::free_segments() {
  for (size_t slot = 0; slot < directory_.size();) {
    Segment *segment = directory_[slot];
    slot += size_t{1} << (depth_ - segment->depth);
    free(segment);
  }
}

KeyIndex::Segment *KeyIndex::make(uint32_t cells, uint32_t depth) {
  std::pmr::polymorphic_allocator<> memory(memory_);
  auto *segment = memory.new_object<Segment>(Segment{nullptr, cells - 1, 0, depth});
  try {
    const size_t bytes = cells * sizeof(uint64_t);
    segment->cells = static_cast<uint64_t *>(memory.allocate_bytes(bytes, kLine));
    std::memset(segment->cells, 0, bytes);
  } catch (...) {
    memory.delete_object(segment);
    throw;
  }
  return segment;
}

void KeyIndex::free(Segment *segment) {
  std::pmr::polymorphic_allocator<> memory(memory_);
  memory.deallocate_bytes(segment->cells, (segment->last + 1) * sizeof(uint64_t), kLine);
  memory.delete_object(segment);
}

void KeyIndex::put(Segment &segment, uint64_t cell) {
  uint64_t *cells = segment.cells;
  uint32_t at = home(cell, segment.last);
  while (cells[at] != 0) at = (at + 1) & segment.last;
  cells[at] = cell;
  ++segment.used;
}

uint64_t *KeyIndex::cell_of(Segment &segment, uint64_t cell) {
  uint64_t *cells = segment.cells;
  uint32_t at = home(cell, segment.last);
  while (cells[at] != cell) at = (at + 1) & segment.last;
  return cells + at;
}

// Lets every directory slot whose first depth bits are those of the hash lead to a segment.
void KeyIndex::point(uint64_t hash, uint32_t depth, Segment *to) {
  const size_t slots = size_t{1} << (depth_ - depth);
  const size_t first = slot_of(hash) & ~(slots - 1);
  for (size_t slot = first; slot < first + slots; ++slot) directory_[slot] = to;
}

void KeyIndex::enlarge(uint64_t hash) {
  Segment *old = directory_[slot_of(hash)];
  Segment *segment = make((old->last + 1) * 2, old->depth);
  for (uint32_t at = 0; at <= old->last; ++at)
    if (old->cells[at] != 0) put(*segment, old->cells[at]);
  point(hash, old->depth, segment);
  free(old);
}

void KeyIndex::double_directory() {
  std::pmr::vector<Segment *> directory(memory_);
  directory.reserve(directory_.size() * 2);
  for (Segment *const segment : directory_) directory.insert(directory.end(), 2, segment);
  directory_.swap(directory);
  ++depth_;
}

void KeyIndex::split(uint64_t hash) {
  Segment *old = directory_[slot_of(hash)];
  if (old->depth == depth_) double_directory();
  const uint32_t cells = old->last + 1;
  Segment *low = make(cells, old->depth + 1);
  Segment *high;
  try {
    high = make(cells, old->depth + 1);
  } catch (...) {
    free(low);
    throw;
  }
  const uint64_t bit = uint64_t{1} << (63 - old->depth);
  for (uint32_t at = 0; at < cells; ++at) {
    const uint64_t cell = old->cells[at];
    if (cell != 0) put((cell & bit) != 0 ? *high : *low, cell);
  }
  point(hash & ~bit, old->depth + 1, low);
  point(hash | bit, old->depth + 1, high);
  free(old);
}

// Segments are filled to 11/16, so that most lines have a free cell.
void KeyIndex::reserve(uint64_t hash) {
  if (directory_.empty()) {
    directory_.reserve(1);
    directory_.emplace_back(make(kFirstCells, 0));
  }
  for (;;) {
    const Segment *segment = directory_[slot_of(hash)];
    const uint32_t cells = segment->last + 1;
    if (segment->used < cells / 16 * 11) return;
    if (cells < kMostCells || segment->depth == kMostDepth)
      enlarge(hash);
    else
      split(hash);
  }
}

void KeyIndex::insert(uint64_t hash, uint32_t record) {
  put(*directory_[slot_of(hash)], (hash & ~kRecord) | (record + 1));
}

void KeyIndex::replace(uint64_t hash, uint32_t record, uint32_t with) {
  *cell_of(*directory_[slot_of(hash)], (hash & ~kRecord) | (record + 1)) =
      (hash & ~kRecord) | (with + 1);
}

// Moves later cells of the run back instead of leaving a mark, so runs do not grow with age.
void KeyIndex::erase(uint64_t hash, uint32_t record) {
  Segment &segment = *directory_[slot_of(hash)];
  uint64_t *cells = segment.cells;
  auto hole = static_cast<uint32_t>(cell_of(segment, (hash & ~kRecord) | (record + 1)) - cells);
  for (uint32_t at = (hole + 1) & segment.last; cells[at] != 0; at = (at + 1) & segment.last) {
    const uint32_t from_home = (at - home(cells[at], segment.last)) & segment.last;
    if (from_home < ((at - hole) & segment.last)) continue;
    cells[hole] = cells[at];
    hole = at;
  }
  cells[hole] = 0;
  --segment.used;
}

// Segments enter the directory whole, so that the destructor can follow it at any time.
void KeyIndex::copy_from(const KeyIndex &other) {
  depth_ = other.depth_;
  directory_.reserve(other.directory_.size());
  while (directory_.size() < other.directory_.size()) {
    const Segment &segment = *other.directory_[directory_.size()];
    Segment *twin = make(segment.last + 1, segment.depth);
    std::memcpy(twin->cells, segment.cells, (segment.last + 1) * sizeof(uint64_t));
    twin->used = segment.used;
    directory_.insert(directory_.end(), size_t{1} << (depth_ - segment.depth), twin);
  }
}

}  // namespace soft
