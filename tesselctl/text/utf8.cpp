#include "tesselctl/text/utf8.hpp"

#include <algorithm>
#include <cstdint>

namespace tesselctl {

size_t utf8_length(std::string_view text) {
  const auto byte = [&](size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0u;
  };
  const unsigned first = byte(0);
  if (text.empty()) return 0;
  if (first < 0x80) return 1;
  const size_t size = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
  if (first < 0xc2 || first > 0xf4) return 0;
  uint32_t code = first & (0x7fu >> size);
  for (size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xc0) != 0x80) return 0;
    code = code << 6 | (byte(i) & 0x3f);
  }
  const uint32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = code >= 0xd800 && code < 0xe000;
  return code < least[size] || code > 0x10ffff || surrogate ? 0 : size;
}

size_t utf8_count(std::string_view text) {
  size_t count = 0;
  while (!text.empty()) {
    text.remove_prefix(std::max<size_t>(1, utf8_length(text)));
    ++count;
  }
  return count;
}

std::string printable(std::string_view text) {
  std::string copy;
  copy.reserve(text.size());
  while (!text.empty()) {
    const size_t size = utf8_length(text);
    const auto first = static_cast<unsigned char>(text[0]);
    // The second control set is 0xc2 0x80 to 0xc2 0x9f.
    const bool second_set =
        size == 2 && first == 0xc2 && static_cast<unsigned char>(text[1]) < 0xa0;
    if (first == '\t') {
      copy += ' ';
    } else if (size == 0 || first < ' ' || first == 0x7f || second_set) {
      copy += '?';
    } else {
      copy += text.substr(0, size);
    }
    text.remove_prefix(std::max<size_t>(1, size));
  }
  return copy;
}

}  // namespace tesselctl
