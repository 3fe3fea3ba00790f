#include "expected_calls.hpp"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace pd_test {

namespace {

using soft::journal::ActionData;
using soft::journal::ActionSpec;
using soft::journal::MatchSpec;
using soft::journal::NullPointer;
using soft::journal::Opaque;
using soft::journal::Value;

std::vector<std::string> split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  while (!text.empty()) {
    const size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    text = end == std::string_view::npos ? "" : text.substr(end + separator.size());
  }
  return parts;
}

template <class Object>
Bytes bytes_in(const Object &object) {
  const auto *bytes = reinterpret_cast<const uint8_t *>(&object);
  return Bytes(bytes, bytes + sizeof object);
}

// A value as a text that says all of it.
struct Shown {
  std::string operator()(uint64_t word) const { return std::to_string(word); }
  std::string operator()(const Opaque &opaque) const { return std::to_string(opaque.address); }
  std::string operator()(const NullPointer &) const { return "null"; }
  std::string operator()(const std::string &text) const { return text; }
  std::string operator()(const Bytes &bytes) const { return hex(bytes); }
  std::string operator()(const std::optional<Bytes> &bytes) const {
    return bytes ? "(" + hex(*bytes) + ")" : "null";
  }
  std::string operator()(const MatchSpec &match) const {
    return fmt::format("scope {}, {} bits, {} bytes, {} under {}, priority {}", match.scope,
                       match.valid_bit_count, match.byte_count, (*this)(match.value),
                       (*this)(match.mask), match.priority);
  }
  std::string operator()(const ActionData &data) const {
    return fmt::format("{} bits, {} bytes, {}", data.valid_bit_count, data.byte_count,
                       (*this)(data.bytes));
  }
  std::string operator()(const ActionSpec &spec) const {
    return fmt::format("type {}, {}, member {}, group {}, {} resources {}", spec.type,
                       (*this)(spec.data), spec.member, spec.group, spec.resource_count,
                       (*this)(spec.resources));
  }
  // Without the holes between the members.
  std::string operator()(const pipe_mgr_meter_spec_t &meter) const {
    return fmt::format("type {}, {} {} {}, {} {} {}", meter.type, meter.committed_rate.unit,
                       meter.committed_rate.value, meter.committed_burst, meter.peak_rate.unit,
                       meter.peak_rate.value, meter.peak_burst);
  }
  std::string operator()(const std::vector<pipe_mgr_resource_t> &resources) const {
    std::string text;
    for (const pipe_mgr_resource_t &resource : resources) {
      const Bytes data = bytes_in(resource.data);
      const bool none = data == Bytes(data.size());
      text += fmt::format("{:#x} {} {} ({})", resource.handle, resource.index, resource.tag,
                          none ? "" : (*this)(resource.data.meter));
    }
    return text;
  }
  template <class Record>
  std::string operator()(const Record &record) const {
    if constexpr (std::is_trivially_copyable_v<Record>) return hex(bytes_in(record));
    return "of a kind that no scene has";
  }
};

// What the arguments of the calls of a scene should be.
class Wanted {
 public:
  explicit Wanted(const Scene &scene) : scene_(scene) {}

  Value value(const std::string &wanted) const {
    if (wanted == "null") return NullPointer{};
    if (wanted == "match") {
      return key_image(*scene_.table(), scene_.match_spec().data(),
                       arguments().takes("priority") ? word("priority") : 0);
    }
    if (wanted == "client_name") return prefix() + "pd";
    if (wanted == "ageing") return object<pipe_mgr_idle_params_t>("params");
    if (wanted == "params") return object<pipe_mgr_wred_spec_t>("params");
    if (wanted == "hash") return bytes_in(object<std::array<uint8_t, 4>>("hash"));
    if (wanted == "meter_record") return meter();
    if (wanted == "direct_meter") {
      pipe_mgr_resource_t resource{};
      resource.handle = scene_.subject().handle;
      resource.tag = 1;
      resource.data.meter = meter();
      return std::vector{resource};
    }
    if (wanted.ends_with("_buffer")) return buffer(wanted);
    if (const std::optional<ActionSpec> spec = action(wanted)) return *spec;
    return number(wanted);
  }

