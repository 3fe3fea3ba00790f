#include "tesselctl/literal.hpp"

#include <algorithm>

namespace tesselctl {

namespace {

constexpr size_t kDeepest = 64;

bool is_word_character(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool are_digits(std::string_view text, bool hexadecimal) {
  const char *allowed = hexadecimal ? "0123456789abcdefABCDEF" : "0123456789";
  return !text.empty() && text.find_first_not_of(allowed) == std::string_view::npos;
}

class Reader {
 public:
  explicit Reader(Word text) : text_(text) {}

  Literal read() {
    skip_blanks();
    if (at_ == text_.text.size()) fail("a literal is missing");
    return read_items('\0', 0, text_.column + at_);
  }

 private:
  bool is_at(char c) const { return at_ < text_.text.size() && text_.text[at_] == c; }
  bool take(char c) {
    skip_blanks();
    if (!is_at(c)) return false;
    ++at_;
    return true;
  }
  void skip_blanks() {
    while (is_at(' ') || is_at('\t') || is_at('\n') || is_at('\r')) ++at_;
  }
  size_t word_length() const {
    size_t end = at_;
    while (end < text_.text.size() && is_word_character(text_.text[end])) ++end;
    return end - at_;
  }
  [[noreturn]] void fail(const char *message) const {
    const size_t length = std::max<size_t>(word_length(), at_ < text_.text.size() ? 1 : 0);
    throw Fault(text_.from(at_).first(length), message);
  }

  // Items up to a closing character, or to the end of the text for '\0'. column is where the
  // sequence begins.
  Literal read_items(char closing, size_t depth, size_t column) {
    if (depth > kDeepest) fail("the literal nests too deep");
    Literal sequence;
    sequence.column = column;
    bool comma = true;
    for (skip_blanks(); at_ < text_.text.size() && !is_at(closing); skip_blanks()) {
      if (!comma && closing == '\0') fail("nothing should stand here");
      if (!comma) fail("a comma is missing");
      sequence.items.push_back(read_item(depth));
      comma = take(',');
    }
    if (closing != '\0' && !take(closing)) {
      fail(closing == ')' ? "')' is missing" : "']' is missing");
    }
    if (closing == ']') {
      sequence.kind = Literal::Kind::list;
    } else if (sequence.items.size() == 1 && !comma) {
      Literal only = std::move(sequence.items.front());
      return only;
    }
    return sequence;
  }

  Literal read_item(size_t depth) {
    Literal item;
    item.column = text_.column + at_;
    if (take('(')) return read_items(')', depth + 1, item.column);
    if (take('[')) return read_items(']', depth + 1, item.column);
    if (is_at('\'') || is_at('"')) {
      read_text(item);
    } else if (is_at('-') ||
               (at_ < text_.text.size() && are_digits(text_.text.substr(at_, 1), false))) {
      read_number(item);
    } else {
      read_name(item);
    }
    return item;
  }

  void read_text(Literal &item) {
    item.kind = Literal::Kind::text;
    const char quote = text_.text[at_++];
    while (!is_at(quote)) {
      if (at_ == text_.text.size() || is_at('\n')) fail("the text has no end");
      if (is_at('\\')) {
        ++at_;
        if (!is_at('\\') && !is_at('\'') && !is_at('"')) fail("this escape is not known");
      }
      item.text += text_.text[at_++];
    }
    ++at_;
  }

  void read_number(Literal &item) {
    item.kind = Literal::Kind::number;
    item.negative = is_at('-');
    const size_t begin = at_;
    if (item.negative) ++at_;
    const std::string_view word = text_.text.substr(at_, word_length());
    std::string_view magnitude = word;
    if (magnitude.ends_with('L')) magnitude.remove_suffix(1);
    const bool hexadecimal = magnitude.starts_with("0x");
    const std::string_view digits = magnitude.substr(hexadecimal ? 2 : 0);
    if (!are_digits(digits, hexadecimal)) fail("this is not a number");
    if (!hexadecimal && digits.size() > 1 && digits[0] == '0') {
      fail("a decimal number has no zero in front");
    }
    const auto number = parse_number(magnitude);
    if (!number) fail("a number has at most 128 bits");
    item.number = *number;
    at_ += word.size();
    item.text = text_.text.substr(begin, at_ - begin);
  }

  void read_name(Literal &item) {
    const std::string_view word = text_.text.substr(at_, word_length());
    if (word == "None") {
      item.kind = Literal::Kind::none;
    } else if (word == "True" || word == "False") {
      item.kind = Literal::Kind::boolean;
      item.truth = word == "True";
    } else {
      fail("this is not a value");
    }
    at_ += word.size();
  }

  Word text_;
  size_t at_ = 0;
};

std::string quoted(std::string_view text) {
  std::string result = "'";
  for (const char c : text) {
    if (c == '\'' || c == '\\') result += '\\';
    result += c;
  }
  return result + "'";
}

std::string one_line(const Literal &literal) {
  switch (literal.kind) {
    case Literal::Kind::text:
      return quoted(literal.text);
    case Literal::Kind::number:
      return literal.text;
    case Literal::Kind::none:
      return "None";
    case Literal::Kind::boolean:
      return literal.truth ? "True" : "False";
    case Literal::Kind::tuple:
    case Literal::Kind::list:
      break;
  }
  const bool tuple = literal.kind == Literal::Kind::tuple;
  std::string text(1, tuple ? '(' : '[');
  for (size_t i = 0; i < literal.items.size(); ++i) {
    text += (i == 0 ? "" : ", ") + one_line(literal.items[i]);
  }
  if (tuple && literal.items.size() == 1) text += ',';
  return text + (tuple ? ")" : "]");
}

void add_indented(std::string &text, const Literal &literal, size_t indent, size_t width,
                  const char *end) {
  const std::string line = one_line(literal);
  text.append(indent, ' ');
  if (literal.items.empty() || indent + line.size() + 1 <= width) {
    text += line + end;
    return;
  }
  const bool tuple = literal.kind == Literal::Kind::tuple;
  text += tuple ? "(\n" : "[\n";
  for (const Literal &item : literal.items) add_indented(text, item, indent + 2, width, ",\n");
  text.append(indent, ' ');
  text += (tuple ? ")" : "]") + std::string(end);
}

}  // namespace

Literal parse_literal(Word text) { return Reader(text).read(); }

std::string indented_literal(const Literal &literal, size_t width) {
  std::string text;
  add_indented(text, literal, 0, width, "\n");
  return text;
}

}  // namespace tesselctl
