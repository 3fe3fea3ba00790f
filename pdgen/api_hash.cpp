// Hash calculations by function, their field numbers, and the same by name.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

constexpr const char *kGroup = "Hash calculations";

Parameter input() { return {"uint32_t", "input"}; }
Parameter attribute_count() { return {"uint32_t", "attribute_count"}; }
Parameter max_count() { return {"uint32_t", "max_count"}; }
Parameter filled() { return {"uint32_t *", "filled"}; }
Parameter out_count() { return {"uint32_t *", "count"}; }
Parameter attributes() { return {"const p4_pd_hash_calc_attr_t *", "attributes"}; }
Parameter out_attributes() { return {"p4_pd_hash_calc_attr_t *", "attributes"}; }

// Adds functions of one calculation; $0 in statements is its descriptor.
class HashFunctions {
 public:
  HashFunctions(Api &api, const Hash &hash) : api_(api), hash_(hash) {}

  void add(const std::string &operation, std::vector<Parameter> parameters, const char *statement) {
    parameters.insert(parameters.begin(), {session(), device()});
    add(hash_function(api_.program(), hash_, operation), "p4_pd_status_t", std::move(parameters),
        statement, "hash_calc_" + operation);
  }

  void add_map(const std::string &map, const std::string &result, const Parameter &from,
               const char *statement) {
    add(hash_map_function(api_.program(), hash_, map), result, {from}, statement, map);
  }

 private:
  void add(const std::string &name, const std::string &result, std::vector<Parameter> parameters,
           const char *statement, const std::string &family) {
    api_.add(kGroup, {name, result, std::move(parameters),
                      expand(std::string("return pd::") + statement, {"hash::" + hash_.name}),
                      family, hash_.name, ""});
  }

  Api &api_;
  const Hash &hash_;
};

void add_selection(HashFunctions &functions) {
  functions.add("input_set", {input()}, "set_hash_input($0, session, device, input)");
  functions.add("input_get", {{"uint32_t *", "input"}},
                "get_hash_input($0, session, device, input)");
  functions.add("algorithm_set", {{"uint32_t", "algorithm"}},
                "set_hash_algorithm($0, session, device, algorithm)");
  functions.add("algorithm_get", {{"uint32_t *", "algorithm"}},
                "get_hash_algorithm($0, session, device, algorithm)");
  functions.add("seed_set", {{"uint64_t", "seed"}}, "set_hash_seed($0, session, device, seed)");
  functions.add("seed_get", {{"uint64_t *", "seed"}}, "get_hash_seed($0, session, device, seed)");
}

void add_attributes(HashFunctions &functions) {
  functions.add("input_field_attribute_set", {input(), attribute_count(), attributes()},
                "set_hash_attributes($0, session, device, input, attribute_count, attributes)");
  functions.add("input_field_attribute_count_get", {input(), out_count()},
                "count_hash_attributes($0, session, device, input, count)");
  functions.add("input_field_attribute_get", {input(), max_count(), out_attributes(), filled()},
                "get_hash_attributes($0, session, device, input, max_count, attributes, filled)");
  functions.add("calculate_hash_value",
                {attribute_count(),
                 attributes(),
                 {"const uint32_t *", "attribute_sizes"},
                 {"uint8_t *", "hash"},
                 {"uint32_t", "hash_length"}},
                "calculate_hash($0, session, device, attribute_count, attributes, "
                "attribute_sizes, hash, hash_length)");
  functions.add_map("p4_field_enum", "int32_t", {"uint32_t", "index"}, "own_field($0, index)");
  functions.add_map("cmn_field_enum", "uint32_t", {"uint32_t", "field"}, "common_field($0, field)");
}

void add_by_name(Api &api) {
  const std::string type = hash_field_attr_type(api.program());
  const auto add = [&](const std::string &operation, std::vector<Parameter> parameters,
                       const std::string &verb, const std::string &arguments) {
    parameters.insert(parameters.begin(), {session(), device(), {"const char *", "name"}});
    api.add(kGroup, {program_function(api.program(), "hash_calc_" + operation), "p4_pd_status_t",
                     std::move(parameters),
                     expand("return pd::$0_by_name(hash::names, session, device, name$1)",
                            {verb, arguments}),
                     "hash_calc_" + operation + "_by_name", "", ""});
  };
  add("input_set", {}, "set_hash_input", "");
  add("input_field_attribute_count_get", {out_count()}, "count_hash_attributes", ", count");
  add("input_field_attribute_set", {attribute_count(), {"const " + type + " *", "attributes"}},
      "set_hash_attributes", ", attribute_count, attributes");
  add("input_field_attribute_get", {max_count(), {type + " *", "attributes"}, filled()},
      "get_hash_attributes", ", max_count, attributes, filled");
}

}  // namespace

void add_hash_functions(Api &api) {
  api.add_note(
      "Hash calculations",
      "A calculation has one input field list and one algorithm; 0 stands for either. Setting any "
      "other number passes handle 0 on, which the pipeline manager refuses. input_get and "
      "algorithm_get return P4_PD_UNKNOWN_SELECTION when the device reports another one or none. "
      "The attribute reads ask for the list that is configured; P4_PD_UNKNOWN_SELECTION when that "
      "is the calculation's own and input is not 0. attribute_get sets filled to 0 before anything "
      "else. calculate_hash_value lays the values end to end, the last one in the lowest bits of "
      "the stream, and takes attribute_sizes[i] bits of value i: its low bits up to 32, else that "
      "many of the bytes it points at, whose last byte is the lowest. P4_PD_NO_MEMORY when a copy "
      "or the stream could not be allocated or the stream is longer than 32 bits can tell.");
  api.add_note(
      "Hash calculations by name",
      "The name is that of the calculation, whole and case-sensitive; P4_PD_UNKNOWN_SELECTION for "
      "any other, and for an attribute of a field that the calculation does not have. Fields go "
      "by their common number: p4_field_enum turns it into the calculation's own, -1 when there "
      "is none, and cmn_field_enum back, 0xffffffff (no field of any calculation) when there is "
      "none.");
  const std::string type = hash_field_attr_type(api.program());
  api.declare(kGroup, "typedef p4_pd_hash_field_attr_t " + type + ";\n");
  api.begin_unit("hash", {"hash.hpp", "object_names.hpp"});
  for (const Hash &hash : api.program().hashes) {
    HashFunctions functions(api, hash);
    add_selection(functions);
    add_attributes(functions);
  }
  add_by_name(api);
}

}  // namespace pdgen
