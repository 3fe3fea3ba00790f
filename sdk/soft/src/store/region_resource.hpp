// Memory of large tables in few large pieces, so that the processor finds it by few page entries.
#pragma once

#include <cstddef>
#include <memory>
#include <memory_resource>
#include <vector>

namespace soft {

// Passes everything on to another resource until it has given out kLargeBytes. From then on blocks
// that are aligned to a cache line, and large enough, are cut from regions for which the system is
// asked for huge pages. Such blocks have few sizes: what is given back serves the next one of its
// size, and the regions go back when all blocks have.
class RegionResource final : public std::pmr::memory_resource {
 public:
  static constexpr size_t kAlignment = 64;

  explicit RegionResource(std::pmr::memory_resource *upstream) : upstream_(upstream) {}
  ~RegionResource() override { give_back(); }
  RegionResource(const RegionResource &) = delete;
  RegionResource &operator=(const RegionResource &) = delete;

 private:
  static constexpr size_t kLargeBytes = size_t{8} << 20;
  static constexpr size_t kRegionBytes = size_t{16} << 20;
  static constexpr size_t kPageBytes = size_t{2} << 20;
  static constexpr size_t kLeastBlock = size_t{16} << 10;
  static constexpr size_t kMostBlock = kRegionBytes / 8;

  struct FreeBlock {
    FreeBlock *next;
  };
  struct FreeList {
    size_t bytes;
    FreeBlock *first;
  };

  static bool is_block(size_t bytes, size_t alignment) {
    return alignment == kAlignment && bytes >= kLeastBlock && bytes <= kMostBlock;
  }
  static size_t rounded(size_t bytes) { return (bytes + kAlignment - 1) & ~(kAlignment - 1); }

  void *do_allocate(size_t bytes, size_t alignment) override;
  void do_deallocate(void *memory, size_t bytes, size_t alignment) override;
  bool do_is_equal(const std::pmr::memory_resource &other) const noexcept override {
    return this == &other;
  }

  bool is_in_region(const void *memory) const;
  FreeList &list_of(size_t bytes);
  void *cut(size_t bytes);
  void give_back();

  // Most tables never need them.
  struct Regions {
    std::vector<std::byte *> all;
    std::vector<FreeList> free;
    std::byte *last = nullptr;  // region, of which used bytes are
    size_t used = 0;
    size_t blocks = 0;  // that are given out
  };

  std::pmr::memory_resource *upstream_;
  size_t upstream_bytes_ = 0;  // of blocks that were passed on
  std::unique_ptr<Regions> regions_;
};

}  // namespace soft
