#include "store/region_resource.hpp"

#include <sys/mman.h>

#include <algorithm>
#include <functional>
#include <new>

namespace soft {

bool RegionResource::is_in_region(const void *memory) const {
  const auto *byte = static_cast<const std::byte *>(memory);
  const auto behind = std::ranges::upper_bound(regions_, byte, std::less<>());
  return behind != regions_.begin() && byte < behind[-1] + kRegionBytes;
}

// Made when the first block of a size is given out, so that giving back needs no memory.
RegionResource::FreeList &RegionResource::list_of(size_t bytes) {
  const auto at = std::ranges::find(free_, bytes, &FreeList::bytes);
  return at != free_.end() ? *at : free_.emplace_back(FreeList{bytes, nullptr});
}

void *RegionResource::cut(size_t bytes) {
  FreeList &list = list_of(bytes);
  if (FreeBlock *block = list.first; block != nullptr) {
    list.first = block->next;
    return block;
  }
  if (last_ == nullptr || used_ + bytes > kRegionBytes) {
    if (regions_.size() == regions_.capacity()) regions_.reserve(regions_.size() * 2 + 4);
    last_ = static_cast<std::byte *>(upstream_->allocate(kRegionBytes, kPageBytes));
    // Only a wish: without huge pages the region serves as well as any memory.
    ::madvise(last_, kRegionBytes, MADV_HUGEPAGE);
    regions_.insert(std::ranges::upper_bound(regions_, last_, std::less<>()), last_);
    used_ = 0;
  }
  void *block = last_ + used_;
  used_ += bytes;
  return block;
}

void RegionResource::give_back() {
  for (std::byte *region : regions_) upstream_->deallocate(region, kRegionBytes, kPageBytes);
  regions_.clear();
  for (FreeList &list : free_) list.first = nullptr;
  last_ = nullptr;
}

void *RegionResource::do_allocate(size_t bytes, size_t alignment) {
  if (!is_block(bytes, alignment)) return upstream_->allocate(bytes, alignment);
  if (upstream_bytes_ + bytes <= kLargeBytes) {
    void *memory = upstream_->allocate(bytes, alignment);
    upstream_bytes_ += bytes;
    return memory;
  }
  void *block = cut(rounded(bytes));
  ++blocks_;
  return block;
}

void RegionResource::do_deallocate(void *memory, size_t bytes, size_t alignment) {
  if (!is_block(bytes, alignment)) return upstream_->deallocate(memory, bytes, alignment);
  if (!is_in_region(memory)) {
    upstream_bytes_ -= bytes;
    return upstream_->deallocate(memory, bytes, alignment);
  }
  FreeList &list = list_of(rounded(bytes));
  list.first = new (memory) FreeBlock{list.first};
  if (--blocks_ == 0) give_back();
}

}  // namespace soft
