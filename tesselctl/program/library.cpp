#include "tesselctl/program/library.hpp"

#include <algorithm>
#include <stdexcept>

#include "common/nearest.hpp"
#include "tesselctl/program/export_index.hpp"

namespace tesselctl {

namespace {

using bindings::Export;

const bindings::Binding *used = nullptr;

}  // namespace

const bindings::Binding &binding() {
  if (used == nullptr) throw std::logic_error("there is no program yet");
  return *used;
}

bool has_program() { return used != nullptr; }

void use_program(const bindings::Binding &binding) { used = &binding; }

const Export *find_export(std::string_view family, std::string_view object,
                          std::string_view action) {
  static const ExportIndex index(binding());
  return index.find(family, object, action);
}

std::string function_prefix() { return std::string("p4_pd_") + binding().program + "_"; }

void for_each_export(const std::function<void(const Export &)> &visit) {
  for (const bindings::ExportList *list : std::span(binding().lists, binding().list_count)) {
    for (const Export &row : std::span(list->rows, list->count)) visit(row);
  }
}

void for_each_export(std::string_view family, const std::function<void(const Export &)> &visit) {
  for_each_export([&](const Export &row) {
    if (family == row.family) visit(row);
  });
}

std::span<const bindings::Record> tables() { return binding().tables.list(); }
std::span<const bindings::Record> actions() { return binding().actions.list(); }

const bindings::Record *find_record(std::span<const bindings::Record> records,
                                    std::string_view name) {
  for (const bindings::Record &record : records) {
    if (is_name(record.name, name)) return &record;
  }
  return nullptr;
}

const bindings::Record &action_record(std::string_view name) {
  static const NameIndex<bindings::Record> by_name(actions());
  if (const bindings::Record *found = by_name.find(name)) return *found;
  throw std::logic_error("the binding has no action " + std::string(name));
}

const soft_program_t &program() { return *binding().description; }

void throw_unknown(Word word, std::string_view kind, const std::vector<std::string_view> &names) {
  throw Fault(word, "no " + std::string(kind) + " has this name",
              common::nearest(word.text, names));
}

}  // namespace tesselctl
