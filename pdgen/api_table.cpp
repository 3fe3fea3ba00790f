// Operations on a table as a whole: seven a table.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

void add_for_table(Api &api, const Table &table) {
  const auto add = [&](const char *operation, std::string result, std::vector<Parameter> parameters,
                       const std::string &statement) {
    api.add(table_group(table), {table_function(api.program(), table, operation), std::move(result),
                                 std::move(parameters), expand(statement, {hex32(table.handle)}),
                                 operation, table.name, ""});
  };
  const std::string status = "p4_pd_status_t";
  add("get_mat_table_handle", status, {{"uint32_t *", "handle"}},
      "return pd::get_handle($0, handle)");
  add("get_entry_count", status, {session(), target(), {"uint32_t *", "count"}},
      "return pd::get_entry_count($0, session, target, count)");
  add("set_property", status,
      {session(),
       device(),
       {"uint32_t", "property"},
       {"uint32_t", "value"},
       {"uint32_t", "argument"}},
      "return pd::set_property($0, session, device, property, value, argument)");
  add("get_property", status,
      {session(),
       device(),
       {"uint32_t", "property"},
       {"uint32_t *", "value"},
       {"uint32_t *", "argument"}},
      "return pd::get_property($0, session, device, property, value, argument)");
  add("register_mat_update_cb", status,
      {session(), device32(), {"pipe_mgr_mat_update_cb_t", "callback"}, {"void *", "cookie"}},
      "return pd::register_update_callback($0, session, device, callback, cookie)");
  add("table_reset_default_entry", status, {session(), target()},
      "return pd::reset_default_entry($0, session, target)");
  add("supports_entry_priority", "int", {}, table.has_priority() ? "return 1" : "return 0");
}

}  // namespace

void add_table_functions(Api &api) {
  api.add_note("Tables",
               "For every table. get_mat_table_handle writes the table's handle (a null pointer is "
               "skipped). get_entry_count counts the entries without the default entry. "
               "set_property and get_property take a property of the pipeline manager "
               "(PIPE_TABLE_*); get_property writes 0xffffffff to both outputs when it fails. "
               "register_mat_update_cb has the pipeline manager call the caller after each change. "
               "table_reset_default_entry puts back the program's own default entry. "
               "supports_entry_priority returns 1 for a ternary table, else 0.");
  api.begin_unit("table", {"table.hpp"});
  for (const Table &table : api.program().tables) add_for_table(api, table);
}

}  // namespace pdgen