 private:
  const Arguments &arguments() const { return scene_.arguments(); }
  uint32_t word(const char *name) const { return static_cast<uint32_t>(arguments().get(name)); }

  template <class Object>
  Object object(const char *name) const {
    Object copy;
    std::memcpy(&copy,
                reinterpret_cast<const void *>(static_cast<uintptr_t>(arguments().get(name))),
                sizeof copy);
    return copy;
  }

  std::optional<ActionSpec> action(const std::string &wanted) const {
    const std::string name = scene_.exported().action;
    const uint8_t *record = scene_.action_spec().data();
    ActionSpec pointing;
    if (wanted == "to_member") {
      pointing.type = PIPE_ACTION_MEMBER;
      pointing.member = word("member");
      return pointing;
    }
    if (wanted == "to_group") {
      pointing.type = PIPE_ACTION_GROUP;
      pointing.group = word("group");
      return pointing;
    }
    if (wanted == "member_data") return action_image(action_named(name), record);
    const std::string_view operations[] = {"add", "modify", "default"};
    for (size_t i = 0; i < std::size(operations); ++i) {
      if (wanted != operations[i]) continue;
      const auto *meter = arguments().takes("meter_spec") ? &scene_.meter_spec() : nullptr;
      return action_image(*pair_of(*scene_.table(), name), static_cast<pdgen::Operation>(i), record,
                          meter);
    }
    return std::nullopt;
  }

  // What read-back offers to be filled: the key of the table, bytes for any action, or nothing.
  Value buffer(const std::string &wanted) const {
    const bool placed = wanted.starts_with("placed_");
    const auto unless_placed = [&](unsigned count) {
      return static_cast<uint16_t>(placed ? 0 : count);
    };
    const ActionData data = {0, unless_placed(greatest_action_data()), Bytes()};
    if (wanted.ends_with("member_buffer")) return data;
    if (wanted.ends_with("key_buffer")) {
      const pdgen::Table &table = *scene_.table();
      MatchSpec match;
      match.valid_bit_count = unless_placed(table.key_bits);
      match.byte_count = unless_placed(table.key_bytes);
      if (table.keyed()) match.value = match.mask = Bytes();
      return match;
    }
    ActionSpec spec;
    if (placed || (wanted == "data_buffer" && !scene_.table()->indirect())) spec.data = data;
    return spec;
  }

  static uint16_t greatest_action_data() {
    unsigned greatest = 28;  // that of any program at least
    for (const pdgen::Action &action : program().actions) {
      greatest = std::max(greatest, action.data_bytes);
    }
    return static_cast<uint16_t>(greatest);
  }

  pipe_mgr_meter_spec_t meter() const {
    return meter_image(scene_.meter_spec(), *scene_.subject().resource);
  }

  uint32_t pair_handle() const {
    const char *action = scene_.exported().action;
    const bool of_profile =
        pdgen::find_row(program().profiles, scene_.exported().object) != nullptr;
    return of_profile ? pair_of(*scene_.profile(), action)->handle
                      : pair_of(*scene_.table(), action)->handle;
  }

  uint64_t number(const std::string &wanted) const {
    if (wanted.find_first_not_of("0123456789") == std::string::npos) return std::stoull(wanted);
    if (wanted == "device_id") return kTarget.device_id;
    if (wanted == "pipe_id") return kTarget.pipe_id;
    if (wanted == "table") return scene_.table()->handle;
    if (wanted == "adt") return scene_.profile()->action_data_handle;
    if (wanted == "sel") return scene_.profile()->selector_handle;
    if (wanted == "resource") return scene_.subject().handle;
    if (wanted == "field_list") return scene_.subject().hash->field_list_handle;
    if (wanted == "algorithm_handle") return program().hash_algorithm;
    if (wanted == "action") return pair_handle();
    if (wanted == "member_action") return scene_.member_action();
    if (wanted == "client") return client();
    if (wanted == "ttl?") return arguments().takes("ttl") ? arguments().get("ttl") : 0;
    if (wanted.starts_with("got ")) {
      uint32_t word = 0;
      std::memcpy(&word, scene_.output(wanted.substr(4)).data(), sizeof word);
      return word;
    }
    return arguments().get(wanted);
  }

