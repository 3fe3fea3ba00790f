// Entries of keyed tables: add, modify, delete, find.
#include <fmt/format.h>

#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const std::string kStatus = "p4_pd_status_t";

// The pd::EntryOptions of a call, as a braced list.
std::string options(bool priority, bool ttl, bool meter) {
  std::vector<std::string> parts;
  if (priority) parts.push_back(".priority = priority");
  if (ttl) parts.push_back(".ttl = ttl");
  if (meter) parts.push_back(".meter = meter_spec");
  return "{" + join(parts, ", ") + "}";
}

void append(std::vector<Parameter> &list, bool present, Parameter parameter) {
  if (present) list.push_back(std::move(parameter));
}

void add_for_pair(Api &api, const Table &table, const Pair &pair) {
  const Program &program = api.program();
  const Action &action = *pair.action;
  const bool has_meter = pair.takes_meter_spec(Operation::kAdd);
  const std::string type = fmt::format("pair::{}::{}", table.name, action.name);
  const std::string action_argument = action.has_params() ? "action_spec" : "nullptr";
  const auto add = [&](const std::string &operation, const char *suffix,
                       std::vector<Parameter> parameters, const std::string &statement) {
    api.add(
        table_group(table),
        {table_function(program, table, "table_" + operation + "_with_", action, suffix), kStatus,
         std::move(parameters), statement, "table_" + operation + suffix, table.name, action.name});
  };

  std::vector<Parameter> parameters = {session(), target(), match_spec(program, table)};
  append(parameters, table.has_priority(), priority());
  if (action.has_params()) parameters.push_back(action_spec(program, action));
  append(parameters, table.idle_time, ttl());
  append(parameters, has_meter, meter_spec());
  parameters.push_back(out_entry());
  add("add", "", parameters,
      expand("return pd::add_entry<$0>(session, target, match_spec, $1, $2, entry)",
             {type, action_argument, options(table.has_priority(), table.idle_time, has_meter)}));

  parameters = {session(), device(), entry()};
  if (action.has_params()) parameters.push_back(action_spec(program, action));
  append(parameters, has_meter, meter_spec());
  add("modify", "", parameters,
      expand("return pd::modify_entry<$0>(session, device, entry, $1, $2)",
             {type, action_argument, options(false, false, has_meter)}));

  parameters = {session(), target(), match_spec(program, table)};
  append(parameters, table.has_priority(), priority());
  if (action.has_params()) parameters.push_back(action_spec(program, action));
  append(parameters, has_meter, meter_spec());
  add("modify", "_by_match_spec", parameters,
      expand("return pd::modify_entry_by_match_spec<$0>(session, target, match_spec, $1, $2)",
             {type, action_argument, options(table.has_priority(), false, has_meter)}));
}

void add_for_table(Api &api, const Table &table) {
  const Program &program = api.program();
  const std::string type = "table::" + table.name;
  const std::string given = options(table.has_priority(), false, false);
  const auto add = [&](const char *operation, std::vector<Parameter> parameters,
                       const char *statement) {
    api.add(table_group(table),
            {table_function(program, table, operation), kStatus, std::move(parameters),
             expand(statement, {type, given}), operation, table.name, ""});
  };
  add("table_delete", {session(), device(), entry()},
      "return pd::delete_entry<$0>(session, device, entry)");

  std::vector<Parameter> parameters = {session(), target(), match_spec(program, table)};
  append(parameters, table.has_priority(), priority());
  add("table_delete_by_match_spec", parameters,
      "return pd::delete_entry_by_match_spec<$0>(session, target, match_spec, $1)");
  parameters.push_back(out_entry());
  add("match_spec_to_entry_hdl", parameters,
      "return pd::find_entry<$0>(session, target, match_spec, $1, entry)");
}

}  // namespace

void add_entry_functions(Api &api) {
  api.add_note(
      "Entries",
      "For every keyed table, and for each of its actions where the name ends in one. The "
      "pipeline manager chooses the entry's handle. priority (ternary tables): the smallest number "
      "wins. ttl (tables that age their entries): milliseconds. meter_spec (tables with a direct "
      "meter): required by add, P4_PD_METER_SPEC_MISSING without; null in modify keeps the meter. "
      "match_spec_to_entry_hdl finds the entry with exactly this key and priority. Values beyond a "
      "field's width reach the pipeline manager as they stand, except that masks are cut to the "
      "width. P4_PD_NULL_ARGUMENT for a null match spec or action spec.");
  // Two units of about equal size compile at the same time.
  const std::vector<Table> &tables = api.program().tables;
  for (std::size_t half = 0; half < 2; ++half) {
    api.begin_unit(half == 0 ? "entry_1" : "entry_2", {"entry.hpp"});
    const std::size_t middle = tables.size() / 2;
    for (std::size_t i = half == 0 ? 0 : middle; i < (half == 0 ? middle : tables.size()); ++i) {
      if (!tables[i].keyed()) continue;
      for (const Pair &pair : tables[i].pairs) add_for_pair(api, tables[i], pair);
      add_for_table(api, tables[i]);
    }
  }
}

}  // namespace pdgen
