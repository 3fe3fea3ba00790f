// What placeholders mean in the Python package of a program: names that Python takes, and types.
#include <algorithm>
#include <array>

#include "pdgen/families/members.hpp"

namespace pdgen {

namespace {

using S = const Scope &;
using Text = std::string;

template <std::size_t N>
bool is_among(const std::array<std::string_view, N> &words, std::string_view word) {
  return std::ranges::find(words, word) != words.end();
}

// A name that Python takes for itself has a '_' behind it.
Text python_name(const Text &name) {
  static constexpr std::array kWords = std::to_array<std::string_view>(
      {"False", "None",     "True",  "and",    "as",   "assert", "async",  "await",    "break",
       "class", "continue", "def",   "del",    "elif", "else",   "except", "finally",  "for",
       "from",  "global",   "if",    "import", "in",   "is",     "lambda", "nonlocal", "not",
       "or",    "pass",     "raise", "return", "try",  "while",  "with",   "yield"});
  return is_among(kWords, name) ? name + "_" : name;
}

// So has a field that is named as an argument of the calls about entries.
Text argument(S s) {
  static constexpr std::array kArguments = std::to_array<std::string_view>(
      {"self", "cls", "action", "priority", "ttl", "meter", "entry", "key", "from_hardware", "pipe",
       "packets", "bytes", "hash", "keep", "columns", "rows"});
  const Text &label = s.get<ToolField>().label;
  return is_among(kArguments, label) ? label + "_" : python_name(label);
}

// The types are those of pd/notation.pyi.
Text python_type(S s) {
  const std::string_view type = s.get<Parameter>().type;
  const std::string_view name = s.get<Parameter>().name;
  if (type.ends_with("_cb_t")) return "Callback";
  if (name == "cookie" || name == "client_data") return "object";
  if (type == "const char *") return "str | bytes | None";
  if (type.find("placement_t") != type.npos || type.find("message_t") != type.npos) {
    return "Opaque | None";
  }
  if (type.ends_with('*')) return type.starts_with("const ") ? "Input" : "Writable";
  if (type == "p4_pd_device_target_t") return "TargetLike";
  if (type == "p4_pd_session_handle_t" || name == "device") return "SessionLike";
  const bool is_number = type.starts_with("uint") || type.starts_with("int") ||
                         type.ends_with("_handle_t") || type == "bool";
  return is_number ? "SupportsIndex" : "Sequence[int]";
}

Text python_result(S s) {
  const std::string_view type = s.get<Function>().result;
  if (type == "void") return "None";
  if (type == "const char *") return "str | None";
  return type == "bool" ? "bool" : "int";
}

template <auto Member>
Text name(S scope) {
  return python_name(value_of<Member>(scope));
}

struct Placeholder {
  std::string_view kind;
  std::string_view name;
  Text (*text)(S scope);
};
constexpr Placeholder kPlaceholders[] = {
    {"table", "python", name<&Table::name>},
    {"action", "python", name<&Action::name>},
    {"digest", "python", name<&Digest::name>},
    {"tool_field", "argument", argument},
    {"tool_field", "attribute", name<&ToolField::label>},
    {"parameter", "python_name", name<&Parameter::name>},
    {"parameter", "python_type", python_type},
    {"function", "python_result", python_result},
};

}  // namespace

std::function<Text(S)> find_python_placeholder(const Kinds &kinds, std::string_view name) {
  for (auto kind = kinds.rbegin(); kind != kinds.rend(); ++kind) {
    for (const Placeholder &row : kPlaceholders) {
      if (row.kind == *kind && row.name == name) return row.text;
    }
  }
  return nullptr;
}

}  // namespace pdgen
