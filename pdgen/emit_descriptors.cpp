// Shapes for the core: tables, actions and pairs as constant data, and the program record.
#include <fmt/format.h>

#include "pdgen/emit.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

const char *match_name(Match match) {
  switch (match) {
    case Match::kExact:
      return "exact";
    case Match::kTernary:
      return "ternary";
    case Match::kLpm:
      return "lpm";
  }
  return "";
}

const char *kind_name(TableKind kind) {
  switch (kind) {
    case TableKind::kKeyless:
      return "keyless";
    case TableKind::kExact:
      return "exact";
    case TableKind::kTernary:
      return "ternary";
    case TableKind::kLpm:
      return "lpm";
  }
  return "";
}

// ---- Actions ----

std::string param_row(const Param &param) {
  std::vector<std::string> resources;
  for (const Ref<Resource> &resource : param.index_of) resources.push_back(hex32(resource->handle));
  return fmt::format("    {{offsetof(Record, {}), {}, {}, {}, {}, {{{}}}}},\n", param_member(param),
                     param.offset, param.storage_bytes, param.width, param.bytes,
                     join(resources, ", "));
}

std::string action_descriptor(const Program &program, const Action &action) {
  if (!action.has_params()) {
    return expand(
        "struct $0 {\n  static constexpr Action action = {$1, 0, 0, 0, 0, nullptr};\n"
        "  static constexpr const Param *params = nullptr;\n};\n",
        {action.name, std::to_string(action.value)});
  }
  std::string rows;
  for (const Param &param : action.params) rows += param_row(param);
  return expand(
      "struct $0 {\n  using Record = $1;\n  static constexpr Param params[] = {\n$2  };\n"
      "  static constexpr Action action = {$3, sizeof(Record), $4, $5, $6, params};\n};\n",
      {action.name, action_spec_type(program, action), rows, std::to_string(action.value),
       std::to_string(action.data_bits), std::to_string(action.data_bytes),
       std::to_string(action.params.size())});
}

// ---- Tables ----

std::string field_row(const KeyField &field) {
  std::string companion = field.name;
  if (field.match == Match::kTernary) companion = mask_member(field.name);
  if (field.match == Match::kLpm) companion = prefix_length_member(field.name);
  return fmt::format(
      "    {{offsetof(Record, {}), offsetof(Record, {}), {}, {}, {}, {}, Match::{}}},\n",
      field.name, companion, field.offset, field.storage_bytes, field.width, field.bytes,
      match_name(field.match));
}

std::string pair_rows(const Table &table) {
  std::string rows;
  for (const Pair &pair : table.pairs) {
    rows += fmt::format("    {{{}, &action::{}::action}},\n", hex32(pair.handle), pair.action.name);
  }
  return rows;
}

std::string table_descriptor(const Program &program, const Table &table) {
  const std::string pairs = pair_rows(table);
  std::string fields;
  for (const KeyField &field : table.key) fields += field_row(field);
  const long profile =
      table.profile ? static_cast<long>(table.profile.target - program.profiles.data()) : -1;
  std::string out = "struct " + table.name + " {\n";
  if (table.keyed()) {
    out += expand("  using Record = $0;\n  static constexpr KeyField key[] = {\n$1  };\n",
                  {match_spec_type(program, table), fields});
  }
  if (!pairs.empty()) out += "  static constexpr Pair pairs[] = {\n" + pairs + "  };\n";
  return out + fmt::format(
                   "  static constexpr Table table = {{{}, Kind::{}, {}, {}, {}, {}, {}, {}, "
                   "{}, {}}};\n}};\n",
                   hex32(table.handle), kind_name(table.kind), table.key.size(), table.pairs.size(),
                   profile, table.keyed() ? "sizeof(Record)" : "0", table.key_bits, table.key_bytes,
                   table.keyed() ? "key" : "nullptr", pairs.empty() ? "nullptr" : "pairs");
}

// ---- Pairs ----

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

std::string resource_row(const ItemRow &row) {
  const char *tags[] = {"attach", "detach", "meter_spec"};
  return fmt::format("    {{{}, {}, Attach::{}, {}}},\n", hex32(row.item.resource->handle),
                     row.item.index ? fmt::format("offsetof(ActionType::Record, {})",
                                                  param_member(*row.item.index))
                                    : std::string("no_index"),
                     tags[static_cast<int>(row.item.tag)], row.operations);
}

std::string pair_descriptor(const Table &table, const Pair &pair) {
  const std::vector<ItemRow> items = item_rows(pair);
  std::string rows;
  for (const ItemRow &item : items) rows += resource_row(item);
  const std::string resources =
      rows.empty() ? "" : "  static constexpr Resource resources[] = {\n" + rows + "  };\n";
  return expand(
      "struct $1 {\n  using TableType = table::$0;\n  using ActionType = action::$1;\n"
      "  static constexpr uint32_t handle = $2;\n$3"
      "  static constexpr unsigned resource_count = $4;\n};\n",
      {table.name, pair.action.name, hex32(pair.handle), resources, std::to_string(items.size())});
}

// ---- Profiles ----

