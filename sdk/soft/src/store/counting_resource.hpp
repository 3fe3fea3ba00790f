// A memory resource that knows how much is taken from it.
#pragma once

#include <cstddef>
#include <memory_resource>

namespace soft {

// Passes everything on to another resource and keeps the sum of the sizes asked for.
class CountingResource final : public std::pmr::memory_resource {
 public:
  explicit CountingResource(std::pmr::memory_resource *upstream) : upstream_(upstream) {}

  size_t bytes() const { return bytes_; }

 private:
  void *do_allocate(size_t bytes, size_t alignment) override {
    void *memory = upstream_->allocate(bytes, alignment);
    bytes_ += bytes;
    return memory;
  }
  void do_deallocate(void *memory, size_t bytes, size_t alignment) override {
    upstream_->deallocate(memory, bytes, alignment);
    bytes_ -= bytes;
  }
  bool do_is_equal(const std::pmr::memory_resource &other) const noexcept override {
    return this == &other;
  }

  std::pmr::memory_resource *upstream_;
  size_t bytes_ = 0;
};

}  // namespace soft
