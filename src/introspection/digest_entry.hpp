// Where the fields of a digest entry lie, by name. Names are compared whole, case-sensitive.
#pragma once

#include <cstdint>

namespace pd {

struct DigestField {
  const char *name;
  uint16_t offset;
  uint16_t bytes;
};

struct Digest {
  const char *name;
  uint32_t entry_bytes;
  uint32_t field_count;
  const DigestField *fields;
};

struct Digests {
  const Digest *rows;
  uint32_t count;
};

// 0 for a digest that is unknown.
uint32_t digest_entry_size(const Digests &digests, const char *digest_name);

// Null, and a size of 0, for a digest or a field that is unknown and for a null entry or name. size
// may be null.
const uint8_t *digest_entry_field(const Digests &digests, const uint8_t *entry,
                                  const char *digest_name, const char *field_name, uint32_t *size);

}  // namespace pd
