// What hashed containers of the standard library do not do by themselves.
#pragma once

#include <cstddef>
#include <cstdint>

namespace soft {

// Bytes that the container holds beside itself.
template <class Container>
uint64_t hashed_bytes(const Container &container) {
  struct Node {
    void *next;
    typename Container::value_type value;
  };
  return container.size() * sizeof(Node) + container.bucket_count() * sizeof(void *);
}

// Erases a key. A container that is empty then gives its buckets back, unless they are few.
template <class Container>
void forget(Container &container, const typename Container::key_type &key) {
  constexpr size_t kKeptBuckets = 4096;
  container.erase(key);
  if (container.empty() && container.bucket_count() > kKeptBuckets) Container().swap(container);
}

}  // namespace soft