  const Scene &scene_;
};

// What the SDK wrote has arrived at the caller's pointer.
void compare_output(const Scene &scene, const Call &call, const soft::journal::Argument &given,
                    const std::string &name) {
  EXPECT_TRUE(std::holds_alternative<soft::journal::Output>(given.value));
  if (call.status != BF_SUCCESS) return;
  const Value &written = call.result(given.name);
  const auto *words = std::get_if<soft::journal::Words>(&written);
  const auto all = words != nullptr
                       ? *words
                       : soft::journal::Words{static_cast<uint32_t>(std::get<uint64_t>(written))};
  ASSERT_LE(all.size() * sizeof(uint32_t), scene.output(name).size());
  EXPECT_EQ(std::memcmp(all.data(), scene.output(name).data(), all.size() * sizeof(uint32_t)), 0);
}

void compare_state(const Scene &scene, const Value &given, StatesSeen &states) {
  const uintptr_t address = std::get<Opaque>(given).address;
  const auto [seen, is_new] = states.try_emplace(scene.profile()->name, address);
  EXPECT_EQ(seen->second, address) << "the profile has another state than before";
  for (const auto &[name, other] : states) {
    EXPECT_TRUE(other != address || name == scene.profile()->name) << "the state of " << name;
  }
}

// text: "function(argument, ...)"
void compare_call(const Scene &scene, const Call &call, const std::string &text,
                  StatesSeen &states) {
  const size_t open = text.find('(');
  const auto arguments = split(text.substr(open + 1, text.size() - open - 2), ", ");
  EXPECT_EQ(call.function, text.substr(0, open));
  ASSERT_EQ(call.arguments.size(), arguments.size()) << call.function;
  EXPECT_TRUE(call.performed && call.status == expected_status(scene.exported()))
      << call.function << " returned " << call.status;
  for (size_t i = 0; i < arguments.size(); ++i) {
    const auto &given = call.arguments[i];
    const std::string &wanted = arguments[i];
    SCOPED_TRACE(call.function + " " + given.name + ": " + wanted);
    if (wanted.starts_with("out ")) {
      compare_output(scene, call, given, wanted.substr(4));
    } else if (wanted == "local" || wanted == "callbacks") {
      EXPECT_FALSE(std::holds_alternative<NullPointer>(given.value));
    } else if (wanted == "state") {
      compare_state(scene, given.value, states);
    } else {
      EXPECT_EQ(std::visit(Shown(), given.value), std::visit(Shown(), Wanted(scene).value(wanted)));
    }
  }
}

}  // namespace

void compare_calls(const Scene &scene, const std::string &calls, StatesSeen &states) {
  std::vector<std::string> ways = split(calls, " | ");
  // The second way is that of a direct resource.
  const size_t way = ways.size() > 1 && scene.table() != nullptr ? 1 : 0;
  std::vector<std::string> wanted =
      ways.empty() ? std::vector<std::string>() : split(ways[way], "; ");
  constexpr std::string_view kParams = "params: ";
  std::erase_if(wanted, [&](const std::string &call) {
    return call.starts_with(kParams) && !scene.member_has_params();
  });
  for (std::string &call : wanted) {
    if (call.starts_with(kParams)) call.erase(0, kParams.size());
  }
  ASSERT_EQ(scene.calls().size(), wanted.size()) << scene.exported().name;
  for (size_t i = 0; i < wanted.size(); ++i) {
    compare_call(scene, scene.calls()[i], wanted[i], states);
  }
}

}  // namespace pd_test
