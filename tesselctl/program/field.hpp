// The fields of records by the names that people give them.
#pragma once

#include <string_view>

#include "bindings/export_table.hpp"
#include "tesselctl/text/fault.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

using bindings::Field;
using bindings::Match;
using bindings::Notation;

inline Number key_bits(const Field &field) { return {field.key_bits_high, field.key_bits_low}; }

const char *match_name(Match match);
// Ternary where any field is, else lpm where one is.
Match match_of(const bindings::Record &record);
// What a schema calls the notation, or "number".
const char *notation_name(Notation notation);

// Whether a field has exactly this name or label.
bool has_field_named(const bindings::Record &record, std::string_view name);

// Takes the full name, the label, or any end of the full name that begins behind a '_' and is the
// end of no other field's name; '_' and upper and lower case make no difference. Throws Fault for
// an unknown or ambiguous name; what says what has the fields, "table x".
const Field &find_field(const bindings::Record &record, Word name, std::string_view what);
// The same, but null for such a name.
const Field *find_field(const bindings::Record &record, std::string_view name);

}  // namespace tesselctl
