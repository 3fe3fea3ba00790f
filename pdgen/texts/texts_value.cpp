// Value strings and printer lines, up to their digits.
#include <fmt/format.h>

#include "pdgen/names.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

namespace {

void add_number(ValueText &value, unsigned digits) {
  value.digits_at.push_back(value.text.size() + 2);
  value.text += "0x" + std::string(digits, '0') + ",";
}

}  // namespace

ValueText match_spec_value(const Table &table) {
  ValueText value{"( ", {}};
  for (const RecordField &field : table.record) add_number(value, digit_count(field.width));
  value.text += "),";
  return value;
}

ValueText action_value(const Action &action) {
  ValueText value{"('" + action.name + "',(", {}};
  for (const Param &param : action.params) add_number(value, digit_count(param.width));
  value.text += ")),";
  return value;
}

std::string match_spec_lines(const Program &program, const Table &table) {
  std::string lines = match_spec_type(program, table) + ":\n";
  for (const RecordField &field : table.record) {
    const bool annotated = table.key[field.key_index].partial && field.storage_bytes != 16 &&
                           field.role != RecordRole::kPrefixLength;
    const std::string mask = annotated ? " mask " + mask_text(member_bits(table, field)) : "";
    lines += " " + field.name + mask + ": 0x\n";
  }
  return lines;
}

std::string action_lines(const Action &action) {
  std::string lines;
  for (const Param &param : action.params) lines += " " + param_member(param) + ": 0x\n";
  return lines;
}

}  // namespace pdgen
