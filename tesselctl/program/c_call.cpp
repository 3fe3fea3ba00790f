#include "tesselctl/program/c_call.hpp"

#include <fmt/format.h>

#include <cstring>
#include <optional>

#include "p4_pd_types.h"
#include "tesselctl/program/library.hpp"
#include "tesselctl/text/number.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

namespace {

using bindings::Export;
using bindings::Member;
using bindings::Parameter;
using bindings::Record;

constexpr std::string_view kMatchSpec = "_match_spec_t";
constexpr std::string_view kActionSpec = "_action_spec_t";
constexpr std::string_view kCounterValues = "p4_pd_counter_values_t";

std::string_view bare_type(std::string_view type) {
  if (type.starts_with("const ")) type.remove_prefix(6);
  return type.substr(0, type.find_first_of(" *"));
}

// As the header declares them.
std::string typed(std::string_view type, std::string_view name) {
  return fmt::format("{}{}{}", type, type.ends_with('*') ? "" : " ", name);
}

std::string lettered(bool value) { return value ? "true" : "false"; }

// ---- Numbers that have names in the headers ----

struct Constant {
  std::string_view parameter;
  std::string_view family;  // what it contains
  uint64_t value;
  const char *name;
};
constexpr Constant kConstants[] = {
    {"property", "pvs_", PIPE_PVS_CAPACITY, "PIPE_PVS_CAPACITY"},
    {"property", "t_property", PIPE_TABLE_ENTRY_SCOPE, "PIPE_TABLE_ENTRY_SCOPE"},
    {"property", "t_property", PIPE_TABLE_DUPLICATE_CHECK, "PIPE_TABLE_DUPLICATE_CHECK"},
    {"property", "t_property", PIPE_TABLE_CAPACITY, "PIPE_TABLE_CAPACITY"},
    {"flags", "_read", P4_PD_READ_FROM_HARDWARE, "P4_PD_READ_FROM_HARDWARE"},
    {"state", "", P4_PD_GRP_MBR_STATE_ACTIVE, "P4_PD_GRP_MBR_STATE_ACTIVE"},
    {"state", "", P4_PD_GRP_MBR_STATE_INACTIVE, "P4_PD_GRP_MBR_STATE_INACTIVE"},
    {"hit_state", "", PIPE_ENTRY_IDLE, "PIPE_ENTRY_IDLE"},
    {"hit_state", "", PIPE_ENTRY_ACTIVE, "PIPE_ENTRY_ACTIVE"},
    {"pipe", "", BF_ALL_PIPES, "BF_ALL_PIPES"},
    {"meter_type", "", PD_METER_TYPE_COLOR_AWARE, "PD_METER_TYPE_COLOR_AWARE"},
    {"meter_type", "", PD_METER_TYPE_COLOR_UNAWARE, "PD_METER_TYPE_COLOR_UNAWARE"},
    {"mode", "", PIPE_IDLE_POLL, "PIPE_IDLE_POLL"},
    {"mode", "", PIPE_IDLE_NOTIFY, "PIPE_IDLE_NOTIFY"},
};

// The name of a number, or its digits.
std::string number_of(std::string_view parameter, uint64_t value, std::string_view family = {}) {
  for (const Constant &constant : kConstants) {
    if (constant.parameter == parameter && constant.value == value &&
        family.find(constant.family) != std::string_view::npos) {
      return constant.name;
    }
  }
  return value > 0xffff ? hexadecimal(value) : decimal(value);
}

// ---- What a host has ----

struct Callback {
  std::string_view type;
  const char *declaration;
};
constexpr Callback kCallbacks[] = {
    {"pipe_mgr_mat_update_cb_t",
     "void on_entry_update(pipe_session_handle_t session, bf_device_id_t device, "
     "pipe_object_handle_t table, uint32_t update, pipe_entry_handle_t entry, void *cookie)"},
    {"pipe_mgr_adt_update_cb_t",
     "void on_member_update(pipe_session_handle_t session, bf_device_id_t device, "
     "pipe_object_handle_t action_data_table, uint32_t update, pipe_member_handle_t member, "
     "void *cookie)"},
    {"pipe_mgr_sel_update_cb_t",
     "void on_group_update(pipe_session_handle_t session, bf_device_id_t device, "
     "pipe_object_handle_t selector, uint32_t update, pipe_group_handle_t group, "
     "pipe_member_handle_t member, void *cookie)"},
    {"pipe_mgr_idle_cb_t",
     "void on_expiry(bf_device_id_t device, pipe_object_handle_t table, "
     "pipe_entry_handle_t entry, void *client_data)"},
    {"pipe_mgr_sync_cb_t", "void on_synchronised(bf_device_id_t device, void *cookie)"},
    {"pipe_mgr_digest_cb_t",
     "bf_status_t on_digest(pipe_session_handle_t session, pipe_mgr_digest_message_t *message, "
     "void *cookie)"},
};

// A value of a type by the bytes that the caller gave.
template <class T>
T value_at(const void *bytes) {
  T value;
  memcpy(&value, bytes, sizeof value);
  return value;
}

std::string byte_list(const uint8_t *bytes, size_t count) {
  std::string list;
  for (size_t i = 0; i < count; ++i) list += fmt::format("{}{:#x}", i == 0 ? "" : ", ", bytes[i]);
  return list;
}

// ".x_id = 0x1, .x_address = 0xa000000". The header puts the prefix before the names.
std::string record_initializer(const Record &record, std::string_view prefix,
                               const uint8_t *bytes) {
  std::string text;
  for (const Member &member : record.member_list()) {
    text += fmt::format("{}.{}{} = ", text.empty() ? "" : ", ", prefix, member.name);
    const uint8_t *at = bytes + member.offset;
    if (member.is_bytes) {
      text += "{" + byte_list(at, member.storage) + "}";
      continue;
    }
    uint32_t value = 0;
    memcpy(&value, at, member.storage);
    text += member.role == bindings::Role::prefix_length ? decimal(value) : hexadecimal(value);
  }
  return text.empty() ? "0" : text;
}

// What the caller put into a record, as far as the type is one of those that callers fill.
std::string initializer(const Parameter &parameter, const uint8_t *bytes) {
  const std::string_view name = parameter.name;
  const std::string_view type = bare_type(parameter.type);
  if (const Record *record = record_of_type(type)) {
    return record_initializer(*record, type.ends_with(kMatchSpec) ? "" : "action_", bytes);
  }
  if (name == "meter_spec") {
    const auto meter = value_at<p4_pd_bytes_meter_spec_t>(bytes);
    return fmt::format("{}, {}, {}, {}, {}", meter.committed_rate, meter.committed_burst,
                       meter.peak_rate, meter.peak_burst,
                       number_of("meter_type", meter.meter_type));
  }
  if (type == kCounterValues) {
    const auto values = value_at<p4_pd_counter_values_t>(bytes);
    return fmt::format("{}u, {}u", values.packets, values.bytes);
  }
  if (type == "p4_pd_wred_params_t") {
    const auto params = value_at<p4_pd_wred_params_t>(bytes);
    return fmt::format("{}, {}, {}, {}", params.time_constant_ns, params.min_threshold_cells,
                       params.max_threshold_cells, params.max_probability);
  }
  if (type == "p4_pd_parser_target_t") {
    const auto parser = value_at<p4_pd_parser_target_t>(bytes);
    return fmt::format("{}, {}, {:#x}, {:#x}", parser.device_id, parser.direction, parser.pipe_id,
                       parser.parser_id);
  }
  if (type == "p4_pd_idle_time_params_t") {
    const auto params = value_at<p4_pd_idle_time_params_t>(bytes);
    return fmt::format(
        ".mode = {}, .sweep_interval_ms = {}, .max_ttl_ms = {}, .min_ttl_ms = {}, "
        ".default_ttl_ms = {}",
        number_of("mode", params.mode), params.sweep_interval_ms, params.max_ttl_ms,
        params.min_ttl_ms, params.default_ttl_ms);
  }
  if (type == "uint32_t") return hexadecimal(value_at<uint32_t>(bytes));
  if (type == "uint16_t") return hexadecimal(value_at<uint16_t>(bytes));
  if (type == "uint8_t") return hexadecimal(*bytes);
  return "0";
}

// The elements of an array that the caller gave, as far as they are plain words. A value wider than
// a word stands elsewhere, so it is left for the reader to fill in.
std::string elements(std::string_view type, const uint8_t *bytes, size_t count) {
  std::string list;
  for (size_t i = 0; i < count; ++i) {
    list += i == 0 ? "" : ", ";
    if (type == "p4_pd_hash_calc_attr_t") {
      const auto attribute =
          value_at<p4_pd_hash_calc_attr_t>(bytes + i * sizeof(p4_pd_hash_calc_attr_t));
      const uint64_t value = attribute.value;
      list += fmt::format(
          "{{.field = {}, .value = {}}}", attribute.field,
          value > 0xffffffffu ? std::string("0 /* address of the bytes */") : hexadecimal(value));
    } else if (type == "uint32_t") {
      list += decimal(value_at<uint32_t>(bytes + i * sizeof(uint32_t)));
    } else {
      list += fmt::format("{:#x}", bytes[i]);
    }
  }
  return list;
}

std::string string_literal(const char *text) {
  std::string literal = "\"";
  for (; *text != '\0'; ++text) {
    if (*text == '"' || *text == '\\') literal += '\\';
    literal += *text;
  }
  return literal + "\"";
}

// How many the parameter that counts the elements of an array says there are.
std::optional<size_t> count_of(const Export &target, const uint64_t *words,
                               std::string_view array) {
  const std::string_view counts = array == "hash" ? "hash_length" : "count";
  for (size_t i = 0; i < target.parameter_count; ++i) {
    const Parameter &parameter = target.parameters[i];
    const bool given = std::string_view(parameter.type).find('*') == std::string_view::npos;
    const std::string_view name = parameter.name;
    if (given && name.ends_with(counts) && name != "index_count") {
      return static_cast<size_t>(words[i]);
    }
  }
  return {};
}

// The constant of the header that says how long a text may get.
std::string text_size(const Export &target, std::string_view name) {
  const std::string_view family = target.family;
  std::string_view what = "VALUE";
  if (name == "action_name") {
    what = "ACTION_NAME";
  } else if (family.ends_with("schema")) {
    what = "SCHEMA";
  } else if (family == "match_spec_value") {
    what = "MATCH_SPEC_VALUE";
  } else if (family == "action_value") {
    what = "ACTION_VALUE";
  } else if (family.find("stringify") != std::string_view::npos) {
    what = "LABEL";
  }
  std::string size = fmt::format("{}{}_MAX", function_prefix(), what);
  std::ranges::transform(size, size.begin(), [](char c) { return std::toupper(c); });
  return size;
}

struct CText {
  std::string declarations;
  std::string arguments;

