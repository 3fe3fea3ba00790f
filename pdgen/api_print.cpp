// Records printed to a descriptor, and addresses as text.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const Parameter kDescriptor = {"int", "descriptor"};
const Parameter kIndent = {"int", "indent"};
const Parameter kLabel = {"const char *", "label"};
const Parameter kMask = {"uint32_t", "mask"};
const Parameter kPrefixLength = {"uint16_t", "prefix_length"};
const Parameter kV4Address = {"uint32_t", "address"};
const Parameter kV6Address = {"const uint8_t *", "address"};

// A helper calls the verb of its name with its own arguments.
void add_helper(Api &api, const std::string &verb, std::vector<Parameter> parameters) {
  parameters.insert(parameters.begin(), {buffer(), kLabel});
  std::vector<std::string> arguments;
  for (const Parameter &parameter : parameters) arguments.push_back(parameter.name);
  api.add(introspection_group(),
          {program_function(api.program(), "_" + verb), "int", std::move(parameters),
           "return pd::" + verb + "(" + join(arguments, ", ") + ")", verb, "", ""});
}

void add_helpers(Api &api) {
  add_helper(api, "print_v4addr_exact", {kV4Address});
  add_helper(api, "print_v4addr_lpm", {kV4Address, kPrefixLength});
  add_helper(api, "print_v4addr_ternary", {kV4Address, kMask});
  add_helper(api, "print_v6addr_exact", {kV6Address});
  add_helper(api, "print_v6addr_lpm", {kV6Address, kPrefixLength});
  add_helper(api, "print_v6addr_ternary", {kV6Address, {"const uint8_t *", "mask"}});
  add_helper(api, "print_mac_exact", {{"uint32_t", "oui"}, {"uint32_t", "station"}});
  add_helper(api, "print_mac_ternary",
             {{"uint32_t", "oui"},
              {"uint32_t", "oui_mask"},
              {"uint32_t", "station"},
              {"uint32_t", "station_mask"}});
}

}  // namespace

void add_print_functions(Api &api) {
  const Program &program = api.program();
  api.add_note(
      "Printing",
      "match_spec_print and an action's print write one line a field to a file descriptor, one "
      "write a line, and return the length of the last line, or -1 when it could not be written. "
      "The header line of a match spec follows indent blanks, the others one blank more, and two "
      "at indent 0. The helpers _print_* write a label and an address into buffer and return the "
      "length. The ternary ones return 0 for a mask of 0; 0 goes with nothing written, also for a "
      "null pointer. IPv6 addresses have 16 bytes; MAC addresses come in halves of 24 bits.");
  api.begin_unit("print", {"address.hpp", "print.hpp", "texts.hpp"});
  for (const Table &table : program.tables) {
    if (!table.keyed()) continue;
    api.add(
        table_group(table),
        {table_function(program, table, "match_spec_print"),
         "int",
         {kDescriptor, kIndent, match_spec(program, table)},
         expand("return pd::print<text::table::$0>(descriptor, indent, match_spec)", {table.name}),
         "match_spec_print",
         table.name,
         ""});
  }
  for (const Action &action : program.actions) {
    if (!action.has_params()) continue;
    api.add(action_group(),
            {action_function(program, action, "print"),
             "int",
             {kDescriptor, kIndent, action_spec(program, action)},
             expand("return pd::print<text::action::$0>(descriptor, indent, action_spec)",
                    {action.name}),
             "action_print",
             action.name,
             ""});
  }
  add_helpers(api);
}

}  // namespace pdgen
