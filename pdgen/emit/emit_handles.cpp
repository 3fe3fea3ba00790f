// Every handle with its object, so that a slip in the catalogue shows as a difference in review.
#include <fmt/format.h>

#include <map>

#include "pdgen/emit/emit.hpp"

namespace pdgen {

std::string emit_handles(const Program &program) {
  std::map<std::uint32_t, std::string> objects;
  const auto add_all = [&](const auto &rows, std::string_view kind) {
    for (const auto &row : rows) objects[row.handle] = fmt::format("{} {}", kind, row.name);
  };
  const auto add_actions = [&](const auto &rows, const std::string &owner) {
    for (const auto &row : rows) {
      objects[row.handle] = fmt::format("action {} of {}", row.action.name, owner);
    }
  };
  add_all(program.tables, "table");
  add_all(program.counters, "counter");
  add_all(program.meters, "meter");
  add_all(program.registers, "register");
  add_all(program.hashes, "hash");
  add_all(program.digests, "digest");
  add_all(program.value_sets, "value set");
  for (const Table &table : program.tables) add_actions(table.pairs, "table " + table.name);
  for (const Profile &profile : program.profiles) {
    objects[profile.action_data_handle] = "action data of profile " + profile.name;
    objects[profile.selector_handle] = "selector of profile " + profile.name;
    add_actions(profile.actions, "profile " + profile.name);
  }
  for (const Hash &hash : program.hashes) {
    objects[hash.field_list_handle] = "field list of hash " + hash.name;
  }
  if (!program.hashes.empty()) objects[program.hash_algorithm] = "algorithm of the hashes";
  std::string text;
  for (const auto &[handle, object] : objects) text += fmt::format("{:#010x} {}\n", handle, object);
  return text;
}

}  // namespace pdgen