  // Returns how the call names it.
  std::string declare(std::string_view type, std::string_view name, std::string_view value) {
    declarations += fmt::format("  {} = {};\n", typed(type, name), value);
    return std::string(name.substr(0, name.find('[')));
  }
  std::string declare_array(std::string_view type, std::string_view name, const auto &size,
                            std::string_view elements) {
    return declare(type, fmt::format("{}[{}]", name, size), fmt::format("{{{}}}", elements));
  }
};

constexpr size_t kAddressBytes = 16;  // of IPv6

// An argument that points at something, which is not null. Returns how the call names it.
std::string pointed_at(const Export &target, const uint64_t *words, size_t at, CText &text) {
  const Parameter &parameter = target.parameters[at];
  const std::string_view full = parameter.type;
  const std::string_view type = bare_type(full);
  const std::string_view name = parameter.name;
  const bool given = full.starts_with("const ");
  const auto *bytes = reinterpret_cast<const uint8_t *>(static_cast<uintptr_t>(words[at]));
  if (type == "void" && name == "action_spec") {
    return "&" + text.declare(function_prefix() + "action_specs_t", name, "{0}") + ".spec";
  }
  if (type == "pipe_mgr_placement_t" || type == "pipe_mgr_digest_message_t") {
    return std::string(name);
  }
  if (given && name == "entry") return "message->entries";
  if (type == "void") {
    const size_t size = program().snapshot_bytes;
    size_t used = size;
    while (used > 1 && bytes[used - 1] == 0) --used;
    return text.declare_array("uint8_t", name, size, byte_list(bytes, used));
  }
  if (type == "char" && given) return string_literal(reinterpret_cast<const char *>(bytes));
  if (type == "char") return text.declare_array(type, name, text_size(target, name), "0");
  if (type == "uint8_t" && (name == "address" || name == "mask")) {
    return text.declare_array(type, name, kAddressBytes, byte_list(bytes, kAddressBytes));
  }
  if (type == "pipe_stful_query_t") {
    const std::string cells = text.declare_array("pipe_stful_cell_t", "cells", 8, "0");
    return "&" + text.declare(type, name, fmt::format("{{8, {}}}", cells));
  }
  const bool is_one =
      name == "action_specs" || name == "params" || name == "captures" || type == kCounterValues;
  if (is_one || (!name.ends_with('s') && name != "hash" && name != "control")) {
    return "&" + text.declare(type, name,
                              fmt::format("{{{}}}", given ? initializer(parameter, bytes) : "0"));
  }
  const bool of_capture = name == "records" || name == "control";
  const size_t count =
      of_capture ? binding().capture_limit : count_of(target, words, name).value_or(4096);
  if (count == 0) return "NULL";
  return text.declare_array(type, name, count, given ? elements(type, bytes, count) : "0");
}

// Of the device's choice.
bool is_handle(const Parameter &parameter) {
  const std::string_view type = parameter.type;
  return type == "p4_pd_entry_handle_t" || type == "p4_pd_member_handle_t" ||
         type == "p4_pd_group_handle_t" || std::string_view(parameter.name) == "snapshot";
}

std::string argument(const Export &target, const uint64_t *words, size_t at, Handles handles,
                     CText &text) {
  const Parameter &parameter = target.parameters[at];
  const std::string_view type = parameter.type;
  const std::string name = parameter.name;
  const bool is_parser = type == "p4_pd_parser_target_t";
  if (name == "session" || name == "device" || (name == "target" && !is_parser)) return name;
  if (name == "cookie" || name == "client_data") return fmt::format("NULL /* {} */", name);
  for (const Callback &callback : kCallbacks) {
    if (type != callback.type || words[at] == 0) continue;
    std::string_view declared = callback.declaration;
    text.declarations += fmt::format("  {};\n", declared);
    declared = declared.substr(0, declared.find('('));
    return std::string(declared.substr(declared.find(' ') + 1));
  }
  const bool is_pointer = type.find('*') != std::string_view::npos || type.ends_with("_cb_t");
  if (is_pointer) return words[at] == 0 ? "NULL" : pointed_at(target, words, at, text);
  if (is_record_by_value(type)) {
    const auto *bytes = reinterpret_cast<const uint8_t *>(static_cast<uintptr_t>(words[at]));
    const std::string variable = is_parser ? "parser" : name;
    return text.declare(type, variable, fmt::format("{{{}}}", initializer(parameter, bytes)));
  }
  if (type == "bool") return lettered(words[at] != 0);
  const std::string number = number_of(name, words[at], target.family);
  const bool is_declared = handles == Handles::variables && is_handle(parameter);
  return is_declared ? text.declare(type, name, number) : number;
}

// Where the last comma within the columns ends, else where "=" or a parenthesis does; 0 without
// any.
size_t break_in(std::string_view line, size_t columns) {
  for (const std::string_view mark : {", ", "= ", "("}) {
    const size_t at = line.rfind(mark, columns - 1);
    if (at != std::string_view::npos) return at + 1;
  }
  return 0;
}

}  // namespace

