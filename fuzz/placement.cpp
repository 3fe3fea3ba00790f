// Any bytes as placement data, for every function that takes some: they are refused, or decoded,
// and nothing behind them is read. The first two bytes choose the table or profile.
#include <cstring>

#include "fuzz/arguments.hpp"

using namespace tesselctl;

void try_input(std::string_view input) {
  static const Device device({.id = 0, .pipes = 2});
  const auto all = program_rows<soft_table_t>();
  const auto profiles = program_rows<soft_profile_t>();
  const size_t chosen = take_number(input, 2) % (all.size() + profiles.size());
  const std::string_view object =
      chosen < all.size() ? all[chosen].name : profiles[chosen - all.size()].name;
  // As who hands them over must: with the header that says how long they are.
  constexpr size_t kHeader = 24;
  constexpr size_t kLengthAt = 8;
  uint32_t length = 0;
  if (input.size() < kHeader) return;
  memcpy(&length, input.data() + kLengthAt, sizeof length);
  if (length > input.size() - kHeader && length <= 1u << 20) return;
  const auto bytes = std::make_unique<uint64_t[]>((input.size() + 7) / 8);
  memcpy(bytes.get(), input.data(), input.size());
  for_each_export([&](const bindings::Export &target) {
    if (target.object != object) return;
    for (const bindings::Parameter &parameter : target.parameter_list()) {
      if (std::string_view(parameter.name) != "placement") continue;
      std::string_view none;
      Caller(device).run(target, none, bytes.get());
    }
  });
}
