// Value strings of match specs, actions and entries.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

void add_for_table(Api &api, const Table &table) {
  const Program &program = api.program();
  if (table.keyed()) {
    api.add(table_group(table),
            {table_function(program, table, "match_spec_value"),
             "int",
             {match_spec(program, table), buffer()},
             expand("return record_value<text::table::$0>(match_spec, buffer)", {table.name}),
             "match_spec_value",
             table.name,
             ""});
  }
  api.add(table_group(table),
          {table_function(program, table, "value"),
           "int",
           {session(), device(), entry(), from_hardware(), buffer()},
           expand("return entry_value<text::table::$0>({session, device, entry, "
                  "read_from_hardware}, buffer)",
                  {table.name}),
           "table_value",
           table.name,
           ""});
}

void add_for_action(Api &api, const Action &action) {
  const Program &program = api.program();
  std::vector<Parameter> parameters;
  if (action.has_params()) parameters.push_back(action_spec(program, action));
  parameters.push_back(buffer());
  api.add(action_group(), {action_function(program, action, "value"), "int", std::move(parameters),
                           expand("return record_value<text::action::$0>($1, buffer)",
                                  {action.name, action.has_params() ? "action_spec" : "nullptr"}),
                           "action_value", action.name, ""});
}

}  // namespace

void add_value_functions(Api &api) {
  const Program &program = api.program();
  api.add_note(
      "Value strings",
      "The numbers of a match spec, an action or an entry as a literal that lists what the schema "
      "lists, cut to the key bits, in hexadecimal. They are written into buffer with a NUL and "
      "their length is returned: " +
          size_constant(program, "MATCH_SPEC_VALUE_MAX") + ", " +
          size_constant(program, "ACTION_VALUE_MAX") + " and " +
          size_constant(program, "VALUE_MAX") +
          " bytes hold any of them. A table's value reads the entry by get_entry. When that fails, "
          "and for a null pointer, 0 is returned and buffer stays as it was.");
  api.begin_unit("value", {"texts.hpp"});
  for (const Table &table : program.tables) add_for_table(api, table);
  for (const Action &action : program.actions) add_for_action(api, action);
}

}  // namespace pdgen
