// Python-literal syntax, in which the library writes schemas and value strings: nested tuples and
// lists of texts, numbers, None, True and False.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/fault.hpp"
#include "tesselctl/number.hpp"

namespace tesselctl {

struct Literal {
  enum class Kind : uint8_t { tuple, list, text, number, none, boolean };

  Kind kind = Kind::tuple;
  bool negative = false;  // number: its sign; number holds the magnitude
  bool truth = false;
  Number number;
  std::string text;  // contents of a text; a number as it is written
  std::vector<Literal> items;
  size_t column = 0;  // where it begins

  bool is_tuple(size_t size) const { return kind == Kind::tuple && items.size() == size; }
};

// The one literal that the text is, up to 128 bits a number. Parentheses around one item without a
// comma are no tuple, items with commas are one even without parentheses. Throws Fault at the place
// where the text stops being a literal, and where it nests more than 64 deep.
Literal parse_literal(Word text);

// The same literal over several lines, each as long as fits into width columns; ends in a line
// feed. Numbers stay as they are written.
std::string indented_literal(const Literal &literal, size_t width);

}  // namespace tesselctl
