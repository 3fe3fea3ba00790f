// Parser value sets: properties and entries.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

constexpr const char *kGroup = "Parser value sets";

Parameter parser_target() { return {"p4_pd_parser_target_t", "target"}; }
Parameter value() { return {"uint32_t", "value"}; }
Parameter mask() { return {"uint32_t", "mask"}; }
Parameter property() { return {"uint32_t", "property"}; }
Parameter argument() { return {"uint32_t", "argument"}; }

// Adds functions of one set; $0 in statements is its handle.
class SetFunctions {
 public:
  SetFunctions(Api &api, const ValueSet &set) : api_(api), set_(set) {}

  void add(const std::string &operation, std::vector<Parameter> parameters, const char *call) {
    parameters.insert(parameters.begin(), session());
    api_.add(kGroup, {value_set_function(api_.program(), set_, operation), "p4_pd_status_t",
                      std::move(parameters),
                      expand(std::string("return pd::") + call, {hex32(set_.handle)}),
                      "pvs_" + operation, set_.name, ""});
  }

 private:
  Api &api_;
  const ValueSet &set_;
};

void add_changes(SetFunctions &functions) {
  functions.add("set_property", {device32(), property(), value(), argument()},
                "set_value_set_property($0, session, device, property, value, argument)");
  functions.add("get_property", {device32(), property(), {"uint32_t *", "value"}, argument()},
                "get_value_set_property($0, session, device, property, value, argument)");
  functions.add("entry_add", {parser_target(), value(), mask(), out_entry()},
                "add_value($0, session, target, value, mask, entry)");
  functions.add("entry_modify", {device32(), entry(), value(), mask()},
                "modify_value($0, session, device, entry, value, mask)");
  functions.add("entry_delete", {device32(), entry()}, "delete_value($0, session, device, entry)");
}

void add_reads(SetFunctions &functions) {
  functions.add("entry_get", {device32(), entry(), {"uint32_t *", "value"}, {"uint32_t *", "mask"}},
                "get_value($0, session, device, entry, value, mask)");
  functions.add("entry_handle_get", {parser_target(), value(), mask(), out_entry()},
                "find_value($0, session, target, value, mask, entry)");
  functions.add("entry_get_first_entry_handle", {parser_target(), out_entry()},
                "first_value($0, session, target, entry)");
  functions.add(
      "entry_get_next_entry_handles",
      {parser_target(), entry(), {"uint32_t", "count"}, {"p4_pd_entry_handle_t *", "entries"}},
      "next_values($0, session, target, entry, count, entries)");
  functions.add("entry_get_count",
                {parser_target(), {"uint8_t", "read_from_hardware"}, {"uint32_t *", "count"}},
                "count_values($0, session, target, read_from_hardware, count)");
}

}  // namespace

void add_value_set_functions(Api &api) {
  api.add_note("Parser value sets",
               "An entry is a value and a mask in one parser of a device; the pipeline manager "
               "chooses its handle. set_property and get_property take PIPE_PVS_*; get_property "
               "writes 0xffffffff to value when it fails. entry_get_next_entry_handles fills "
               "entries, which has room for count handles, with those behind entry.");
  api.begin_unit("value_set", {"value_set.hpp"});
  for (const ValueSet &set : api.program().value_sets) {
    SetFunctions functions(api, set);
    add_changes(functions);
    add_reads(functions);
  }
}

}  // namespace pdgen
