#include "tesselctl/image_value.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/value.hpp"

namespace tesselctl {

Attributes::Attributes(const ValueScanner &scanner) {
  std::string_view rest = scanner.rest();
  size_t column = scanner.column();
  while (!rest.empty()) {
    const size_t blank = std::min(rest.find(' '), rest.size());
    if (blank != 0) words_.push_back(split_assignment({rest.substr(0, blank), column}));
    const size_t skip = std::min(blank + 1, rest.size());
    rest.remove_prefix(skip);
    column += skip;
  }
}

const Word *Attributes::find(std::string_view name) const {
  for (const Assignment &word : words_) {
    if (word.name.text == name) return &word.value;
  }
  return nullptr;
}

uint64_t Attributes::number(std::string_view name, uint64_t limit, uint64_t otherwise) const {
  const Word *word = find(name);
  return word == nullptr ? otherwise : parse_limited(*word, limit, std::string(name));
}

void Attributes::refuse_others(std::initializer_list<std::string_view> names) const {
  for (const Assignment &word : words_) {
    if (std::find(names.begin(), names.end(), word.name.text) == names.end()) {
      throw Fault(word.name, "nothing of this name belongs here");
    }
  }
}

std::optional<p4_pd_bytes_meter_spec_t> Attributes::meter() const {
  const Word *word = find("meter");
  if (word == nullptr) return {};
  return parse_meter(*word);
}

std::vector<uint64_t> number_list(const Word *word) {
  std::vector<uint64_t> numbers;
  if (word == nullptr || word->text.empty()) return numbers;
  Word rest = *word;
  while (true) {
    const size_t comma = std::min(rest.text.find(','), rest.text.size());
    numbers.push_back(parse_limited(rest.first(comma), 0xffffffffu, "a number"));
    if (comma == rest.text.size()) return numbers;
    rest = rest.from(comma + 1);
  }
}

void ActionValue::read(ValueScanner &scanner) {
  scanner.expect("(");
  name = {{}, scanner.column() + 1};
  name.text = scanner.quoted();
  if (action == nullptr || action->name != name.text) {
    action = find_action_record(name.text);
    if (action == nullptr) throw Fault(name, "no action has this name");
  }
  scanner.expect(",(");
  if (parameters.size() <= action->size) parameters.resize(action->size + 1);
  scanner.record(*action, parameters.data());
  scanner.expect(")),");
}

void ImageEntry::read(const TableInfo &table, ValueScanner &scanner) {
  scanner.expect("((");
  has_key = !scanner.accept("(),");
  if (has_key) {
    if (!table.keyed()) scanner.fail("'(),', for the table has no key");
    key.resize(table.record->size);
    scanner.expect("( ");
    scanner.record(*table.record, key.data());
    scanner.expect("),");
  }
  has_action = !table.indirect();
  has_target = table.indirect() && !scanner.accept(")");
  if (has_action) {
    action.read(scanner);
    scanner.expect(")");
  } else if (has_target) {
    target_is_group = scanner.accept("('setGrpHdl',(");
    if (!target_is_group) scanner.expect("('setMbrHdl',(");
    target_word = scanner.word();
    target = scanner.hexadecimal();
    scanner.expect(",)))");
  }
  scanner.expect(",(");
  priority = static_cast<uint32_t>(scanner.decimal());
  scanner.expect(",True))");
}

void add_entry_line(Row &row, const TableInfo &table, ValueScanner &scanner) {
  ImageEntry value;
  value.read(table, scanner);
  if (value.has_key) add_record(row, Row::kKey, table.shape(), value.key.data());
  if (value.has_key && table.has_priority()) row.number("priority", value.priority);
  const Attributes extras(scanner);
  for (const Assignment &word : extras.words()) {
    row.text(word.name.text, word.value.text);
  }
  if (value.has_target) {
    row.text(value.target_is_group ? "group" : "member", fmt::format("#{}", value.target));
  }
  if (!value.has_action) return;
  row.text("action", value.action.action->name);
  add_record(row, Row::kParameters, action_shape(value.action.action->name),
             value.action.parameters.data());
}

}  // namespace tesselctl
