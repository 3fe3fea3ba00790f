// The reader of literals, and every schema of the program read with it.
#include "tesselctl/library.hpp"
#include "tesselctl/schema.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

using LiteralKind = Literal::Kind;

TEST(Literal, ValuesOfEveryKind) {
  const Literal all =
      parse_literal({"( None,True , False,[],[1,],(2),(3,),0xffL,-10,'it\\'s', \"\\\\\",\n"
                     "0xffffffffffffffffffffffffffffffffL,())",
                     1});
  ASSERT_TRUE(all.is_tuple(13));
  EXPECT_EQ(all.items[0].kind, LiteralKind::none);
  EXPECT_TRUE(all.items[1].kind == LiteralKind::boolean && all.items[1].truth &&
              !all.items[2].truth);
  EXPECT_TRUE(all.items[3].kind == LiteralKind::list && all.items[3].items.empty());
  EXPECT_TRUE(all.items[4].kind == LiteralKind::list && all.items[4].items.size() == 1);
  EXPECT_EQ(all.items[5].number, Number(2));
  EXPECT_TRUE(all.items[6].is_tuple(1));
  EXPECT_EQ(all.items[7].number, Number(255));
  EXPECT_TRUE(all.items[8].negative && all.items[8].number == Number(10));
  EXPECT_EQ(all.items[9].text, "it's");
  EXPECT_EQ(all.items[10].text, "\\");
  EXPECT_EQ(all.items[11].number, ~Number());
  EXPECT_TRUE(all.items[12].is_tuple(0));
  EXPECT_EQ(all.items[7].column, 38u);
  // A comma makes a tuple, parentheses alone do not.
  EXPECT_TRUE(parse_literal({"('a',(0x1,)),", 1}).is_tuple(1));
  EXPECT_EQ(parse_literal({" ( ( 'a' ) ) ", 1}).text, "a");
  EXPECT_EQ(indented_literal(all, 120),
            "(None, True, False, [], [1], 2, (3,), 0xffL, -10, 'it\\'s', '\\\\', "
            "0xffffffffffffffffffffffffffffffffL, ())\n");
  EXPECT_EQ(indented_literal(parse_literal({"(1,(22,[333]))", 1}), 10),
            "(\n  1,\n  (\n    22,\n    [333],\n  ),\n)\n");
}

TEST(Literal, FaultsNameTheirPlace) {
  const struct {
    const char *text;
    const char *fault;
  } rows[] = {
      {"", "1: '': a literal is missing"},
      {"  ", "3: '': a literal is missing"},
      {"(1", "3: '': ')' is missing"},
      {"[1)", "3: ')': a comma is missing"},
      {"(1 2)", "4: '2': a comma is missing"},
      {"1 2", "3: '2': nothing should stand here"},
      {"(1))", "4: ')': nothing should stand here"},
      {"(,)", "2: ',': this is not a value"},
      {"(1,,)", "4: ',': this is not a value"},
      {"(none)", "2: 'none': this is not a value"},
      {"None1", "1: 'None1': this is not a value"},
      {"{1}", "1: '{': this is not a value"},
      {"'a", "3: '': the text has no end"},
      {"'a\nb'", "3: '\n': the text has no end"},
      {"'a\\n'", "4: 'n': this escape is not known"},
      {"'a\\", "4: '': this escape is not known"},
      {"0x", "1: '0x': this is not a number"},
      {"0xL", "1: '0xL': this is not a number"},
      {"-", "2: '': this is not a number"},
      {"1_0", "1: '1_0': this is not a number"},
      {"1LL", "1: '1LL': this is not a number"},
      {"(07)", "2: '07': a decimal number has no zero in front"},
      {"0x100000000000000000000000000000000L",
       "1: '0x100000000000000000000000000000000L': a number has at most 128 bits"},
  };
  const auto fault_of = [](std::string_view text) -> std::string {
    try {
      parse_literal({text, 1});
      return "none";
    } catch (const Fault &fault) {
      return std::to_string(fault.column()) + ": " + fault.sentence();
    }
  };
  for (const auto &row : rows) EXPECT_EQ(fault_of(row.text), row.fault);
  EXPECT_EQ(fault_of(std::string("(1,\0)", 5)), std::string("4: '\0': this is not a value", 27));
  EXPECT_EQ(fault_of(std::string(64, '(') + "1" + std::string(64, ')')), "none");
  EXPECT_EQ(fault_of(std::string(1000000, '[')), "66: '[': the literal nests too deep");
}