std::string profile_descriptor(const Program &program, const Profile &profile) {
  std::string rows;
  std::string types;
  for (const ProfileAction &pair : profile.actions) {
    rows += fmt::format("    {{{}, &action::{}::action}},\n", hex32(pair.handle), pair.action.name);
    types += expand(
        "  struct $0 {\n    using ActionType = action::$0;\n"
        "    static constexpr uint32_t handle = $1;\n  };\n",
        {pair.action.name, hex32(pair.handle)});
  }
  return expand(
      "struct $0 {\n$1  static constexpr Pair pairs[] = {\n$2  };\n"
      "  static constexpr Profile profile = {\"$0\", $3, $4, $5, $6, pairs};\n};\n",
      {profile.name, types, rows, hex32(profile.action_data_handle), hex32(profile.selector_handle),
       std::to_string(&profile - program.profiles.data()), std::to_string(profile.actions.size())});
}

// ---- Hash calculations ----

std::string hash_descriptor(const Program &program, const Hash &hash) {
  return fmt::format("inline constexpr Hash {} = {{{}, {}, {}, {}}};\n", hash.name,
                     hex32(hash.handle), hex32(hash.field_list_handle),
                     hex32(program.hash_algorithm), hash.field_count);
}

// ---- Snapshots ----

// Ingress and egress; a direction without a layout has no fields.
std::string snapshot_descriptors(const Program &program) {
  if (!program.snapshots) return "";
  const Snapshots &snapshots = *program.snapshots;
  std::string arrays;
  std::vector<std::string> layouts;
  for (const char *direction : {"ingress", "egress"}) {
    std::string rows;
    std::size_t count = 0;
    const SnapshotLayout *layout = find_row(snapshots.layouts, direction);
    for (std::size_t i = 0; layout != nullptr && i < layout->fields.size(); ++i) {
      const SnapshotField &field = layout->fields[i];
      if (field.bytes == 1) continue;
      rows += fmt::format("    {{offsetof({}, {}), {}}},\n",
                          snapshot_trigger_type(program, *layout), field.name, field.bytes);
      ++count;
    }
    if (count != 0) {
      arrays += expand("inline constexpr TriggerField $0[] = {\n$1};\n", {direction, rows});
    }
    layouts.push_back(fmt::format("{{{}, {}}}", count == 0 ? "nullptr" : direction, count));
  }
  return arrays + fmt::format("inline constexpr Snapshots records = {{{}, {}, {{{}}}}};\n",
                              snapshots.record_bytes, snapshots.capture_limit, join(layouts, ", "));
}

}  // namespace

std::string emit_descriptors(const Program &program) {
  std::string out = origin(program, "// ");
  out += "#pragma once\n\n#include \"descriptor.hpp\"\n#include \"p4_pd_" + program.name +
         ".h\"\n\nnamespace pd {\n\nnamespace action {\n\n";
  for (const Action &action : program.actions) out += action_descriptor(program, action);
  out += "\n}  // namespace action\n\nnamespace table {\n\n";
  for (const Table &table : program.tables) out += table_descriptor(program, table);
  out += "\n}  // namespace table\n\n";
  for (const Table &table : program.tables) {
    if (table.pairs.empty()) continue;
    out += "namespace pair::" + table.name + " {\n";
    for (const Pair &pair : table.pairs) out += pair_descriptor(table, pair);
    out += "}\n";
  }
  out += "\nnamespace profile {\n\n";
  for (const Profile &profile : program.profiles) out += profile_descriptor(program, profile);
  out += "\n}  // namespace profile\n\nnamespace hash {\n\n";
  for (const Hash &hash : program.hashes) out += hash_descriptor(program, hash);
  out += "\n}  // namespace hash\n\nnamespace snapshot {\n\n" + snapshot_descriptors(program);
  return out + "\n}  // namespace snapshot\n\n}  // namespace pd\n";
}

std::string emit_program_data(const Api &api) {
  const Program &program = api.program();
  std::string strings;
  for (const Action &action : program.actions) {
    strings += "    \"" + action_constant(program, action) + "\",\n";
  }
  std::string profiles;
  for (const Profile &profile : program.profiles) {
    profiles += "&profile::" + profile.name + "::profile, ";
  }
  return origin(program, "// ") +
         expand(
             "#pragma GCC visibility push(default)\n#include \"p4_pd_$0.h\"\n"
             "#pragma GCC visibility pop\n\n#include \"descriptors.hpp\"\n\nextern \"C\" {\n\n"
             "uint32_t bf_drv_hdl;\n\nconst char *const $1[$2] = {\n$3};\n\n}\n\nnamespace pd {\n\n"
             "namespace {\n\nconst Profile *const profiles[] = {$4nullptr};\n\n}  // namespace\n\n"
             "static_assert(offsetof($6, spec) == action_specs_union_offset);\n\n"
             "const Program program = {\"$0\", \"p4_pd_$0_pd\", $1, profiles, $5};\n\n"
             "}  // namespace pd\n",
             {program.name, action_name_strings(program), std::to_string(program.actions.size()),
              strings, profiles, std::to_string(program.profiles.size()),
              action_specs_type(program)});
}

}  // namespace pdgen
