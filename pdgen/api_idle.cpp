// Ageing of the tables that have it.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

void add_for_table(Api &api, const Table &table) {
  const auto add = [&](const char *operation, std::vector<Parameter> rest, const char *statement) {
    std::vector<Parameter> parameters = {session(), device()};
    parameters.insert(parameters.end(), rest.begin(), rest.end());
    api.add(table_group(table),
            {table_function(api.program(), table, operation), "p4_pd_status_t", parameters,
             expand(statement, {hex32(table.handle)}), operation, table.name, ""});
  };
  add("idle_tmo_enable", {{"p4_pd_idle_time_params_t", "params"}},
      "return pd::enable_idle_timeout($0, session, device, params)");
  add("idle_tmo_disable", {}, "return pd::disable_idle_timeout($0, session, device)");
  add("idle_register_tmo_cb", {{"pipe_mgr_idle_cb_t", "callback"}, {"void *", "client_data"}},
      "return pd::register_idle_callback($0, session, device, callback, client_data)");
  add("idle_params_get", {{"p4_pd_idle_time_params_t *", "params"}},
      "return pd::get_idle_params($0, session, device, params)");
  add("set_ttl", {entry(), ttl()}, "return pd::set_ttl($0, session, device, entry, ttl)");
  add("get_ttl", {entry(), {"uint32_t *", "ttl"}},
      "return pd::get_ttl($0, session, device, entry, ttl)");
  add("update_hit_state", {entry(), {"uint32_t", "hit_state"}},
      "return pd::update_hit_state($0, session, device, entry, hit_state)");
  add("get_hit_state", {entry(), {"uint32_t *", "hit_state"}},
      "return pd::get_hit_state($0, session, device, entry, hit_state)");
}

}  // namespace

void add_idle_functions(Api &api) {
  api.add_note("Idle time",
               "For the tables that age their entries. idle_params_get writes the mode alone "
               "unless the mode is PIPE_IDLE_NOTIFY. get_hit_state writes a state without meaning "
               "when it fails.");
  api.begin_unit("idle", {"idle.hpp"});
  for (const Table &table : api.program().tables) {
    if (table.idle_time) add_for_table(api, table);
  }
}

}  // namespace pdgen
