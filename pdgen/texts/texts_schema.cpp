// Schemas: objects described as literals of nested tuples.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/texts/texts.hpp"

namespace pdgen {

unsigned digit_count(unsigned width) { return (width + 3) / 4; }

std::array<std::uint8_t, 16> member_bits(const Table &table, const RecordField &field) {
  const KeyField &key = table.key[field.key_index];
  if (field.role != RecordRole::kPrefixLength && key.wide()) return key.wide_key_bits;
  const std::uint32_t bits = field.role == RecordRole::kPrefixLength ? 0xffff : key.key_bits;
  std::array<std::uint8_t, 16> bytes{};
  for (unsigned i = 0; i < 4; ++i) bytes[15 - i] = static_cast<std::uint8_t>(bits >> 8 * i);
  return bytes;
}

std::uint32_t member_mask(const Table &table, const RecordField &field) {
  if (field.storage_bytes == 16) return 0;
  const std::array<std::uint8_t, 16> bytes = member_bits(table, field);
  std::uint32_t mask = 0;
  for (unsigned i = 12; i < 16; ++i) mask = mask << 8 | bytes[i];
  return mask;
}

namespace {

const char *hint_text(Hint hint) {
  constexpr const char *kTexts[] = {"None", "'mac'", "'v4addr'", "'v6addr'", "'port'", "'vport'"};
  return kTexts[static_cast<std::size_t>(hint)];
}

// The schemas of actions, in the byte order of their names.
template <class Row>
std::string sorted_action_schemas(const std::vector<Row> &rows) {
  std::vector<const Action *> actions;
  for (const Row &row : rows) actions.push_back(row.action.target);
  std::sort(actions.begin(), actions.end(),
            [](const Action *a, const Action *b) { return a->name < b->name; });
  std::string text;
  for (const Action *action : actions) text += action_schema(*action) + ",";
  return text;
}

}  // namespace

std::string mask_text(const std::array<std::uint8_t, 16> &bits) {
  std::string digits;
  for (const std::uint8_t byte : bits) digits += fmt::format("{:02x}", byte);
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
  const bool is_long = digits.size() > 8 || (digits.size() == 8 && digits[0] >= '8');
  return "0x" + digits + (is_long ? "L" : "");
}

std::string match_spec_schema(const Table &table) {
  std::string text = "(";
  for (const RecordField &field : table.record) {
    text += fmt::format("( '{}','{}',{},{},{},None,None),", field.cli_name, field.name, field.width,
                        mask_text(member_bits(table, field)), hint_text(field.hint));
  }
  return text + ")";
}

std::string action_schema(const Action &action) {
  std::string params;
  for (const Param &param : action.params) {
    params += fmt::format("('{}',{},{},None),", param.name, hint_text(param.hint), param.width);
  }
  return fmt::format("( ('{}'),({}))", action.name, params);
}

std::string table_schema(const Table &table) {
  // Instead of actions, what an entry of a table that is bound to a profile points at.
  constexpr const char *kPointees =
      "( ('setMbrHdl',(('mbrHdl',None,32,None),)),"
      "( 'setGrpHdl', ( ( 'grpHdl', None, 32, None ), ) ) )";
  const std::string actions =
      table.indirect() ? kPointees : "(" + sorted_action_schemas(table.pairs) + ")";
  return fmt::format("( ('{}','mat',({},)),{},{})", table.name, table.indirect() ? "True" : "False",
                     match_spec_schema(table), actions);
}

std::string profile_schema(const Profile &profile) {
  return "(" + sorted_action_schemas(profile.actions) + ")";
}

}  // namespace pdgen
