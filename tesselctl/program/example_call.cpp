
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>
#include <optional>
#include <tuple>
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

// ---- Objects of functions that take one by its handle ----

bool starts_with(std::string_view text, std::string_view what) { return text.starts_with(what); }

template <class Row>
const Row *first_where(const auto &holds) {
  for (const Row &row : program_rows<Row>()) {
    if (holds(row)) return &row;
  }
  return nullptr;
}

template <class Row>
uint64_t handle_of(const Row *row) {
  return row == nullptr ? 0 : row->handle;
}

// One whose entries functions add by action: labels are of those with a counter.
const soft_table_t *example_table(const Export &target) {
  const bool counts = std::string_view(target.name).find("counter") != std::string_view::npos;
  return first_where<soft_table_t>([&](const soft_table_t &table) {
    return table.key_bytes != 0 && table.action_data_table == 0 &&
           (!counts || find_export("stringify_counter_match_spec", table.name) != nullptr);
  });
}

uint64_t example_meter(const Export &target) {
  const bool of_packets = starts_with(target.family, "packets");
  const soft_meter_t *meter = first_where<soft_meter_t>([&](const soft_meter_t &row) {
    return row.table == 0 && (row.unit == PIPE_RATE_PACKETS) == of_packets;
  });
  // The unit is the function's where the program has none of it.
  return handle_of(meter != nullptr ? meter
                                    : first_where<soft_meter_t>(
                                          [](const soft_meter_t &row) { return row.table == 0; }));
}

// Handle of the object that a parameter of this name names, if it does.
std::optional<uint64_t> example_handle(const Export &target, std::string_view name) {
  const auto any = [](const auto & /*row*/) { return true; };
  if (name == "table" || name == "table_handle" || name == "handle") {
    return handle_of(example_table(target));
  }
  if (name == "profile_handle") {
    const soft_profile_t *profile = first_where<soft_profile_t>(any);
    return profile == nullptr ? 0 : profile->action_data_table;
  }
  if (name == "reg") return handle_of(first_where<soft_register_t>(any));
  if (name == "meter") return example_meter(target);
  return {};
}

