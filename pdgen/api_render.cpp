// Placement data rendered and compared, and dispatch by handle.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const Parameter kDescriptor = {"int", "descriptor"};
const Parameter kIndent = {"int", "indent"};
const Parameter kTable = {"uint32_t", "table_handle"};
const Parameter kProfile = {"uint32_t", "profile_handle"};
const Parameter kCount = {"uint32_t", "count"};

void add_for_table(Api &api, const Table &table) {
  const auto add = [&](const char *operation, std::vector<Parameter> parameters,
                       const char *statement) {
    api.add(table_group(table),
            {table_function(api.program(), table, operation), "int", std::move(parameters),
             expand(statement, {"render::table::" + table.name}), operation, table.name, ""});
  };
  add("plcmt_data_print", {kDescriptor, kIndent, placement()},
      "return print_placement($0, descriptor, indent, placement)");
  add("plcmt_data_value", {placement(), buffer()}, "return placement_value($0, placement, buffer)");
  add("plcmt_data_eq_to_hw", {session(), device(), kTable, entry(), placement()},
      "return placement_equals_hardware($0, session, device, table_handle, entry, placement)");
}

void add_for_profile(Api &api, const Profile &profile) {
  const auto add = [&](const char *operation, const char *family, std::vector<Parameter> parameters,
                       const char *statement) {
    api.add(profile_group(profile),
            {profile_function(api.program(), profile, operation), "int", std::move(parameters),
             expand(statement, {"render::profile::" + profile.name}), family, profile.name, ""});
  };
  add("adt_plcmt_data_print", "adt_plcmt_data_print", {kDescriptor, kIndent, placement()},
      "return print_member_placement($0, descriptor, indent, placement)");
  add("plcmt_data_value", "adt_plcmt_data_value", {placement(), buffer()},
      "return member_placement_value($0, placement, buffer)");
}

void add_dispatchers(Api &api) {
  const auto add = [&](const char *operation, const char *result, std::vector<Parameter> parameters,
                       const char *statement) {
    api.add("Rendering by handle",
            {program_function(api.program(), operation), result, std::move(parameters), statement,
             std::string("by_handle_") + operation, "", ""});
  };
  const char *status = "p4_pd_status_t";
  add("plcmt_data_print", "int", {kDescriptor, kIndent, kTable, placement()},
      "return print_placement_of(render::all, descriptor, indent, table_handle, placement)");
  add("adt_plcmt_data_print", "int", {kDescriptor, kIndent, kProfile, placement()},
      "return print_member_placement_of(render::all, descriptor, indent, profile_handle, "
      "placement)");
  add("plcmt_data_value", "int", {kTable, placement(), buffer()},
      "return placement_value_of(render::all, table_handle, placement, buffer)");
  add("adt_plcmt_data_value", "int", {kProfile, placement(), buffer()},
      "return member_placement_value_of(render::all, profile_handle, placement, buffer)");
  add("plcmt_data_eq_to_hw", "int", {session(), device(), kTable, entry(), placement()},
      "return placement_of_equals_hardware(render::all, session, device, table_handle, entry, "
      "placement)");
  add("entry_value", "int",
      {session(), device32(), kTable, entry(), {"uint32_t", "read_from_hardware"}, buffer()},
      "return entry_value_of(render::all, session, device, table_handle, entry, "
      "read_from_hardware, buffer)");
  add("entry_hdl_first", status, {session(), target(), kTable, out_entry()},
      "return first_entry_of(render::all, session, target, table_handle, entry)");
  add("entry_hdl_next", status,
      {session(), target(), kTable, entry(), kCount, {"p4_pd_entry_handle_t *", "entries"}},
      "return next_entries_of(render::all, session, target, table_handle, entry, count, entries)");
  add("entry_hdl_default", status, {session(), target(), kTable, out_entry()},
      "return default_entry_of(render::all, session, target, table_handle, entry)");
  add("member_hdl_next", status,
      {session(),
       target(),
       kProfile,
       {"p4_pd_member_handle_t", "member"},
       kCount,
       {"p4_pd_member_handle_t *", "members"}},
      "return next_members_of(render::all, session, target, profile_handle, member, count, "
      "members)");
}

}  // namespace

void add_render_functions(Api &api) {
  const Program &program = api.program();
  api.add_note(
      "Rendering of placement data",
      "plcmt_data_print writes key and action of placement data to a file descriptor and returns "
      "0, "
      "or the status of the decoder after a line that says that it failed. plcmt_data_value writes "
      "a value string (" +
          size_constant(program, "VALUE_MAX") +
          " bytes hold any) and returns its length, 0 when the data cannot be decoded. "
          "plcmt_data_eq_to_hw returns 1 when the data describes the entry that the hardware holds "
          "under the handle, priorities apart, and 0 otherwise, also when either cannot be read; "
          "entries that point at groups must point at the same one. The functions by handle do the "
          "same for a table or for the action-data table of a profile; an unknown handle is "
          "printed "
          "as not found, has no value and equals nothing. entry_hdl_first, entry_hdl_next, "
          "entry_hdl_default and member_hdl_next walk entries and members; an unknown handle "
          "stores "
          "0xffffffff and returns 0, member_hdl_next 0xffffffff.");
  api.begin_unit("render", {"renders.hpp"});
  for (const Table &table : program.tables) add_for_table(api, table);
  for (const Profile &profile : program.profiles) add_for_profile(api, profile);
  add_dispatchers(api);
}

}  // namespace pdgen
