// Rules between rows: of labels, hints and routes, and of the counters, meters and registers that
// entries hand over with their actions.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/check/check.hpp"
#include "pdgen/load/load_row.hpp"

namespace pdgen {

namespace {

// A hint for a field that no table has is a slip of the pen.
void check_hints(const Program &program, Diagnostics &diagnostics) {
  for (const FieldHint &hint : program.field_facts.hints) {
    for (const std::string &name : hint.fields) {
      const bool known = std::ranges::any_of(
          program.tables, [&](const Table &table) { return find_row(table.key, name) != nullptr; });
      if (known) continue;
      diagnostics.report(hint.place, "hints.fields", "{} is no key field of any table", name);
    }
  }
}

bool has_action(const Table &table, const Action &action) {
  return std::ranges::any_of(table.pairs,
                             [&](const Pair &pair) { return pair.action.target == &action; });
}

// Routes are a prefix and a next hop: what a tool can load must have no more.
void check_routes(const Program &program, Diagnostics &diagnostics) {
  if (!program.routes || !program.routes->action) return;
  const Routes &routes = *program.routes;
  const Action &action = *routes.action;
  if (action.params.size() != 1) {
    diagnostics.report(routes.place, "routes.action", "{} must have one parameter, the next hop",
                       action.name);
  }
  for (const Ref<Table> &table : routes.tables) {
    if (!table || (table->kind == TableKind::kLpm && has_action(*table, action))) continue;
    diagnostics.report(table.place, "routes.tables",
                       "{} must be a longest-prefix table with the action {}", table.name,
                       action.name);
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

class LabelChecker {
 public:
  LabelChecker(const Label &label, Diagnostics &diagnostics)
      : label_(label), diagnostics_(diagnostics) {}

  void check() const {
    for (const LabelItem &item : label_.items) {
      check(item, item.field, "field");
      check(item, item.oui, "oui");
      check(item, item.station, "station");
    }
  }

 private:
  void check(const LabelItem &item, const Ref<KeyField> &field, std::string_view key) const {
    const auto &[match, width, whose] = kNeeds[static_cast<std::size_t>(item.kind)];
    if (!field || whose == nullptr) return;
    if (field->match != match || (width == 0 ? field->wide() : field->width != width)) {
      return report(item, key, *field, "{} needs {} field of {} bits", whose,
                    match == Match::kExact ? "an exact" : "a ternary",
                    width == 0 ? "at most 32" : std::to_string(width));
    }
    if (item.kind == LabelKind::kFlag) check_bit(item, *field);
    if (item.kind == LabelKind::kNumber) check_texts(item, *field);
  }

  // A text for a value that the field cannot have would never be written.
  void check_texts(const LabelItem &item, const KeyField &field) const {
    const auto beyond = [&](std::uint32_t bits) {
      return field.width != 0 && (bits & ~low_bits(field.width).lower) != 0;
    };
    for (const LabelText &text : item.texts) {
      if (!beyond(text.value)) continue;
      diagnostics_.report(text.place, "label.items.texts.value",
                          "{} of field {} of table {} is beyond its {} bits", hex(text.value),
                          field.name, label_.table.name, field.width);
    }
    if (item.texts_mask != kAnyNumber && beyond(item.texts_mask)) {
      report(item, "texts_mask", field, "{} is beyond its {} bits", hex(item.texts_mask),
             field.width);
    }
  }

  void check_bit(const LabelItem &item, const KeyField &field) const {
    if (item.bit == 0 && field.width > 1) {
      report(item, "bit", field, "the field has {} bits, so a flag must name its bit", field.width);
    } else if ((item.bit & (item.bit - 1)) != 0 || (item.bit & ~field.key_bits.lower) != 0) {
      report(item, "bit", field, "{} must be one bit of the key bits {:#x}", hex(item.bit),
             field.key_bits.lower);
    }
  }

  template <typename... Args>
  void report(const LabelItem &item, std::string_view key, const KeyField &field,
              fmt::format_string<Args...> message, Args &&...args) const {
    diagnostics_.report(item.place, fmt::format("label.items.{}", key), "field {} of table {}: {}",
                        field.name, label_.table.name,
                        fmt::format(message, std::forward<Args>(args)...));
  }

  const Label &label_;
  Diagnostics &diagnostics_;
};

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
      if ((row.operations >> operation & 1) == 0 || !applies_to(row, pair)) continue;
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

void check_labels(const Program &program, Diagnostics &diagnostics) {
  for (const Label &label : program.labels) {
    if (!label.table) continue;
    check_counted(program, label, diagnostics);
    LabelChecker(label, diagnostics).check();
  }
}

void check_program(const Program &program, Diagnostics &diagnostics) {
  check_resources(program, diagnostics);
  check_labels(program, diagnostics);
  check_hints(program, diagnostics);
  check_limits(program, diagnostics);
  check_routes(program, diagnostics);
  check_names(program, diagnostics);
}

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
