// Rows of generated arrays that are looked up by the handle of their object.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pd {

// Rows ascend by handle; null for a handle that none has.
template <class Row>
inline const Row *find_by_handle(const Row *rows, size_t count, uint32_t handle) {
  while (count > 0) {
    const size_t half = count / 2;
    if (rows[half].handle == handle) return rows + half;
    if (rows[half].handle < handle) {
      rows += half + 1;
      count -= half + 1;
    } else {
      count = half;
    }
  }
  return nullptr;
}

}  // namespace pd
