// The control-plane library as the tool sees it: its exports, tables, actions and profiles by name.
// Everything is constant data of the program that the process works on; the index over it is built
// at the first look-up, so that a start costs nothing.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "bindings/export_table.hpp"
#include "common/nearest.hpp"
#include "soft_program.h"
#include "tesselctl/text/fault.hpp"

namespace tesselctl {

// Throws std::logic_error before there is a program.
const bindings::Binding &binding();
bool has_program();
// Once, before anything else here.
void use_program(const bindings::Binding &binding);

// Whether a name is the text: most differ in the first characters, while a length takes all.
inline bool is_name(const char *name, std::string_view text) {
  for (const char c : text) {
    if (c == '\0' || *name++ != c) return false;
  }
  return *name == '\0';
}

// The export of that family, object and action, or null. Object and action may be empty.
const bindings::Export *find_export(std::string_view family, std::string_view object,
                                    std::string_view action = {});

// What the names of all functions begin with.
std::string function_prefix();

// All exports, or those of a family, in the order of the header.
void for_each_export(const std::function<void(const bindings::Export &)> &visit);
void for_each_export(std::string_view family,
                     const std::function<void(const bindings::Export &)> &visit);

std::span<const bindings::Record> tables();
std::span<const bindings::Record> actions();
const bindings::Record &action_record(std::string_view name);
// The same, or null.
const bindings::Record *find_record(std::span<const bindings::Record> records,
                                    std::string_view name);

// The program as the device learns it.
const soft_program_t &program();

// The named objects of a kind: soft_table_t, soft_meter_t and so on.
template <class Row>
struct ProgramObjects {
  std::string_view keyword;  // of images and answers: "valueset"
  std::string_view noun;     // "value set"
  const Row *soft_program_t::*rows;
  uint32_t soft_program_t::*count;
};
template <class Row>
inline constexpr ProgramObjects<Row> kObjects = {};
template <>
inline constexpr ProgramObjects<soft_table_t> kObjects<soft_table_t> = {
    "table", "table", &soft_program_t::tables, &soft_program_t::table_count};
template <>
inline constexpr ProgramObjects<soft_profile_t> kObjects<soft_profile_t> = {
    "profile", "profile", &soft_program_t::profiles, &soft_program_t::profile_count};
template <>
inline constexpr ProgramObjects<soft_counter_t> kObjects<soft_counter_t> = {
    "counter", "counter", &soft_program_t::counters, &soft_program_t::counter_count};
template <>
inline constexpr ProgramObjects<soft_meter_t> kObjects<soft_meter_t> = {
    "meter", "meter", &soft_program_t::meters, &soft_program_t::meter_count};
template <>
inline constexpr ProgramObjects<soft_register_t> kObjects<soft_register_t> = {
    "register", "register", &soft_program_t::registers, &soft_program_t::register_count};
template <>
inline constexpr ProgramObjects<soft_hash_t> kObjects<soft_hash_t> = {
    "hash", "hash calculation", &soft_program_t::hashes, &soft_program_t::hash_count};
template <>
inline constexpr ProgramObjects<soft_digest_t> kObjects<soft_digest_t> = {
    "digest", "digest", &soft_program_t::digests, &soft_program_t::digest_count};
template <>
inline constexpr ProgramObjects<soft_value_set_t> kObjects<soft_value_set_t> = {
    "valueset", "value set", &soft_program_t::value_sets, &soft_program_t::value_set_count};

template <class Row>
std::span<const Row> program_rows() {
  return {program().*kObjects<Row>.rows, program().*kObjects<Row>.count};
}

[[noreturn]] void throw_unknown(Word word, std::string_view kind,
                                const std::vector<std::string_view> &names);

// Rows that outlive it, by their names.
template <class Row>
class NameIndex {
 public:
  explicit NameIndex(std::span<const Row> rows) : rows_(rows) {
    for (const Row &row : rows) by_name_.emplace(row.name, &row);
  }
  // Or null.
  const Row *find(std::string_view name) const {
    const auto found = by_name_.find(name);
    return found == by_name_.end() ? nullptr : found->second;
  }
  // Throws Fault "no KIND has this name" with a near name.
  const Row &resolve(Word word, std::string_view kind) const {
    if (const Row *found = find(word.text)) return *found;
    std::vector<std::string_view> names;
    for (const Row &row : rows_) names.push_back(row.name);
    throw_unknown(word, kind, names);
  }

 private:
  std::span<const Row> rows_;
  std::unordered_map<std::string_view, const Row *> by_name_;
};

template <class Row>
const NameIndex<Row> &program_index() {
  static const NameIndex<Row> index(program_rows<Row>());
  return index;
}
// The object of that name, or null.
template <class Row>
const Row *find_object(std::string_view name) {
  return program_index<Row>().find(name);
}
template <class Row>
const Row &resolve_object(Word word) {
  return program_index<Row>().resolve(word, kObjects<Row>.noun);
}

// The actions of a table or profile.
template <class Object>
std::vector<const bindings::Record *> actions_of(const Object &object) {
  std::vector<const bindings::Record *> found;
  for (const soft_action_t &action : std::span(object.actions, object.action_count)) {
    found.push_back(&action_record(action.name));
  }
  return found;
}
// The one of that name, or null.
template <class Object>
const bindings::Record *find_action(const Object &object, std::string_view name) {
  for (const soft_action_t &action : std::span(object.actions, object.action_count)) {
    if (is_name(action.name, name)) return &action_record(name);
  }
  return nullptr;
}
// Throws Fault when there is none.
template <class Object>
const bindings::Record &resolve_action(const Object &object, Word name) {
  if (const bindings::Record *action = find_action(object, name.text)) return *action;
  std::vector<std::string_view> names;
  for (const bindings::Record *action : actions_of(object)) names.emplace_back(action->name);
  throw Fault(name, std::string(object.name) + " has no action of this name",
              common::nearest(name.text, names));
}

}  // namespace tesselctl
