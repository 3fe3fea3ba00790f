// What the call of a scene is given.
#include <algorithm>
#include <iterator>

#include "scene.hpp"
#include "scene_values.hpp"

namespace pd_test {

namespace {

const p4_pd_wred_params_t kWred = {12.5f, 100, 900, 0.25f};
const uint8_t kHash[] = {0x12, 0x34, 0x56, 0x78};
// Room for any record, zeroed: an input of a type that is not known here.
const uint64_t kAnyInput[512] = {};

void any_callback() {}
void any_sync_callback(bf_device_id_t, void *) {}

// Types that are passed by value and fit into no word.
bool is_record(std::string_view type) {
  constexpr std::string_view kNumbers[] = {"bool", "int", "size_t"};
  const bool number = type.starts_with("uint") || type.starts_with("int") ||
                      type.ends_with("_handle_t") ||
                      std::ranges::find(kNumbers, type) != std::end(kNumbers);
  return !number && !type.ends_with("*") && !type.ends_with("_cb_t");
}

// For a parameter that wants a name.
const char *name_for(std::string_view parameter) {
  if (parameter == "digest_name") return program().digests.front().name.c_str();
  if (parameter == "field_name") return program().digests.front().fields.front().name.c_str();
  return program().hashes.empty() ? "" : program().hashes.front().name.c_str();
}

// How much a call may write behind a pointer.
size_t output_size(const bindings::Parameter &parameter, const pdgen::Table *table) {
  const std::string_view type = parameter.type;
  const std::string_view name = parameter.name;
  constexpr std::string_view kLists[] = {"entries", "members", "groups"};
  if (type.ends_with("_match_spec_t *")) return record_of(*table).size;
  if (type.ends_with("_action_specs_t *")) return binding().sizes.action_specs;
  if (type.ends_with("_meter_spec_t *")) return sizeof(p4_pd_bytes_meter_spec_t);
  if (type == "p4_pd_idle_time_params_t *") return sizeof(p4_pd_idle_time_params_t);
  if (type == "char *" && name == "action_name") return binding().sizes.action_name;
  if (type == "void *" && name == "action_spec") {
    return binding().sizes.action_specs - binding().sizes.action_spec;
  }
  if (std::ranges::find(kLists, name) != std::end(kLists)) return 2 * sizeof(uint32_t);
  if (name == "values" && type.starts_with("uint")) return 2 * kPipes * sizeof(uint32_t);
  if (name == "hash") return 4;
  if (type == "bool *" || type == "uint8_t *") return 1;
  if (type == "uint64_t *") return sizeof(uint64_t);
  if (type == "uint32_t *" || type.ends_with("_handle_t *")) return sizeof(uint32_t);
  if (type.ends_with("_snapshot_capture_t *")) {
    return std::min<size_t>(binding().capture_limit, 32) * program().snapshots->record_bytes;
  }
  return std::max<size_t>(1 << 16, binding().sizes.value);
}

}  // namespace

// ---- Arguments ----

void Scene::fill_arguments() {
  const Given numbers = values();
  for (const bindings::Parameter &parameter : exported_.parameter_list()) {
    const std::string_view name = parameter.name;
    if (name == "session" || name == "device" || fill_input(parameter)) continue;
    if (is_pointer(parameter)) {
      fill_output(parameter);
    } else {
      const auto known = std::ranges::find(numbers, name, &Given::value_type::first);
      arguments_.set(name, known == numbers.end() ? 1 : known->second);
    }
  }
}

bool Scene::fill_input(const bindings::Parameter &parameter) {
  const std::string_view type = parameter.type;
  const std::string_view name = parameter.name;
  const auto give = [&](const void *object) {
    arguments_.set(name, object);
    return true;
  };
  if (type == "pipe_mgr_sync_cb_t") return give(reinterpret_cast<const void *>(&any_sync_callback));
  if (type.ends_with("_cb_t")) return give(reinterpret_cast<const void *>(&any_callback));
  if (name == "cookie" || name == "client_data") return give(kAnyInput);
  if (type == "p4_pd_device_target_t") return give(&kTarget);
  if (type == "p4_pd_parser_target_t") return give(&kSceneParser);
  if (type == "p4_pd_idle_time_params_t") return give(&kSceneAgeing);
  if (is_record(type)) return give(kAnyInput);
  if (type == "const char *") return give(name_for(name));
  if (type == "pipe_stful_query_t *") return give(&query_);
  if (type == "pipe_mgr_digest_message_t *") return give(message_);
  if (!is_pointer(parameter) || !is_input(parameter)) return false;
  if (name == "match_spec") return give(match_spec_.data());
  if (name == "action_spec") return give(action_spec_.data());
  if (name == "meter_spec") return give(&meter_spec_);
  if (name == "hash") return give(kHash);
  if (name == "placement") return give(placement_);
  if (type == "const p4_pd_wred_params_t *") return give(&kWred);
  return give(kAnyInput);
}

// Numbers; any other is 1.
Given Scene::values() const {
  const std::string_view family = exported_.family;
  const uint32_t table = table_ == nullptr ? 0 : table_->handle;
  const uint32_t property =
      family.starts_with("pvs") ? uint32_t{PIPE_PVS_CAPACITY} : uint32_t{PIPE_TABLE_CAPACITY};
  return with("value", 21, "argument", 0, "count", 2, "max_size", 8, "state",
              P4_PD_GRP_MBR_STATE_INACTIVE, "hash_length", 4, "word", 0, "ttl", 60000, "hit_state",
              PIPE_ENTRY_ACTIVE, "index", 3, "wred", 0x07000001, "adjustment", 24, "has_pre_color",
              0, "input", 0, "algorithm", 0, "max_count", 2, "reg", subject_.handle, "first", 4,
              "index_count", 2, "mask", 23, "last_stage", 2, "direction",
              program().snapshots ? snapshot_direction() : 0, "virtual_device", kSceneVirtualDevice,
              "pipe", BF_ALL_PIPES, "priority", priority_, "entry", entry_, "member", member_,
              "group", group_, "table", table, "table_handle", table, "profile_handle",
              profile_ == nullptr ? 0 : profile_->action_data_handle, "snapshot", snapshot_,
              "meter", subject_.handle, "property", property, "descriptor",
              ~uint64_t{0});  // no file: what is printed goes nowhere
}

void Scene::fill_output(const bindings::Parameter &parameter) {
  Bytes &bytes = outputs_[parameter.name];
  bytes.assign(output_size(parameter, table_), kUntouched);
  arguments_.set(parameter.name, bytes.data());
}

const Bytes &Scene::output(std::string_view name) const {
  const auto found = outputs_.find(name);
  if (found == outputs_.end()) throw std::out_of_range(std::string(name));
  return found->second;
}

std::string Scene::written_outputs() const {
  std::string names;
  for (const auto &[name, bytes] : outputs_) {
    const bool untouched = std::ranges::all_of(bytes, [](uint8_t b) { return b == kUntouched; });
    if (!untouched) names += name + " ";
  }
  return names;
}

uint64_t Scene::play() {
  uint64_t result = 0;
  calls_ = recorded([&] { result = arguments_.call(); });
  return result;
}

}  // namespace pd_test
