// Rules between rows: of labels, joins and routes, and of the counters, meters and registers that
// entries hand over with their actions.
#include <fmt/format.h>

#include <algorithm>
#include <bit>
#include <optional>

#include "pdgen/check/check.hpp"
#include "pdgen/load/load_row.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

bool has_action(const Table &table, const Action &action) {
  return std::ranges::any_of(table.pairs, [&](const Pair &pair) {
    return pair.in_entries && pair.action.target == &action;
  });
}

// Routes are a prefix and a next hop: what a tool can load must have no more.
void check_routes(const Program &program, Diagnostics &diagnostics) {
  if (!program.routes) return;
  const auto &[place, ref, tables] = *program.routes;
  const Action &action = *ref;
  if (action.params.size() != 1) {
    diagnostics.report(place, "routes.action", "{} must have one parameter, the next hop",
                       action.name);
  }
  for (const Ref<Table> &table : tables) {
    if (table->kind == TableKind::kLpm && has_action(*table, action)) continue;
    diagnostics.report(table.place, "routes.tables",
                       "{} must be a longest-prefix table with the action {}", table.name,
                       action.name);
  }
}

void check_joined_tables(const Join &join, Diagnostics &diagnostics) {
  for (const Ref<Table> &table : join.tables) {
    if (find_row(table->key, join.field.name) != nullptr) continue;
    diagnostics.report(table.place, "joins.tables", "table {} has no key field {}", table.name,
                       join.field.name);
  }
}

void check_joined_action(const Join &join, const Ref<Action> &action, Diagnostics &diagnostics) {
  const auto is_joined = [&](const Param &param) { return writes(join, *action, param); };
  if (std::ranges::any_of(action->params, is_joined)) return;
  diagnostics.report(action.place, "joins.actions", "action {} has no parameter {}", action.name,
                     fmt::join(join.params, ", "));
}

// A parameter that goes into the field fits into it, and goes into no other one.
void check_joined(const Program &program, const Join &join, const Action &action,
                  const Param &param, Diagnostics &diagnostics) {
  if (!writes(join, action, param)) return;
  if (param.width > join.field->width) {
    diagnostics.report(join.place, "joins.params",
                       "parameter {} of action {} has {} bits, but field {} {}", param.name,
                       action.name, param.width, join.field.name, join.field->width);
  }
  const auto first = std::ranges::find_if(
      program.field_facts.joins, [&](const Join &other) { return writes(other, action, param); });
  if (&*first == &join) return;
  diagnostics.report(join.place, "joins.params",
                     "parameter {} of action {} goes into field {} at {} already", param.name,
                     action.name, first->field.name, place_text(first->place));
}

// Rules are of addresses, ports and a protocol that may each be left open.
void check_acls(const Program &program, Diagnostics &diagnostics) {
  for (const Acl &acl : program.acls) {
    for (std::size_t i = 0; i < acl.fields.size(); ++i) {
      const Ref<KeyField> &field = acl.fields[i];
      const auto [key, width] = kAclFields[i];
      if (!field) continue;
      const bool fits = width == 0 ? field->width <= 32 : field->width == width;
      if (field->match == Match::kTernary && fits && !field->partial) continue;
      diagnostics.report(field.place, fmt::format("acl.{}", key),
                         "field {} of table {} must be ternary, with {} that are all in the key",
                         field.name, acl.table.name,
                         width == 0 ? "at most 32 bits" : fmt::format("{} bits", width));
    }
  }
}

// Labels name what entries of a table count.
void check_counted(const Program &program, const Label &label, Diagnostics &diagnostics) {
  const bool counted = std::ranges::any_of(program.counters, [&](const Resource &counter) {
    return counter.table.name == label.table.name;
  });
  if (counted) return;
  diagnostics.report(label.place, "label.table",
                     "table {} has no counter of its entries, so nothing to label",
                     label.table.name);
}

// What a kind of items needs of its fields: the match, the width (0: up to 32 bits), and who says
// so.
struct Needs {
  Match match;
  unsigned width;
  const char *whose;
};

// By LabelKind. Nothing is written of a silent one.
constexpr Needs kNeeds[] = {
    {Match::kTernary, 0, "a flag"},
    {Match::kTernary, 0, "a number"},
    {Match::kExact, 0, "an exact number"},
    {Match::kExact, 0, nullptr},
    {Match::kTernary, 24, "this part of an address"},
    {Match::kTernary, 32, "this part of an address"},
    {Match::kTernary, 128, "this part of an address"},
};

