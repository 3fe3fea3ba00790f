#include "tesselctl/state/numbering.hpp"

#include <algorithm>

#include "tesselctl/device/handles.hpp"

namespace tesselctl {

Numbering Numbering::of_device(const Device &device) {
  Numbering numbering;
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    ProfileNumbers &numbers = numbering.of(profile.action_data_table);
    for_each_member(device, profile.name, {},
                    [&](uint32_t member) { numbers.members.add_next(member); });
    for_each_group(device, profile.name, {},
                   [&](uint32_t group) { numbers.groups.add_next(group); });
  }
  return numbering;
}

bool Numbering::is_identity() const {
  return std::all_of(profiles_.begin(), profiles_.end(), [](const auto &profile) {
    return profile.second.members.is_identity() && profile.second.groups.is_identity();
  });
}

}  // namespace tesselctl
