// Schemas: objects described as literals of nested tuples.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/texts/texts.hpp"

namespace pdgen {

unsigned digit_count(unsigned width) { return (width + 3) / 4; }

Bits member_bits(const Table &table, const RecordField &field) {
  if (field.role == RecordRole::kPrefixLength) return low_bits(field.width);
  return table.key[field.key_index].key_bits;
}

namespace {

std::string hint_text(Hint hint) {
  if (hint == Hint::kNone) return "None";
  return fmt::format("'{}'", kNamesOf<Hint>[static_cast<std::size_t>(hint)]);
}

// The schemas of actions, in the byte order of their names.
template <class Row>
std::string sorted_action_schemas(const std::vector<Row> &rows) {
  std::vector<const Action *> actions;
  for (const Row &row : rows) actions.push_back(row.action.target);
  std::ranges::sort(actions, {}, &Action::name);
  std::string text;
  for (const Action *action : actions) text += action_schema(*action) + ",";
  return text;
}

}  // namespace

std::string mask_text(const Bits &bits) {
  if (bits.upper != 0) return fmt::format("{:#x}{:016x}L", bits.upper, bits.lower);
  return fmt::format("{:#x}{}", bits.lower, bits.lower >> 31 != 0 ? "L" : "");
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
