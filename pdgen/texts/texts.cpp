// Schemas: objects described as literals of nested tuples. Value strings and printer lines, up to
// their digits. How long texts can get: what callers size their buffers by.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/names.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

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

void add_number(ValueText &value, unsigned digits) {
  value.digits_at.push_back(value.text.size() + 2);
  value.text += "0x" + std::string(digits, '0') + ",";
}

// What follows the labels of addresses, at its longest: from LabelKind::kMac on.
constexpr std::string_view kLongest[] = {
    "0011.2233.4455 / 0011.2233.4455", "255.255.255.255 / 32",
    "1111:2222:3333:4444:5555:6666:7777:8888 / 1111:2222:3333:4444:5555:6666:7777:8888"};

void raise(std::size_t &greatest, std::size_t size) { greatest = std::max(greatest, size); }

std::size_t number_size(const LabelItem &item) {
  const KeyField &field = *item.field;
  const std::size_t digits =
      std::max<std::size_t>(item.digits, fmt::formatted_size("{:x}", field.key_bits.lower));
  // The mask is written as the record holds it.
  const std::size_t masked = std::string_view(" & 0x").size() + 2 * field.storage_bytes;
  std::size_t size = item.format.size() + std::string_view(" 0x ").size() + digits;
  if (item.kind == LabelKind::kNumber) size += masked;
  for (const LabelText &text : item.texts) raise(size, text.text.size());
  return size;
}

std::size_t item_size(const LabelItem &item) {
  switch (item.kind) {
    case LabelKind::kFlag:
      return std::string_view("!").size() + item.label.size() + item.after;
    case LabelKind::kNumber:
    case LabelKind::kExact:
      return number_size(item);
    case LabelKind::kSilent:
      return 0;
    default:
      return item.label.size() +
             kLongest[static_cast<int>(item.kind) - static_cast<int>(LabelKind::kMac)].size();
  }
}

}  // namespace

unsigned digit_count(unsigned width) { return (width + 3) / 4; }

Bits member_bits(const Table &table, const RecordField &field) {
  if (field.role == RecordRole::kPrefixLength) return low_bits(field.width);
  return table.key[field.key_index].key_bits;
}

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

std::size_t entry_value_size(const Table &table) {
  std::size_t key = std::string_view("(),").size();
  if (table.keyed()) raise(key, match_spec_value(table).text.size());
  std::size_t action =
      table.indirect() ? std::string_view("('setMbrHdl',(0xffffffff,))").size() : 0;
  for (const Pair &pair : table.pairs) raise(action, action_value(*pair.action).text.size());
  const std::size_t priority = std::string_view(table.has_priority() ? "-2147483648" : "0").size();
  return std::string_view("((),(,True))").size() + key + action + priority + 1;
}

std::size_t label_size(const Label &label) {
  std::size_t size = 1;
  for (const LabelItem &item : label.items) size += item_size(item);
  return size;
}

TextSizes text_sizes(const Program &program) {
  TextSizes sizes;
  for (const Table &table : program.tables) {
    raise(sizes.schema, table_schema(table).size() + 1);
    raise(sizes.value, entry_value_size(table));
    if (table.keyed()) raise(sizes.match_spec_value, match_spec_value(table).text.size() + 1);
  }
  for (const Profile &profile : program.profiles) {
    raise(sizes.schema, profile_schema(profile).size() + 1);
  }
  for (const Action &action : program.actions) {
    raise(sizes.action_value, action_value(action).text.size() + 1);
    raise(sizes.action_name, name_prefix(program).size() + action.name.size() + 1);
  }
  // A program may have no keyed table and no label; their functions write a NUL at most.
  raise(sizes.match_spec_value, 1);
  raise(sizes.label, 1);
  for (const Label &label : program.labels) raise(sizes.label, label_size(label));
  return sizes;
}

}  // namespace pdgen
