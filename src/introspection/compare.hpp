// Equality of two records of one kind, member by member under the bits that count, and the way
// between the values and the names of actions.
#pragma once

#include "shapes.hpp"

namespace pd {

// wide_masks has one row for each member of 16 bytes, in their order.
bool members_are_equal(const RecordMember *members, unsigned count, const WideMask *wide_masks,
                       const void *a, const void *b);

// R is the shape of the record. A null pointer equals nothing.
template <class R>
inline bool records_are_equal(const typename R::Record *a, const typename R::Record *b) {
  return a != nullptr && b != nullptr &&
         members_are_equal(R::members, R::count, R::wide_masks, a, b);
}

inline const char *action_name(const char *const *names, uint32_t count, uint32_t value) {
  return value < count ? names[value] : nullptr;
}

// count for a null pointer and for a name that none has.
uint32_t action_value(const char *const *names, uint32_t count, const char *name);

}  // namespace pd
