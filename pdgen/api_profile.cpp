// Members and groups of action profiles: changes, read-back, callbacks.
#include <fmt/format.h>

#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const std::string kStatus = "p4_pd_status_t";

Parameter member() { return {"p4_pd_member_handle_t", "member"}; }
Parameter out_member() { return {"p4_pd_member_handle_t *", "member"}; }
Parameter group() { return {"p4_pd_group_handle_t", "group"}; }
Parameter out_group() { return {"p4_pd_group_handle_t *", "group"}; }
Parameter count() { return {"uint32_t", "count"}; }
Parameter out_count() { return {"uint32_t *", "count"}; }

// Adds functions of one profile. In statements $0 is its descriptor, $1 the handle of its
// action-data table and $2 that of its selector.
class ProfileFunctions {
 public:
  ProfileFunctions(Api &api, const Profile &profile) : api_(api), profile_(profile) {}

  void add(const char *operation, std::vector<Parameter> parameters, const std::string &statement) {
    api_.add(profile_group(profile_),
             {profile_function(api_.program(), profile_, operation), kStatus, std::move(parameters),
              "return " + expand(statement, {"profile::" + profile_.name + "::profile",
                                             hex32(profile_.action_data_handle),
                                             hex32(profile_.selector_handle)}),
              operation, profile_.name, ""});
  }

  void add_for_action(const Action &action) {
    const Program &program = api_.program();
    const char *argument = action.has_params() ? "action_spec" : "nullptr";
    const std::string type = "profile::" + profile_.name + "::" + action.name;
    const std::string record = "profile::" + profile_.name + "::profile";
    const auto add_one = [&](const char *operation, const char *family,
                             std::vector<Parameter> parameters, const char *statement) {
      api_.add(
          profile_group(profile_),
          {profile_function(program, profile_, operation, action), kStatus, std::move(parameters),
           expand(statement, {type, record, argument}), family, profile_.name, action.name});
    };
    std::vector<Parameter> parameters = {session(), target()};
    if (action.has_params()) parameters.push_back(action_spec(program, action));
    parameters.push_back(out_member());
    add_one("add_member_with_", "add_member", parameters,
            "return pd::add_member<$0>($1, session, target, $2, member)");
    parameters = {session(), device(), member()};
    if (action.has_params()) parameters.push_back(action_spec(program, action));
    add_one("modify_member_with_", "modify_member", parameters,
            "return pd::modify_member<$0>($1, session, device, member, $2)");
  }

 private:
  Api &api_;
  const Profile &profile_;
};

void add_changes(ProfileFunctions &functions) {
  functions.add("del_member", {session(), device(), member()},
                "pd::delete_member($0, session, device, member)");
  functions.add("create_group", {session(), target(), {"uint32_t", "max_size"}, out_group()},
                "pd::create_group($0, session, target, max_size, group)");
  functions.add("del_group", {session(), device(), group()},
                "pd::delete_group($0, session, device, group)");
  functions.add("add_member_to_group", {session(), device(), group(), member()},
                "pd::add_member_to_group($0, session, device, group, member)");
  functions.add("del_member_from_group", {session(), device(), group(), member()},
                "pd::delete_member_from_group($0, session, device, group, member)");
  functions.add("group_member_state_set",
                {session(), device(), group(), member(), {"uint32_t", "state"}},
                "pd::set_member_state($0, session, device, group, member, state)");
  functions.add("group_member_state_get",
                {session(), device(), group(), member(), {"uint32_t *", "state"}},
                "pd::get_member_state($0, session, device, group, member, state)");
  functions.add("group_member_get_from_hash",
                {session(),
                 device(),
                 group(),
                 {"const uint8_t *", "hash"},
                 {"uint32_t", "hash_length"},
                 out_member()},
                "pipe_mgr_sel_grp_mbr_get_from_hash(session, device, $2, group, hash, hash_length, "
                "member)");
  functions.add("set_dynamic_action_selection_fallback_member", {session(), target(), member()},
                "pipe_mgr_sel_fallback_mbr_set(session, target.device_id, target.pipe_id, $2, "
                "member, 0)");
  functions.add(
      "reset_dynamic_action_selection_fallback_member", {session(), target()},
      "pipe_mgr_sel_fallback_mbr_reset(session, target.device_id, target.pipe_id, $2, 0)");
}

