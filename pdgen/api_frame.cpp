// Start-up and teardown, and the records of tables and actions.
#include <fmt/format.h>

#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

constexpr const char *kFrame = "Start and stop";

const char *storage_type(unsigned bytes) {
  switch (bytes) {
    case 1:
      return "uint8_t";
    case 2:
      return "uint16_t";
    default:
      return "uint32_t";
  }
}

std::string member(const std::string &name, unsigned storage, const std::string &remark) {
  if (storage == 16) return fmt::format("  uint8_t {}[16]; /* {} */\n", name, remark);
  return fmt::format("  {} {}; /* {} */\n", storage_type(storage), name, remark);
}

std::string bits(unsigned width) { return fmt::format("{} bit{}", width, width == 1 ? "" : "s"); }

std::string key_bits(const KeyField &field) {
  if (!field.partial) return "";
  if (!field.wide()) return fmt::format(", key bits {:#x}", field.key_bits);
  std::string digits;
  for (const std::uint8_t byte : field.wide_key_bits) digits += fmt::format("{:02x}", byte);
  return ", key bits 0x" + digits;
}

std::string match_spec_record(const Program &program, const Table &table) {
  std::string members;
  for (const RecordField &field : table.record) {
    const KeyField &key = table.key[field.key_index];
    std::string remark = bits(key.width) + key_bits(key);
    if (field.role == RecordRole::kMask) remark = "set bits take part";
    if (field.role == RecordRole::kPrefixLength) remark = fmt::format("0 to {}", key.width);
    members += member(field.name, field.storage_bytes, remark);
  }
  return expand(
      "/* Key of $3 in $4 bytes. */\ntypedef struct $0 {\n$1} $2;\n",
      {type_tag(match_spec_type(program, table)), members, match_spec_type(program, table),
       bits(table.key_bits), std::to_string(table.key_bytes)});
}

std::string param_remark(const Param &param) {
  std::string remark = bits(param.width);
  if (param.is_index()) {
    std::vector<std::string> names;
    for (const Ref<Resource> &resource : param.index_of) names.push_back(resource.name);
    remark += ", cell of " + join(names, " and ");
  }
  if (param.hint == Hint::kMac) remark += ", half of a MAC address";
  if (param.hint == Hint::kV4Addr) remark += ", IPv4 address";
  return remark;
}

std::string action_spec_record(const Program &program, const Action &action) {
  std::string members;
  for (const Param &param : action.params) {
    members += member(param_member(param), param.storage_bytes, param_remark(param));
  }
  return expand("typedef struct $0 {\n$1} $2;\n\n", {type_tag(action_spec_type(program, action)),
                                                     members, action_spec_type(program, action)});
}

std::string action_enumeration(const Program &program) {
  std::string values;
  for (const Action &action : program.actions) {
    values += fmt::format("  {} = {},\n", action_constant(program, action), action.value);
  }
  values.erase(values.size() - 2, 1);
  return expand(
      "/* Every action of the program; an action that several tables use has one value. */\n"
      "typedef enum $0 {\n$1} $2;\n\n"
      "/* The full name of each value, prefix included. */\n"
      "extern const char *const $3[$4];\n\n",
      {type_tag(action_names_type(program)), values, action_names_type(program),
       action_name_strings(program), std::to_string(program.actions.size())});
}

std::string action_specs_union(const Program &program) {
  std::string members;
  for (const Action &action : program.actions) {
    if (!action.has_params()) continue;
    members += fmt::format("    {} {};\n", action_spec_type(program, action), action.name);
  }
  if (members.empty()) members = "    uint32_t none;\n";
  return expand(
      "/* An action with its parameters as read back; spec is written only for an action that has "
      "any. */\ntypedef struct $0 {\n  uint32_t action; /* of $1 */\n  union {\n$2  } spec;\n} "
      "$0_t;\n",
      {type_tag(action_specs_type(program)), action_names_type(program), members});
}

}  // namespace

void add_frame_functions(Api &api) {
  const Program &program = api.program();
  api.add_note("Start and stop",
               "init creates the member-selector states, registers the client with the driver "
               "framework and binds the callbacks for device removal, log and restore. Call it "
               "once, before any other function; P4_PD_NO_MEMORY when a state cannot be made and "
               "P4_PD_DRIVER_REFUSED when the framework refuses the client. cleanup deregisters "
               "the client. device_state_cleanup does nothing. "
               "bf_drv_hdl is the client's handle.");
  api.begin_unit("frame", {"frame.hpp"});
  api.declare(kFrame, "extern uint32_t bf_drv_hdl;\n");
  api.add(kFrame, {program_function(program, "init"),
                   "p4_pd_status_t",
                   {},
                   "return pd::initialize(&bf_drv_hdl)",
                   "init",
                   "",
                   ""});
  api.add(kFrame, {program_function(program, "cleanup"),
                   "p4_pd_status_t",
                   {},
                   "return pd::clean_up(bf_drv_hdl)",
                   "cleanup",
                   "",
                   ""});
  api.add(kFrame, {program_function(program, "device_state_cleanup"),
                   "void",
                   {},
                   "",
                   "device_state_cleanup",
                   "",
                   ""});
}

void add_records(Api &api) {
  const Program &program = api.program();
  std::string records;
  for (const Action &action : program.actions) {
    if (action.has_params()) records += action_spec_record(program, action);
  }
  api.declare(action_group(), action_enumeration(program) + records + action_specs_union(program));
  for (const Table &table : program.tables) {
    if (table.keyed()) api.declare(table_group(table), match_spec_record(program, table));
  }
}

}  // namespace pdgen
