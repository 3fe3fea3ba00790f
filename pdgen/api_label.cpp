// Labels of counted entries.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

void add_for_label(Api &api, const Table &table) {
  const Program &program = api.program();
  api.add(table_group(table),
          {table_function(program, table, "match_spec_stringify_for_counter"),
           "int",
           {match_spec(program, table), buffer()},
           expand("return write_label(label::table::$0::items, label::table::$0::count, "
                  "match_spec, buffer)",
                  {table.name}),
           "match_spec_stringify_for_counter",
           table.name,
           ""});
  api.add(
      table_group(table),
      {table_function(program, table, "stringify_counter_match_spec"),
       "int",
       {session(), device(), entry(), buffer()},
       expand("return entry_label<label::table::$0>(session, device, entry, buffer)", {table.name}),
       "stringify_counter_match_spec",
       table.name,
       ""});
}

}  // namespace

void add_label_functions(Api &api) {
  const Program &program = api.program();
  api.add_note(
      "Labels of counted entries",
      "For the tables whose entries carry a counter that monitoring shows. A label names the "
      "fields that the entry matches on. It is written into buffer with a NUL and its length is "
      "returned; " +
          size_constant(program, "LABEL_MAX") +
          " bytes hold any of them. stringify_counter_match_spec reads the entry from the "
          "hardware; "
          "the default entry, which has no key, has an empty label. When that fails, for a table "
          "without labels and for a null pointer, 0 is returned and buffer stays as it was.");
  api.begin_unit("label", {"labels.hpp"});
  for (const Label &label : program.labels) add_for_label(api, *label.table);
  api.add(introspection_group(),
          {program_function(program, "stringify_counter_matchspec"),
           "int",
           {session(), device(), {"uint32_t", "table_handle"}, entry(), buffer()},
           "return write_label_of(label::by_handle, label::handle_count, session, device, "
           "table_handle, entry, buffer)",
           "stringify_counter_matchspec",
           "",
           ""});
}

}  // namespace pdgen
