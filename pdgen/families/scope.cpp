// Which objects there are to walk, and what they are called.
#include "pdgen/families/scope.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "pdgen/names.hpp"
#include "pdgen/text.hpp"
#include "pdgen/texts/texts.hpp"

namespace pdgen {

namespace {

using S = const Scope &;

// --- Walks ----------------------------------------------------------------------------------

template <typename Row>
std::vector<Scope> each(S scope, const std::vector<Row> &rows, const Row *Scope::*slot) {
  std::vector<Scope> scopes(rows.size(), scope);
  for (std::size_t i = 0; i < rows.size(); ++i) scopes[i].*slot = &rows[i];
  return scopes;
}

std::vector<Scope> each_pair(S scope) {
  std::vector<Scope> scopes = each(scope, scope.table->pairs, &Scope::pair);
  for (Scope &pair : scopes) pair.action = pair.pair->action.target;
  return scopes;
}

std::vector<Scope> each_default(S scope) {
  std::vector<Scope> scopes = each_pair(scope);
  std::erase_if(scopes, [](S pair) { return !pair.pair->as_default; });
  return scopes;
}

std::vector<Scope> each_member(S scope) {
  std::vector<Scope> scopes = each(scope, scope.profile->actions, &Scope::member);
  for (Scope &member : scopes) member.action = member.member->action.target;
  return scopes;
}

std::vector<Scope> each_captured_field(S scope) {
  if (!scope.program->snapshots) return {};
  return each(scope, scope.program->snapshots->capture, &Scope::packet_field);
}

std::vector<Scope> each_label(S scope) {
  std::vector<Scope> scopes;
  for (const Label &label : scope.program->labels) {
    scopes.push_back(scope);
    scopes.back().table = label.table.target;
  }
  return scopes;
}

std::vector<Scope> each_layout(S scope) {
  if (!scope.program->snapshots) return {};
  return each(scope, scope.program->snapshots->layouts, &Scope::layout);
}

template <auto Rows, auto Slot>
std::vector<Scope> of_program(S scope) {
  return each(scope, scope.program->*Rows, Slot);
}

std::vector<Scope> tables_by_handle(S scope) {
  std::vector<Scope> scopes = each(scope, scope.program->tables, &Scope::table);
  std::sort(scopes.begin(), scopes.end(),
            [](S a, S b) { return a.table->handle < b.table->handle; });
  return scopes;
}

std::vector<Scope> profiles_by_handle(S scope) {
  std::vector<Scope> scopes = each(scope, scope.program->profiles, &Scope::profile);
  std::sort(scopes.begin(), scopes.end(),
            [](S a, S b) { return a.profile->action_data_handle < b.profile->action_data_handle; });
  return scopes;
}

std::vector<Scope> each_digest_field(S scope) {
  return each(scope, scope.digest->fields, &Scope::digest_field);
}

std::vector<Scope> each_packet_field(S scope) {
  return each(scope, scope.layout->fields, &Scope::packet_field);
}

const Walk kWalks[] = {
    {"program", "table", {"table"}, of_program<&Program::tables, &Scope::table>},
    {"program", "action", {"action"}, of_program<&Program::actions, &Scope::action>},
    {"program", "profile", {"profile"}, of_program<&Program::profiles, &Scope::profile>},
    {"program",
     "counter",
     {"resource", "counter"},
     of_program<&Program::counters, &Scope::resource>},
    {"program", "meter", {"resource", "meter"}, of_program<&Program::meters, &Scope::resource>},
    {"program",
     "register",
     {"resource", "register"},
     of_program<&Program::registers, &Scope::resource>},
    {"program", "hash", {"hash"}, of_program<&Program::hashes, &Scope::hash>},
    {"program", "digest", {"digest"}, of_program<&Program::digests, &Scope::digest>},
    {"program", "value_set", {"value_set"}, of_program<&Program::value_sets, &Scope::value_set>},
    {"program", "label", {"table"}, each_label},
    {"program", "layout", {"layout"}, each_layout},
    {"table", "pair", {"action", "pair"}, each_pair},
    {"table", "default", {"action", "default"}, each_default},
    {"table", "field", {"field"}, [](S s) { return each(s, s.table->key, &Scope::field); }},
    {"profile", "member", {"action", "member"}, each_member},
    {"action", "param", {"param"}, [](S s) { return each(s, s.action->params, &Scope::param); }},
    {"digest", "digest_field", {"digest_field"}, each_digest_field},
    {"layout", "packet_field", {"packet_field"}, each_packet_field},
    {"program", "captured_field", {"packet_field"}, each_captured_field},
    {"program", "table_by_handle", {"table"}, tables_by_handle},
    {"program", "profile_by_handle", {"profile"}, profiles_by_handle},
};

const char *kind_text(TableKind kind) {
  constexpr const char *kTexts[] = {"no key", "exact", "ternary", "longest prefix"};
  return kTexts[static_cast<std::size_t>(kind)];
}

std::string table_group(const Table &table) {
  std::string title =
      fmt::format("Table {} ({}), {}", table.name, hex32(table.handle), kind_text(table.kind));
  if (table.idle_time) title += ", ages its entries";
  if (table.profile) title += ", bound to " + table.profile->name;
  return title;
}

}  // namespace

const Walk *find_walk(const Kinds &kinds, std::string_view name) {
  for (const Walk &walk : kWalks) {
    if (walk.name == name && std::find(kinds.begin(), kinds.end(), walk.kind) != kinds.end()) {
      return &walk;
    }
  }
  return nullptr;
}

std::string Scope::object() const {
  if (table != nullptr) return table->name;
  if (profile != nullptr) return profile->name;
  if (action != nullptr) return action->name;
  if (resource != nullptr) return resource->name;
  if (hash != nullptr) return hash->name;
  if (digest != nullptr) return digest->name;
  return value_set != nullptr ? value_set->name : "";
}

std::string Scope::group() const {
  if (table != nullptr) return table_group(*table);
  if (profile != nullptr) {
    return fmt::format("Profile {} (action data {}, selector {})", profile->name,
                       hex32(profile->action_data_handle), hex32(profile->selector_handle));
  }
  return action != nullptr ? "Actions" : "";
}

}  // namespace pdgen
