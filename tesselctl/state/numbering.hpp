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
  NumberMap() = default;
  // Every handle is its own number.
  explicit NumberMap(bool by_handle) : by_handle_(by_handle) {}

  void add(uint32_t number, uint32_t handle) {
    handles_[number] = handle;
    numbers_[handle] = number;
  }
  void add_next(uint32_t handle) { add(static_cast<uint32_t>(handles_.size() + 1), handle); }
  // A number that the handle keeps: the handle itself where that is free and small enough to count
  // up to, else the smallest that is free.
  void add_lasting(uint32_t handle);
  void erase(uint32_t number) {
    numbers_.erase(handle_of(number));
    handles_.erase(number);
    if (number < free_) free_ = number;
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
  uint32_t find(const Map &map, uint32_t key) const {
    if (by_handle_) return key;
    const auto found = map.find(key);
    return found == map.end() ? 0 : found->second;
  }
  bool by_handle_ = false;
  uint32_t free_ = 1;  // numbers below are taken
  Map handles_;
  Map numbers_;
};

// What the numbers of items are: those of members or groups, or they have none.
enum class Numbered : uint8_t { no, members, groups };

struct ProfileNumbers {
  NumberMap members;
  NumberMap groups;

  NumberMap &of(Numbered what) { return what == Numbered::groups ? groups : members; }
};

// Those of all profiles, by the handle of the action-data table.
class Numbering {
 public:
  // As an image of the device numbers them. Throws Fault.
  static Numbering of_device(const Device &device) {
    return of_device(device, &NumberMap::add_next);
  }
  // With numbers that stay when members and groups come and go. Throws Fault.
  static Numbering lasting(const Device &device) {
    return of_device(device, &NumberMap::add_lasting);
  }

  // With handles for numbers, as commands name what a device holds.
  static Numbering by_handle() {
    Numbering numbering;
    numbering.by_handle_ = true;
    return numbering;
  }

  ProfileNumbers &of(uint32_t action_data_table) {
    const ProfileNumbers none = {NumberMap(by_handle_), NumberMap(by_handle_)};
    return profiles_.try_emplace(action_data_table, none).first->second;
  }
  // Whether the members and groups of every profile have the handles 1, 2, 3 and so on.
  bool is_identity() const;

 private:
  static Numbering of_device(const Device &device, void (NumberMap::*add)(uint32_t handle));

  bool by_handle_ = false;
  std::map<uint32_t, ProfileNumbers> profiles_;
};

}  // namespace tesselctl
