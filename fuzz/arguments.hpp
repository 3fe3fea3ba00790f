// Arguments for any function of the library, of bytes.
#pragma once

#include <array>
#include <memory>

#include "fuzz/tool.hpp"

namespace tesselctl {

// Makes calls on a device. What a call gives back is what later ones are given.
class Caller {
 public:
  explicit Caller(const Device &device) : device_(device) {}

  // Takes from the input what the function needs; what is given stays. The status of the call.
  uint64_t run(const bindings::Export &target, std::string_view &input,
               const void *placement = nullptr) {
    Call call = device_.prepare(target);
    for (size_t i = 0; i < target.parameter_count; ++i) {
      const bindings::Parameter &parameter = target.parameters[i];
      const std::string_view name = parameter.name;
      if (name == "session" || name == "device" || (name == "target" && !is_parser(parameter)))
        continue;
      call.set(name, argument(target, parameter, i, input));
      if (name == "placement") call.set(name, placement);
    }
    const uint64_t status = call.run();
    if (status == BF_SUCCESS) keep(call);
    return status;
  }

 private:
  static constexpr size_t kRoom = size_t{1} << 20;
  static bool is_parser(const bindings::Parameter &parameter) {
    return std::string_view(parameter.type) == "p4_pd_parser_target_t";
  }

  // Of exactly the size that the callee may read, where that is known.
  const void *bytes(size_t size, std::string_view &input) {
    auto &kept = inputs_.emplace_back(new uint8_t[size]());
    const size_t given = std::min(take_number(input, 1) % 64, size);
    for (size_t i = 0; i < given; ++i) kept[i] = static_cast<uint8_t>(take_number(input, 1));
    return kept.get();
  }

  uint64_t argument(const bindings::Export &target, const bindings::Parameter &parameter, size_t at,
                    std::string_view &input) {
    const std::string_view type = parameter.type;
    const std::string_view name = parameter.name;
    const auto address = [](const void *object) {
      return static_cast<uint64_t>(reinterpret_cast<uintptr_t>(object));
    };
    if (type.ends_with("_cb_t") || name == "cookie" || name == "client_data") return 0;
    // Records with addresses, and what a device hands to its clients.
    if (type.starts_with("const pipe_mgr_") || type.find("_attr_t *") != type.npos ||
        type == "pipe_mgr_digest_message_t *")
      return 0;
    if (name == "descriptor") return ~uint64_t{0};
    if (type == "pipe_stful_query_t *") return address(&query_);
    if (type == "p4_pd_parser_target_t")
      return address(bytes(sizeof(p4_pd_parser_target_t), input));
    if (type.starts_with("const ")) {
      const auto *record =
          find_record(type.find("_match_spec_t") != type.npos ? tables() : actions(),
                      record_name(target, type));
      return address(bytes(record != nullptr ? std::max<size_t>(record->size, 1) : 4096, input));
    }
    if (type.ends_with("*")) return address(&outputs_[at * kRoom]);
    if (type.ends_with("_params_t") || type.ends_with("_values_t"))
      return address(bytes(64, input));
    // How many the caller has room for.
    if (name.ends_with("count") || name.ends_with("length")) return take_number(input, 1) % 8;
    const uint64_t choice = take_number(input, 1);
    if (choice >= 64) return kept_[choice % kept_.size()];
    return choice < 60 ? choice : take_number(input, 4);
  }

  // "const p4_pd_PROGRAM_NAME_match_spec_t *": NAME.
  static std::string_view record_name(const bindings::Export &target, std::string_view type) {
    const bool is_action = type.ends_with("_action_spec_t *");
    return is_action && *target.action != '\0' ? target.action : target.object;
  }

  void keep(const Call &call) {
    const bindings::Export &target = call.target();
    for (size_t i = 0; i < target.parameter_count; ++i) {
      const std::string_view type = target.parameters[i].type;
      if (!type.ends_with("_handle_t *") && type != "uint32_t *") continue;
      uint32_t value;
      memcpy(&value, &outputs_[i * kRoom], sizeof value);
      kept_[next_++ % kept_.size()] = value;
    }
  }

  const Device &device_;
  std::vector<std::unique_ptr<uint8_t[]>> inputs_;
  pipe_stful_cell_t cells_[8] = {};
  pipe_stful_query_t query_ = {8, cells_};
  std::array<uint32_t, 16> kept_ = {1, 2, 3};
  size_t next_ = 0;
  inline static std::vector<uint8_t> outputs_ = std::vector<uint8_t>(16 * kRoom);
};

}  // namespace tesselctl
