// Protocols and services that people write by name. The names are the tool's own, so that a line
// means the same on every machine. What is printed are numbers.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "tesselctl/program/field.hpp"

namespace tesselctl {

struct KnownNumber {
  std::string_view name;  // lower case
  uint16_t number;
};

// Those of a notation, by number; most have none.
std::span<const KnownNumber> known_numbers(Notation notation);

// Upper and lower case make no difference; null for an unknown name.
const KnownNumber *find_known_number(Notation notation, std::string_view name);

}  // namespace tesselctl
