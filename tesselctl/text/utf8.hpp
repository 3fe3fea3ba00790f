// Text as terminals show it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tesselctl {

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }
// Bytes of the UTF-8 character that the text begins with; 0 when it begins with none.
size_t utf8_length(std::string_view text);
// Characters of the text; a byte that belongs to none counts as one.
size_t utf8_count(std::string_view text);
// The text without what a terminal would obey: control characters and bytes that are no UTF-8
// become '?', a tab becomes a blank. Every character keeps its column.
std::string printable(std::string_view text);

}  // namespace tesselctl