// What is wrong with the bits of an item, and the key that says so; nothing if they are right.
using Wrong = std::pair<std::string_view, std::string>;
std::optional<Wrong> wrong_bits(const LabelItem &item, const KeyField &field) {
  const bool is_flag = item.kind == LabelKind::kFlag;
  if (is_flag && item.bit == 0 && field.width > 1) {
    return Wrong("bit",
                 fmt::format("the field has {} bits, so a flag must name its bit", field.width));
  }
  if (is_flag && ((item.bit & (item.bit - 1)) != 0 || (item.bit & ~field.key_bits.lower) != 0)) {
    return Wrong("bit", fmt::format("{} must be one bit of the key bits {:#x}", hex(item.bit),
                                    field.key_bits.lower));
  }
  // A text for a value that the field cannot have would never be written.
  const auto is_beyond = [&](std::uint32_t bits) { return bits >> (field.width - 1) >> 1 != 0; };
  const auto beyond = std::ranges::find_if(item.texts, is_beyond, &LabelText::value);
  if (beyond != item.texts.end()) {
    return Wrong("texts.value",
                 fmt::format("{} is beyond its {} bits", hex(beyond->value), field.width));
  }
  if (item.texts_mask == kAnyNumber || !is_beyond(item.texts_mask)) return {};
  return Wrong("texts_mask",
               fmt::format("{} is beyond its {} bits", hex(item.texts_mask), field.width));
}

std::optional<Wrong> wrong_field(const LabelItem &item, const KeyField &field,
                                 std::string_view key) {
  const auto &[match, width, whose] = kNeeds[static_cast<std::size_t>(item.kind)];
  if (whose == nullptr) return {};
  if (field.match == match && (width == 0 ? !field.wide() : field.width == width)) {
    return wrong_bits(item, field);
  }
  return Wrong(key, fmt::format("{} needs {} field of {} bits", whose,
                                match == Match::kExact ? "an exact" : "a ternary",
                                width == 0 ? "at most 32" : std::to_string(width)));
}

void check_item(const Label &label, const LabelItem &item, Diagnostics &diagnostics) {
  for (const auto &[key, field] : {std::pair("field", &item.field), std::pair("oui", &item.oui),
                                   std::pair("station", &item.station)}) {
    const auto wrong = *field ? wrong_field(item, **field, key) : std::nullopt;
    if (!wrong) continue;
    diagnostics.report(item.place, fmt::format("label.items.{}", wrong->first),
                       "field {} of table {}: {}", field->name, label.table.name, wrong->second);
  }
}

// The resource list that goes with an action has room for so many items.
constexpr std::ptrdiff_t kMostItems = 4;

std::string item_text(const Table &table, const ResourceRow &row) {
  return fmt::format("resource {} of table {}", row.resource.name, table.name);
}

// A row that a table lacks; `columns` are those between the resource and the operations.
std::string row_to_add(const Table &table, const std::string &resource,
                       const std::string &columns = "") {
  return fmt::format("add {{ resource = \"{}\", {}in = [{}] }} to its resources", resource, columns,
                     table.keyed() ? "\"add\", \"modify\", \"default\"" : "\"default\"");
}

const ResourceRow *find_item(const Table &table, const Resource &resource) {
  for (const ResourceRow &row : table.resources) {
    if (row.resource.target == &resource) return &row;
  }
  return nullptr;
}

// What is wrong with the index of an item of a pair, "" if nothing is.
std::string index_fault(const ResourceRow &row, const Pair &pair) {
  if (row.resource->kind == ResourceKind::kRegister) {
    return "a register goes with cell 0, without index";
  }
  const std::vector<Param> &params = pair.action->params;
  const Param *param = find_row(params, row.index);
  if (param == nullptr) {
    return fmt::format("action {} has no parameter {}{}", pair.action.name, row.index,
                       did_you_mean(row.index, projected(params, &Param::name)));
  }
  const auto named = projected(param->index_of, &Ref<Resource>::name);
  if (std::ranges::find(named, row.resource.name) != named.end()) return "";
  return fmt::format("parameter {} of action {} does not list it in index_of", row.index,
                     pair.action.name);
}

// Each resource once in an operation of a pair.
std::string twice_fault(const Table &table, const ResourceRow &row, const Pair &pair) {
  for (const ResourceRow *other = table.resources.data(); other != &row; ++other) {
    const unsigned both = row.operations & other->operations;
    if (other->resource.target != row.resource.target || !applies_to(*other, pair) || both == 0) {
      continue;
    }
    return fmt::format("{} of action {}",
                       kNamesOf<Operation>[static_cast<std::size_t>(std::countr_zero(both))],
                       pair.action.name);
  }
  return "";
}