void add_callbacks(ProfileFunctions &functions) {
  const Parameter group_callback = {"pipe_mgr_sel_update_cb_t", "callback"};
  functions.add("register_callback", {session(), device(), group_callback, cookie()},
                "pipe_mgr_sel_tbl_register_cb(session, device, $2, callback, cookie)");
  functions.add("sel_track_updates", {device(), group_callback, cookie()},
                "pipe_mgr_sel_tbl_register_cb(0, device, $2, callback, cookie)");
  functions.add("register_adt_update_cb",
                {session(), device32(), {"pipe_mgr_adt_update_cb_t", "callback"}, cookie()},
                "pipe_register_adt_update_cb(session, device, $1, callback, cookie)");
  functions.add("register_sel_update_cb", {session(), device32(), group_callback, cookie()},
                "pipe_register_sel_update_cb(session, device, $2, callback, cookie)");
  functions.add("get_adt_table_handle", {{"uint32_t *", "handle"}}, "pd::get_handle($1, handle)");
  functions.add("get_sel_table_handle", {{"uint32_t *", "handle"}}, "pd::get_handle($2, handle)");
}

void add_read_back(ProfileFunctions &functions, const Program &program) {
  functions.add("get_member",
                {session(),
                 device(),
                 member(),
                 from_hardware(),
                 {action_specs_type(program) + " *", "action_specs"}},
                "pd::get_member($0, session, device, member, read_from_hardware, action_specs)");
  functions.add("get_first_member", {session(), target(), out_member()},
                "pd::get_first($1, session, target, member)");
  functions.add("get_next_members",
                {session(), target(), member(), count(), {"p4_pd_member_handle_t *", "members"}},
                "pd::get_next($1, session, target, member, count, members)");
  functions.add("get_first_group", {session(), target(), out_group()},
                "pd::get_first($2, session, target, group)");
  functions.add("get_next_groups",
                {session(), target(), group(), count(), {"p4_pd_group_handle_t *", "groups"}},
                "pd::get_next($2, session, target, group, count, groups)");
  functions.add("get_first_group_member", {session(), device(), group(), out_member()},
                "pipe_mgr_get_first_group_member(session, $2, device, group, member)");
  functions.add(
      "get_next_group_members",
      {session(), device(), group(), member(), count(), {"p4_pd_member_handle_t *", "members"}},
      "pipe_mgr_get_next_group_members(session, $2, device, group, member, count, "
      "members)");
  functions.add("get_act_prof_entry_count", {session(), target(), out_count()},
                "pd::get_entry_count($1, session, target, count)");
  functions.add("get_selector_group_count", {session(), target(), out_count()},
                "pd::get_entry_count($2, session, target, count)");
  functions.add("get_selector_group_member_count", {session(), device(), group(), out_count()},
                "pipe_mgr_get_sel_grp_mbr_count(session, device, $2, group, count)");
  functions.add("get_word_llp_active_member_count",
                {session(), target(), {"uint32_t", "word"}, out_count()},
                "pipe_mgr_get_word_llp_active_member_count(session, target.device_id, "
                "target.pipe_id, $2, word, count)");
  functions.add(
      "get_word_llp_active_members",
      {session(), target(), {"uint32_t", "word"}, count(), {"p4_pd_member_handle_t *", "members"}},
      "pipe_mgr_get_word_llp_active_members(session, target.device_id, target.pipe_id, "
      "$2, word, count, members)");
}

}  // namespace

void add_profile_functions(Api &api) {
  api.add_note(
      "Profiles",
      "For every action profile. Members and groups are made by the pipeline manager and recorded "
      "in the profile's member-selector state once it has succeeded. A member keeps its action for "
      "life: modify_member_with_ another one returns P4_PD_MEMBER_KEEPS_ACTION. A member that the "
      "state does not know cannot be modified or join a group; the state's status is returned. "
      "group_member_state_set takes P4_PD_GRP_MBR_STATE_*, else P4_PD_MEMBER_STATE_REFUSED. "
      "sel_track_updates registers a callback without a session. get_member fills the action's "
      "value and, for an action with parameters, the member of spec that belongs to it.");
  api.begin_unit("profile", {"profile.hpp", "read_back.hpp", "table.hpp"});
  for (const Profile &profile : api.program().profiles) {
    ProfileFunctions functions(api, profile);
    for (const ProfileAction &pair : profile.actions) functions.add_for_action(*pair.action);
    add_changes(functions);
    add_callbacks(functions);
    add_read_back(functions, api.program());
  }
}

}  // namespace pdgen
