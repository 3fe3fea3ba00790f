#include "tesselctl/trace.hpp"

#include <fmt/format.h>

#include <cstring>

#include "p4_pd_types.h"
#include "tesselctl/library.hpp"
#include "tesselctl/number.hpp"
#include "tesselctl/status.hpp"

namespace tesselctl {

namespace {

thread_local Results *listener = nullptr;

using bindings::Export;
using bindings::Member;
using bindings::Parameter;
using bindings::Record;

// ".vrfId = 0x1, .ingIpv4_dip = 0xa000000"
std::string record_initializer(const Record &record, const uint8_t *bytes) {
  std::string text;
  for (const Member &member : record.member_list()) {
    text += fmt::format("{}.{} = ", text.empty() ? "" : ", ", member.name);
    const uint8_t *at = bytes + member.offset;
    if (member.storage == 16) {
      std::string list;
      for (size_t i = 0; i < 16; ++i) list += fmt::format("{}{:#x}", i == 0 ? "" : ", ", at[i]);
      text += "{" + list + "}";
      continue;
    }
    uint32_t value = 0;
    memcpy(&value, at, member.storage);
    text += member.role == bindings::Role::prefix_length ? decimal(value) : hexadecimal(value);
  }
  return text;
}

const Record *record_named(std::span<const Record> records, std::string_view name) {
  for (const Record &record : records) {
    if (name == record.name) return &record;
  }
  return nullptr;
}

// What the caller put into a record, as far as the type is one of those that callers fill.
std::string initializer(const Export &target, const Parameter &parameter, const uint8_t *bytes) {
  const std::string_view name = parameter.name;
  const std::string_view type = parameter.type;
  const Record *record = name == "match_spec"    ? record_named(tables(), target.object)
                         : name == "action_spec" ? record_named(actions(), target.action)
                                                 : nullptr;
  if (record != nullptr) return record_initializer(*record, bytes);
  if (name == "meter_spec") {
    p4_pd_bytes_meter_spec_t meter;
    memcpy(&meter, bytes, sizeof meter);
    return fmt::format("{}, {}, {}, {}, {}", meter.committed_rate, meter.committed_burst,
                       meter.peak_rate, meter.peak_burst, meter.meter_type);
  }
  if (type.find("counter_values") != std::string_view::npos) {
    p4_pd_counter_values_t values;
    memcpy(&values, bytes, sizeof values);
    return fmt::format("{}, {}", values.packets, values.bytes);
  }
  if (type.find("parser_target") != std::string_view::npos) {
    p4_pd_parser_target_t parser;
    memcpy(&parser, bytes, sizeof parser);
    return fmt::format("{}, {}, {:#x}, {:#x}", parser.device_id, parser.direction, parser.pipe_id,
                       parser.parser_id);
  }
  if (type.find("uint32_t") != std::string_view::npos) {
    uint32_t value = 0;
    memcpy(&value, bytes, sizeof value);
    return hexadecimal(value);
  }
  return "0";
}

std::string_view bare_type(std::string_view type) {
  if (type.starts_with("const ")) type.remove_prefix(6);
  return type.substr(0, type.find_first_of(" *"));
}

struct CText {
  std::string declarations;
  std::string arguments;
};

void add_argument(const Export &target, const uint64_t *words, size_t at, CText &text) {
  const Parameter &parameter = target.parameters[at];
  const std::string_view type = parameter.type;
  const std::string name = parameter.name;
  if (!text.arguments.empty()) text.arguments += ", ";
  const bool is_pointer = type.find('*') != std::string_view::npos;
  const bool is_function = type.find("_cb_t") != std::string_view::npos;
  if (name == "session" || name == "device" || name == "target" || is_function) {
    text.arguments += name;
    return;
  }
  const auto *bytes = reinterpret_cast<const uint8_t *>(static_cast<uintptr_t>(words[at]));
  if (is_pointer && (bytes == nullptr || bare_type(type) == "void")) {
    text.arguments += bytes == nullptr ? "NULL" : name;
    return;
  }
  if (!is_pointer && type.find("parser_target") == std::string_view::npos) {
    text.arguments += words[at] > 0xffff ? fmt::format("{:#x}", words[at]) : decimal(words[at]);
    return;
  }
  const bool given = type.starts_with("const ") || !is_pointer;
  // A plural takes as many values as the parameter that counts them says; texts take a buffer.
  const bool is_text = bare_type(type) == "char";
  const bool is_many = is_text || name.ends_with('s') || name == "hash";
  if (given && !is_many) {
    text.declarations += fmt::format("  {} {} = {{{}}};\n", bare_type(type), name,
                                     initializer(target, parameter, bytes));
  } else {
    size_t count = is_text ? 4096 : 256;
    for (size_t i = 0; i < target.parameter_count && !is_text; ++i) {
      const std::string_view other = target.parameters[i].name;
      if (other.ends_with("count") || other.ends_with("length")) {
        count = static_cast<size_t>(words[i]);
      }
    }
    const bool is_record = name == "action_specs" || name == "values";
    const bool is_array = is_many && !is_record && count <= 4096;
    text.declarations += is_array
                             ? fmt::format("  {} {}[{}] = {{0}};\n", bare_type(type), name, count)
                             : fmt::format("  {} {} = {{0}};\n", bare_type(type), name);
    if (is_array) {
      text.arguments += name;
      return;
    }
  }
  text.arguments += is_pointer ? "&" + name : name;
}

}  // namespace

TraceScope::TraceScope(Results *results) : before_(listener) { listener = results; }
TraceScope::~TraceScope() { listener = before_; }

void trace_call(const Export &target, const uint64_t *words, uint64_t result) {
  if (listener == nullptr) return;
  CText text;
  for (size_t i = 0; i < target.parameter_count; ++i) add_argument(target, words, i, text);
  const bool has_status = std::string_view(target.result) == "p4_pd_status_t";
  const std::string comment =
      has_status ? fmt::format("  /* {} */", status_name(static_cast<uint32_t>(result))) : "";
  const std::string call = fmt::format("  {}{}({});{}\n", has_status ? "status = " : "",
                                       target.name, text.arguments, comment);
  listener->text("{\n" + text.declarations + call + "}\n");
}

}  // namespace tesselctl
