#include "pdgen/families/lines.hpp"

#include <sstream>

#include "pdgen/text.hpp"

namespace pdgen {

TextLines::TextLines(const CatalogueFile &file) : path_(file.path) {
  std::istringstream stream(file.text);
  std::string text;
  for (std::size_t number = 1; std::getline(stream, text); ++number) {
    if (text.starts_with("#")) continue;
    const std::size_t indent = text.find_first_not_of(' ');
    const bool blank = indent == std::string::npos;
    lines_.push_back({blank ? 0 : indent, blank ? "" : text.substr(indent), number});
  }
}

bool TextLines::is_within(std::size_t at, std::size_t indent) const {
  return at < lines_.size() && !lines_[at].text.empty() && lines_[at].indent >= indent;
}

void TextLines::skip_blanks() {
  while (at_ < lines_.size() && lines_[at_].text.empty()) ++at_;
}

const TextLine *TextLines::next(std::size_t indent) {
  skip_blanks();
  return is_within(at_, indent) ? &lines_[at_++] : nullptr;
}

std::vector<std::string> TextLines::deeper(std::size_t indent) {
  std::vector<std::string> found;
  while (is_within(at_, indent)) found.push_back(lines_[at_++].text);
  return found;
}

std::string TextLines::joined(std::size_t indent) { return join(deeper(indent), " "); }

std::string TextLines::verbatim(std::size_t indent) {
  std::string text;
  for (;;) {
    std::size_t end = at_;
    while (end < lines_.size() && lines_[end].text.empty()) ++end;
    if (!is_within(end, indent)) return text;
    text.append(end - at_, '\n');
    text += std::string(lines_[end].indent - indent, ' ') + lines_[end].text + '\n';
    at_ = end + 1;
  }
}

std::vector<std::string> words(std::string_view text) {
  std::istringstream stream{std::string(text)};
  std::vector<std::string> found;
  for (std::string word; stream >> word;) found.push_back(word);
  return found;
}

std::vector<std::string> list_items(std::string_view text) {
  std::vector<std::string> items;
  int depth = 0;
  std::string item;
  for (const char c : text) {
    if (c == '(' || c == '{') ++depth;
    if (c == ')' || c == '}') --depth;
    if (c == ',' && depth == 0) {
      items.push_back(item);
      item.clear();
    } else if (c != ' ' || !item.empty()) {
      item += c;
    }
  }
  if (!item.empty()) items.push_back(item);
  return items;
}

}  // namespace pdgen
