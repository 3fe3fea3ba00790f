// What is wrong with a device that no single command shows, though the device takes it.
#pragma once

#include <functional>
#include <set>
#include <string_view>

#include "tesselctl/state/device_state.hpp"

namespace tesselctl {

// The names of the checks, which rows begin with.
inline constexpr std::string_view kDangling = "dangling";
inline constexpr std::string_view kEmptyTable = "empty-table";
inline constexpr std::string_view kInactiveGroup = "inactive-group";
inline constexpr std::string_view kUnusedGroup = "unused-group";
inline constexpr std::string_view kUnusedMember = "unused-member";
inline constexpr std::string_view kCovered = "covered";
inline constexpr std::string_view kRepeatsParent = "repeats-parent";
inline constexpr std::string_view kChecks[] = {
    kDangling, kEmptyTable, kInactiveGroup, kUnusedGroup, kUnusedMember, kCovered, kRepeatsParent};

// Of the tables and profiles of those names, or of all when there are none. Throws Fault when the
// device cannot be read.
void lint(const Device &device, const std::set<std::string_view> &objects,
          const std::function<void(const Row &)> &report);

}  // namespace tesselctl
