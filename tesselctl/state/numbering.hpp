// Numbers of members and groups. Images and what is made of them count those of each profile from
// 1, so that equal devices have equal images whatever their handles.
#pragma once

#include <cstdint>
#include <map>
#include <unordered_map>

#include "tesselctl/device/device.hpp"

namespace tesselctl {

// Numbers and handles of the members, or of the groups, of a profile. 0 is neither.
class NumberMap {
 public:
  void add(uint32_t number, uint32_t handle) {
    handles_[number] = handle;
    numbers_[handle] = number;
  }
  void add_next(uint32_t handle) { add(static_cast<uint32_t>(handles_.size() + 1), handle); }
  void erase(uint32_t number) {
    numbers_.erase(handle_of(number));
    handles_.erase(number);
  }
  size_t size() const { return handles_.size(); }
  // 0 for an unknown one.
  uint32_t handle_of(uint32_t number) const { return find(handles_, number); }
  uint32_t number_of(uint32_t handle) const { return find(numbers_, handle); }
  // Whether every handle is its own number.
  bool is_identity() const {
    for (const auto &[number, handle] : handles_) {
      if (number != handle) return false;
    }
    return true;
  }

 private:
  using Map = std::unordered_map<uint32_t, uint32_t>;
  static uint32_t find(const Map &map, uint32_t key) {
    const auto found = map.find(key);
    return found == map.end() ? 0 : found->second;
  }
  Map handles_;
  Map numbers_;
};

struct ProfileNumbers {
  NumberMap members;
  NumberMap groups;
};

// Those of all profiles, by the handle of the action-data table.
class Numbering {
 public:
  // As an image of the device numbers them. Throws Fault.
  static Numbering of_device(const Device &device);

  ProfileNumbers &of(uint32_t action_data_table) { return profiles_[action_data_table]; }
  // Whether the members and groups of every profile have the handles 1, 2, 3 and so on.
  bool is_identity() const;

 private:
  std::map<uint32_t, ProfileNumbers> profiles_;
};

}  // namespace tesselctl
