
#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <vector>

#include "p4_pd_types.h"
#include "tesselctl/program/c_call.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/value.hpp"

namespace tesselctl {

namespace {

using bindings::Export;
using bindings::Parameter;

const char *example_text(const Field &field) {
  const bool prefix = field.match == Match::lpm;
  switch (field.notation) {
    case Notation::ipv4:
      return prefix ? "192.0.2.0/24" : "192.0.2.1";
    case Notation::ipv6:
      return prefix ? "2001:db8::/32" : "2001:db8::1";
    case Notation::mac:
      return "02:00:00:00:00:01";
    case Notation::protocol:
      return "6";
    case Notation::service:
      return "443";
    default:
      return "1";
  }
}

template <class Object>
uint64_t first_handle() {
  const auto objects = program_rows<Object>();
  return objects.empty() ? 0 : objects.front().handle;
}

uint64_t first_profile() {
  const auto profiles = program_rows<soft_profile_t>();
  return profiles.empty() ? 0 : profiles.front().action_data_table;
}

// Those that are not 1. A function of all objects of a kind takes the handle of one.
uint64_t example_number(std::string_view name) {
  if (name == "table" || name == "table_handle" || name == "handle") {
    return first_handle<soft_table_t>();
  }
  if (name == "profile_handle") return first_profile();
  if (name == "reg") return first_handle<soft_register_t>();
  if (name == "meter") return first_handle<soft_meter_t>();
  if (name == "wred") return 0x07000001;
  if (name == "ttl") return 60'000;
  if (name == "address") return 0xc0000201;
  if (name == "prefix_length") return 24;
  if (name == "hash_length") return 8;
  return name == "indent" ? 0 : 1;
}

const char *example_name(const Export &target, std::string_view name) {
  const auto digests = binding().digests.list();
  if (name == "digest_name") return digests.empty() ? "" : digests.front().name;
  if (name == "field_name") return digests.empty() ? "" : digests.front().members->name;
  const auto hashes = program_rows<soft_hash_t>();
  const bool of_hash = std::string_view(target.family).starts_with("hash");
  if (name == "name" && of_hash) return hashes.empty() ? "" : hashes.front().name;
  return name == "name" ? binding().action_names[0] : "label";
}

// Room for what any argument points at, zeroes but where the reader is to see a value.
std::vector<uint8_t> example_object(const Parameter &parameter) {
  std::vector<uint8_t> bytes(std::max<size_t>(4096, program().snapshot_bytes));
  if (const bindings::Record *record = record_of_type(parameter.type)) {
    bytes.resize(std::max(bytes.size(), record->size));
    for (const Field &field : record->shown()) {
      store_value(field, parse_value(field, {example_text(field)}), bytes.data());
    }
  }
  const auto fill = [&](std::string_view name_or_type, const auto &value) {
    if (name_or_type != parameter.name && name_or_type != parameter.type) return;
    memcpy(bytes.data(), &value, sizeof value);
  };
  fill("meter_spec", p4_pd_bytes_meter_spec_t{1000, 1600, 2000, 3200, PD_METER_TYPE_COLOR_UNAWARE});
  fill("p4_pd_idle_time_params_t",
       p4_pd_idle_time_params_t{PIPE_IDLE_NOTIFY, 1000, 3'600'000, 1000, 60'000, 0});
  fill("attribute_sizes", uint32_t{32});
  fill("address", std::to_array<uint8_t>({0x20, 0x01, 0x0d, 0xb8}));
  return bytes;
}

}  // namespace

std::string example_call(const Export &target) {
  std::deque<std::vector<uint8_t>> objects;
  std::vector<uint64_t> words;
  const auto address = [](const void *object) { return reinterpret_cast<uintptr_t>(object); };
  for (const Parameter &parameter : target.parameter_list()) {
    const std::string_view type = parameter.type;
    if (type == "const char *") {
      words.push_back(address(example_name(target, parameter.name)));
    } else if (type.find('*') != std::string_view::npos || is_record_by_value(type)) {
      words.push_back(address(objects.emplace_back(example_object(parameter)).data()));
    } else {
      words.push_back(example_number(parameter.name));
    }
  }
  return c_call(target, words.data(), "");
}

}  // namespace tesselctl
