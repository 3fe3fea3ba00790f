#include "tesselctl/program/field.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <vector>

#include "common/nearest.hpp"

namespace tesselctl {

namespace {

std::string normalized(std::string_view name) {
  std::string text;
  for (const char c : name) {
    if (c != '_') text += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return text;
}

// Whether name, normalized, is an end of the field's name that begins at a '_' or is all of it.
bool is_end_of(std::string_view name, std::string_view field) {
  for (size_t at = 0; at != std::string_view::npos; at = field.find('_', at)) {
    while (at < field.size() && field[at] == '_') ++at;
    if (normalized(field.substr(at)) == name) return true;
  }
  return false;
}

const Field *exactly_named(const bindings::Record &record, std::string_view name) {
  for (const Field &field : record.field_list()) {
    if (name == field.name || name == field.label) return &field;
  }
  return nullptr;
}

// "; it has a, b", or nothing of a record with more fields than people read.
std::string list_of_fields(const bindings::Record &record) {
  constexpr size_t kMost = 16;
  if (record.shown_count == 0) return "; it has none";
  if (record.shown_count > kMost) return {};
  std::string list;
  for (const Field &field : record.shown()) {
    list += fmt::format("{}{}", list.empty() ? "; it has " : ", ", field.label);
  }
  return list;
}

[[noreturn]] void throw_unknown_field(const bindings::Record &record, Word name,
                                      std::string_view what) {
  common::Nearest near(name.text);
  for (const Field &field : record.field_list()) near.consider(field.label);
  for (const Field &field : record.field_list()) near.consider(field.name);
  throw Fault(name,
              fmt::format("{} has no field of this name{}", what,
                          near.name().empty() ? list_of_fields(record) : ""),
              near.name());
}

}  // namespace

const char *match_name(Match match) {
  constexpr const char *kNames[] = {"exact", "ternary", "lpm"};
  return kNames[static_cast<size_t>(match)];
}

Match match_of(const bindings::Record &record) {
  Match match = Match::exact;
  for (const Field &field : record.shown()) {
    if (match != Match::ternary && field.match != Match::exact) match = field.match;
  }
  return match;
}

const char *notation_name(Notation notation) {
  constexpr const char *kNames[] = {"number", "port", "vport",  "v4addr",
                                    "v6addr", "mac",  "number", "number"};
  return kNames[static_cast<size_t>(notation)];
}

bool has_field_named(const bindings::Record &record, std::string_view name) {
  return exactly_named(record, name) != nullptr;
}

const Field &find_field(const bindings::Record &record, Word name, std::string_view what) {
  if (const Field *field = exactly_named(record, name.text)) return *field;
  const std::string wanted = normalized(name.text);
  std::vector<const Field *> found;
  for (const Field &field : record.field_list()) {
    const bool whole = wanted == normalized(field.name) || wanted == normalized(field.label);
    if (whole || is_end_of(wanted, field.name)) found.push_back(&field);
  }
  if (found.size() == 1) return *found[0];
  if (found.size() < 2) throw_unknown_field(record, name, what);
  throw Fault(name, fmt::format("{} has {} and {}, so this name does not say which", what,
                                found[0]->label, found[1]->label));
}

const Field *find_field(const bindings::Record &record, std::string_view name) {
  try {
    return &find_field(record, {name, 0}, "");
  } catch (const Fault &) {
    return nullptr;
  }
}

}  // namespace tesselctl
