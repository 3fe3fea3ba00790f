// The wrappers, one statement each.
#include "pdgen/emit/emit.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

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

}  // namespace pdgen
