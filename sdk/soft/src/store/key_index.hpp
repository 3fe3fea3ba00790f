// Finds numbered records by the hash of their key: open addressing that grows in small steps.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <vector>

#include "store/region_resource.hpp"

namespace soft {

// A directory over the top bits of the hash leads to segments of up to 4096 cells. A segment that
// fills up is split in two, so growing never touches more than one segment, and the cost per record
// does not depend on their number. Several directory slots may share a segment.
//
// A cell holds the record number plus one in its low 26 bits and 38 bits of the hash above, enough
// to place it anew without looking at the record; 0 is a free cell.
class KeyIndex {
 public:
  static constexpr uint32_t kNone = 0xffffffff;

  explicit KeyIndex(std::pmr::memory_resource *memory) : memory_(memory), directory_(memory) {}
  ~KeyIndex();
  KeyIndex(const KeyIndex &) = delete;
  KeyIndex &operator=(const KeyIndex &) = delete;

  // Makes an empty index equal to another one. May throw std::bad_alloc; the object can
  // then only be destroyed.
  void copy_from(const KeyIndex &other);

  // The hash of one of 16 neighbours, numbered from 0, that have the hash in common: their searches
  // begin in four cache lines side by side, so that who goes through them finds those in the cache.
  static uint64_t beside(uint64_t hash, uint64_t neighbour) {
    return hash ^ (neighbour >> 2) << kLineShift ^ (neighbour & 3) << kTagShift;
  }

  // The first record of this hash for which same(record) holds, or kNone.
  template <typename Same>
  uint32_t find(uint64_t hash, Same same) const {
    if (directory_.empty()) return kNone;
    const Segment &segment = *directory_[slot_of(hash)];
    const uint64_t *cells = segment.cells;
    const uint32_t last = segment.last;
    for (uint32_t at = home(hash, last);; at = (at + 1) & last) {
      const uint64_t cell = cells[at];
      if ((cell ^ hash) <= kRecord && cell != 0) {
        const uint32_t record = static_cast<uint32_t>(cell & kRecord) - 1;
        if (same(record)) return record;
      }
      if (cell == 0) return kNone;
    }
  }

  // Fetches what find() and insert() of this hash begin with.
  void prefetch(uint64_t hash) const {
    if (directory_.empty()) return;
    const Segment &segment = *directory_[slot_of(hash)];
    __builtin_prefetch(segment.cells + home(hash, segment.last));
  }

  // Makes room for one more record of this hash. May throw std::bad_alloc, and then all records are
  // still found.
  void reserve(uint64_t hash);

  // Adds a record, after reserve() of the same hash.
  void insert(uint64_t hash, uint32_t record);

  // For a record that is there under this hash.
  void replace(uint64_t hash, uint32_t record, uint32_t with);
  void erase(uint64_t hash, uint32_t record);

  // Forgets all records and gives the memory back.
  void reset();

 private:
  static constexpr uint64_t kRecord = (uint64_t{1} << 26) - 1;
  static constexpr size_t kLine = RegionResource::kAlignment;
  static constexpr uint32_t kLineCells = kLine / sizeof(uint64_t);
  static constexpr uint32_t kHomeShift = 26;  // of the hash bits that choose the cell
  static constexpr uint32_t kLineShift = kHomeShift + 3;
  static constexpr uint32_t kTagShift = 38;  // of bits that choose no cell of a usual segment
  static constexpr uint32_t kFirstCells = 16;
  static constexpr uint32_t kMostCells = 4096;
  static constexpr uint32_t kMostDepth = 20;

  // Stands apart from its cells: those of a large index are few enough to stay in the cache.
  struct Segment {
    uint64_t *cells;
    uint32_t last;   // number of cells minus one
    uint32_t used;   // cells
    uint32_t depth;  // leading hash bits that all its records share
  };

  size_t slot_of(uint64_t hash) const { return static_cast<size_t>(hash >> 1 >> (63 - depth_)); }
  // Searches begin at the start of a cache line and seldom leave it.
  static uint32_t home(uint64_t hash, uint32_t last) {
    return static_cast<uint32_t>(hash >> kHomeShift) & last & ~(kLineCells - 1);
  }
  static void put(Segment &segment, uint64_t cell);
  static uint64_t *cell_of(Segment &segment, uint64_t cell);

  Segment *make(uint32_t cells, uint32_t depth);
  void free(Segment *segment);
  void free_segments();
  void enlarge(uint64_t hash);
  void split(uint64_t hash);
  void double_directory();
  void point(uint64_t hash, uint32_t depth, Segment *to);

  std::pmr::memory_resource *memory_;
  uint32_t depth_ = 0;  // leading hash bits that choose the directory slot
  std::pmr::vector<Segment *> directory_;
};

}  // namespace soft
