#include "expected_calls.hpp"

#include <fmt/format.h>

#include <array>
#include <cstring>

namespace pd_test {

namespace {

using soft::journal::Value;

// ---- The text ----

std::vector<std::string> split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  while (!text.empty()) {
    const size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    text = end == std::string_view::npos ? "" : text.substr(end + separator.size());
  }
  return parts;
}

struct WantedCall {
  std::string function;
  std::vector<std::string> arguments;
};

WantedCall wanted_call(const std::string &text) {
  const size_t open = text.find('(');
  return {text.substr(0, open), split(text.substr(open + 1, text.size() - open - 2), ", ")};
}

// ---- One argument ----

class Comparison {
 public:
  Comparison(const Scene &scene, StatesSeen &states) : scene_(scene), states_(states) {}

  void compare(const Call &call, const WantedCall &wanted) {
    EXPECT_EQ(call.function, wanted.function);
    ASSERT_EQ(call.arguments.size(), wanted.arguments.size()) << call.function;
    EXPECT_TRUE(call.performed && call.status == expected_status(scene_.exported()))
        << call.function << " returned " << call.status;
    for (size_t i = 0; i < wanted.arguments.size(); ++i) {
      const auto &given = call.arguments[i];
      SCOPED_TRACE(call.function + " " + given.name + ": " + wanted.arguments[i]);
      if (wanted.arguments[i].starts_with("out ")) {
        compare_output(call, given, wanted.arguments[i].substr(4));
      } else {
        compare_value(given.value, wanted.arguments[i]);
      }
    }
  }

 private:
  const Arguments &arguments() const { return scene_.arguments(); }
  std::string_view family() const { return scene_.exported().family; }

  void compare_output(const Call &call, const soft::journal::Argument &given,
                      const std::string &name) {
    EXPECT_TRUE(std::holds_alternative<soft::journal::Output>(given.value));
    if (call.status != BF_SUCCESS) return;
    const Bytes &arrived = scene_.output(name);
    const Value &written = call.result(given.name);
    if (const auto *word = std::get_if<uint64_t>(&written)) {
      uint32_t first = 0;
      std::memcpy(&first, arrived.data(), sizeof first);
      EXPECT_EQ(first, *word);
    } else if (const auto *words = std::get_if<soft::journal::Words>(&written)) {
      ASSERT_LE(words->size() * sizeof(uint32_t), arrived.size());
      EXPECT_EQ(std::memcmp(words->data(), arrived.data(), words->size() * sizeof(uint32_t)), 0);
    } else {
      ADD_FAILURE() << "the journal has no word for it";
    }
  }

  void compare_value(const Value &given, const std::string &wanted) {
    if (wanted == "null") {
      EXPECT_TRUE(std::holds_alternative<soft::journal::NullPointer>(given));
    } else if (wanted == "local") {
      EXPECT_FALSE(std::holds_alternative<soft::journal::NullPointer>(given));
    } else if (wanted == "state") {
      compare_state(given);
    } else if (wanted == "match") {
      compare_match(given);
    } else if (const std::optional<ActionImage> image = action_wanted(wanted)) {
      compare_action(given, *image);
    } else if (wanted.ends_with("_buffer")) {
      compare_buffer(given, wanted);
    } else if (!compare_record(given, wanted)) {
      compare_word(given, wanted);
    }
  }

  void compare_state(const Value &given) {
    const uintptr_t address = std::get<soft::journal::Opaque>(given).address;
    const auto [seen, is_new] = states_.try_emplace(scene_.profile()->name, address);
    EXPECT_EQ(seen->second, address) << "the profile has another state than before";
    if (!is_new) return;
    for (const auto &[name, other] : states_) {
      EXPECT_TRUE(other != address || name == scene_.profile()->name) << "the state of " << name;
    }
  }

  void compare_match(const Value &given) {
    const auto &match = std::get<soft::journal::MatchSpec>(given);
    const uint32_t priority =
        arguments().takes("priority") ? static_cast<uint32_t>(arguments().get("priority")) : 0;
    const KeyImage image = key_image(*scene_.table(), scene_.match_spec().data(), priority);
    EXPECT_EQ(match.scope, 0u);
    EXPECT_EQ(match.valid_bit_count, image.bits);
    EXPECT_EQ(match.byte_count, image.value.size());
    EXPECT_EQ(hex(match.value.value()), hex(image.value));
    EXPECT_EQ(hex(match.mask.value()), hex(image.mask));
    EXPECT_EQ(match.priority, image.priority);
  }