// One fault of a kind, whatever number of actions shows it.
void check_pairs(const Table &table, const ResourceRow &row, Diagnostics &diagnostics) {
  std::string index;
  std::string twice;
  for (const Pair &pair : table.pairs) {
    if (!applies_to(row, pair)) continue;
    if (index.empty() && !row.index.empty()) index = index_fault(row, pair);
    if (twice.empty()) twice = twice_fault(table, row, pair);
  }
  if (!index.empty()) {
    diagnostics.report(row.index_place, "table.resources.index", "{} has no cell: {}",
                       item_text(table, row), index);
  }
  if (!twice.empty()) {
    diagnostics.report(row.place, "table.resources.in", "{} is sent twice in {}",
                       item_text(table, row), twice);
  }
}

void check_row(const Table &table, const ResourceRow &row, Diagnostics &diagnostics) {
  const Resource &resource = *row.resource;
  const bool direct_here = resource.table.target == &table;
  if (resource.direct() && !direct_here && find_item(*resource.table, resource) != nullptr) {
    diagnostics.report(row.place, "table.resources.resource",
                       "{} belongs to the entries of table {}", item_text(table, row),
                       resource.table.name);
  }
  if (row.tag == ResourceTag::kMeterSpec &&
      (resource.kind != ResourceKind::kMeter || !direct_here)) {
    diagnostics.report(row.place, "table.resources.tag",
                       "{} is tagged meter_spec but is no direct meter of the table",
                       item_text(table, row));
  }
  if (!table.keyed() && row.operations != 1u << static_cast<unsigned>(Operation::kDefault)) {
    diagnostics.report(row.place, "table.resources.in",
                       "{} is sent in add or modify, but a table without a key has no entries",
                       item_text(table, row));
  }
  check_pairs(table, row, diagnostics);
}

void check_count(const Table &table, Diagnostics &diagnostics) {
  for (const Pair &pair : table.pairs) {
    for (std::size_t operation = 0; operation < kOperationCount; ++operation) {
      const auto sent = std::ranges::count_if(table.resources, [&](const ResourceRow &row) {
        return (row.operations >> operation & 1) != 0 && applies_to(row, pair);
      });
      if (sent <= kMostItems) continue;
      return diagnostics.report(table.resources[kMostItems].place, "table.resources",
                                "table {} sends {} resources in {} of action {}; at most {} can be",
                                table.name, sent, kNamesOf<Operation>[operation], pair.action.name,
                                kMostItems);
    }
  }
}

// A parameter whose cell index no row of the table picks up, and the pairs that have it.
struct LostIndex {
  const Param *param;
  const Resource *resource;
  const ResourceRow *unindexed;  // a row that lacks no more than the index
  std::vector<const Pair *> pairs;
};

void note_lost_index(const Table &table, const Pair &pair, LostIndex lost,
                     std::vector<LostIndex> &found) {
  for (const ResourceRow &row : table.resources) {
    if (row.resource.target != lost.resource || !applies_to(row, pair)) continue;
    if (!row.index.empty()) return;
    lost.unindexed = &row;
  }
  auto same = std::ranges::find_if(found, [&](const LostIndex &one) {
    return one.resource == lost.resource && one.unindexed == lost.unindexed &&
           one.param->name == lost.param->name;
  });
  if (same == found.end()) same = found.insert(same, lost);
  same->pairs.push_back(&pair);
}

void report_lost_index(const Table &table, const LostIndex &lost, Diagnostics &diagnostics) {
  const auto actions =
      projected(lost.pairs, [](const Pair *pair) { return std::string_view(pair->action->name); });
  const std::string index = fmt::format("index = \"{}\"", lost.param->name);
  diagnostics.report(
      lost.unindexed == nullptr ? lost.pairs.front()->place : lost.unindexed->place,
      "table.resources",
      "parameter {} of {} {} names a cell of {}, which table {} does not hand over; {}",
      lost.param->name, actions.size() == 1 ? "action" : "actions", fmt::join(actions, ", "),
      lost.resource->name, table.name,
      lost.unindexed != nullptr ? "add " + index
                                : row_to_add(table, lost.resource->name,
                                             fmt::format("actions = [\"{}\"], {}, ",
                                                         fmt::join(actions, "\", \""), index)));
}

