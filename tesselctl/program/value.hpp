// Values of fields: native notation on one side, the members of a record on the other.
//
//   number    decimal, 0x hexadecimal, '_' between digits
//   ipv4      a.b.c.d, for every field of 32 bits
//   ipv6      for every field of 128 bits
//   mac       aa:bb:cc:dd:ee:ff, aa-bb-cc-dd-ee-ff, aabb.ccdd.eeff
//   VALUE/N   a prefix of N bits, for lpm and ternary fields
//   VALUE&M   for ternary fields: the bits that are set in M take part
//   *         anything, for lpm and ternary fields
//   NAME      of a protocol or a service (known_numbers.hpp)
//
// LOW..HIGH is several values (value_range.hpp).
//
// A plain value of a ternary field stands under the bits that the key takes of the field.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "tesselctl/program/field.hpp"
#include "tesselctl/text/number.hpp"
#include "tesselctl/text/quantity.hpp"

namespace tesselctl {

inline constexpr std::string_view kRange = "..";

struct FieldValue {
  Number value;
  Number mask;  // of a ternary field; the ones of the prefix of an lpm field; all ones otherwise

  friend bool operator==(const FieldValue &, const FieldValue &) = default;
};

// One value in the notations that fit the width of the field. Throws Fault.
Number parse_single(const Field &field, Word text);
std::string format_single(const Field &field, Number value);

// Throws Fault: no such notation, wider than the field, a mask where none can be, a value with bits
// that its mask or prefix leaves out. A plain value may have bits beyond those of the key.
FieldValue parse_value(const Field &field, Word text);

// Value and mask, with any character between them there. Throws Fault.
FieldValue parse_masked(const Field &field, Word text, size_t separator);

// A number from least to limit, or so much of a unit; what says whose it is in the message.
uint64_t parse_limited(Word text, uint64_t limit, const std::string &what, uint64_t least = 0,
                       const Unit *unit = nullptr);

// The numbers of "1,2,3", up to a limit; none of an empty word. Throws Fault.
std::vector<uint64_t> number_list(Word word, uint64_t limit = 0xffffffffu);

// A real number from 0 to limit, in decimal notation; what says whose it is in the message.
float parse_real(Word text, std::string_view what, float limit = std::numeric_limits<float>::max());
// A real number, or so much of the unit.
float parse_real(Word text, std::string_view what, const Unit &unit);

// The shortest text that parse_value reads as the same.
std::string format_value(const Field &field, const FieldValue &value);

// Whether two texts are one value of the field, in whatever notation, or the shown one has the
// pattern. An exact field may be written with its full mask or prefix as well. Throws Fault where
// no value of the field is or has what is written.
bool matches_value(const Field &field, std::string_view shown, Word written);

void store_value(const Field &field, const FieldValue &value, uint8_t *record);
FieldValue load_value(const Field &field, const uint8_t *record);

}  // namespace tesselctl