  std::optional<ActionImage> action_wanted(const std::string &wanted) const {
    const std::string action = scene_.exported().action;
    const uint8_t *record = scene_.action_spec().data();
    if (wanted == "member_data") return action_image(action_named(action), record);
    if (wanted == "to_member") {
      return ActionImage{2, 0, {}, static_cast<uint32_t>(arguments().get("member")), 0, {}};
    }
    if (wanted == "to_group") {
      return ActionImage{4, 0, {}, 0, static_cast<uint32_t>(arguments().get("group")), {}};
    }
    const std::string_view operations[] = {"add", "modify", "default"};
    for (size_t i = 0; i < std::size(operations); ++i) {
      if (wanted != operations[i]) continue;
      const auto *meter = arguments().takes("meter_spec") ? &scene_.meter_spec() : nullptr;
      return action_image(*pair_of(*scene_.table(), action), static_cast<pdgen::Operation>(i),
                          record, meter);
    }
    return std::nullopt;
  }

  void compare_action(const Value &given, const ActionImage &image) {
    const auto &spec = std::get<soft::journal::ActionSpec>(given);
    EXPECT_EQ(spec.type, image.type);
    EXPECT_EQ(spec.data.valid_bit_count, image.bits);
    EXPECT_EQ(spec.data.byte_count, image.data.size());
    // Action data always has an address; a spec that points elsewhere has none.
    const bool points = image.type == PIPE_ACTION_MEMBER || image.type == PIPE_ACTION_GROUP;
    EXPECT_EQ(spec.data.bytes.has_value(), !points);
    EXPECT_EQ(hex(spec.data.bytes.value_or(Bytes())), hex(image.data));
    EXPECT_EQ(spec.member, image.member);
    EXPECT_EQ(spec.group, image.group);
    EXPECT_EQ(spec.resource_count, image.resources.size());
    compare_resources(spec.resources, image.resources);
  }

  static void compare_resources(const std::vector<pipe_mgr_resource_t> &given,
                                const std::vector<pipe_mgr_resource_t> &wanted) {
    ASSERT_EQ(given.size(), wanted.size());
    for (size_t i = 0; i < wanted.size(); ++i) {
      EXPECT_EQ(given[i].handle, wanted[i].handle);
      EXPECT_EQ(given[i].index, wanted[i].index);
      EXPECT_EQ(given[i].tag, wanted[i].tag);
      const Bytes data(reinterpret_cast<const uint8_t *>(&given[i].data),
                       reinterpret_cast<const uint8_t *>(&given[i].data + 1));
      if (words_of(wanted[i].data.meter) == std::array<uint64_t, 7>{}) {
        EXPECT_EQ(data, Bytes(data.size())) << "only a direct meter has data";
      } else {
        EXPECT_EQ(words_of(given[i].data.meter), words_of(wanted[i].data.meter));
      }
    }
  }

  // Without the holes between the members.
  static std::array<uint64_t, 7> words_of(const pipe_mgr_meter_spec_t &meter) {
    return {meter.type,
            meter.committed_rate.unit,
            meter.committed_rate.value,
            meter.committed_burst,
            meter.peak_rate.unit,
            meter.peak_rate.value,
            meter.peak_burst};
  }

  // What read-back offers to be filled: the key of the table, 28 bytes of action data, or nothing.
  void compare_buffer(const Value &given, const std::string &wanted) {
    if (wanted == "member_buffer") {
      EXPECT_EQ(std::get<soft::journal::ActionData>(given).byte_count, 28);
    } else if (wanted == "key_buffer") {
      const auto &match = std::get<soft::journal::MatchSpec>(given);
      EXPECT_EQ(match.valid_bit_count, scene_.table()->key_bits);
      EXPECT_EQ(match.byte_count, scene_.table()->key_bytes);
      EXPECT_EQ(match.value.has_value(), scene_.table()->keyed());
      EXPECT_EQ(match.mask.has_value(), scene_.table()->keyed());
    } else {
      const auto &spec = std::get<soft::journal::ActionSpec>(given);
      const bool data = wanted == "data_buffer" && !scene_.table()->indirect();
      EXPECT_EQ(spec.type, 0u);
      EXPECT_EQ(spec.resource_count, 0u);
      EXPECT_EQ(spec.data.byte_count, data ? 28 : 0);
      EXPECT_EQ(spec.data.bytes.has_value(), data);
    }
  }

  // Records that the scene hands over. False for anything else.
  bool compare_record(const Value &given, const std::string &wanted) {
    const auto same = [](const auto &left, const auto &right) {
      EXPECT_EQ(std::memcmp(&left, &right, sizeof left), 0);
      return true;
    };
    const auto object = [&](const char *name) {
      return reinterpret_cast<const void *>(static_cast<uintptr_t>(arguments().get(name)));
    };
    if (wanted == "ageing") {
      return same(std::get<pipe_mgr_idle_params_t>(given),
                  *static_cast<const p4_pd_idle_time_params_t *>(object("params")));
    }
    if (wanted == "params") {
      return same(std::get<pipe_mgr_wred_spec_t>(given),
                  *static_cast<const p4_pd_wred_params_t *>(object("params")));
    }
    if (wanted == "hash") {
      const Bytes &bytes = std::get<Bytes>(given);
      EXPECT_EQ(bytes.size(), arguments().get("hash_length"));
      EXPECT_EQ(std::memcmp(bytes.data(), object("hash"), bytes.size()), 0);
      return true;
    }
    if (wanted == "meter_record") {
      EXPECT_EQ(words_of(std::get<pipe_mgr_meter_spec_t>(given)), words_of(meter()));
      return true;
    }
    if (wanted == "direct_meter") {
      pipe_mgr_resource_t resource{};
      resource.handle = resource_handle();
      resource.tag = 1;
      resource.data.meter = meter();
      compare_resources(std::get<std::vector<pipe_mgr_resource_t>>(given), {resource});
      return true;
    }
    if (wanted == "client_name") {
      EXPECT_EQ(std::get<std::string>(given), "p4_pd_tessel_switch_pd");
      return true;
    }
    return false;
  }

