#include "tesselctl/program/trace.hpp"

#include <fmt/format.h>

#include <cstring>
#include <optional>

#include "p4_pd_types.h"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/status.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

thread_local Results *listener = nullptr;

using bindings::Export;
using bindings::Member;
using bindings::Parameter;
using bindings::Record;

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

std::string_view bare_type(std::string_view type) {
  if (type.starts_with("const ")) type.remove_prefix(6);
  return type.substr(0, type.find_first_of(" *"));
}

// What the caller put into a record, as far as the type is one of those that callers fill.
std::string initializer(const Export &target, const Parameter &parameter, const uint8_t *bytes) {
  const std::string_view name = parameter.name;
  const std::string_view type = bare_type(parameter.type);
  if (name == "match_spec" || name == "action_spec") {
    const bool match = name == "match_spec";
    const Record *record =
        match ? find_record(tables(), target.object) : find_record(actions(), target.action);
    return record == nullptr ? "0" : record_initializer(*record, match ? "" : "action_", bytes);
  }
  if (name == "meter_spec") {
    const auto meter = value_at<p4_pd_bytes_meter_spec_t>(bytes);
    return fmt::format("{}, {}, {}, {}, {}", meter.committed_rate, meter.committed_burst,
                       meter.peak_rate, meter.peak_burst, meter.meter_type);
  }
  if (type == "p4_pd_counter_values_t") {
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
        params.mode, params.sweep_interval_ms, params.max_ttl_ms, params.min_ttl_ms,
        params.default_ttl_ms);
  }
  if (type == "uint32_t") return hexadecimal(value_at<uint32_t>(bytes));
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

struct CText {
  std::string declarations;
  std::string arguments;

  void declare(std::string_view type, std::string_view name, std::string_view value) {
    declarations += fmt::format("  {} {} = {};\n", type, name, value);
  }
};

// An argument that points at something, which is not null. Returns how the call names it.
std::string pointed_at(const Export &target, const uint64_t *words, size_t at, CText &text) {
  const Parameter &parameter = target.parameters[at];
  const std::string_view full = parameter.type;
  const std::string_view type = bare_type(full);
  const std::string name = parameter.name;
  const bool given = full.starts_with("const ");
  const auto *bytes = reinterpret_cast<const uint8_t *>(static_cast<uintptr_t>(words[at]));
  if (type == "void" && name == "action_spec") {
    text.declare(fmt::format("p4_pd_{}_action_specs_t", program().name), name, "{0}");
    return "&action_spec.spec";
  }
  if (type == "void") {
    const size_t size = program().snapshot_bytes;
    size_t used = size;
    while (used > 1 && bytes[used - 1] == 0) --used;
    text.declare("uint8_t", fmt::format("{}[{}]", name, size),
                 fmt::format("{{{}}}", byte_list(bytes, used)));
    return name;
  }
  // Placement data are the device's own, which hands them to its clients.
  if (type == "pipe_mgr_placement_t") {
    text.declare("const pipe_mgr_placement_t *", name, "NULL");
    return name;
  }
  if (type == "char" && given) return string_literal(reinterpret_cast<const char *>(bytes));
  const bool is_record = name == "action_specs" || type == "p4_pd_counter_values_t";
  const bool is_many = !is_record && (name.ends_with('s') || name == "hash" || type == "char");
  if (!is_many || name == "params") {
    text.declare(type, name,
                 fmt::format("{{{}}}", given ? initializer(target, parameter, bytes) : "0"));
    return "&" + name;
  }
  const size_t count = count_of(target, words, name).value_or(4096);
  if (count == 0) return "NULL";
  text.declare(type, fmt::format("{}[{}]", name, count),
               fmt::format("{{{}}}", given ? elements(type, bytes, count) : "0"));
  return name;
}

std::string argument(const Export &target, const uint64_t *words, size_t at, CText &text) {
  const Parameter &parameter = target.parameters[at];
  const std::string_view type = parameter.type;
  const std::string name = parameter.name;
  const bool is_parser = type == "p4_pd_parser_target_t";
  if (name == "session" || name == "device" || (name == "target" && !is_parser)) return name;
  if (type.ends_with("_cb_t") || name == "cookie" || name == "client_data") {
    return fmt::format("NULL /* {} */", name);
  }
  const bool is_pointer = type.find('*') != std::string_view::npos;
  if (is_pointer) return words[at] == 0 ? "NULL" : pointed_at(target, words, at, text);
  if (is_parser || type == "p4_pd_counter_values_t" || type == "p4_pd_idle_time_params_t") {
    const auto *bytes = reinterpret_cast<const uint8_t *>(static_cast<uintptr_t>(words[at]));
    const std::string variable = is_parser ? "parser" : name;
    text.declare(type, variable, fmt::format("{{{}}}", initializer(target, parameter, bytes)));
    return variable;
  }
  return words[at] > 0xffff ? fmt::format("{:#x}", words[at]) : decimal(words[at]);
}

}  // namespace

TraceScope::TraceScope(Results *results) : before_(listener) { listener = results; }
TraceScope::~TraceScope() { listener = before_; }

void trace_call(const Export &target, const uint64_t *words, uint64_t result) {
  if (listener == nullptr) return;
  CText text;
  for (size_t i = 0; i < target.parameter_count; ++i) {
    const std::string word = argument(target, words, i, text);
    text.arguments += (i == 0 ? "" : ", ") + word;
  }
  const bool has_status = std::string_view(target.result) == "p4_pd_status_t";
  const std::string comment =
      has_status ? fmt::format("  /* {} */", status_name(static_cast<uint32_t>(result))) : "";
  const std::string call = fmt::format("  {}{}({});{}\n", has_status ? "status = " : "",
                                       target.name, text.arguments, comment);
  listener->text("{\n" + text.declarations + call + "}\n");
}

}  // namespace tesselctl
