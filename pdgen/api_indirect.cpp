// Entries of tables that are bound to an action profile.
#include <fmt/format.h>

#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const std::string kStatus = "p4_pd_status_t";

// What an entry points at: a member, or a group in the functions for selectors.
struct Pointee {
  Parameter parameter;
  const char *argument;
  const char *selector;  // part of the function's name
};

const Pointee kPointees[] = {
    {{"p4_pd_member_handle_t", "member"}, "pd::Member{member}", ""},
    {{"p4_pd_group_handle_t", "group"}, "pd::Group{group}", "_with_selector"},
};

void add_for_pointee(Api &api, const Table &table, const Pointee &pointee) {
  const Program &program = api.program();
  const std::string given = table.has_priority() ? "priority" : "0";
  const auto add = [&](const std::string &operation, std::vector<Parameter> parameters,
                       const char *statement) {
    api.add(table_group(table),
            {table_function(program, table, operation), kStatus, std::move(parameters),
             expand(statement, {"table::" + table.name, given, pointee.argument}), operation,
             table.name, ""});
  };
  const std::string selector = pointee.selector;
  std::vector<Parameter> keyed = {session(), target(), match_spec(program, table)};
  if (table.has_priority()) keyed.push_back(priority());
  keyed.push_back(pointee.parameter);
  std::vector<Parameter> keyed_out = keyed;
  keyed_out.push_back(out_entry());
  add("add_entry" + selector, keyed_out,
      "return pd::add_indirect_entry<$0>(session, target, match_spec, $1, $2, entry)");
  add("modify_entry" + selector, {session(), device(), entry(), pointee.parameter},
      "return pd::modify_indirect_entry<$0>(session, device, entry, $2)");
  add("modify_entry" + selector + "_by_match_spec", keyed,
      "return pd::modify_indirect_entry_by_match_spec<$0>(session, target, match_spec, $1, $2)");
  add("set_default_entry" + selector, {session(), target(), pointee.parameter, out_entry()},
      "return pd::set_indirect_default_entry<$0>(session, target, $2, entry)");
}

void add_get_entry(Api &api, const Table &table) {
  const Program &program = api.program();
  std::vector<Parameter> parameters = {session(), device(), entry(), from_hardware(),
                                       out_match_spec(program, table)};
  if (table.has_priority()) parameters.push_back({"uint32_t *", "priority"});
  parameters.insert(parameters.end(), {{"bool *", "has_member"},
                                       {"bool *", "has_group"},
                                       {"p4_pd_group_handle_t *", "group"},
                                       {"p4_pd_member_handle_t *", "member"},
                                       {"bool *", "no_key"}});
  api.add(table_group(table),
          {table_function(program, table, "get_entry"), kStatus, parameters,
           expand("return pd::get_indirect_entry(table::$0::table, session, device, entry, "
                  "read_from_hardware, {.match_spec = match_spec, $1.has_member = has_member, "
                  ".has_group = has_group, .group = group, .member = member, .no_key = no_key})",
                  {table.name, table.has_priority() ? ".priority = priority, " : ""}),
           "get_indirect_entry", table.name, ""});
}

}  // namespace

void add_indirect_functions(Api &api) {
  api.add_note(
      "Indirect entries",
      "For the tables that are bound to a profile. An entry points at a member or, in the "
      "functions with _with_selector, at a group. The member or group must be known to the "
      "profile's member-selector state, and a group must have had a member; otherwise the state's "
      "status is returned and the pipeline manager is not called. get_entry sets has_member or "
      "has_group and writes the handle that applies; the other one stays as it was.");
  api.begin_unit("indirect", {"indirect.hpp", "read_back.hpp"});
  for (const Table &table : api.program().tables) {
    if (!table.indirect()) continue;
    for (const Pointee &pointee : kPointees) add_for_pointee(api, table, pointee);
    add_get_entry(api, table);
  }
}

}  // namespace pdgen
