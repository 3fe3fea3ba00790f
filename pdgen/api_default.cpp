// Default entries, of direct and of indirect tables.
#include <fmt/format.h>

#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const std::string kStatus = "p4_pd_status_t";

void add_set_default(Api &api, const Table &table, const Pair &pair) {
  const Program &program = api.program();
  const Action &action = *pair.action;
  const bool has_meter = pair.takes_meter_spec(Operation::kDefault);
  std::vector<Parameter> parameters = {session(), target()};
  if (action.has_params()) parameters.push_back(action_spec(program, action));
  if (has_meter) parameters.push_back(meter_spec());
  parameters.push_back(out_entry());
  api.add(table_group(table),
          {table_function(program, table, "set_default_action_", action), kStatus, parameters,
           expand("return pd::set_default_action<pair::$0::$1>(session, target, $2, $3, entry)",
                  {table.name, action.name, action.has_params() ? "action_spec" : "nullptr",
                   has_meter ? "meter_spec" : "nullptr"}),
           "set_default_action", table.name, action.name});
}

void add_for_table(Api &api, const Table &table) {
  const Program &program = api.program();
  for (const Pair &pair : table.pairs) {
    if (pair.as_default) add_set_default(api, table, pair);
  }
  api.add(table_group(table),
          {table_function(program, table, "table_get_default_entry_handle"),
           kStatus,
           {session(), target(), out_entry()},
           expand("return pd::get_default_entry_handle($0, session, target, entry)",
                  {hex32(table.handle)}),
           "table_get_default_entry_handle",
           table.name,
           ""});
  std::vector<Parameter> parameters = {session(), target(), from_hardware()};
  std::string statement;
  if (table.indirect()) {
    parameters.insert(parameters.end(), {{"bool *", "has_member"},
                                         {"bool *", "has_group"},
                                         {"p4_pd_group_handle_t *", "group"},
                                         {"p4_pd_member_handle_t *", "member"}});
    statement =
        "return pd::get_indirect_default_entry(table::$0::table, session, target, "
        "read_from_hardware, {.has_member = has_member, .has_group = has_group, .group = group, "
        ".member = member})";
  } else {
    parameters.push_back({action_specs_type(program) + " *", "action_specs"});
    statement =
        "return pd::get_default_entry(table::$0::table, session, target, read_from_hardware, "
        "action_specs)";
  }
  api.add(table_group(table),
          {table_function(program, table, "table_get_default_entry"), kStatus, parameters,
           expand(statement, {table.name}), "table_get_default_entry", table.name, ""});
}

}  // namespace

void add_default_functions(Api &api) {
  api.add_note(
      "Default entries",
      "For every table. set_default_action_ exists for each action that may be the default; "
      "meter_spec (tables with a direct meter) may be null, which detaches the meter. "
      "table_get_default_entry of a table with actions of its own fills the action's value and, "
      "for an action with parameters, the member of spec that belongs to it; "
      "P4_PD_FOREIGN_ACTION when the default entry holds no direct action data or an action that "
      "the table does not have. Of a table bound to a profile it tells the member or the group "
      "that the default entry points at; the other handle is not written.");
  api.begin_unit("default", {"default_entry.hpp", "read_back.hpp"});
  for (const Table &table : api.program().tables) add_for_table(api, table);
}

}  // namespace pdgen
