// Rules about the counters, meters and registers that entries hand over with their actions.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/check/check.hpp"
#include "pdgen/load/load_row.hpp"

namespace pdgen {

namespace {

// The resource list that goes with an action has room for so many items.
constexpr std::size_t kMostItems = 4;

std::string item_text(const Table &table, const ResourceRow &row) {
  return fmt::format("resource {} of table {}", row.resource.name, table.name);
}

bool names_cell_of(const Param &param, const Resource &resource) {
  return std::ranges::any_of(param.index_of,
                             [&](const Ref<Resource> &ref) { return ref.target == &resource; });
}

void check_index(const Table &table, const ResourceRow &row, const Pair &pair,
                 Diagnostics &diagnostics) {
  const Param *param = find_row(pair.action->params, row.index);
  if (param != nullptr && (!row.resource || names_cell_of(*param, *row.resource))) return;
  const std::string fault =
      param == nullptr ? fmt::format("action {} has no parameter {}", pair.action.name, row.index)
                       : fmt::format("parameter {} of action {} does not list it in index_of",
                                     row.index, pair.action.name);
  diagnostics.report(row.index_place, "table.resources.index", "{} has no cell: {}",
                     item_text(table, row), fault);
}

void check_row(const Table &table, const ResourceRow &row, Diagnostics &diagnostics) {
  if (!row.index.empty()) {
    for (const Pair &pair : table.pairs) {
      if (pair.action && applies_to(row, pair)) check_index(table, row, pair, diagnostics);
    }
  }
  if (!row.resource) return;
  const Resource &resource = *row.resource;
  const bool direct_here = resource.table.target == &table;
  if (resource.direct() && !direct_here) {
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
}

// One operation of one pair sends each resource once, and not too many of them.
void check_items(const Table &table, const Pair &pair, Diagnostics &diagnostics) {
  for (std::size_t operation = 0; operation < kOperationCount; ++operation) {
    std::vector<const ResourceRow *> sent;
    for (const ResourceRow &row : table.resources) {
      if (!row.in[operation] || !applies_to(row, pair)) continue;
      const bool twice = std::ranges::any_of(sent, [&](const ResourceRow *other) {
        return other->resource.name == row.resource.name;
      });
      if (twice) {
        diagnostics.report(row.place, "table.resources.in", "{} is sent twice in {} of action {}",
                           item_text(table, row), kNamesOf<Operation>[operation], pair.action.name);
      }
      sent.push_back(&row);
    }
    if (sent.size() > kMostItems) {
      diagnostics.report(sent[kMostItems]->place, "table.resources",
                         "table {} sends {} resources in {} of action {}; the list "
                         "holds {}",
                         table.name, sent.size(), kNamesOf<Operation>[operation], pair.action.name,
                         kMostItems);
    }
  }
}

// A cell index that no row of the table picks up would be lost.
void check_lost_indexes(const Table &table, const Pair &pair, Diagnostics &diagnostics) {
  for (const Param &param : pair.action->params) {
    for (const Ref<Resource> &resource : param.index_of) {
      const bool picked_up = std::ranges::any_of(table.resources, [&](const ResourceRow &row) {
        return row.resource.name == resource.name && row.index == param.name &&
               applies_to(row, pair);
      });
      if (picked_up || !resource) continue;
      diagnostics.report(pair.place, "table.resources",
                         "table {} has no resource item for {}, whose cell parameter "
                         "{} of action {} names",
                         table.name, resource.name, param.name, pair.action.name);
    }
  }
}

void check_direct(const std::vector<Resource> &resources, std::string_view key,
                  Diagnostics &diagnostics) {
  for (const Resource &resource : resources) {
    if (!resource.table) continue;
    const std::vector<ResourceRow> &rows = resource.table->resources;
    const bool listed = std::ranges::any_of(
        rows, [&](const ResourceRow &row) { return row.resource.name == resource.name; });
    if (listed) continue;
    diagnostics.report(resource.table.place, key,
                       "{} belongs to the entries of table {}, whose resources do not "
                       "list it",
                       resource.name, resource.table.name);
  }
}

}  // namespace

bool applies_to(const ResourceRow &row, const Pair &pair) {
  return row.actions.empty() || std::ranges::any_of(row.actions, [&](const Ref<Action> &action) {
           return action.name == pair.action.name;
         });
}

void check_resources(const Program &program, Diagnostics &diagnostics) {
  for (const Table &table : program.tables) {
    for (const ResourceRow &row : table.resources) check_row(table, row, diagnostics);
    for (const Pair &pair : table.pairs) {
      check_items(table, pair, diagnostics);
      if (pair.action) check_lost_indexes(table, pair, diagnostics);
    }
  }
  check_direct(program.counters, "counters.table", diagnostics);
  check_direct(program.meters, "meters.table", diagnostics);
}

}  // namespace pdgen
