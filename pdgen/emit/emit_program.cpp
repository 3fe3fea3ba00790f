// What the core is told of the program as a whole: the program record, and how large things get.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/emit/emit.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

std::string emit_limits(const Program &program) {
  // The pipeline manager may hand back so much action data whatever the program has.
  unsigned action_data = 28;
  unsigned action_spec = 1;
  unsigned match_spec = 1;
  unsigned key = 1;
  for (const Action &action : program.actions) {
    action_data = std::max(action_data, action.data_bytes);
    action_spec = std::max(action_spec, action.record_bytes);
  }
  for (const Table &table : program.tables) {
    match_spec = std::max(match_spec, table.record_bytes);
    key = std::max(key, table.key_bytes);
  }
  const std::size_t profiles = std::max<std::size_t>(1, program.profiles.size());
  return origin(program, "// ") +
         fmt::format(
             "#pragma once\n\n#include <cstdint>\n\n"
             "// Bytes of the largest of each, and how many there are; at least 1.\n"
             "namespace pd::limits {{\n\ninline constexpr uint16_t action_data = {};\n"
             "inline constexpr uint16_t action_spec = {};\n"
             "inline constexpr uint16_t match_spec = {};\ninline constexpr uint16_t key = {};\n"
             "inline constexpr uint32_t profiles = {};\n\n}}  // namespace pd::limits\n",
             action_data, action_spec, match_spec, key, profiles);
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
