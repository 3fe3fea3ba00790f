#include "schema.hpp"

#include <string.h>

#include "by_handle.hpp"

namespace pd {

int write_schema_of(const HandleSchema *rows, size_t count, uint32_t handle, char *buffer) {
  if (buffer == nullptr) return 0;
  const HandleSchema *row = find_by_handle(rows, count, handle);
  if (row == nullptr) return write_schema("()", buffer);
  memcpy(buffer, row->text, row->size);
  return static_cast<int>(row->size - 1);
}

}  // namespace pd
