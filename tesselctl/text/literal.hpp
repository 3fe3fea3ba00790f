// Python-literal syntax, in which the library writes schemas: nested tuples of texts, numbers,
// None, True and False.
#pragma once

#include <string>
#include <string_view>

namespace tesselctl {

// The same literal over several lines, each as long as fits into width columns; ends in a line
// feed. Numbers and texts stay as they are written; parentheses around one item without a comma go.
// The text is a literal of the library.
std::string indented_literal(std::string_view text, size_t width);

}  // namespace tesselctl
