#include "tesselctl/text/row.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <optional>

#include "tesselctl/text/number.hpp"
#include "tesselctl/text/utf8.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

bool same_name(std::string_view a, std::string_view b) {
  const auto next = [](std::string_view text, size_t &at) {
    while (at < text.size() && text[at] == '_') ++at;
    if (at == text.size()) return '\0';
    const char c = text[at++];
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  };
  size_t i = 0;
  size_t j = 0;
  while (true) {
    const char left = next(a, i);
    if (left != next(b, j)) return false;
    if (left == '\0') return true;
  }
}

// ---- Kinds of values ----

namespace {

std::string lowered(std::string_view text) {
  std::string lower(text);
  for (char &c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

Number parse_wanted(std::string_view text) {
  if (const auto number = parse_number(text)) return *number;
  throw Fault("this is not a number");
}

}  // namespace

bool matches_pattern(std::string_view text, std::string_view pattern) {
  const std::string lower_text = lowered(text);
  const std::string lower_pattern = lowered(pattern);
  text = lower_text;
  pattern = lower_pattern;
  const size_t star = pattern.find('*');
  if (star == std::string_view::npos) return text == pattern;
  if (!text.starts_with(pattern.substr(0, star))) return false;
  text.remove_prefix(star);
  pattern.remove_prefix(star + 1);
  while (true) {
    const size_t next = pattern.find('*');
    const std::string_view piece = pattern.substr(0, next);
    if (next == std::string_view::npos) return text.ends_with(piece);
    const size_t found = text.find(piece);
    if (found == std::string_view::npos) return false;
    text.remove_prefix(found + piece.size());
    pattern.remove_prefix(next + 1);
  }
}

bool matches_pattern(std::string_view shown, Word pattern, std::string_view characters) {
  const std::string lower = lowered(pattern.text);
  const bool digit_first = characters.find(':') == std::string_view::npos;
  const bool can_begin = !digit_first || lower.front() == '*' || is_digit(lower.front());
  const bool can_be =
      lower.find_first_not_of(std::string(characters) + '*') == std::string_view::npos;
  if (!can_begin || !can_be) throw Fault("no row can have this");
  return matches_pattern(shown, lower);
}

bool matches_text(const void *, std::string_view shown, Word wanted) {
  return is_pattern(wanted.text) ? matches_pattern(shown, wanted.text) : shown == wanted.text;
}

bool matches_number(const void *most, std::string_view shown, Word wanted) {
  const bool is_hexadecimal = shown.starts_with("0x");
  if (is_pattern(wanted.text)) {
    return matches_pattern(shown, wanted, is_hexadecimal ? "0123456789abcdefx" : "0123456789");
  }
  const Number number = parse_wanted(wanted.text);
  const uint64_t limit = *static_cast<const uint64_t *>(most);
  if (number.high != 0 || number.low > limit) {
    throw Fault(fmt::format("the number is at most {}", limit));
  }
  return parse_number(shown) == number;
}

bool matches_real(const void *, std::string_view shown, Word wanted) {
  if (is_pattern(wanted.text)) return matches_pattern(shown, wanted, "0123456789.e+-");
  const std::optional<float> number = parse_float(wanted.text);
  if (!number) throw Fault("this is not a number");
  return number == parse_float(shown);
}

bool matches_numbered(const void *, std::string_view shown, Word wanted) {
  const auto number = [](std::string_view text) { return text.substr(text.starts_with('#')); };
  return matches_number(&kMost<uint32_t>, number(shown), {number(wanted.text), wanted.column});
}

bool matches_numbers(const void *, std::string_view shown, Word wanted) {
  if (is_pattern(wanted.text)) return matches_pattern(shown, wanted, "0123456789,");
  const auto numbers_of = [](std::string_view list) {
    std::vector<Number> numbers;
    while (!list.empty()) {
      const auto number = parse_number(take_until(list, ','));
      if (!number) throw Fault("this is not a list of numbers");
      numbers.push_back(*number);
    }
    return numbers;
  };
  return numbers_of(shown) == numbers_of(wanted.text);
}

// ---- Rows ----

namespace {

std::string json_value(const Item &item) {
  switch (item.kind) {
    case Item::Kind::number:
      // Hexadecimal notation is for people.
      if (item.value.starts_with("0x")) return json_string(item.value);
      return item.value;
    case Item::Kind::list:
      return "[" + item.value + "]";
    default:
      return json_string(item.value);
  }
}

}  // namespace

Row &Row::list(std::string_view name, const std::vector<uint64_t> &values) {
  std::string text;
  for (const uint64_t value : values) text += (text.empty() ? "" : ",") + std::to_string(value);
  return add({Item::Kind::list, {}, std::string(name), text, {}, {matches_numbers}});
}

Row &Row::hexadecimal(std::string_view name, uint64_t value, ValueKind of) {
  return add({Item::Kind::text, {}, std::string(name), tesselctl::hexadecimal(value), {}, of});
}

Row &Row::real(std::string_view name, float value) {
  return add(
      {Item::Kind::number, {}, std::string(name), fmt::format("{}", value), {}, {matches_real}});
}

Row &Row::field(std::string_view group, std::string_view name, std::string value, ValueKind of) {
  const bool is_number = value.find_first_not_of("0123456789") == std::string::npos;
  const Item::Kind kind = is_number ? Item::Kind::number : Item::Kind::text;
  return add({kind, group, std::string(name), std::move(value), {}, of});
}

Row Row::with_rates(const RateOf &rate_of) const {
  Row row = *this;
  std::string before;
  for (Item &item : row.items_) {
    if (!item.is_amount) {
      before += item.value + " ";
      continue;
    }
    item.value = rate_of(before + item.name, item.value);
    item.group = kRates;
    item.unit = "/s";
    if (item.kind == Item::Kind::number) item.of = {matches_real};
  }
  return row;
}

Row &Row::anything(std::string_view name, ValueKind of) {
  unshown_.push_back({Item::Kind::text, kKey, std::string(name), "*", {}, of});
  return *this;
}

void Row::change(std::string_view name, std::string value) {
  std::ranges::find(items_, name, &Item::name)->value = std::move(value);
}

Row &Row::append(std::string_view name, const Row &other) {
  const size_t first = items_.size();
  append(other);
  for (size_t at = first; at < items_.size(); ++at) items_[at].group = name;
  if (first < items_.size()) items_[first].before = name;
  return *this;
}

const Item *Row::find(std::string_view name) const {
  const Item *found = nullptr;
  for (const auto *items : {&items_, &unshown_}) {
    for (const Item &item : *items) {
      if (same_name(item.name, name)) return &item;
      if (found == nullptr && goes_by(item, name)) found = &item;
    }
  }
  return found;
}

std::string item_words(const Item &item) {
  std::string text(item.before);
  if (!text.empty()) text += ' ';
  if (item.kind == Item::Kind::object) return text + item.value;
  text += item.name + "=" + item.value;
  if (!item.unit.empty()) text += " " + std::string(item.unit);
  return text;
}

std::string Row::words() const {
  std::string text;
  for (const Item &item : items_) {
    if (!text.empty()) text += ' ';
    text += item_words(item);
  }
  return text;
}

std::string Row::json() const {
  std::string text = "{";
  std::string_view open;
  for (const Item &item : items_) {
    if (item.group != open && !open.empty()) text += '}';
    if (text.size() > 1) text += ',';
    if (item.group != open && !item.group.empty()) {
      text += json_string(item.group) + ":{";
    }
    open = item.group;
    text += json_string(item.name) + ":" + json_value(item);
  }
  return text + (open.empty() ? "}" : "}}");
}

std::string json_string(std::string_view text) {
  std::string quoted = "\"";
  for (size_t at = 0; at < text.size();) {
    const size_t size = utf8_length(text.substr(at));
    const auto byte = static_cast<unsigned char>(text[at]);
    if (size == 0) {
      quoted += "\\ufffd";
    } else if (byte == '"' || byte == '\\') {
      quoted += {'\\', text[at]};
    } else if (byte < 0x20) {
      quoted += fmt::format("\\u{:04x}", byte);
    } else {
      quoted += text.substr(at, size);
    }
    at += std::max<size_t>(1, size);
  }
  return quoted + "\"";
}

}  // namespace tesselctl
