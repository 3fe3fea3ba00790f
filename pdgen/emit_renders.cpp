// What rendering needs of tables and profiles, as data.
#include <fmt/format.h>

#include <map>

#include "pdgen/emit.hpp"
#include "pdgen/names.hpp"
#include "pdgen/texts.hpp"

namespace pdgen {

namespace {

std::string table_constant(const Program &program, const Table &table) {
  return fmt::format(
      "inline constexpr RenderedTable {0} = rendered_table<text::table::{0}>(\"{1}{0}\");\n",
      table.name, name_prefix(program));
}

std::string profile_constant(const Program &program, const Profile &profile) {
  std::vector<std::string> actions;
  for (const ProfileAction &pair : profile.actions) {
    actions.push_back("text::action::" + pair.action.name);
  }
  return fmt::format(
      "inline constexpr RenderedProfile {0} = {{{1}, &::pd::profile::{0}::profile, \"{2}{0}\",\n"
      "    RenderedActions<ActionTexts<{3}>>::rows}};\n",
      profile.name, hex32(profile.action_data_handle), name_prefix(program), join(actions, ", "));
}

// Names in the order of their handles.
using ByHandle = std::map<std::uint32_t, std::string>;

std::string array(const char *type, const char *name, const ByHandle &rows) {
  std::string out = fmt::format("inline constexpr {} {}[] = {{\n", type, name);
  for (const auto &row : rows) out += "    " + row.second + ",\n";
  return out + "    {},\n};\n";
}

}  // namespace

std::string emit_renders(const Program &program) {
  std::string tables;
  std::string profiles;
  ByHandle table_rows;
  ByHandle profile_rows;
  for (const Table &table : program.tables) {
    tables += table_constant(program, table);
    table_rows[table.handle] = "table::" + table.name;
  }
  for (const Profile &profile : program.profiles) {
    profiles += profile_constant(program, profile);
    profile_rows[profile.action_data_handle] = "profile::" + profile.name;
  }
  return origin(program, "// ") +
         expand(
             "#pragma once\n\n#include \"descriptors.hpp\"\n#include \"render.hpp\"\n"
             "#include \"texts.hpp\"\n\nnamespace pd::render {\n\nnamespace table {\n\n$0\n"
             "}  // namespace table\n\nnamespace profile {\n\n$1\n}  // namespace profile\n\n"
             "$2\n$3\ninline constexpr Rendered all = {tables_by_handle, $4, "
             "profiles_by_handle, $5};\n\n}  // namespace pd::render\n",
             {tables, profiles, array("RenderedTable", "tables_by_handle", table_rows),
              array("RenderedProfile", "profiles_by_handle", profile_rows),
              std::to_string(table_rows.size()), std::to_string(profile_rows.size())});
}

}  // namespace pdgen
