// Shapes of records as introspection sees them: every member on its own, companions of key fields
// included. The generator fills them from the catalogue (records.hpp, texts.hpp, schemas.hpp and
// labels.hpp in the build folder), layout apart from text.
#pragma once

#include <cstddef>
#include <cstdint>

#include "descriptor.hpp"

namespace pd {

// One member of a match spec or action spec record.
struct RecordMember {
  uint16_t offset;
  uint8_t storage;  // size of the member: 1, 2, 4 or 16
  uint8_t digits;   // hexadecimal digits of its value
  uint32_t mask;    // bits that count; 0 for 16 bytes, whose bits stand in a WideMask
};

// The bits that count of a member of 16 bytes, most significant byte first.
using WideMask = uint8_t[16];

// ---- Labels of counted entries ----

enum class LabelKind : uint8_t { flag, number, exact, mac, v4addr, v6addr };

// A key field with its mask companion. An exact field has mask == value.
struct LabelField {
  uint16_t value = 0;  // offsets in the match spec record
  uint16_t mask = 0;
  uint8_t storage = 0;
  uint32_t key_bits = 0;
};

// Written, blanks included, in place of a number whose value AND mask is value.
struct LabelText {
  uint32_t value = 0;
  const char *text = nullptr;
};

struct LabelItem {
  LabelKind kind = LabelKind::flag;
  uint8_t digits = 0;            // numbers: least digits of the value
  uint32_t text_count = 0;       // numbers
  LabelField field = {};         // the field, or the upper half of a MAC address
  LabelField lower = {};         // the lower half of a MAC address
  uint32_t bits = 0;             // flags: the bit that counts; numbers: see texts
  const char *text = nullptr;    // flags: with the "!" and the blanks; numbers: up to the digits
  const char *masked = nullptr;  // numbers: up to the digits of the mask
  const LabelText *texts = nullptr;  // numbers: apply to a mask with any of bits
};

}  // namespace pd
