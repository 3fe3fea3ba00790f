// Entries read back by handle, and enumeration.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const std::string kStatus = "p4_pd_status_t";

void add_get_entry(Api &api, const Table &table) {
  const Program &program = api.program();
  std::vector<Parameter> parameters = {session(), device(), entry(), from_hardware()};
  std::string outputs;
  if (table.keyed()) {
    parameters.push_back(out_match_spec(program, table));
    outputs += ".match_spec = match_spec, ";
  }
  if (table.has_priority()) {
    parameters.push_back({"uint32_t *", "priority"});
    outputs += ".priority = priority, ";
  }
  parameters.insert(
      parameters.end(),
      {{"char *", "action_name"}, {"void *", "action_spec"}, {"uint32_t *", "action"}});
  outputs += ".action_name = action_name, .action_spec = action_spec, .action = action";
  if (table.keyed()) {
    parameters.push_back({"bool *", "no_key"});
    outputs += ", .no_key = no_key";
  }
  api.add(table_group(table),
          {table_function(program, table, "get_entry"), kStatus, parameters,
           expand("return pd::get_entry(table::$0::table, session, device, entry, "
                  "read_from_hardware, {$1})",
                  {table.name, outputs}),
           "get_entry", table.name, ""});
}

void add_enumeration(Api &api, const Table &table) {
  const Program &program = api.program();
  api.add(table_group(table),
          {table_function(program, table, "get_first_entry_handle"),
           kStatus,
           {session(), target(), out_entry()},
           expand("return pd::get_first($0, session, target, entry)", {hex32(table.handle)}),
           "get_first_entry_handle",
           table.name,
           ""});
  api.add(
      table_group(table),
      {table_function(program, table, "get_next_entry_handles"),
       kStatus,
       {session(), target(), entry(), {"uint32_t", "count"}, {"p4_pd_entry_handle_t *", "entries"}},
       expand("return pd::get_next($0, session, target, entry, count, entries)",
              {hex32(table.handle)}),
       "get_next_entry_handles",
       table.name,
       ""});
}

}  // namespace

void add_read_back_functions(Api &api) {
  api.add_note(
      "Read-back",
      "get_entry fills match_spec, priority (ternary tables), no_key, action_name (at least 61 "
      "bytes, or null), action (the enumeration value, or null) and action_spec, the record of "
      "whichever action the entry holds, written only for an action with parameters. no_key is set "
      "for the default entry, whose match_spec stays as it was. P4_PD_NO_ACTION_DATA for an entry "
      "without action data, P4_PD_FOREIGN_ACTION for an action that the table does not have, "
      "P4_PD_NO_MEMORY when the resource list could not be allocated, P4_PD_NULL_ARGUMENT when a "
      "mandatory output is null; nothing is written then. get_first_entry_handle and "
      "get_next_entry_handles walk the entries; entries has room for count handles.");
  api.begin_unit("read_back", {"read_back.hpp"});
  for (const Table &table : api.program().tables) {
    if (!table.indirect()) add_get_entry(api, table);
    add_enumeration(api, table);
  }
}

}  // namespace pdgen
