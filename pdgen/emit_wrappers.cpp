// The wrappers, one statement each, and the table through which tools and tests call them.
#include <fmt/format.h>

#include <map>

#include "pdgen/emit.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

std::string header_name(const Program &program) { return "p4_pd_" + program.name + ".h"; }

std::string includes(const Unit &unit) {
  std::string out;
  for (const std::string &file : unit.includes) out += "#include \"" + file + "\"\n";
  return out;
}

}  // namespace

std::string emit_wrappers(const Api &api, const Unit &unit) {
  const Program &program = api.program();
  std::string out = origin(program, "// ");
  out += "#pragma GCC visibility push(default)\n#include \"" + header_name(program) +
         "\"\n#pragma GCC visibility pop\n\n#include \"descriptors.hpp\"\n" + includes(unit) +
         "\nusing namespace pd;\n\nextern \"C\" {\n\n";
  for (const Function *function : api.functions_of(unit)) {
    const std::string body = function->statement.empty() ? "" : " " + function->statement + "; ";
    out += declaration(*function) + " {" + body + "}\n";
  }
  return out + "\n}\n";
}

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

std::string table_rows(const Program &program) {
  std::string fields;
  std::string tables;
  for (const Table &table : program.tables) {
    std::string rows;
    for (const RecordField &field : table.record) {
      const KeyField &key = table.key[field.key_index];
      const char *roles[] = {"value", "mask", "prefix_length"};
      rows += expand("    {\"$0\", Role::$1, offsetof($2, $0), $3, $4},\n",
                     {field.name, roles[static_cast<int>(field.role)],
                      match_spec_type(program, table), std::to_string(field.storage_bytes),
                      std::to_string(field.role == RecordRole::kPrefixLength ? 16 : key.width)});
    }
    if (!rows.empty()) {
      fields += expand("constexpr Member key_$0[] = {\n$1};\n", {table.name, rows});
    }
    tables +=
        expand("    {\"$0\", $1, $2, $3, $4},\n",
               {table.name, hex32(table.handle), rows.empty() ? "nullptr" : "key_" + table.name,
                std::to_string(table.record.size()),
                table.keyed() ? "sizeof(" + match_spec_type(program, table) + ")" : "0"});
  }
  return fields + "\nconstexpr Record tables[] = {\n" + tables + "};\n\n";
}

std::string action_rows(const Program &program) {
  std::string params;
  std::string actions;
  for (const Action &action : program.actions) {
    std::string rows;
    for (const Param &param : action.params) {
      rows += expand("    {\"$0\", Role::value, offsetof($1, $2), $3, $4},\n",
                     {param.name, action_spec_type(program, action), param_member(param),
                      std::to_string(param.storage_bytes), std::to_string(param.width)});
    }
    if (!rows.empty()) {
      params += expand("constexpr Member params_$0[] = {\n$1};\n", {action.name, rows});
    }
    actions += expand(
        "    {\"$0\", $1, $2, $3, $4},\n",
        {action.name, std::to_string(action.value),
         rows.empty() ? "nullptr" : "params_" + action.name, std::to_string(action.params.size()),
         rows.empty() ? "0" : "sizeof(" + action_spec_type(program, action) + ")"});
  }
  return params + "\nconstexpr Record actions[] = {\n" + actions + "};\n\n";
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
  return origin(program, "// ") +
         expand(
             "#include <cstddef>\n\n#include \"bindings/export_table.hpp\"\n#include \"$0\"\n\n"
             "namespace bindings {\n\n$1\nnamespace {\n\n$2$3"
             "const ExportList *const lists[] = {$4};\n\n}  // namespace\n\n"
             "const Binding binding = {\"$5\", lists, $6, tables, $7, actions, $8};\n\n"
             "}  // namespace bindings\n",
             {header_name(program), declarations, table_rows(program), action_rows(program), names,
              program.name, std::to_string(api.units().size()),
              std::to_string(program.tables.size()), std::to_string(program.actions.size())});
}

}  // namespace pdgen
