#include "tesselctl/text/html.hpp"

#include "tesselctl/text/utf8.hpp"

namespace tesselctl {

namespace {

std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : printable(text)) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      case '\'':
        result += "&#39;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

bool is_upper(char c) { return c >= 'A' && c <= 'Z'; }
bool is_lower(char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); }

}  // namespace

void Html::start(std::string_view tag, Attributes attributes) {
  text_ += '<';
  text_ += tag;
  for (const Attribute &attribute : attributes) {
    text_ += ' ';
    text_ += attribute.name;
    text_ += "=\"" + escaped(attribute.value) + '"';
  }
}

Html &Html::open(std::string_view tag, Attributes attributes) {
  start(tag, attributes);
  text_ += '>';
  open_.emplace_back(tag);
  return *this;
}

Html &Html::close() {
  text_ += "</" + open_.back() + ">";
  open_.pop_back();
  return *this;
}

Html &Html::empty(std::string_view tag, Attributes attributes) {
  start(tag, attributes);
  text_ += "/>";
  return *this;
}

Html &Html::text(std::string_view text) {
  text_ += escaped(text);
  return *this;
}

Html &Html::name(std::string_view name) {
  size_t begin = 0;
  for (size_t at = 1; at < name.size(); ++at) {
    const bool starts_word = is_upper(name[at]) && is_lower(name[at - 1]);
    if (!starts_word && name[at - 1] != '_') continue;
    text(name.substr(begin, at - begin)).empty("wbr");
    begin = at;
  }
  return text(name.substr(begin));
}

std::string Html::take() {
  while (!open_.empty()) close();
  return std::move(text_);
}

}  // namespace tesselctl
