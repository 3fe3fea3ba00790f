// Reads the literals that introspection writes: nested tuples of texts, numbers, None, True, False.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pd_test {

struct Literal {
  enum Kind { kTuple, kText, kNumber, kWord };

  Kind kind = kTuple;
  std::string text;  // contents of a text, digits of a number, the word
  std::vector<Literal> items;

  bool is_tuple(size_t size) const { return kind == kTuple && items.size() == size; }
  bool is(std::string_view contents) const { return kind == kText && text == contents; }
  bool is_word(std::string_view word) const { return kind == kWord && text == word; }
  const Literal &operator[](size_t i) const { return items.at(i); }

  uint64_t number() const { return kind == kNumber ? std::stoull(text, nullptr, 0) : ~0ull; }
  // A hexadecimal number of up to 128 bits, most significant byte first.
  std::array<uint8_t, 16> bytes() const {
    std::array<uint8_t, 16> value{};
    for (const char digit : text.substr(2)) {
      const auto nibble = std::string_view("0123456789abcdef").find(static_cast<char>(digit | 32));
      for (size_t i = 0; i < 16; ++i) {
        const unsigned low = i == 15 ? static_cast<unsigned>(nibble) : value[i + 1] >> 4;
        value[i] = static_cast<uint8_t>(value[i] * 16u | low);
      }
    }
    return value;
  }
};

class LiteralReader {
 public:
  explicit LiteralReader(std::string_view text) : rest_(text) {}

  // The whole text as one literal; commas at the top make a tuple of it.
  std::optional<Literal> read() {
    Literal list;
    if (!read_list(list) || !rest_.empty()) return std::nullopt;
    return list;
  }

 private:
  void skip_blanks() {
    while (rest_.starts_with(' ')) rest_.remove_prefix(1);
  }
  bool take(char c) {
    skip_blanks();
    if (!rest_.starts_with(c)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  // Items up to a closing parenthesis or the end; one item without a comma stands for itself.
  bool read_list(Literal &list) {
    bool comma = false;
    for (skip_blanks(); !rest_.empty() && !rest_.starts_with(')'); skip_blanks()) {
      if (!list.items.empty() && !comma) return false;
      list.items.emplace_back();
      if (!read_item(list.items.back())) return false;
      comma = take(',');
    }
    if (list.items.size() == 1 && !comma) {
      Literal only = std::move(list.items.front());
      list = std::move(only);
    }
    return true;
  }

  bool read_item(Literal &item) {
    if (take('(')) return read_list(item) && take(')');
    if (take('\'')) {
      item.kind = Literal::kText;
      const size_t end = rest_.find('\'');
      if (end == std::string_view::npos) return false;
      item.text = rest_.substr(0, end);
      rest_.remove_prefix(end + 1);
      return item.text.find('\\') == std::string::npos;
    }
    size_t end = rest_.starts_with('-') ? 1 : 0;
    while (end < rest_.size() && std::isalnum(static_cast<unsigned char>(rest_[end]))) ++end;
    item.text = rest_.substr(0, end);
    rest_.remove_prefix(end);
    item.kind = Literal::kWord;
    if (item.text == "None" || item.text == "True" || item.text == "False") return true;
    item.kind = Literal::kNumber;
    return is_number(item.text);
  }

  static bool is_number(std::string &text) {
    if (text.ends_with('L')) text.pop_back();
    const bool hex = text.starts_with("0x");
    const std::string digits = text.substr(hex ? 2 : text.starts_with('-') ? 1 : 0);
    const bool octal = !hex && digits.size() > 1 && digits[0] == '0';
    const char *allowed = hex ? "0123456789abcdefABCDEF" : "0123456789";
    return !digits.empty() && !octal && digits.find_first_not_of(allowed) == std::string::npos;
  }

  std::string_view rest_;
};

inline std::optional<Literal> read_literal(std::string_view text) {
  return LiteralReader(text).read();
}

}  // namespace pd_test
