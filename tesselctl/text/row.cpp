#include "tesselctl/text/row.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/text/utf8.hpp"

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
  return add({Item::Kind::list, {}, std::string(name), text, {}, {}});
}

Row &Row::field(std::string_view group, std::string_view name, std::string value, ValueKind of) {
  const bool is_number = value.find_first_not_of("0123456789") == std::string::npos;
  const Item::Kind kind = is_number ? Item::Kind::number : Item::Kind::text;
  return add({kind, group, std::string(name), std::move(value), {}, of});
}

const Item *Row::find(std::string_view name) const {
  const auto found = std::find_if(items_.begin(), items_.end(),
                                  [&](const Item &item) { return same_name(item.name, name); });
  return found == items_.end() ? nullptr : &*found;
}

std::string item_words(const Item &item) {
  if (item.kind == Item::Kind::object) return item.value;
  std::string text = item.name + "=" + item.value;
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
