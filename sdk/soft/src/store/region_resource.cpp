#include "store/region_resource.hpp"

#include <sys/mman.h>

#include <algorithm>
#include <functional>
#include <new>

namespace soft {

bool RegionResource::is_in_region(const void *memory) const {
  if (regions_ == nullptr) return false;
  const auto *byte = static_cast<const std::byte *>(memory);
  const auto behind = std::ranges::upper_bound(regions_->all, byte, std::less<>());
  return behind != regions_->all.begin() && byte < behind[-1] + kRegionBytes;
}

// Made when the first block of a size is given out, so that giving back needs no memory.
RegionResource::FreeList &RegionResource::list_of(size_t bytes) {
  auto &free = regions_->free;
  const auto at = std::ranges::find(free, bytes, &FreeList::bytes);
  return at != free.end() ? *at : free.emplace_back(FreeList{bytes, nullptr});
}

void *RegionResource::cut(size_t bytes) {
  if (regions_ == nullptr) regions_ = std::make_unique<Regions>();
  FreeList &list = list_of(bytes);
  if (FreeBlock *block = list.first; block != nullptr) {
    list.first = block->next;
    return block;
  }
  auto &all = regions_->all;
  auto &last = regions_->last;
  auto &used = regions_->used;
  if (last == nullptr || used + bytes > kRegionBytes) {
    if (all.size() == all.capacity()) all.reserve(all.size() * 2 + 4);
    last = static_cast<std::byte *>(upstream_->allocate(kRegionBytes, kPageBytes));
    // Only a wish: without huge pages the region serves as well as any memory.
    ::madvise(last, kRegionBytes, MADV_HUGEPAGE);
    all.insert(std::ranges::upper_bound(all, last, std::less<>()), last);
    used = 0;
  }
  void *block = last + used;
  used += bytes;
  return block;
}

void RegionResource::give_back() {
  if (regions_ == nullptr) return;
  for (std::byte *region : regions_->all) upstream_->deallocate(region, kRegionBytes, kPageBytes);
  regions_.reset();
}

void *RegionResource::do_allocate(size_t bytes, size_t alignment) {
  if (!is_block(bytes, alignment)) return upstream_->allocate(bytes, alignment);
  if (upstream_bytes_ + bytes <= kLargeBytes) {
    void *memory = upstream_->allocate(bytes, alignment);
    upstream_bytes_ += bytes;
    return memory;
  }
  void *block = cut(rounded(bytes));
  ++regions_->blocks;
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
  if (--regions_->blocks == 0) give_back();
}

}  // namespace soft
