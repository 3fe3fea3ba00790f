// Every table and action: values and lines of random records, schemas, comparisons, widths and
// names, put together here from the catalogue.
#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "texts.hpp"

namespace pd_test {
namespace {

constexpr const char *kHints[] = {"None", "'mac'", "'v4addr'", "'vport'", "'port'", "'v6addr'"};

std::string digits_of(const Bytes &bytes) { return fmt::format("{:02x}", fmt::join(bytes, "")); }

// The bits of a member that count, as a number that is long beyond 31 bits.
std::string mask_text(Bytes bits) {
  if (bits.size() != 16) std::ranges::reverse(bits);
  std::string digits = digits_of(bits);
  digits.erase(0, digits.find_first_not_of('0'));
  const bool is_long = digits.size() > 8 || (digits.size() == 8 && digits[0] >= '8');
  return "0x" + digits + (is_long ? "L" : "");
}

std::string match_spec_schema(const pdgen::Table &table) {
  std::string text = "(";
  for (size_t i = 0; i < table.record.size(); ++i) {
    const pdgen::RecordField &field = table.record[i];
    const bool is_value = field.role == pdgen::RecordRole::kValue;
    const auto hint = static_cast<size_t>(is_value ? field.hint : pdgen::Hint::kNone);
    text += fmt::format("( '{}','{}',{},{},{},None,None),", field.cli_name, field.name, field.width,
                        mask_text(key_bits(table, record_of(table).members[i])), kHints[hint]);
  }
  return text + ")";
}

std::string action_schema(const pdgen::Action &action) {
  std::string params;
  for (const pdgen::Param &param : action.params) {
    params += fmt::format("('{}',{},{},None),", param.name, kHints[static_cast<size_t>(param.hint)],
                          param.width);
  }
  return fmt::format("( ('{}'),({}))", action.name, params);
}

// Sorted by name.
std::string schemas_of(const auto &pairs) {
  std::set<std::string> names;
  for (const auto &pair : pairs) names.insert(pair.action->name);
  std::string text = "(";
  for (const std::string &name : names) text += action_schema(action_named(name)) + ",";
  return text + ")";
}

std::string table_schema(const pdgen::Table &table) {
  return fmt::format("( ('{}','mat',({},)),{},{})", table.name, table.indirect() ? "True" : "False",
                     match_spec_schema(table),
                     table.indirect() ? "( ('setMbrHdl',(('mbrHdl',None,32,None),)),"
                                        "( 'setGrpHdl', ( ( 'grpHdl', None, 32, None ), ) ) )"
                                      : schemas_of(table.pairs));
}

std::string schema(const char *family, const std::string &object) {
  return written(*find_export(family, object), {}, binding().sizes.schema);
}
std::string cli_schema(uint32_t handle) {
  return written(*find_export("cli_schema"), with("handle", handle), binding().sizes.schema);
}

TEST(TextSweep, Schemas) {
  size_t longest = 0;
  for (const pdgen::Table &table : program().tables) {
    EXPECT_EQ(schema("table_schema", table.name), table_schema(table));
    EXPECT_EQ(cli_schema(table.handle), table_schema(table));
    longest = std::max(longest, table_schema(table).size() + 1);
    if (!table.keyed()) continue;
    EXPECT_EQ(constant_text("match_spec_schema", table.name), match_spec_schema(table));
  }
  EXPECT_EQ(longest, binding().sizes.schema);
  for (const pdgen::Action &action : program().actions) {
    EXPECT_EQ(constant_text("action_schema", action.name), action_schema(action));
  }
  for (const pdgen::Profile &profile : program().profiles) {
    EXPECT_EQ(schema("profile_schema", profile.name), schemas_of(profile.actions));
    EXPECT_EQ(cli_schema(profile.action_data_handle), schemas_of(profile.actions));
  }
  for (const uint32_t of_none : {0u, 0x00ffffffu, 0xffffffffu}) {
    EXPECT_EQ(cli_schema(of_none), "()");
  }
}

// ---- Records ----

// The bits of a member that count, in the order of its bytes.
Bytes counted(const Spec &spec, bool is_table, const Member &member) {
  if (is_table) return key_bits(table_named(spec.record().name), member);
  Bytes bits(member.storage);
  for (unsigned bit = 0; bit < member.width; ++bit) {
    bits[bit / 8] = static_cast<uint8_t>(bits[bit / 8] | 1 << bit % 8);
  }
  return bits;
}

// Value string and printed lines; wide fields are written whole.
std::pair<std::string, std::string> texts_of(const Spec &spec, bool is_table) {
  const std::string name = spec.record().name;
  std::string value = is_table ? "( " : "('" + name + "',(";
  std::string lines = is_table ? " " + prefix() + name + "_match_spec_t:\n" : "";
  for (const Member &member : spec.record().member_list()) {
    const bool wide = member.storage == 16;
    const bool is_length = member.role == bindings::Role::prefix_length;
    uint32_t mask = 0;
    const Bytes bits = counted(spec, is_table, member);
    if (!wide) std::memcpy(&mask, bits.data(), bits.size());
    const bool partial = !wide && !is_length && mask != (~0u >> (32 - member.width));
    std::string digits;
    if (wide) {
      digits = digits_of(Bytes(spec.at(member), spec.at(member) + 16));
      std::ranges::transform(digits, digits.begin(), ::toupper);
    } else {
      digits = fmt::format("{:0{}x}", spec.get(member) & mask, (member.width + 3) / 4);
    }
    value += "0x" + digits + ",";
    lines += fmt::format("  {}{}{}: 0x{}\n", is_table ? "" : "action_", member.name,
                         partial ? " mask " + mask_text(bits) : "", digits);
  }
  return {value + (is_table ? ")," : ")),"), lines};
}

// Flips each bit of each member: whether the records are equal, and whether their values are the
// same.
void flip_every_bit(const Spec &spec, bool is_table) {
  const Export &equal = *find_export(is_table ? "match_specs_are_equal" : "action_specs_are_equal",
                                     spec.record().name);
  const std::string value = value_of(spec, is_table);
  EXPECT_EQ(call(equal, spec.data(), spec.data()), 1u);
  for (const Member &member : spec.record().member_list()) {
    const Bytes bits = counted(spec, is_table, member);
    for (unsigned bit = 0; bit < 8 * member.storage; ++bit) {
      Spec flipped = spec;
      flipped.at(member)[bit / 8] ^= static_cast<uint8_t>(1 << bit % 8);
      const bool counts = (bits[bit / 8] >> bit % 8 & 1) != 0;
      EXPECT_EQ(call(equal, spec.data(), flipped.data()) != 0, !counts)
          << spec.record().name << " " << member.name << " bit " << bit;
      EXPECT_EQ(call(equal, flipped.data(), spec.data()) != 0, !counts);
      const bool shown = counts || member.storage == 16;
      EXPECT_EQ(value_of(flipped, is_table) != value, shown) << spec.record().name << member.name;
    }
  }
}

TEST(TextSweep, RecordsOfRandomBits) {
  Random random(1);
  size_t longest[2] = {1, 1};  // the NUL
  for (const bool is_table : {true, false}) {
    for (const Record &record : is_table ? tables() : actions()) {
      if (is_table && record.member_count == 0) continue;
      Spec spec(record);
      for (int round = 0; round < 4; ++round) {
        spec.fill(random);
        const auto [value, lines] = texts_of(spec, is_table);
        ASSERT_EQ(value_of(spec, is_table), value);
        longest[is_table] = std::max(longest[is_table], value.size() + 1);
        if (record.member_count == 0) continue;
        ASSERT_EQ(lines_of(spec, is_table), lines);
      }
      if (record.member_count != 0) flip_every_bit(spec, is_table);
    }
  }
  EXPECT_EQ(longest[true], binding().sizes.match_spec_value);
  EXPECT_EQ(longest[false], binding().sizes.action_value);
}

// ---- Labels ----

// What labels say is compared with literals elsewhere.
TEST(TextSweep, LabelsFitTheirBuffer) {
  Random random(2);
  for (const pdgen::Label &label : program().labels) {
    for (int round = 0; round < 20; ++round) {
      const Bytes key = random_record(record_of(*label.table), random);
      written(*find_export("match_spec_stringify_for_counter", label.table->name),
              with("match_spec", key.data()), binding().sizes.label);
    }
  }
}

// ---- Widths and names ----

TEST(TextSweep, WidthsOfEveryKeyField) {
  std::map<std::string, const Export *> functions;
  for (const Export *function : exports_of("width")) functions[function->name] = function;
  for (const pdgen::Table &table : program().tables) {
    for (const pdgen::KeyField &field : table.key) {
      const std::string name =
          fmt::format("{}{}_{}_width", prefix(), table.name,
                      field.name.ends_with("_valid") ? field.name.substr(0, field.name.size() - 6)
                                                     : field.name);
      ASSERT_TRUE(functions.contains(name)) << name;
      EXPECT_EQ(call(*functions[name]), field.width) << name;
      functions.erase(name);
    }
  }
  EXPECT_TRUE(functions.empty());
}

TEST(TextSweep, NamesOfActionsBothWays) {
  const Export &to_name = *find_export("action_enum_to_string");
  const Export &to_value = *find_export("action_string_to_enum");
  const uint64_t count = program().actions.size();
  EXPECT_EQ(binding().action_count, count);
  for (const uint64_t beyond : {count, uint64_t{0xffffffff}}) EXPECT_EQ(call(to_name, beyond), 0u);
  EXPECT_EQ(call(to_value, static_cast<const char *>(nullptr)), count);
  size_t longest = 0;
  for (const pdgen::Action &action : program().actions) {
    const std::string name = prefix() + action.name;
    EXPECT_EQ(text_at(call(to_name, uint64_t{action.value})), name);
    EXPECT_EQ(binding().action_names[action.value], name);
    EXPECT_EQ(call(to_value, name.c_str()), action.value);
    for (const std::string &none : {action.name, name + " ", std::string()}) {
      EXPECT_EQ(call(to_value, none.c_str()), count) << none;
    }
    longest = std::max(longest, name.size() + 1);
  }
  EXPECT_EQ(longest, binding().sizes.action_name);
}

}  // namespace
}  // namespace pd_test
