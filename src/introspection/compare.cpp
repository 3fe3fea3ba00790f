#include "compare.hpp"

#include <string.h>

#include "codec/bytes.hpp"

namespace pd {

namespace {

bool wide_members_are_equal(const uint8_t *a, const uint8_t *b, const WideMask &mask) {
  uint8_t difference = 0;
  for (unsigned i = 0; i < sizeof mask; ++i) {
    difference = static_cast<uint8_t>(difference | ((a[i] ^ b[i]) & mask[i]));
  }
  return difference == 0;
}

}  // namespace

bool members_are_equal(const RecordMember *members, unsigned count, const WideMask *wide_masks,
                       const void *a, const void *b) {
  const auto *left = static_cast<const uint8_t *>(a);
  const auto *right = static_cast<const uint8_t *>(b);
  for (unsigned i = 0; i < count; ++i) {
    const RecordMember &member = members[i];
    if (member.storage == 16) {
      if (!wide_members_are_equal(left + member.offset, right + member.offset, *wide_masks++)) {
        return false;
      }
    } else {
      const uint32_t difference =
          load(left + member.offset, member.storage) ^ load(right + member.offset, member.storage);
      if ((difference & member.mask) != 0) return false;
    }
  }
  return true;
}

uint32_t action_value(const char *const *names, uint32_t count, const char *name) {
  if (name == nullptr) return count;
  for (uint32_t value = 0; value < count; ++value) {
    if (strcmp(names[value], name) == 0) return value;
  }
  return count;
}

}  // namespace pd
