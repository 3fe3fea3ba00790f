// Schemas of tables, match specs, actions and profiles.
#include <fmt/format.h>

#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"
#include "pdgen/texts.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const std::string kText = "const char *";

std::string size_row(const Program &program, const char *family, std::size_t size,
                     const char *remark) {
  return fmt::format("  {} = {}, /* {} */\n", size_constant(program, family), size, remark);
}

std::string size_constants(const Program &program, const TextSizes &sizes) {
  return "/* Bytes that hold any text of a family, its NUL included. */\nenum {\n" +
         size_row(program, "SCHEMA_MAX", sizes.schema, "schema of a table or profile") +
         size_row(program, "MATCH_SPEC_VALUE_MAX", sizes.match_spec_value, "a match spec alone") +
         size_row(program, "ACTION_VALUE_MAX", sizes.action_value, "an action alone") +
         size_row(program, "VALUE_MAX", sizes.value, "an entry") +
         size_row(program, "LABEL_MAX", sizes.label, "label of a counted entry") + "};\n";
}

void add_for_table(Api &api, const Table &table) {
  const Program &program = api.program();
  if (table.keyed()) {
    api.add(table_group(table), {table_function(program, table, "match_spec_schema"),
                                 kText,
                                 {},
                                 "return schema::match_spec::" + table.name,
                                 "match_spec_schema",
                                 table.name,
                                 ""});
  }
  api.add(table_group(table),
          {table_function(program, table, "schema"),
           "int",
           {buffer()},
           expand("return write_schema(schema::table::$0, buffer)", {table.name}),
           "table_schema",
           table.name,
           ""});
}

}  // namespace

void add_schema_functions(Api &api) {
  const Program &program = api.program();
  api.add_note(
      "Schemas",
      "Objects described as literals of nested tuples, for tools that know none of them. The "
      "match-spec and action schemas are constants. The others are written into buffer with a NUL "
      "and their length is returned; " +
          size_constant(program, "SCHEMA_MAX") +
          " bytes hold any of them. cli_schema takes the handle of a table or the action-data "
          "handle of a profile and writes \"()\" for any other. A null buffer gets 0.");
  api.begin_unit("schema", {"schemas.hpp"});
  api.declare(introspection_group(), size_constants(program, text_sizes(program)));
  for (const Table &table : program.tables) add_for_table(api, table);
  for (const Action &action : program.actions) {
    api.add(action_group(), {action_function(program, action, "schema"),
                             kText,
                             {},
                             "return schema::action::" + action.name,
                             "action_schema",
                             action.name,
                             ""});
  }
  for (const Profile &profile : program.profiles) {
    api.add(profile_group(profile),
            {profile_function(program, profile, "schema"),
             "int",
             {buffer()},
             expand("return write_schema(schema::profile::$0, buffer)", {profile.name}),
             "profile_schema",
             profile.name,
             ""});
  }
  api.add(introspection_group(),
          {program_function(program, "cli_schema"),
           "int",
           {{"uint32_t", "handle"}, buffer()},
           "return write_schema_of(schema::by_handle, schema::handle_count, handle, buffer)",
           "cli_schema",
           "",
           ""});
}

}  // namespace pdgen
