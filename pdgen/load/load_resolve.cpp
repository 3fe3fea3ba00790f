// Ties the rows together: every reference gets its target.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/load/load_sections.hpp"

namespace pdgen {

namespace {

// A name that could not be read is empty and has been reported.
template <typename Row>
void resolve(Ref<Row> &ref, const Row *target, std::string_view key, const std::string &owner,
             std::string_view wanted, Diagnostics &diagnostics) {
  ref.target = target;
  if (target != nullptr || ref.name.empty()) return;
  diagnostics.report(ref.place, key,
                     fmt::format("{} names {}, which is no {}", owner, ref.name, wanted));
}

const Resource *find_resource(const Program &program, std::string_view name) {
  for (const auto *list : {&program.counters, &program.meters, &program.registers}) {
    if (const Resource *found = find_row(*list, name)) return found;
  }
  return nullptr;
}

void resolve_params(Program &program, Diagnostics &diagnostics) {
  for (Action &action : program.actions) {
    for (Param &param : action.params) {
      const std::string owner = fmt::format("parameter {} of action {}", param.name, action.name);
      for (Ref<Resource> &resource : param.index_of) {
        const Resource *target = find_resource(program, resource.name);
        const bool is_register = target != nullptr && target->kind == ResourceKind::kRegister;
        resolve(resource, is_register ? nullptr : target, "actions.params.index_of", owner,
                "counter or meter", diagnostics);
      }
    }
  }
}

void resolve_resource_row(const Program &program, const Table &table, ResourceRow &row,
                          Diagnostics &diagnostics) {
  const std::string owner = fmt::format("resource {} of table {}", row.resource.name, table.name);
  resolve(row.resource, find_resource(program, row.resource.name), "table.resources.resource",
          "table " + table.name, "counter, meter or register", diagnostics);
  for (Ref<Action> &action : row.actions) {
    const bool offered = std::any_of(table.pairs.begin(), table.pairs.end(), [&](const Pair &pair) {
      return pair.action.name == action.name;
    });
    const Action *target = offered ? find_row(program.actions, action.name) : nullptr;
    // An action that the table offers but the program lacks is the pair's fault.
    if (offered && target == nullptr) continue;
    resolve(action, target, "table.resources.actions", owner, "action of the table", diagnostics);
  }
}

void resolve_tables(Program &program, Diagnostics &diagnostics) {
  for (Table &table : program.tables) {
    const std::string owner = "table " + table.name;
    resolve(table.profile, find_row(program.profiles, table.profile.name), "table.profile", owner,
            "profile", diagnostics);
    for (Pair &pair : table.pairs) {
      resolve(pair.action, find_row(program.actions, pair.action.name), "table.actions.action",
              owner, "action", diagnostics);
    }
    for (ResourceRow &row : table.resources) {
      resolve_resource_row(program, table, row, diagnostics);
    }
  }
}

void resolve_objects(Program &program, Diagnostics &diagnostics) {
  for (Profile &profile : program.profiles) {
    for (ProfileAction &row : profile.actions) {
      resolve(row.action, find_row(program.actions, row.action.name), "profile.actions.action",
              "profile " + profile.name, "action", diagnostics);
    }
    for (const Table &table : program.tables) {
      if (table.profile.target == &profile) profile.tables.push_back(&table);
    }
  }
  const auto resolve_owners = [&](std::vector<Resource> &list, std::string_view key,
                                  std::string_view kind) {
    for (Resource &resource : list) {
      resolve(resource.table, find_row(program.tables, resource.table.name), key,
              fmt::format("{} {}", kind, resource.name), "table", diagnostics);
    }
  };
  resolve_owners(program.counters, "counters.table", "counter");
  resolve_owners(program.meters, "meters.table", "meter");
}

void resolve_label(const Program &program, Label &label, Diagnostics &diagnostics) {
  resolve(label.table, find_row(program.tables, label.table.name), "label.table", "a label",
          "table", diagnostics);
  if (!label.table) return;
  const auto resolve_field = [&](Ref<KeyField> &field, std::string_view key) {
    resolve(field, find_row(label.table->key, field.name), key, "the label of " + label.table.name,
            "key field of the table", diagnostics);
  };
  for (LabelItem &item : label.items) {
    resolve_field(item.field, "label.items.field");
    resolve_field(item.oui, "label.items.oui");
    resolve_field(item.station, "label.items.station");
  }
}

void resolve_routes(Program &program, Diagnostics &diagnostics) {
  if (!program.routes) return;
  Routes &routes = *program.routes;
  resolve(routes.action, find_row(program.actions, routes.action.name), "routes.action", "routes",
          "action", diagnostics);
  for (Ref<Table> &table : routes.tables) {
    resolve(table, find_row(program.tables, table.name), "routes.tables", "routes", "table",
            diagnostics);
  }
}

}  // namespace

void resolve_references(Program &program, Diagnostics &diagnostics) {
  resolve_params(program, diagnostics);
  resolve_tables(program, diagnostics);
  resolve_objects(program, diagnostics);
  for (Label &label : program.labels) resolve_label(program, label, diagnostics);
  resolve_routes(program, diagnostics);
}

}  // namespace pdgen
