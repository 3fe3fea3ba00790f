// Which objects there are to walk, and what they are called.
#include "pdgen/families/scope.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "pdgen/families/members.hpp"

namespace pdgen {

namespace {

using S = const Scope &;

// Those of `scopes` that the condition holds for.
template <typename Condition>
std::vector<Scope> only(std::vector<Scope> scopes, Condition holds) {
  std::erase_if(scopes, [&](S scope) { return !holds(scope); });
  return scopes;
}

// The rows that references lead to, of a list of them or of rows with one reference each.
template <typename Row>
std::vector<Scope> each_target(S scope, const std::vector<Ref<Row>> &references) {
  std::vector<Scope> scopes(references.size(), scope);
  for (std::size_t i = 0; i < scopes.size(); ++i) scopes[i].set(*references[i]);
  return scopes;
}
template <auto Rows, auto Reference>
std::vector<Scope> each_with(S scope) {
  std::vector<Scope> scopes = each<Rows>(scope);
  for (Scope &row : scopes) row.set(*value_of<Reference>(row));
  return scopes;
}

template <auto Member>
std::vector<Scope> of_snapshots(S scope) {
  const auto &snapshots = scope.get<Program>().snapshots;
  return snapshots ? each_row(scope, (*snapshots).*Member) : std::vector<Scope>{};
}

// Ingress and egress; a direction without a layout has no fields.
std::vector<Scope> each_direction(S scope) {
  static const std::vector<SnapshotLayout> kEmpty = {{"ingress", {}, {}}, {"egress", {}, {}}};
  std::vector<Scope> directions = each_row(scope, kEmpty);
  for (Scope &direction : directions) {
    for (S layout : of_snapshots<&Snapshots::layouts>(scope)) {
      const auto &row = layout.get<SnapshotLayout>();
      if (row.name == direction.get<SnapshotLayout>().name) direction.set(row);
    }
  }
  return directions;
}

std::vector<Scope> each_route_table(S scope) {
  const auto &routes = scope.get<Program>().routes;
  return routes ? each_target(scope, routes->tables) : std::vector<Scope>{};
}

std::vector<Scope> each_acl_field(S scope) {
  std::vector<Ref<KeyField>> fields = scope.get<Acl>().fields;
  std::erase_if(fields, [](const Ref<KeyField> &field) { return !field; });
  return each_target(scope, fields);
}

// The default entry of a fresh device, if it has one.
std::vector<Scope> each_initial(S scope) {
  const auto &entry = scope.get<Table>().default_entry;
  if (!entry) return {};
  Scope initial = scope;
  initial.set(*entry);
  initial.set(*entry->pair);
  initial.set(*entry->pair->action);
  return {initial};
}

// The fields that tools show of the record of that name in a list of records.
std::vector<Scope> shown_fields(S scope, std::string_view list, const std::string &name) {
  const ToolRecords *records = find_row(scope.get<Program>().tool_records, list);
  const ToolRecord *record = records == nullptr ? nullptr : find_row(records->records, name);
  if (record == nullptr) return {};
  std::vector<Scope> scopes = each_row(scope, record->fields);
  scopes.resize(record->shown, scope);
  return scopes;
}

template <typename Row>
std::vector<Scope> each_shown_field(S scope, std::string_view list) {
  return shown_fields(scope, list, scope.get<Row>().name);
}

constexpr auto each_pair = each_with<&Table::pairs, &Pair::action>;

// The parameters of all actions of entries, by their labels, without those that fields of the key
// have.
std::vector<Scope> each_entry_parameter(S scope) {
  const auto label_of = [](S field) { return field.get<ToolField>().label; };
  const std::vector<Scope> key = each_shown_field<Table>(scope, "table");
  std::vector<Scope> all;
  for (S pair : each_pair(scope)) {
    if (!pair.get<Pair>().in_entries || scope.get<Table>().profile) continue;
    for (S field : each_shown_field<Action>(pair, "action")) {
      const auto is_same = [&](S other) { return label_of(other) == label_of(field); };
      if (std::ranges::none_of(key, is_same) && std::ranges::none_of(all, is_same)) {
        all.push_back(field);
      }
    }
  }
  return all;
}

// What the keys of routes have besides the prefix.
std::vector<Scope> each_route_field(S scope) {
  const std::vector<Scope> tables = each_route_table(scope);
  if (tables.empty()) return {};
  return only(each_shown_field<Table>(tables[0], "table"),
              [](S field) { return field.get<ToolField>().match != Match::kLpm; });
}

std::vector<Scope> each_bound_profile(S scope) {
  const auto &profile = scope.get<Table>().profile;
  return profile ? each_target<Profile>(scope, {profile}) : std::vector<Scope>{};
}

constexpr auto each_label = each_with<&Program::labels, &Label::table>;

const Walk kWalks[] = {
    {"program", "table", "table", each<&Program::tables>},
    {"program", "action", "action", each<&Program::actions>},
    {"program", "profile", "profile", each<&Program::profiles>},
    {"program", "counter", "resource counter", each<&Program::counters>},
    {"program", "meter", "resource meter", each<&Program::meters>},
    {"program", "register", "resource register", each<&Program::registers>},
    {"program", "hash", "hash", each<&Program::hashes>},
    {"program", "digest", "digest", each<&Program::digests>},
    {"program", "value_set", "value_set", each<&Program::value_sets>},
    {"program", "label", "table label", each_label},
    {"program", "layout", "layout", of_snapshots<&Snapshots::layouts>},
    {"program", "captured_field", "packet_field", of_snapshots<&Snapshots::capture>},
    {"program", "handle", "handle", each<&Program::handles>},
    {"program", "direction", "layout", each_direction},
    {"program", "route_table", "table", each_route_table},
    {"program", "acl", "table acl", each_with<&Program::acls, &Acl::table>},
    {"acl", "acl_field", "field", each_acl_field},
    {"program", "record_list", "record_list", each<&Program::tool_records>},
    {"table", "pair", "action pair", each_pair},
    {"table", "default", "action default",
     [](S s) { return only(each_pair(s), [](S pair) { return pair.get<Pair>().as_default; }); }},
    {"table", "initial", "action pair initial", each_initial},
    {"initial", "initial_cell", "resource item initial_cell",
     each_with<&DefaultEntry::cells, &ResourceItem::resource>},
    {"table", "field", "field", each<&Table::key>},
    {"table", "shown_field", "tool_field", [](S s) { return each_shown_field<Table>(s, "table"); }},
    {"table", "entry_parameter", "tool_field", each_entry_parameter},
    {"table", "bound_profile", "profile", each_bound_profile},
    {"program", "route_field", "tool_field", each_route_field},
    {"layout", "trigger_field", "tool_field",
     [](S s) { return each_shown_field<SnapshotLayout>(s, "trigger"); }},
    {"layout", "sent_field", "tool_field",
     [](S s) { return each_shown_field<SnapshotLayout>(s, "packet"); }},
    {"program", "stage_field", "tool_field",
     [](S s) { return shown_fields(s, "capture", "capture"); }},
    {"action", "parameter_field", "tool_field",
     [](S s) { return each_shown_field<Action>(s, "action"); }},
    {"digest", "entry_field", "tool_field",
     [](S s) { return each_shown_field<Digest>(s, "digest"); }},
    {"table", "record_field", "record_field", each<&Table::record>},
    {"pair", "item", "resource item", each_with<&Pair::items, &ResourceItem::resource>},
    {"profile", "member", "action member", each_with<&Profile::actions, &ProfileAction::action>},
    {"action", "param", "param", each<&Action::params>},
    {"param", "cell", "resource", [](S s) { return each_target(s, s.get<Param>().index_of); }},
    {"digest", "digest_field", "packet_field", each<&Digest::fields>},
    {"layout", "packet_field", "packet_field", each<&SnapshotLayout::fields>},
    {"layout", "swapped_field", "packet_field",
     [](S s) {
       return only(each<&SnapshotLayout::fields>(s),
                   [](S field) { return field.get<PacketField>().bytes > 1; });
     }},
    {"label", "item", "label_item",
     [](S s) {
       return only(each<&Label::items>(s),
                   [](S item) { return item.get<LabelItem>().kind != LabelKind::kSilent; });
     }},
    {"label_item", "place", "field",
     [](S s) {
       const auto &[kind, place, field, oui, station, label, bit, after, format, digits, texts,
                    mask] = s.get<LabelItem>();
       return kind == LabelKind::kMac ? each_target<KeyField>(s, {oui, station})
                                      : each_target<KeyField>(s, {field});
     }},
    {"label_item", "text", "label_text", each<&LabelItem::texts>},
    {"record_list", "record", "record", each<&ToolRecords::records>},
    {"record", "member", "tool_member", each<&ToolRecord::members>},
    {"record", "tool_field", "tool_field", each<&ToolRecord::fields>},
    {"tool_field", "part", "part", each<&ToolField::parts>},
    {"tool_field", "cell", "word", each<&ToolField::cells>},
    {"tool_field", "joined_table", "word", each<&ToolField::joined_tables>},
    {"program", "note", "note", each<&Api::notes>},
    {"program", "group", "group", each<&Api::groups>},
    {"program", "unit", "unit", each<&Api::units>},
    {"program", "export", "export", each<&Api::exports>},
    {"group", "function", "function", each<&Group::functions>},
    {"unit", "function", "function", each<&Unit::functions>},
    {"unit", "include", "include", each<&Unit::includes>},
    {"unit", "parameter_list", "parameter_list", each<&Unit::lists>},
    {"parameter_list", "parameter", "parameter", each<&ParameterList::parameters>},
    {"function", "parameter", "parameter", each<&Function::parameters>},
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

template <typename Row, typename... Rest>
Owner first_owner(S scope) {
  if (const Row *row = scope.find<Row>()) return {row->name, row->place};
  if constexpr (sizeof...(Rest) > 0) return first_owner<Rest...>(scope);
  return {"", scope.get<Program>().place};
}

}  // namespace

const Walk *find_walk(const Kinds &kinds, std::string_view name) {
  for (const Walk &walk : kWalks) {
    if (walk.name == name && std::ranges::find(kinds, walk.kind) != kinds.end()) {
      return &walk;
    }
  }
  return nullptr;
}

Kinds kinds_within(Kinds kinds, const Walk &walk) {
  for (std::string_view rest = walk.kinds; !rest.empty();) {
    const std::size_t end = std::min(rest.find(' '), rest.size());
    kinds.push_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return kinds;
}

Owner Scope::owner() const {
  return first_owner<Table, Profile, Action, Resource, Hash, Digest, ValueSet>(*this);
}

std::string Scope::group() const {
  if (const Table *table = find<Table>()) return table_group(*table);
  if (const Profile *profile = find<Profile>()) {
    return fmt::format("Profile {} (action data {}, selector {})", profile->name,
                       hex32(profile->action_data_handle), hex32(profile->selector_handle));
  }
  return find<Action>() != nullptr ? "Actions" : "";
}

}  // namespace pdgen
