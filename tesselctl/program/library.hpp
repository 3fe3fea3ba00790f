// The control-plane library as the tool sees it: its exports, tables, actions and profiles by name.
// Everything is constant data; the index over it is built at the first look-up, so that a start
// costs nothing.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "bindings/export_table.hpp"
#include "soft_program.h"
#include "tesselctl/text/fault.hpp"

namespace tesselctl {

// The export of that family, object and action, or null. Object and action may be empty.
const bindings::Export *find_export(std::string_view family, std::string_view object,
                                    std::string_view action = {});

// All exports of a family, in the order of the header.
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

// The description of a named object of the program: soft_table_t, soft_meter_t and so on.
template <class Row>
std::span<const Row> program_rows();
template <>
std::span<const soft_table_t> program_rows();
template <>
std::span<const soft_profile_t> program_rows();
template <>
std::span<const soft_counter_t> program_rows();
template <>
std::span<const soft_meter_t> program_rows();
template <>
std::span<const soft_register_t> program_rows();
template <>
std::span<const soft_hash_t> program_rows();
template <>
std::span<const soft_digest_t> program_rows();
template <>
std::span<const soft_value_set_t> program_rows();

// The row whose name is the word. Throws Fault "no KIND has this name" with a near name.
template <class Row>
const Row &resolve(Word word, std::span<const Row> rows, std::string_view kind);

template <class Row>
const Row &resolve_object(Word word, std::string_view kind) {
  return resolve(word, program_rows<Row>(), kind);
}

[[noreturn]] void throw_unknown(Word word, std::string_view kind,
                                const std::vector<std::string_view> &names);

template <class Row>
const Row &resolve(Word word, std::span<const Row> rows, std::string_view kind) {
  std::vector<std::string_view> names;
  for (const Row &row : rows) {
    if (word.text == row.name) return row;
    names.push_back(row.name);
  }
  throw_unknown(word, kind, names);
}

}  // namespace tesselctl
