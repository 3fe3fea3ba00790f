#include "tesselctl/state/numbering.hpp"

#include <algorithm>

#include "tesselctl/device/handles.hpp"

namespace tesselctl {

void NumberMap::add_lasting(uint32_t handle) {
  constexpr uint32_t kGreatest = 1u << 20;
  if (handle <= kGreatest && !handles_.contains(handle)) return add(handle, handle);
  while (handles_.contains(free_)) ++free_;
  add(free_, handle);
}

Numbering Numbering::of_device(const Device &device, void (NumberMap::*add)(uint32_t)) {
  Numbering numbering;
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    ProfileNumbers &numbers = numbering.of(profile.action_data_table);
    for_each_member(device, profile.name, {},
                    [&](uint32_t member) { (numbers.members.*add)(member); });
    for_each_group(device, profile.name, {}, [&](uint32_t group) { (numbers.groups.*add)(group); });
  }
  return numbering;
}

bool Numbering::is_identity() const {
  return std::all_of(profiles_.begin(), profiles_.end(), [](const auto &profile) {
    return profile.second.members.is_identity() && profile.second.groups.is_identity();
  });
}

}  // namespace tesselctl
