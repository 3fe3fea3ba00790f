// Placement data decoded into typed records, and the replay of a virtual device.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const std::string kStatus = "p4_pd_status_t";

void add_for_table(Api &api, const Table &table) {
  const Program &program = api.program();
  std::vector<Parameter> parameters = {placement()};
  std::string outputs;
  const auto out = [&](const std::string &type, const std::string &name) {
    parameters.push_back({type + " *", name});
    outputs += (outputs.empty() ? "." : ", .") + name + " = " + name;
  };
  if (table.keyed()) out(match_spec_type(program, table), "match_spec");
  if (table.has_priority()) out("uint32_t", "priority");
  if (table.indirect()) {
    out("p4_pd_member_handle_t", "member");
    out("p4_pd_group_handle_t", "group");
    out("bool", "has_member");
    out("bool", "has_group");
  } else {
    out(action_specs_type(program), "action_specs");
  }
  out("bool", "no_key");
  // Initialisers stand in the order of the record's members.
  if (table.indirect()) {
    outputs = std::string(".match_spec = match_spec, ") +
              (table.has_priority() ? ".priority = priority, " : "") +
              ".has_member = has_member, .has_group = has_group, .group = group, .member = member, "
              ".no_key = no_key";
  }
  api.add(table_group(table),
          {table_function(program, table, "get_entry_from_plcmt_data"), kStatus, parameters,
           expand("return pd::decode_placed_$2entry(table::$0::table, placement, {$1})",
                  {table.name, outputs, table.indirect() ? "indirect_" : ""}),
           table.indirect() ? "get_indirect_entry_from_plcmt_data" : "get_entry_from_plcmt_data",
           table.name, ""});
}

void add_for_profile(Api &api, const Profile &profile) {
  const Program &program = api.program();
  const Parameter specs = {action_specs_type(program) + " *", "action_specs"};
  const std::string descriptor = "profile::" + profile.name + "::profile";
  api.add(profile_group(profile),
          {profile_function(program, profile, "get_member_from_plcmt_data"),
           kStatus,
           {placement(), specs},
           expand("return pd::decode_placed_member($0, placement, action_specs)", {descriptor}),
           "get_member_from_plcmt_data",
           profile.name,
           ""});
  api.add(profile_group(profile),
          {profile_function(program, profile, "get_full_member_info_from_plcmt_data"),
           kStatus,
           {device(), {"p4_pd_member_handle_t", "member"}, placement(), specs},
           expand("return pd::decode_placed_member_with_resources($0, device, member, placement, "
                  "action_specs)",
                  {descriptor}),
           "get_full_member_info_from_plcmt_data",
           profile.name,
           ""});
}

}  // namespace

void add_placement_functions(Api &api) {
  const Program &program = api.program();
  api.add_note(
      "Placement data",
      "What the pipeline manager holds of a placed entry or member, decoded into the records of "
      "read-back; all outputs are mandatory. no_key is set for a default entry and for every entry "
      "of a table without a key; match_spec then stays as it was. P4_PD_FOREIGN_ACTION for an "
      "action that the table or profile does not have. restore_virtual_dev_state replays a virtual "
      "device onto a device; members, groups and memberships are recorded in the member-selector "
      "states on the way.");
  api.begin_unit("placement", {"placement.hpp"});
  for (const Table &table : program.tables) add_for_table(api, table);
  for (const Profile &profile : program.profiles) add_for_profile(api, profile);
  api.add("Virtual devices",
          {program_function(program, "restore_virtual_dev_state"),
           kStatus,
           {session(),
            device32(),
            {"uint32_t", "virtual_device"},
            {"uint32_t", "pipe"},
            {"uint32_t", "flags"}},
           "return pd::restore_virtual_device(session, device, virtual_device, pipe, flags)",
           "restore_virtual_dev_state",
           "",
           ""});
}

}  // namespace pdgen