  pipe_mgr_meter_spec_t meter() const {
    const p4_pd_bytes_meter_spec_t &spec = scene_.meter_spec();
    const pdgen::Resource *named = pdgen::find_row(program().meters, scene_.exported().object);
    const bool packets = named == nullptr ? family().starts_with("packets")
                                          : named->unit == pdgen::MeterUnit::kPackets;
    pipe_mgr_meter_spec_t meter{};
    meter.type = 1;
    meter.committed_rate = {packets ? 1u : 0u, spec.committed_rate};
    meter.committed_burst = spec.committed_burst;
    meter.peak_rate = {packets ? 1u : 0u, spec.peak_rate};
    meter.peak_burst = spec.peak_burst;
    return meter;
  }

  // The first calculation is the one that scenes name.
  const pdgen::Hash *hash() const {
    return family().ends_with("_by_name")
               ? &program().hashes.front()
               : pdgen::find_row(program().hashes, scene_.exported().object);
  }

  uint32_t resource_handle() const {
    const char *object = scene_.exported().object;
    if (hash() != nullptr) return hash()->handle;
    for (const auto *rows : {&program().counters, &program().meters, &program().registers}) {
      if (const auto *row = pdgen::find_row(*rows, object)) return row->handle;
    }
    if (const auto *set = pdgen::find_row(program().value_sets, object)) return set->handle;
    const auto *digest = pdgen::find_row(program().digests, object);
    return digest == nullptr ? 0 : digest->handle;
  }

  uint32_t pair_handle() const {
    const char *action = scene_.exported().action;
    const bool of_profile =
        pdgen::find_row(program().profiles, scene_.exported().object) != nullptr;
    return of_profile ? pair_of(*scene_.profile(), action)->handle
                      : pair_of(*scene_.table(), action)->handle;
  }

  uint64_t word_wanted(const std::string &wanted) const {
    if (wanted.find_first_not_of("0123456789") == std::string::npos) return std::stoull(wanted);
    if (wanted == "device_id") return kTarget.device_id;
    if (wanted == "pipe_id") return kTarget.pipe_id;
    if (wanted == "table") return scene_.table()->handle;
    if (wanted == "adt") return scene_.profile()->action_data_handle;
    if (wanted == "sel") return scene_.profile()->selector_handle;
    if (wanted == "resource") return resource_handle();
    if (wanted == "field_list") return hash()->field_list_handle;
    if (wanted == "action") return pair_handle();
    if (wanted == "member_action") return scene_.member_action();
    if (wanted == "client") return bf_drv_hdl;
    if (wanted == "ttl?") return arguments().takes("ttl") ? arguments().get("ttl") : 0;
    if (wanted.starts_with("got ")) {
      uint32_t word = 0;
      std::memcpy(&word, scene_.output(wanted.substr(4)).data(), sizeof word);
      return word;
    }
    return arguments().get(wanted);
  }

  void compare_word(const Value &given, const std::string &wanted) {
    if (wanted == "callbacks") {
      EXPECT_NE(std::get<soft::journal::Opaque>(given).address, 0u);
    } else if (const auto *opaque = std::get_if<soft::journal::Opaque>(&given)) {
      EXPECT_EQ(opaque->address, word_wanted(wanted));
    } else {
      EXPECT_EQ(std::get<uint64_t>(given), word_wanted(wanted));
    }
  }

  const Scene &scene_;
  StatesSeen &states_;
};

}  // namespace

void compare_calls(const Scene &scene, const std::string &calls, StatesSeen &states) {
  std::vector<std::string> ways = split(calls, " | ");
  // The second way is that of a direct resource.
  const size_t way = ways.size() > 1 && scene.table() != nullptr ? 1 : 0;
  const std::vector<std::string> wanted =
      ways.empty() ? std::vector<std::string>() : split(ways[way], "; ");
  ASSERT_EQ(scene.calls().size(), wanted.size()) << scene.exported().name;
  Comparison comparison(scene, states);
  for (size_t i = 0; i < wanted.size(); ++i) {
    comparison.compare(scene.calls()[i], wanted_call(wanted[i]));
  }
}

}  // namespace pd_test
