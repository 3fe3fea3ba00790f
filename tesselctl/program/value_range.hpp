// Ranges of values, LOW..HIGH: what entries stand for one, and what one the values of entries are.
#pragma once

#include <vector>

#include "tesselctl/program/value.hpp"

namespace tesselctl {

struct ValueRange {
  Number low;
  Number high;

  friend bool operator==(const ValueRange &, const ValueRange &) = default;
};

inline bool is_range(std::string_view text) { return text.find(kRange) != std::string_view::npos; }

// The fewest prefixes of so many bits that cover the range, in ascending order: no two of them
// cover a longer prefix, so there is but one such list.
std::vector<FieldValue> prefixes_of(ValueRange range, unsigned width);

// The values of LOW..HIGH: the fewest prefixes, or of an exact field each value. Throws Fault.
std::vector<FieldValue> parse_range(const Field &field, Word text);
std::string format_range(const Field &field, const ValueRange &range);

// What a ternary field matches by the value, where that is a prefix of all bits of the key.
std::optional<ValueRange> range_of(const Field &field, const FieldValue &value);

// The bits of the field that a range is of: those of the key, if they are the lowest ones, else 0.
unsigned range_width(const Field &field);

}  // namespace tesselctl
