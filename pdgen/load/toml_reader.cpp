#include "pdgen/load/toml_reader.hpp"

// The parser asserts what it then checks, and some texts fail that: they are faults, not aborts.
#undef NDEBUG
#define TOML_ASSERT(expression) static_assert(true)
#define TOML_EXCEPTIONS 0
#include <toml++/toml.h>

#include <sstream>
#include <utility>

namespace pdgen {

namespace {

Place place_of(const std::string &path, const toml::source_region &source) {
  return {path, source.begin.line};
}

TomlValue convert(const std::string &path, const toml::node &node) {
  TomlValue value;
  value.place = place_of(path, node.source());
  if (const auto *table = node.as_table()) {
    TomlValue::Table members;
    for (const auto &[key, member] : *table) {
      members.push_back(
          {std::string(key.str()), place_of(path, key.source()), convert(path, member)});
    }
    value.data = std::move(members);
  } else if (const auto *array = node.as_array()) {
    TomlValue::Array elements;
    for (const toml::node &element : *array) elements.push_back(convert(path, element));
    const auto *first = array->empty() ? nullptr : array->front().as_table();
    value.has_headers = first != nullptr && !first->is_inline();
    value.data = std::move(elements);
  } else if (const auto *text = node.as_string()) {
    value.data = text->get();
  } else if (const auto *number = node.as_integer()) {
    value.data = number->get();
  } else if (const auto *boolean = node.as_boolean()) {
    value.data = boolean->get();
  }
  return value;
}

// What has no end, if a new key or header begins in the line of an error: brackets that are open.
std::string open_value(std::string_view text, std::size_t error_line) {
  std::istringstream lines{std::string(text)};
  std::size_t begin = 0;
  int open = 0;
  std::string line;
  for (std::size_t number = 1; std::getline(lines, line) && number < error_line; ++number) {
    if (open == 0) begin = number;
    bool is_quoted = false;
    for (const char c : line.substr(0, line.find('#'))) {
      if (c == '"') is_quoted = !is_quoted;
      if (!is_quoted && (c == '[' || c == '{')) ++open;
      if (!is_quoted && (c == ']' || c == '}')) --open;
    }
  }
  if (open <= 0 || line.starts_with(' ')) return "";
  return fmt::format("; the value that begins in line {} has no end", begin);
}

// The line of the first character outside ASCII that stands in neither a string nor a comment, 0
// without one: the parser takes some of them for impossible.
std::size_t foreign_line(std::string_view text) {
  std::size_t line = 1;
  std::string_view end;  // of the string or comment
  for (std::size_t i = text.starts_with("\xef\xbb\xbf") ? 3 : 0; i < text.size(); ++i) {
    const std::string_view rest = text.substr(i);
    line += rest[0] == '\n';
    if (rest.starts_with(end)) {
      i += std::max<std::size_t>(end.size(), 1) - 1;
      if (!std::exchange(end, "").empty()) continue;
      if (static_cast<unsigned char>(rest[0]) > 127) return line;
      if (rest[0] == '#') end = "\n";
      for (const char *const quote : {"'", "\"", "'''", "\"\"\""}) {
        if (rest.starts_with(quote)) end = quote;
      }
      if (rest[0] != '#' && !end.empty()) i += end.size() - 1;
    } else if (end[0] == '"' && (rest.starts_with("\\\"") || rest.starts_with("\\\\"))) {
      ++i;
    }
  }
  return 0;
}

}  // namespace

const TomlMember *TomlValue::find(std::string_view key) const {
  const Table *members = std::get_if<Table>(&data);
  if (members == nullptr) return nullptr;
  for (const TomlMember &member : *members) {
    if (member.key == key) return &member;
  }
  return nullptr;
}

std::string_view TomlValue::kind_text() const {
  static constexpr std::string_view kTexts[] = {"a number with a point, a date or a time",
                                                "true or false",
                                                "a whole number",
                                                "a string",
                                                "an array",
                                                "a table"};
  return kTexts[data.index()];
}

std::optional<TomlValue> parse_toml(const std::string &path, std::string_view text,
                                    Diagnostics &diagnostics) {
  if (const std::size_t line = foreign_line(text); line != 0) {
    diagnostics.report({path, line}, "syntax",
                       "only strings and comments have characters outside ASCII");
    return std::nullopt;
  }
  const toml::parse_result result = toml::parse(text, std::string_view(path));
  if (result) {
    TomlValue root = convert(path, result.table());
    root.place.line = 1;
    return root;
  }
  const Place place = place_of(path, result.error().source());
  diagnostics.report(place, "syntax", "{}{}", result.error().description(),
                     open_value(text, place.line));
  return std::nullopt;
}

}  // namespace pdgen
