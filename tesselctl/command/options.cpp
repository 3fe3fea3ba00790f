#include "tesselctl/command/options.hpp"

#include <algorithm>

#include "common/nearest.hpp"
#include "tesselctl/program/value.hpp"

namespace tesselctl {

Options::Options(const Invocation &invocation, size_t at, std::span<const std::string_view> names)
    : command_(invocation.command) {
  if (names.empty()) refuse_arguments_from(invocation, at);
  for (size_t i = at; i < invocation.arguments.size(); ++i) {
    const Assignment word = split_assignment(invocation.arguments[i]);
    const auto known = std::find(names.begin(), names.end(), word.name.text);
    if (known == names.end()) {
      throw Fault(word.name, "the command takes no such word",
                  common::nearest(word.name.text, names));
    }
    if (has(*known)) throw Fault(word.name, std::string(*known) + " is given twice");
    given_.push_back({*known, word.value});
  }
}

const Word *Options::find(std::string_view name) const {
  for (const Option &option : given_) {
    if (option.name == name) return &option.value;
  }
  return nullptr;
}

Word Options::need(std::string_view name) const {
  if (const Word *value = find(name)) return *value;
  throw Fault(command_, std::string(name) + "= is missing");
}

uint64_t Options::number(std::string_view name, uint64_t limit, uint64_t least) const {
  return parse_limited(need(name), limit, std::string(name), least);
}

uint64_t Options::quantity(std::string_view name, const Unit &unit, uint64_t limit) const {
  return parse_limited(need(name), limit, std::string(name), 0, &unit);
}

size_t Options::choice_or(std::string_view name, std::initializer_list<std::string_view> words,
                          size_t otherwise) const {
  const Word *value = find(name);
  if (value == nullptr) return otherwise;
  std::string list;
  size_t at = 0;
  for (const std::string_view word : words) {
    if (value->text == word) return at;
    ++at;
    list += (list.empty() ? "" : ", ") + std::string(word);
  }
  throw Fault(*value, std::string(name) + " is one of " + list,
              common::nearest(value->text, words));
}

FieldWords::FieldWords(const Invocation &invocation, size_t at,
                       std::initializer_list<std::string_view> names,
                       const bindings::Record *record)
    : command(invocation.command) {
  for (const Word &word : invocation.arguments) {
    const std::string_view name = word.text.substr(0, word.text.find('='));
    const bool is_option = std::find(names.begin(), names.end(), name) != names.end();
    const bool is_field = record != nullptr && has_field_named(*record, name);
    const bool is_before = before.size() < at && fields.empty();
    (is_before || (is_option && !is_field) ? before : fields).push_back(word);
  }
}

RecordWriter FieldWords::record(const bindings::Record &record, std::string what) const {
  RecordWriter writer(record, std::move(what));
  for (const Word &word : fields) writer.set(split_assignment(word));
  return writer;
}

}  // namespace tesselctl
