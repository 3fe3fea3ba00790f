#include "pdgen/names.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "pdgen/text.hpp"

namespace pdgen {

std::string name_prefix(const Program &program) { return "p4_pd_" + program.name + "_"; }

std::string match_spec_type(const Program &program, const Table &table) {
  return fmt::format("{}{}_match_spec_t", name_prefix(program), table.name);
}

std::string action_spec_type(const Program &program, const Action &action) {
  return fmt::format("{}{}_action_spec_t", name_prefix(program), action.name);
}

std::string param_member(const Param &param) { return "action_" + param.name; }

std::string companion_member(const KeyField &field) {
  return field.name + (field.match == Match::kTernary ? "_mask" : "_prefix_length");
}

// --- Names that tools show ------------------------------------------------------------------

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// The words of a '_'-separated name, joined in camelCase. The first keeps its case.
std::string camel_case(std::string_view words) {
  std::string joined;
  bool word_begins = false;
  for (const char c : words) {
    if (c == '_') {
      word_begins = !joined.empty();
      continue;
    }
    joined += word_begins ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
    word_begins = false;
  }
  return joined;
}

// "vlan" of "vlan_0_", the header of an element of a header stack; any other name unchanged.
std::string_view without_stack_index(std::string_view header) {
  if (header.empty() || header.back() != '_') return header;
  std::size_t end = header.size() - 1;
  while (end > 0 && is_digit(header[end - 1])) --end;
  const bool indexed = end < header.size() - 1 && end > 1 && header[end - 1] == '_';
  return indexed ? header.substr(0, end - 1) : header;
}

// What follows the instance in a field's name: "tagId" of "tag_0__tagId".
std::string_view without_instance(std::string_view field,
                                  const std::vector<std::string> &instance_prefixes) {
  std::size_t longest = 0;
  for (const std::string &prefix : instance_prefixes) {
    if (field.starts_with(prefix)) longest = std::max(longest, prefix.size());
  }
  if (longest > 0) return field.substr(longest);

  const std::size_t underscore = field.find('_');
  if (underscore == std::string_view::npos) return field;
  const std::string_view rest = field.substr(underscore + 1);
  std::size_t digits = 0;
  while (digits < rest.size() && is_digit(rest[digits])) ++digits;
  const bool indexed = digits > 0 && rest.substr(digits).starts_with("__");
  return indexed ? rest.substr(digits + 2) : rest;
}

}  // namespace

std::string validity_header(std::string_view field) {
  constexpr std::string_view kSuffix = "_valid";
  if (field.size() <= kSuffix.size() || !field.ends_with(kSuffix)) return {};
  return std::string(field.substr(0, field.size() - kSuffix.size()));
}

std::string long_name(std::string_view member) { return camel_case(member); }

std::string short_name(std::string_view member, const std::vector<std::string> &instance_prefixes) {
  const std::string header = validity_header(member);
  if (!header.empty()) return camel_case(without_stack_index(header)) + "Valid";
  return camel_case(without_instance(member, instance_prefixes));
}

std::vector<std::string> cli_names(const std::vector<KeyField> &key,
                                   const std::vector<std::string> &instance_prefixes) {
  std::vector<std::string> names;
  for (const KeyField &field : key) {
    names.push_back(field.is_validity_bit
                        ? short_name(field.name, instance_prefixes)
                        : camel_case(without_instance(field.name, instance_prefixes)));
  }
  std::vector<std::string> distinct = names;
  for (std::size_t i = 0; i < key.size(); ++i) {
    for (std::size_t j = 0; j < key.size(); ++j) {
      const bool either_is_validity = key[i].is_validity_bit || key[j].is_validity_bit;
      if (i != j && !either_is_validity && names[i] == names[j]) {
        distinct[i] = camel_case(key[i].name);
      }
    }
  }
  return distinct;
}

const FieldHint *hint_of(std::string_view field, unsigned width, const FieldFacts &facts) {
  for (const FieldHint &row : facts.hints) {
    const bool named = std::ranges::find(row.fields, field) != row.fields.end();
    const bool ends_so = std::ranges::any_of(
        row.suffixes, [&](const std::string &suffix) { return field.ends_with(suffix); });
    if (named || ends_so || (row.width != 0 && row.width == width)) return &row;
  }
  return nullptr;
}

CapturedPart captured_part(const Snapshots &snapshots, std::string_view name) {
  const std::size_t end = name.find_last_not_of("0123456789");
  if (end == name.npos || name[end] != '_' || end + 1 == name.size()) return {};
  if (find_row(snapshots.capture, name) != nullptr) return {};
  const std::string_view digits = name.substr(end + 1);
  if (digits.size() > 4 || (digits.size() > 1 && digits[0] == '0')) return {};
  return {find_row(snapshots.capture, name.substr(0, end)),
          static_cast<unsigned>(std::atoi(digits.data()))};
}

}  // namespace pdgen
