// Schemas are constants; this hands them out.
#pragma once

#include <cstddef>
#include <cstdint>

namespace pd {

// Copies a schema with its NUL and returns its length. A null buffer gets nothing and 0.
template <size_t Size>
inline int write_schema(const char (&text)[Size], char *buffer) {
  if (buffer == nullptr) return 0;
  __builtin_memcpy(buffer, text, Size);
  return static_cast<int>(Size - 1);
}

// The schema of a table or profile by its handle.
struct HandleSchema {
  uint32_t handle;
  uint32_t size;  // with the NUL
  const char *text;
};

// Rows ascend by handle. An unknown handle gets "()".
int write_schema_of(const HandleSchema *rows, size_t count, uint32_t handle, char *buffer);

}  // namespace pd
