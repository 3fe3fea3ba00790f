// HTML that is always well formed: elements close in the order in which they opened, and no text or
// attribute can leave its place.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tesselctl {

class Html {
 public:
  struct Attribute {
    std::string_view name;
    std::string_view value;
  };
  using Attributes = std::initializer_list<Attribute>;

  Html &open(std::string_view tag, Attributes attributes = {});
  Html &close();
  // An element without contents: "<rect .../>".
  Html &empty(std::string_view tag, Attributes attributes = {});
  // An element that holds a text alone.
  Html &leaf(std::string_view tag, std::string_view text, Attributes attributes = {}) {
    return open(tag, attributes).text(text).close();
  }

  // Escaped; control characters and bytes that are no UTF-8 become '?'.
  Html &text(std::string_view text);
  // A name in camelCase or snake_case, which may break between its words.
  Html &name(std::string_view name);
  // As it is, for what this program knows: a style sheet.
  Html &trusted(std::string_view text) {
    text_ += text;
    return *this;
  }
  Html &line() { return trusted("\n"); }

  // Closes what is open.
  std::string take();

 private:
  void start(std::string_view tag, Attributes attributes);

  std::string text_;
  std::vector<std::string> open_;
};

}  // namespace tesselctl
