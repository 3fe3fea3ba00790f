// The arguments that all scenes give, and what the text of a parameter says about it.
#pragma once

#include <string_view>

#include "bindings/export_table.hpp"
#include "support.hpp"

namespace pd_test {

inline constexpr bf_device_id_t kSceneVirtualDevice = 9;
inline constexpr p4_pd_parser_target_t kSceneParser = {kDevice, 1, kPipe, 3};

inline constexpr p4_pd_idle_time_params_t kSceneAgeing = {PIPE_IDLE_NOTIFY, 100, 70000, 0, 0,
                                                          0x5a5a5a5a};

// A direction that snapshots have.
inline uint32_t snapshot_direction() {
  return program().snapshots->layouts.front().name == "ingress" ? 0 : 1;
}

inline bool is_pointer(const bindings::Parameter &parameter) {
  return std::string_view(parameter.type).ends_with("*");
}
inline bool is_input(const bindings::Parameter &parameter) {
  return std::string_view(parameter.type).starts_with("const ");
}

}  // namespace pd_test
