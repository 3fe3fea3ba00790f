// The binding: every export and record as data, for tools and tests.
#include <fmt/format.h>

#include <map>

#include "pdgen/emit/emit.hpp"
#include "pdgen/emit/tool_records.hpp"

namespace pdgen {

namespace {

// Parameter lists that several functions share are printed once.
class ParameterLists {
 public:
  std::string name_of(const std::vector<Parameter> &parameters) {
    std::string key;
    for (const Parameter &parameter : parameters) {
      key += expand("{\"$0\", \"$1\"}, ", {parameter.type, parameter.name});
    }
    const auto found = names_.try_emplace(key, "list_" + std::to_string(names_.size()));
    if (found.second && !key.empty()) {
      definitions_ += "constexpr Parameter " + found.first->second + "[] = {" + key + "};\n";
    }
    return key.empty() ? "nullptr" : found.first->second;
  }
  const std::string &definitions() const { return definitions_; }

 private:
  std::map<std::string, std::string> names_;
  std::string definitions_;
};

}  // namespace

std::string emit_export_table(const Api &api, const Unit &unit) {
  const Program &program = api.program();
  ParameterLists lists;
  std::string rows;
  for (const Function *function : api.functions_of(unit)) {
    rows += expand(
        "    {\"$0\", \"$1\", \"$2\", \"$3\", \"$4\", $5, $6, invoke<$0>},\n",
        {function->name, function->family, function->object, function->action, function->result,
         lists.name_of(function->parameters), std::to_string(function->parameters.size())});
  }
  return origin(program, "// ") +
         expand(
             "#include \"bindings/invoke.hpp\"\n#include \"$0\"\n\nnamespace bindings {\n\n"
             "namespace {\n\n$1\n$2}  // namespace\n\n"
             "extern const ExportList exports_$3;\nconst ExportList exports_$3 = {$4, $5};\n\n"
             "}  // namespace bindings\n",
             {header_name(program), lists.definitions(),
              rows.empty() ? "" : "constexpr Export rows[] = {\n" + rows + "};\n\n", unit.name,
              rows.empty() ? "nullptr" : "rows", std::to_string(api.functions_of(unit).size())});
}

namespace {

std::string member_rows(const ToolRecord &record) {
  constexpr const char *kRoles[] = {"value", "mask", "prefix_length"};
  std::string rows;
  for (const ToolMember &member : record.members) {
    rows += fmt::format("    {{\"{}\", Role::{}, {}, {}, {}, {}}},\n", member.name,
                        kRoles[static_cast<int>(member.role)], member.offset, member.storage,
                        member.width, member.is_bytes);
  }
  return rows;
}

std::string half_of(const std::array<std::uint8_t, 16> &bits, std::size_t first) {
  std::string digits = "0x";
  for (std::size_t i = first; i < first + 8; ++i) digits += fmt::format("{:02x}", bits[i]);
  return digits;
}

// The array of the cells that a field names.
std::string cells_of(const std::string &fields, std::size_t field) {
  return fmt::format("{}_cells_{}", fields, field);
}

std::string cell_arrays(const ToolRecord &record, const std::string &fields) {
  std::string arrays;
  for (std::size_t i = 0; i < record.fields.size(); ++i) {
    std::string names;
    for (const std::string &name : record.fields[i].cells) names += "\"" + name + "\", ";
    if (names.empty()) continue;
    arrays += fmt::format("constexpr const char *{}[] = {{{}}};\n", cells_of(fields, i), names);
  }
  return arrays;
}

std::string field_rows(const ToolRecord &record, const std::string &members,
                       const std::string &fields) {
  constexpr const char *kMatches[] = {"exact", "ternary", "lpm"};
  std::string rows;
  for (std::size_t i = 0; i < record.fields.size(); ++i) {
    const ToolField &field = record.fields[i];
    std::string parts;
    for (const std::size_t part : field.parts) {
      parts += fmt::format("{}&{}[{}]", parts.empty() ? "" : ", ", members, part);
    }
    rows += fmt::format(
        "    {{\"{}\", \"{}\", Notation::{}, Match::{}, {}, {}, {}, {{{}}}, {}}},\n", field.label,
        field.name, field.notation, kMatches[static_cast<int>(field.match)], field.width,
        half_of(field.key_bits, 0), half_of(field.key_bits, 8), parts,
        field.cells.empty() ? "{}" : cells_of(fields, i));
  }
  return rows;
}

// The arrays of all records and their list, both named after what they are.
std::string record_list(const std::string &kind, const std::vector<ToolRecord> &records) {
  std::string arrays;
  std::string rows;
  for (const ToolRecord &record : records) {
    const std::string members = fmt::format("{}_members_{}", kind, record.name);
    const std::string fields = fmt::format("{}_fields_{}", kind, record.name);
    const bool any = !record.members.empty();
    if (any) {
      arrays += expand("constexpr Member $0[] = {\n$1};\n$2constexpr Field $3[] = {\n$4};\n",
                       {members, member_rows(record), cell_arrays(record, fields), fields,
                        field_rows(record, members, fields)});
    }
    rows += fmt::format("    {{\"{}\", {}, {}, {}, {}, {}, {}, {}}},\n", record.name, record.number,
                        any ? members : "nullptr", record.members.size(), record.size,
                        any ? fields : "nullptr", record.fields.size(), record.shown);
  }
  if (records.empty()) return expand("constexpr RecordList $0s = {};\n\n", {kind});
  return arrays + expand(
                      "constexpr Record $0_rows[] = {\n$1};\n"
                      "constexpr RecordList $0s = {$0_rows, $2};\n\n",
                      {kind, rows, std::to_string(records.size())});
}

template <class Row>
std::vector<ToolRecord> tool_records(const Program &program, const std::vector<Row> &rows) {
  std::vector<ToolRecord> records;
  for (const Row &row : rows) records.push_back(tool_record(program, row));
  return records;
}

std::string snapshot_lists(const Program &program) {
  std::vector<ToolRecord> triggers;
  std::vector<ToolRecord> packets;
  std::vector<ToolRecord> captures;
  if (program.snapshots) {
    for (const SnapshotLayout &layout : program.snapshots->layouts) {
      triggers.push_back(trigger_record(program, layout));
      packets.push_back(snapshot_record(program, layout.name, layout.fields));
    }
    captures.push_back(snapshot_record(program, "capture", program.snapshots->capture));
  }
  return record_list("trigger", triggers) + record_list("packet", packets) +
         record_list("capture", captures);
}

std::string routes_row(const Program &program) {
  if (!program.routes) return "constexpr Routes routes = {nullptr, 0, nullptr};\n\n";
  std::string names;
  for (const Ref<Table> &table : program.routes->tables) names += "\"" + table.name + "\", ";
  return expand(
      "constexpr const char *route_tables[] = {$0};\n"
      "constexpr Routes routes = {route_tables, $1, \"$2\"};\n\n",
      {names, std::to_string(program.routes->tables.size()), program.routes->action.name});
}

}  // namespace

std::string emit_export_index(const Api &api) {
  const Program &program = api.program();
  std::string declarations;
  std::string names;
  for (const Unit &unit : api.units()) {
    declarations += "extern const ExportList exports_" + unit.name + ";\n";
    names += "&exports_" + unit.name + ", ";
  }
  const std::string records = record_list("table", tool_records(program, program.tables)) +
                              record_list("action", tool_records(program, program.actions)) +
                              record_list("digest", tool_records(program, program.digests)) +
                              snapshot_lists(program) + routes_row(program);
  return origin(program, "// ") +
         expand(
             "#include <cstddef>\n\n#include \"bindings/export_table.hpp\"\n#include \"$0\"\n\n"
             "namespace bindings {\n\n$1\nnamespace {\n\n$2"
             "const ExportList *const lists[] = {$3};\n\n}  // namespace\n\n"
             "const Binding binding = {\"$4\", lists, $5, tables, actions, digests, triggers,\n"
             "                         packets, captures, routes};\n\n"
             "}  // namespace bindings\n",
             {header_name(program), declarations, records, names, program.name,
              std::to_string(api.units().size())});
}

}  // namespace pdgen