// ---- Schemas ----

void expect_members(const std::vector<SchemaParameter> &parameters,
                    const bindings::Record &record) {
  ASSERT_EQ(parameters.size(), record.member_count) << record.name;
  for (size_t i = 0; i < parameters.size(); ++i) {
    EXPECT_EQ(parameters[i].name, record.members[i].name) << record.name;
    EXPECT_EQ(parameters[i].width, record.members[i].width) << record.name;
  }
}

// What the schema tells is what records, device and binding know by themselves.
TEST(Schemas, OfEveryObject) {
  size_t fields = 0;
  for (const bindings::Record &record : tables()) {
    const TableSchema schema = table_schema(record.name);
    const Shape &shape = table_shape(record);
    EXPECT_EQ(schema.name, record.name);
    EXPECT_EQ(schema.number_count, record.member_count) << record.name;
    ASSERT_EQ(schema.fields.size(), shape.own_field_count()) << record.name;
    for (size_t i = 0; i < schema.fields.size(); ++i) {
      const SchemaField &field = schema.fields[i];
      EXPECT_EQ(field.name, shape.fields()[i].name);
      EXPECT_EQ(field.width, shape.fields()[i].width) << field.name;
      EXPECT_EQ(field.match, shape.fields()[i].match) << field.name;
      EXPECT_EQ(record.members[field.position].name, field.name);
      ++fields;
    }
    const soft_table_t &known = resolve_object<soft_table_t>({record.name, 0}, "table");
    EXPECT_EQ(schema.bound, known.action_data_table != 0) << record.name;
    EXPECT_EQ(schema.actions.size(), schema.bound ? 2u : known.action_count) << record.name;
    for (const ActionSchema &action : schema.actions) {
      if (!schema.bound) expect_members(action.parameters, action_record(action.name));
    }
    const std::string text = schema_text(SchemaKind::table, record.name);
    const Literal literal = parse_literal({text, 1});
    EXPECT_EQ(indented_literal(parse_literal({indented_literal(literal, 40), 1}), 1u << 20),
              indented_literal(literal, 1u << 20));
  }
  EXPECT_EQ(tables().size(), 120u);
  EXPECT_EQ(fields, 318u);
  EXPECT_EQ(actions().size(), 232u);
  for (const bindings::Record &record : actions()) {
    const ActionSchema schema = action_schema(record.name);
    EXPECT_EQ(schema.name, record.name);
    expect_members(schema.parameters, record);
  }
  EXPECT_EQ(program_rows<soft_profile_t>().size(), 4u);
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    const std::vector<ActionSchema> schema = profile_schema(profile.name);
    EXPECT_EQ(schema.size(), profile.action_count) << profile.name;
    for (const ActionSchema &action : schema) {
      expect_members(action.parameters, action_record(action.name));
    }
  }
}

TEST(Schemas, LiteralsOfAnotherKindAreFaults) {
  const auto fault_of = [](std::string_view text) -> std::string {
    try {
      read_table_schema(parse_literal({text, 1}));
      return "none";
    } catch (const Fault &fault) {
      return std::to_string(fault.column()) + ": " + fault.sentence();
    }
  };
  EXPECT_EQ(fault_of("(('t','mat',(False,)),(),())"), "none");
  EXPECT_EQ(fault_of("()"), "1: '': a table should be a tuple of head, key and actions");
  EXPECT_EQ(fault_of("(('t','mat',(0,)),(),())"), "13: '': True or False should stand here");
  EXPECT_EQ(fault_of("(('t','mat',(True,)),(('f','f',9),),())"),
            "23: '': a field should be a tuple of 7");
  EXPECT_EQ(fault_of("(('t','mat',(True,)),(('f','f',129,1,None,None,None),),())"),
            "32: '129': a width is a number from 1 to 128");
  EXPECT_EQ(fault_of("(('t','mat',(True,)),(('f','f',2,4,None,None,None),),())"),
            "34: '4': these are no bits of the field");
  EXPECT_EQ(fault_of("(('t','mat',(True,)),(),((None,()),))"), "27: '': a name should stand here");
}

}  // namespace
}  // namespace tesselctl