const Record *record_of_type(std::string_view type) {
  type = bare_type(type);
  const bool match = type.ends_with(kMatchSpec);
  if (!match && !type.ends_with(kActionSpec)) return nullptr;
  type.remove_suffix((match ? kMatchSpec : kActionSpec).size());
  type.remove_prefix(std::min(function_prefix().size(), type.size()));
  return find_record(match ? tables() : actions(), type);
}

bool is_record_by_value(std::string_view type) {
  return type == "p4_pd_parser_target_t" || type == kCounterValues ||
         type == "p4_pd_idle_time_params_t";
}

std::string prototype(const Export &target) {
  std::string parameters;
  for (const Parameter &parameter : target.parameter_list()) {
    parameters += (parameters.empty() ? "" : ", ") + typed(parameter.type, parameter.name);
  }
  return fmt::format("{}({})", typed(target.result, target.name),
                     parameters.empty() ? "void" : parameters);
}

std::string c_call(const Export &target, const uint64_t *words, const std::string &remark,
                   Handles handles) {
  CText text;
  for (size_t i = 0; i < target.parameter_count; ++i) {
    const std::string word = argument(target, words, i, handles, text);
    text.arguments += (i == 0 ? "" : ", ") + word;
  }
  const std::string_view result = target.result;
  std::string assigned;
  if (result == kStatusType) {
    assigned = "status = ";
  } else if (result != "void") {
    assigned = typed(result, "result = ");
  }
  const std::string comment = remark.empty() ? "" : fmt::format("  /* {} */", remark);
  return fmt::format("{{\n{}  {}{}({});{}\n}}\n", text.declarations, assigned, target.name,
                     text.arguments, comment);
}

std::string wrapped_text(std::string_view text, size_t width) {
  std::string lines;
  size_t column = 0;
  while (!text.empty()) {
    const std::string_view word = take_until(text, ' ');
    const bool fits = column + 1 + word.size() <= width;
    if (column != 0) lines += fits ? " " : "\n";
    column = (fits && column != 0 ? column + 1 : 0) + word.size();
    lines += word;
  }
  return lines;
}

std::string wrapped_code(std::string_view code, size_t width) {
  std::string text;
  while (!code.empty()) {
    std::string_view line = take_until(code, '\n');
    const std::string indent(line.find_first_not_of(' ') + 4, ' ');
    size_t column = 0;
    while (column + line.size() > width) {
      const size_t end = break_in(line, width - column);
      if (end == 0) break;
      text += fmt::format("{}\n{}", line.substr(0, end), indent);
      line.remove_prefix(std::min(line.find_first_not_of(' ', end), line.size()));
      column = indent.size();
    }
    text += fmt::format("{}\n", line);
  }
  return text;
}

}  // namespace tesselctl
