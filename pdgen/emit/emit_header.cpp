// The public header and the list of exports.
#include <algorithm>

#include "pdgen/emit/emit.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

std::string origin(const Program &program, const std::string &line_prefix) {
  return expand(
      "$0Made by pdgen from the catalogue of $1. Edit the catalogue and run\n"
      "$0scripts/generate, not this file.\n",
      {line_prefix, program.name});
}

std::string declaration(const Function &function) {
  std::vector<std::string> parameters;
  for (const Parameter &parameter : function.parameters) {
    const char *space = parameter.type.back() == '*' ? "" : " ";
    parameters.push_back(parameter.type + space + parameter.name);
  }
  if (parameters.empty()) parameters.push_back("void");
  const char *space = function.result.back() == '*' ? "" : " ";
  return function.result + space + function.name + "(" + join(parameters, ", ") + ")";
}

namespace {

// Folds a declaration behind its opening parenthesis or behind a comma, where it has to.
std::string folded(const std::string &text) {
  constexpr std::size_t width = 99;
  if (text.size() <= width) return text;
  const std::size_t open = text.find('(') + 1;
  std::string out = text.substr(0, open);
  std::size_t column = open;
  for (std::size_t at = open; at < text.size();) {
    const std::size_t comma = text.find(", ", at);
    const std::string part =
        comma == std::string::npos ? text.substr(at) : text.substr(at, comma + 1 - at);
    const bool first = at == open;
    if (column + part.size() + (first ? 0 : 1) > width) {
      out += "\n    " + part;
      column = 4 + part.size();
    } else {
      out += (first ? "" : " ") + part;
      column += part.size() + (first ? 0 : 1);
    }
    at = comma == std::string::npos ? text.size() : comma + 2;
  }
  return out;
}

std::string header_top(const Program &program) {
  return expand(
      "/* Control-plane interface of the P4 program $0.\n *\n"
      " * Every function runs on the caller's thread and returns the status of the pipeline "
      "manager\n"
      " * unchanged, or a code of the library (p4_pd_types.h). Records and buffers belong to the\n"
      " * caller and are used during the call only. Out-parameters are written on success only,\n"
      " * unless a family says otherwise. The functions are grouped by object; what the functions\n"
      " * of a family have in common is said once, below.\n *\n",
      {program.name});
}

std::string notes(const Api &api) {
  std::string out;
  for (const FamilyNote &note : api.notes()) {
    out += " * " + note.title + "\n *   " + wrap(note.text, 95, " *   ") + "\n *\n";
  }
  return out;
}

}  // namespace

std::string emit_header(const Api &api) {
  const Program &program = api.program();
  std::string guard = "P4_PD_" + program.name + "_H";
  std::transform(guard.begin(), guard.end(), guard.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  std::string out = header_top(program) + notes(api) + origin(program, " * ") + " */\n";
  out += expand(
      "#ifndef $0\n#define $0\n\n#include \"p4_pd_types.h\"\n\n#ifdef __cplusplus\n"
      "extern \"C\" {\n#endif\n",
      {guard});
  for (const Group &group : api.groups()) {
    out += "\n/* ==== " + group.title + " ==== */\n\n" + group.declarations;
    if (!group.declarations.empty() && !group.functions.empty()) out += '\n';
    for (const Function &function : group.functions) {
      out += folded(declaration(function)) + ";\n";
    }
  }
  return out + "\n#ifdef __cplusplus\n}\n#endif\n\n#endif\n";
}

namespace {

std::vector<std::string> export_names(const Api &api) {
  std::vector<std::string> names = {"bf_drv_hdl", action_name_strings(api.program())};
  for (const Function *function : api.functions()) names.push_back(function->name);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

std::string emit_exports(const Api &api) { return join(export_names(api), "\n") + "\n"; }

std::string emit_version_script(const Api &api, unsigned soname_version) {
  std::string out = origin(api.program(), "# ");
  out += "P4_PD_" + api.program().name + "_" + std::to_string(soname_version) + " {\n  global:\n";
  for (const std::string &name : export_names(api)) out += "    " + name + ";\n";
  return out + "  local:\n    *;\n};\n";
}

}  // namespace pdgen
