#include "tesselctl/text/literal.hpp"

#include <vector>

namespace tesselctl {

namespace {

// A tuple, or a word that stands for itself.
struct Literal {
  std::string word;
  std::vector<Literal> items;
};

void skip_blanks(std::string_view &text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
}

bool take(std::string_view &text, char c) {
  skip_blanks(text);
  if (!text.starts_with(c)) return false;
  text.remove_prefix(1);
  return true;
}

Literal read_item(std::string_view &text);

// What stands between a parenthesis that is taken and its end.
Literal read_tuple(std::string_view &text) {
  Literal tuple;
  bool comma = true;
  while (!take(text, ')') && !text.empty()) {
    tuple.items.push_back(read_item(text));
    comma = take(text, ',');
  }
  if (tuple.items.size() != 1 || comma) return tuple;
  Literal only = std::move(tuple.items.front());
  return only;
}

Literal read_item(std::string_view &text) {
  if (take(text, '(')) return read_tuple(text);
  const std::string_view word = text.substr(0, text.find_first_of(",) "));
  text.remove_prefix(word.size());
  return {std::string(word), {}};
}

std::string one_line(const Literal &literal) {
  if (!literal.word.empty()) return literal.word;
  std::string text = "(";
  for (const Literal &item : literal.items) text += (text.size() > 1 ? ", " : "") + one_line(item);
  return text + (literal.items.size() == 1 ? ",)" : ")");
}

void add_indented(std::string &text, const Literal &literal, size_t indent, size_t width,
                  const char *end) {
  const std::string line = one_line(literal);
  text.append(indent, ' ');
  if (literal.items.empty() || indent + line.size() + 1 <= width) {
    text += line + end;
    return;
  }
  text += "(\n";
  for (const Literal &item : literal.items) add_indented(text, item, indent + 2, width, ",\n");
  text.append(indent, ' ');
  text += std::string(")") + end;
}

}  // namespace

std::string indented_literal(std::string_view text, size_t width) {
  std::string lines;
  add_indented(lines, read_item(text), 0, width, "\n");
  return lines;
}

}  // namespace tesselctl
