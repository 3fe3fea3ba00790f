// One TOML file as a tree of values that know their lines. The parser itself is compiled in
// toml_reader.cpp alone.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "pdgen/check/diagnostics.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

struct TomlMember;

// Kinds that no catalogue uses: floating-point numbers, dates and times.
struct TomlOther {};

struct TomlValue {
  using Array = std::vector<TomlValue>;
  using Table = std::vector<TomlMember>;

  Place place;
  std::variant<TomlOther, bool, std::int64_t, std::string, Array, Table> data;
  bool has_headers = false;  // an array that [[KEY]] makes

  // The member of that key, null if there is none or this is no table.
  const TomlMember *find(std::string_view key) const;
  // "a string", "a table", ... for messages.
  std::string_view kind_text() const;
};

struct TomlMember {
  std::string key;
  Place key_place;
  TomlValue value;
};

// The root table of `text`. A syntax error is reported with the parser's message and line, under
// the key "syntax".
std::optional<TomlValue> parse_toml(const std::string &path, std::string_view text,
                                    Diagnostics &diagnostics);

}  // namespace pdgen
