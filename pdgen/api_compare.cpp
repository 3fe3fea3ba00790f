// Equality of records, widths of key fields, values and names of actions.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

void add_equality(Api &api, const std::string &group, const std::string &name,
                  const std::string &record, const std::string &shape, const std::string &family,
                  const std::string &object) {
  const std::string type = "const " + record + " *";
  api.add(group, {name,
                  "bool",
                  {{type, "a"}, {type, "b"}},
                  expand("return records_are_equal<record::$0>(a, b)", {shape}),
                  family,
                  object,
                  ""});
}

void add_for_table(Api &api, const Table &table) {
  const Program &program = api.program();
  if (!table.keyed()) return;
  add_equality(api, table_group(table), table_function(program, table, "match_specs_are_equal"),
               match_spec_type(program, table), "table::" + table.name, "match_specs_are_equal",
               table.name);
  for (const KeyField &field : table.key) {
    api.add(table_group(table), {width_function(program, table, field),
                                 "uint32_t",
                                 {},
                                 "return " + std::to_string(field.width),
                                 "width",
                                 table.name,
                                 ""});
  }
}

// Between values and full names; both know the same list.
void add_action_names(Api &api) {
  const Program &program = api.program();
  const auto add = [&](const char *operation, const char *result, Parameter parameter,
                       const char *statement) {
    api.add(
        action_group(),
        {program_function(program, operation),
         result,
         {std::move(parameter)},
         expand(statement, {action_name_strings(program), std::to_string(program.actions.size())}),
         operation,
         "",
         ""});
  };
  add("action_enum_to_string", "const char *", {"uint32_t", "value"},
      "return action_name($0, $1, value)");
  add("action_string_to_enum", "uint32_t", {"const char *", "name"},
      "return action_value($0, $1, name)");
}

}  // namespace

void add_compare_functions(Api &api) {
  const Program &program = api.program();
  api.add_note(
      "Comparison and names",
      "match_specs_are_equal compares member by member under the key bits: a value and its mask "
      "are two members, so entries that differ in what they do not care about differ. "
      "action_specs_are_equal compares the bits of each parameter's width. A null pointer equals "
      "nothing. width returns the bits of a key field. action_enum_to_string returns the full name "
      "of a value, null beyond the last; action_string_to_enum returns the value of a full name, "
      "else the number of actions.");
  api.begin_unit("compare", {"compare.hpp", "records.hpp"});
  for (const Table &table : program.tables) add_for_table(api, table);
  for (const Action &action : program.actions) {
    if (!action.has_params()) continue;
    add_equality(api, action_group(), action_function(program, action, "action_specs_are_equal"),
                 action_spec_type(program, action), "action::" + action.name,
                 "action_specs_are_equal", action.name);
  }
  add_action_names(api);
}

}  // namespace pdgen
