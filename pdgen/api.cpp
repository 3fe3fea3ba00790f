#include "pdgen/api.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

Api::Api(const Program &program) : program_(program) {}

void Api::add_note(std::string title, std::string text) {
  notes_.push_back({std::move(title), std::move(text)});
}

void Api::begin_unit(std::string name, std::vector<std::string> includes) {
  units_.push_back({std::move(name), std::move(includes)});
}

Group &Api::group(const std::string &title) {
  const auto found = std::find_if(groups_.begin(), groups_.end(),
                                  [&](const Group &group) { return group.title == title; });
  if (found != groups_.end()) return *found;
  groups_.push_back({title, {}, {}});
  return groups_.back();
}

void Api::declare(const std::string &title, const std::string &declarations) {
  group(title).declarations += declarations;
}

void Api::add(const std::string &title, Function function) {
  Group &home = group(title);
  home.functions.push_back(std::move(function));
  order_.push_back({units_.size() - 1, static_cast<std::size_t>(&home - groups_.data()),
                    home.functions.size() - 1});
}

std::vector<const Function *> Api::functions_of(const Unit &unit) const {
  const auto wanted = static_cast<std::size_t>(&unit - units_.data());
  std::vector<const Function *> found;
  for (const Address &address : order_) {
    if (address.unit == wanted) found.push_back(&groups_[address.group].functions[address.index]);
  }
  return found;
}

std::vector<const Function *> Api::functions() const {
  std::vector<const Function *> all;
  for (const Address &address : order_) {
    all.push_back(&groups_[address.group].functions[address.index]);
  }
  return all;
}

namespace {

const char *kind_text(const Table &table) {
  switch (table.kind) {
    case TableKind::kKeyless:
      return "no key";
    case TableKind::kExact:
      return "exact";
    case TableKind::kTernary:
      return "ternary";
    case TableKind::kLpm:
      return "longest prefix";
  }
  return "";
}

}  // namespace

std::string table_group(const Table &table) {
  std::string title =
      fmt::format("Table {} ({}), {}", table.name, hex32(table.handle), kind_text(table));
  if (table.idle_time) title += ", ages its entries";
  if (table.profile) title += ", bound to " + table.profile->name;
  return title;
}

std::string profile_group(const Profile &profile) {
  return fmt::format("Profile {} (action data {}, selector {})", profile.name,
                     hex32(profile.action_data_handle), hex32(profile.selector_handle));
}

std::string action_group() { return "Actions"; }
std::string introspection_group() { return "Introspection"; }

namespace parameter {

Parameter session() { return {"p4_pd_session_handle_t", "session"}; }
Parameter target() { return {"p4_pd_device_target_t", "target"}; }
Parameter device() { return {"uint8_t", "device"}; }
Parameter device32() { return {"uint32_t", "device"}; }
Parameter entry() { return {"p4_pd_entry_handle_t", "entry"}; }
Parameter out_entry() { return {"p4_pd_entry_handle_t *", "entry"}; }
Parameter match_spec(const Program &program, const Table &table) {
  return {"const " + match_spec_type(program, table) + " *", "match_spec"};
}
Parameter out_match_spec(const Program &program, const Table &table) {
  return {match_spec_type(program, table) + " *", "match_spec"};
}
Parameter priority() { return {"uint32_t", "priority"}; }
Parameter from_hardware() { return {"bool", "read_from_hardware"}; }
Parameter placement() { return {"const pipe_mgr_placement_t *", "placement"}; }
Parameter ttl() { return {"uint32_t", "ttl"}; }
Parameter meter_spec() { return {"const p4_pd_bytes_meter_spec_t *", "meter_spec"}; }
Parameter sync_callback() { return {"pipe_mgr_sync_cb_t", "callback"}; }
Parameter cookie() { return {"void *", "cookie"}; }
Parameter action_spec(const Program &program, const Action &action) {
  return {"const " + action_spec_type(program, action) + " *", "action_spec"};
}
Parameter buffer() { return {"char *", "buffer"}; }

}  // namespace parameter

Api build_api(const Program &program) {
  Api api(program);
  add_frame_functions(api);
  add_records(api);
  add_table_functions(api);
  add_entry_functions(api);
  add_default_functions(api);
  add_read_back_functions(api);
  add_idle_functions(api);
  add_indirect_functions(api);
  add_profile_functions(api);
  add_meter_functions(api);
  add_placement_functions(api);
  add_counter_functions(api);
  add_register_functions(api);
  add_hash_functions(api);
  add_digest_functions(api);
  add_value_set_functions(api);
  add_snapshot_functions(api);
  add_schema_functions(api);
  add_value_functions(api);
  add_print_functions(api);
  add_label_functions(api);
  add_compare_functions(api);
  return api;
}

}  // namespace pdgen
