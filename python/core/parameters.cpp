// The parameters of a C function by their types and names.
#include <algorithm>

#include "pipe_mgr_types.h"
#include "python/core/argument.hpp"
#include "soft_sdk.h"
#include "tesselctl/program/action_specs.hpp"

namespace python {

namespace {

bool is_pointer(std::string_view type) { return type.ends_with('*'); }

// The bytes of an integer by its type; handles, statuses and the like are words.
size_t integer_size(std::string_view type) {
  if (type == "uint8_t" || type == "bool" || type == "char") return 1;
  if (type == "uint16_t") return 2;
  return type == "uint64_t" ? 8 : 4;
}

// The parameter that counts the elements of another one.
struct Counted {
  std::string_view pointer;
  std::string_view count;
};
constexpr Counted kCounted[] = {{"entries", "bytes"},
                                {"entries", "count"},
                                {"members", "count"},
                                {"groups", "count"},
                                {"attributes", "attribute_count"},
                                {"attributes", "max_count"},
                                {"attribute_sizes", "attribute_count"},
                                {"hash", "hash_length"},
                                {"values", "index_count"},
                                {"key", "length"},
                                {"records", "bytes"},
                                {"devices", "capacity"}};

int count_of(const bindings::Export &target, std::string_view pointer) {
  for (const Counted &row : kCounted) {
    if (row.pointer != pointer) continue;
    for (size_t i = 0; i < target.parameter_count; ++i) {
      if (row.count == target.parameters[i].name) return static_cast<int>(i);
    }
  }
  return -1;
}

// Bytes that C reads or writes behind a pointer to something else than an integer or a structure.
void describe_special(ParameterInfo &info, const Program &program, std::string_view pointed) {
  const bindings::Sizes &sizes = program.binding().sizes;
  if ((info.record = program.record_of_type(pointed)) != nullptr) {
    info.size = info.record->size;
    info.reading = Reading::record;
  } else if (pointed.ends_with("_action_specs_t")) {
    info.size = sizes.action_specs;
    info.reading = Reading::action;
  } else if (pointed == "void") {
    // An action's parameters as they are read back, or a trigger.
    const bool is_input = info.kind == ParameterKind::input;
    info.size =
        is_input ? program.description().snapshot_bytes : sizes.action_specs - sizes.action_spec;
    info.reading = Reading::bytes;
  } else if (pointed == "char") {
    info.size = std::max({sizes.schema, sizes.match_spec_value, sizes.action_value, sizes.value,
                          sizes.label, sizes.action_name});
    info.reading = Reading::text;
  }
}

void describe_pointer(ParameterInfo &info, const Program *program, const bindings::Export &target) {
  const std::string_view type = info.parameter->type;
  const std::string_view name = info.parameter->name;
  const std::string_view pointed = pointed_type(type);
  info.kind = type.starts_with("const ") ? ParameterKind::input : ParameterKind::output;
  if (pointed == "pipe_mgr_placement_t" || pointed == "pipe_mgr_digest_message_t") {
    info.kind = ParameterKind::opaque;
    return;
  }
  if (type == "const char *") info.kind = ParameterKind::text;
  info.count = count_of(target, name);
  if ((info.structure = find_structure(pointed)) != nullptr) {
    info.size = info.structure->size;
    info.reading = Reading::structure;
  } else {
    info.size = integer_size(pointed);
    info.reading = pointed == "bool" ? Reading::flag : Reading::integer;
    if (pointed == "pipe_stful_cell_t") info.size = sizeof(pipe_stful_cell_t);
    if (pointed == "pipe_stful_query_t") info.reading = Reading::none;
    if (pointed == "uint8_t" && name == "hash") info.reading = Reading::bytes;
    if (program != nullptr) describe_special(info, *program, pointed);
  }
  if (pointed == "pipe_stful_query_t") info.size = sizeof(pipe_stful_query_t);
  if (name == "values" && info.structure == nullptr) info.least = SOFT_PIPE_LIMIT;
  if (pointed == "uint8_t" && (name == "address" || name == "mask") && is_pointer(type)) {
    info.least = 16;
  }
  if (program != nullptr && info.count < 0 && (name == "records" || name == "control")) {
    info.least = program->binding().capture_limit;
  }
}

}  // namespace

std::vector<ParameterInfo> parameters_of(const Program *program, const bindings::Export &target) {
  std::vector<ParameterInfo> all;
  for (const bindings::Parameter &parameter : target.parameter_list()) {
    ParameterInfo info;
    info.parameter = &parameter;
    const std::string_view type = parameter.type;
    if (callback_function(type) != 0) {
      info.kind = ParameterKind::callback;
    } else if (is_pointer(type)) {
      describe_pointer(info, program, target);
    } else if ((info.structure = find_structure(type)) != nullptr) {
      info.kind = ParameterKind::structure;
    } else {
      info.kind = type == "bool" ? ParameterKind::flag : ParameterKind::integer;
      info.size = integer_size(type);
      info.is_signed = type == "int" || type == "int32_t";
    }
    all.push_back(info);
  }
  return all;
}

}  // namespace python
