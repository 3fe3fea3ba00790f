// Rows and arrays of descriptors that are more than a row for each object.
#include <fmt/format.h>

#include "pdgen/families/scope.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

// The operations that send an equal item, so that a resource is one row however many name it.
struct ItemRow {
  ResourceItem item;
  unsigned operations;
};

std::vector<ItemRow> item_rows(const Pair &pair) {
  std::vector<ItemRow> rows;
  for (unsigned operation = 0; operation < kOperationCount; ++operation) {
    for (const ResourceItem &item : pair.items[operation]) {
      bool merged = false;
      for (ItemRow &row : rows) {
        if (row.item.resource == item.resource) {
          row.operations |= 1u << operation;
          merged = true;
        }
      }
      if (!merged) rows.push_back({item, 1u << operation});
    }
  }
  return rows;
}

}  // namespace

std::size_t resource_count(const Pair &pair) { return item_rows(pair).size(); }

std::string resource_rows(const Pair &pair) {
  constexpr const char *kTags[] = {"attach", "detach", "meter_spec"};
  std::vector<std::string> rows;
  for (const ItemRow &row : item_rows(pair)) {
    rows.push_back(fmt::format("    {{{}, {}, Attach::{}, {}}},", hex32(row.item.resource->handle),
                               row.item.index ? fmt::format("offsetof(ActionType::Record, {})",
                                                            param_member(*row.item.index))
                                              : std::string("no_index"),
                               kTags[static_cast<std::size_t>(row.item.tag)], row.operations));
  }
  return join(rows, "\n");
}

std::string compared_bytes(const Table &table) {
  std::vector<unsigned> bytes(table.key_bytes, 0);
  for (const KeyField &field : table.key) {
    for (unsigned i = 0; i < field.bytes; ++i) {
      const unsigned below = 8 * (field.bytes - 1 - i);
      bytes[field.offset + i] =
          field.wide() ? field.wide_key_bits[i] : (field.key_bits >> below & 0xff);
    }
  }
  return fmt::format("{:#04x}", fmt::join(bytes, ", "));
}

// Ingress and egress; a direction without a layout has no fields.
std::string trigger_layouts(const Program &program) {
  const Snapshots &snapshots = *program.snapshots;
  std::string arrays;
  std::vector<std::string> layouts;
  for (const char *direction : {"ingress", "egress"}) {
    const SnapshotLayout *layout = find_row(snapshots.layouts, direction);
    std::vector<std::string> rows;
    for (std::size_t i = 0; layout != nullptr && i < layout->fields.size(); ++i) {
      const SnapshotField &field = layout->fields[i];
      if (field.bytes == 1) continue;
      rows.push_back(fmt::format("    {{offsetof({}, {}), {}}},\n",
                                 snapshot_trigger_type(program, *layout), field.name, field.bytes));
    }
    if (!rows.empty()) {
      arrays +=
          expand("inline constexpr TriggerField $0[] = {\n$1};\n", {direction, join(rows, "")});
    }
    layouts.push_back(fmt::format("{{{}, {}}}", rows.empty() ? "nullptr" : direction, rows.size()));
  }
  return arrays + fmt::format("inline constexpr Snapshots records = {{{}, {}, {{{}}}}};",
                              snapshots.record_bytes, snapshots.capture_limit, join(layouts, ", "));
}

// Under its own name or, a part of a longer field, among the bytes of that one.
std::string captured_at(const Snapshots &snapshots, const SnapshotField &field) {
  for (const SnapshotField &captured : snapshots.capture) {
    if (captured.name == field.name && captured.bytes == field.bytes) {
      return fmt::format("{}", captured.offset);
    }
    if (!field.name.starts_with(captured.name + "_")) continue;
    const std::string part = field.name.substr(captured.name.size() + 1);
    if (part.size() != 1 || part[0] < '0' || part[0] > '9') continue;
    const unsigned at = static_cast<unsigned>(part[0] - '0') * field.bytes;
    if (at + field.bytes <= captured.bytes) return fmt::format("{}", captured.offset + at);
  }
  return "SOFT_NOT_CAPTURED";
}

}  // namespace pdgen