uint64_t example_number(const Export &target, std::string_view name) {
  // Those that are not 1, of families that contain the second word.
  static constexpr std::tuple<std::string_view, std::string_view, uint64_t> kNumbers[] = {
      {"wred", "", 0x07000001},
      {"ttl", "", 60'000},
      {"address", "", 0xc0000201},
      {"mask", "", 0xffffffff},
      {"prefix_length", "", 24},
      {"oui", "", 0x020000},
      {"oui_mask", "", 0xffffff},
      {"station_mask", "", 0xffffff},
      {"hash_length", "", 8},
      {"property", "pvs_", PIPE_PVS_CAPACITY},
      {"property", "", PIPE_TABLE_CAPACITY},
      {"value", "set_property", 1000},
      {"argument", "", 0},
      {"pipe", "", BF_ALL_PIPES},
      {"flags", "restore", 0},
      {"flags", "", P4_PD_READ_FROM_HARDWARE},
      {"last_stage", "", 2},
      {"direction", "", 0},
      {"indent", "", 0},
      {"input", "", 0},
      {"algorithm", "", 0},
      {"has_pre_color", "", 0},
      {"word", "", 0},
  };
  if (const std::optional<uint64_t> handle = example_handle(target, name)) return *handle;
  for (const auto &[parameter, family, value] : kNumbers) {
    if (name == parameter &&
        std::string_view(target.family).find(family) != std::string_view::npos) {
      return value;
    }
  }
  return 1;
}

const char *example_name(const Export &target, std::string_view name) {
  const auto digests = binding().digests.list();
  if (name == "digest_name") return digests.empty() ? "" : digests.front().name;
  if (name == "field_name") return digests.empty() ? "" : digests.front().members->name;
  const auto hashes = program_rows<soft_hash_t>();
  const bool of_hash = starts_with(target.family, "hash");
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
  fill("const p4_pd_wred_params_t *", p4_pd_wred_params_t{1000, 100, 1000, 0.5F});
  fill("attribute_sizes", uint32_t{32});
  fill("mask", std::to_array<uint8_t>({0xff, 0xff, 0xff, 0xff}));
  fill("address", std::to_array<uint8_t>({0x20, 0x01, 0x0d, 0xb8}));
  return bytes;
}

// ---- What must be there ----

// The function of an object that makes one of these: with the same action, else with any.
const Export *maker(std::string_view family, std::string_view object, std::string_view action) {
  if (const Export *same = find_export(family, object, action)) return same;
  const Export *first = nullptr;
  for_each_export(family, [&](const Export &function) {
    if (first == nullptr && object == function.object) first = &function;
  });
  return first;
}

// The table of a function, or of the counter or meter that it is about.
std::string_view table_of(const Export &target) {
  uint32_t handle = 0;
  if (const auto *counter = find_object<soft_counter_t>(target.object)) handle = counter->table;
  if (const auto *meter = find_object<soft_meter_t>(target.object)) handle = meter->table;
  const soft_table_t *table = first_where<soft_table_t>(
      [&](const soft_table_t &row) { return handle != 0 && row.handle == handle; });
  const bool of_profile = std::string_view(target.family).find("adt_") != std::string_view::npos;
  if (*target.object == '\0' && !of_profile) table = example_table(target);
  return table == nullptr ? target.object : table->name;
}

// The profile of a function, or of the table that it is about.
std::string_view profile_of(const Export &target) {
  const auto *table = find_object<soft_table_t>(target.object);
  const soft_profile_t *profile = first_where<soft_profile_t>([&](const soft_profile_t &row) {
    return table == nullptr || row.action_data_table == table->action_data_table;
  });
  const bool is_own = profile == nullptr || find_object<soft_profile_t>(target.object) != nullptr;
  return is_own ? target.object : profile->name;
}

std::string_view digest_of(const Export &target) {
  const auto digests = binding().digests.list();
  return *target.object != '\0' || digests.empty() ? target.object : digests.front().name;
}

enum class Thing {
  entry,
  keyed_entry,
  default_entry,
  value,
  member,
  group,
  membership,
  ageing,
  listener,
  snapshot,
  trigger
};

const Export *maker(const Export &target, Thing thing) {
  const auto first_of = [&](const auto &...families) {
    const Export *made = nullptr;
    ((made = made ? made : maker(families, table_of(target), target.action)), ...);
    return made;
  };
  switch (thing) {
    case Thing::entry:
      return first_of("table_add", "add_entry", "set_default_action", "set_default_entry");
    case Thing::keyed_entry:
      return first_of("table_add", "add_entry");
    case Thing::default_entry:
      return first_of("set_default_action", "set_default_entry");
    case Thing::value:
      return maker("pvs_entry_add", target.object, "");
    case Thing::member:
      return maker("add_member", profile_of(target), target.action);
    case Thing::group:
      return maker("create_group", profile_of(target), "");
    case Thing::membership:
      return maker("add_member_to_group", profile_of(target), "");
    case Thing::ageing:
      return maker("idle_tmo_enable", target.object, "");
    case Thing::listener:
      return maker("digest_register", digest_of(target), "");
    case Thing::snapshot:
      return find_export("snapshot_create", "");
    case Thing::trigger:
      return find_export("snapshot_capture_trigger_set", "");
  }
  return nullptr;
}

// Which functions need a thing: what their family contains, and the type of a parameter. One that
// the function's object does not have is none.
struct Need {
  Thing thing;
  std::string_view family;
  std::string_view type;
};
constexpr Need kNeeds[] = {
    {Thing::value, "pvs_entry", "p4_pd_entry_handle_t"},
    {Thing::value, "pvs_entry_handle_get", ""},
    {Thing::value, "pvs_entry_get_first", ""},
    {Thing::keyed_entry, "_by_match_spec", ""},
    {Thing::keyed_entry, "match_spec_to_entry_hdl", ""},
    {Thing::keyed_entry, "get_first_entry_handle", ""},
    {Thing::keyed_entry, "entry_hdl_first", ""},
    {Thing::entry, "", "p4_pd_entry_handle_t"},
    {Thing::entry, "entry_from_plcmt_data", ""},
    {Thing::entry, "plcmt_data_print", ""},
    {Thing::entry, "plcmt_data_value", ""},
    {Thing::default_entry, "get_default_entry", ""},
    {Thing::default_entry, "entry_hdl_default", ""},
    {Thing::group, "", "p4_pd_group_handle_t"},
    {Thing::group, "get_first_group", "p4_pd_group_handle_t *"},
    {Thing::member, "", "p4_pd_member_handle_t"},
    {Thing::member, "get_first_member", ""},
    {Thing::member, "get_member_from_plcmt_data", ""},
    {Thing::member, "adt_plcmt_data", ""},
    {Thing::membership, "_with_selector", ""},
    {Thing::membership, "del_member_from_group", ""},
    {Thing::membership, "group_member_", ""},
    {Thing::membership, "first_group_member", ""},
    {Thing::membership, "next_group_members", ""},
    {Thing::ageing, "", "p4_pd_idle_time_params_t *"},
    {Thing::ageing, "_ttl", ""},
    {Thing::ageing, "hit_state", ""},
    {Thing::listener, "digest_deregister", ""},
    {Thing::listener, "digest_notify_ack", ""},
    {Thing::listener, "get_digest_entry_field", ""},
    {Thing::snapshot, "snapshot_capture", ""},
    {Thing::snapshot, "snapshot_delete", ""},
    {Thing::trigger, "snapshot_capture_data_get", ""},
};

bool needs(const Export &target, const Need &need) {
  const bool has_type = std::ranges::any_of(target.parameter_list(), [&](const Parameter &row) {
    return need.type.empty() || need.type == row.type;
  });
  return has_type && std::string_view(target.family).find(need.family) != std::string_view::npos;
}

// A comment with the calls that come first.
std::string preceding_calls(const Export &target) {
  std::string lines;
  for (const Need &need : kNeeds) {
    const Export *first = needs(target, need) ? maker(target, need.thing) : nullptr;
    if (first != nullptr) lines += fmt::format("  /* after {} */\n", first->name);
  }
  return lines;
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
      words.push_back(example_number(target, parameter.name));
    }
  }
  std::string call = c_call(target, words.data(), "", Handles::variables);
  return call.insert(call.find('\n') + 1, preceding_calls(target));
}

}  // namespace tesselctl
