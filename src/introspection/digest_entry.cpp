#include "digest_entry.hpp"

#include <string.h>

namespace pd {

namespace {

// The row of that name, null if there is none.
template <class Row>
const Row *find_named(const Row *rows, uint32_t count, const char *name) {
  if (name == nullptr) return nullptr;
  for (uint32_t i = 0; i < count; ++i) {
    if (strcmp(rows[i].name, name) == 0) return &rows[i];
  }
  return nullptr;
}

}  // namespace

uint32_t digest_entry_size(const Digests &digests, const char *digest_name) {
  const Digest *digest = find_named(digests.rows, digests.count, digest_name);
  return digest == nullptr ? 0 : digest->entry_bytes;
}

const uint8_t *digest_entry_field(const Digests &digests, const uint8_t *entry,
                                  const char *digest_name, const char *field_name, uint32_t *size) {
  const Digest *digest = find_named(digests.rows, digests.count, digest_name);
  const DigestField *field =
      digest == nullptr ? nullptr : find_named(digest->fields, digest->field_count, field_name);
  const bool found = field != nullptr && entry != nullptr;
  if (size != nullptr) *size = found ? field->bytes : 0;
  return found ? entry + field->offset : nullptr;
}

}  // namespace pd