// A resource of a table's entries is listed there.
void check_direct(const Program &program, const std::vector<Resource> &resources,
                  std::string_view key, Diagnostics &diagnostics) {
  for (const Resource &resource : resources) {
    if (!resource.table || find_item(*resource.table, resource) != nullptr) continue;
    const auto lists_it = [&](const Table &table) { return find_item(table, resource) != nullptr; };
    const auto other = std::ranges::find_if(program.tables, lists_it);
    if (other != program.tables.end()) {
      diagnostics.report(resource.table.place, key,
                         "{} belongs to the entries of table {}, but table {} lists it at {}",
                         resource.name, resource.table.name, other->name,
                         place_text(find_item(*other, resource)->place));
    } else {
      diagnostics.report(resource.table->place, "table.resources",
                         "table {} lacks the resource {}, which belongs to its entries; {}",
                         resource.table.name, resource.name,
                         row_to_add(*resource.table, resource.name));
    }
  }
}

// Members hand over no resources.
void check_members(const Profile &profile, Diagnostics &diagnostics) {
  for (const ProfileAction &pair : profile.actions) {
    for (const Param &param : pair.action->params) {
      if (param.index_of.empty()) continue;
      diagnostics.report(pair.place, "profile.actions.action",
                         "parameter {} of action {} names a cell of {}, which profile {} cannot "
                         "hand over; only entries have counters and meters",
                         param.name, pair.action.name, param.index_of.front().name, profile.name);
    }
  }
}

// The value of an action is its index.
void check_values(const Program &program, Diagnostics &diagnostics) {
  const std::vector<Action> &actions = program.actions;  // by value
  std::uint32_t free = 0;
  for (const Action &action : actions) free += action.value == free ? 1 : 0;
  for (const Action &action : actions) {
    const auto &first = *std::ranges::find(actions, action.value, &Action::value);
    if (&first == &action && action.value < actions.size()) continue;
    diagnostics.report(action.place, "actions.value", "{} of action {} must be {}; {} is free",
                       action.value, action.name,
                       &first == &action
                           ? fmt::format("from 0 to {}", actions.size() - 1)
                           : fmt::format("another than that of action {}", first.name),
                       free);
  }
}

}  // namespace

void check_labels(const Program &program, Diagnostics &diagnostics) {
  for (const Label &label : program.labels) {
    check_counted(program, label, diagnostics);
    for (const LabelItem &item : label.items) check_item(label, item, diagnostics);
  }
}

void check_program(const Program &program, Diagnostics &diagnostics) {
  check_resources(program, diagnostics);
  check_labels(program, diagnostics);
  check_joins(program, diagnostics);
  check_values(program, diagnostics);
  check_limits(program, diagnostics);
  check_routes(program, diagnostics);
  check_acls(program, diagnostics);
  check_names(program, diagnostics);
}

bool writes(const Join &join, const Action &action, const Param &param) {
  return std::ranges::find(join.params, param.name) != join.params.end() &&
         (join.actions.empty() ||
          std::ranges::find(join.actions, &action, &Ref<Action>::target) != join.actions.end());
}

void check_joins(const Program &program, Diagnostics &diagnostics) {
  for (const Join &join : program.field_facts.joins) {
    check_joined_tables(join, diagnostics);
    for (const Ref<Action> &action : join.actions) check_joined_action(join, action, diagnostics);
    for (const Action &action : program.actions) {
      for (const Param &param : action.params)
        check_joined(program, join, action, param, diagnostics);
    }
  }
}

bool applies_to(const ResourceRow &row, const Pair &pair) {
  return row.actions.empty() || std::ranges::any_of(row.actions, [&](const Ref<Action> &action) {
           return action.name == pair.action.name;
         });
}

void check_resources(const Program &program, Diagnostics &diagnostics) {
  for (const Table &table : program.tables) {
    for (const ResourceRow &row : table.resources) check_row(table, row, diagnostics);
    std::vector<LostIndex> lost;
    for (const Pair &pair : table.pairs) {
      for (const Param &param : pair.action->params) {
        for (const auto &resource : param.index_of) {
          note_lost_index(table, pair, {&param, resource.target, nullptr, {}}, lost);
        }
      }
    }
    for (const LostIndex &one : lost) report_lost_index(table, one, diagnostics);
    check_count(table, diagnostics);
  }
  for (const Profile &profile : program.profiles) check_members(profile, diagnostics);
  check_direct(program, program.counters, "counters.table", diagnostics);
  check_direct(program, program.meters, "meters.table", diagnostics);
}

}  // namespace pdgen
