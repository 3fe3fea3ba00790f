// An action with its parameters, as functions of the library read it back.
#pragma once

#include <cstring>

#include "tesselctl/program/library.hpp"

namespace tesselctl {

class ActionSpecs {
 public:
  ActionSpecs() : bytes_(binding().sizes.action_specs) {}

  // The whole record; the enumeration value of the action is its first member.
  void *data() { return bytes_.data(); }
  uint32_t action() const {
    uint32_t value = 0;
    memcpy(&value, bytes_.data(), sizeof value);
    return value;
  }
  uint8_t *parameters() { return bytes_.data() + binding().sizes.action_spec; }
  const uint8_t *parameters() const { return bytes_.data() + binding().sizes.action_spec; }

 private:
  std::vector<uint8_t> bytes_;
};

}  // namespace tesselctl
