// What the member-selector states hold of a device, on its way to another device.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "profile_shadow.hpp"

struct p4_pd_ms_state;

namespace soft {

// Of all states of the process: they are never given back.
class ShadowCopy {
 public:
  // May throw std::bad_alloc.
  ShadowCopy(uint8_t from, uint8_t to);

  // Puts the copies in the place of what the states hold of the other device. Once.
  void commit() noexcept;

 private:
  struct Copy {
    p4_pd_ms_state *state;
    std::map<uint8_t, ProfileShadow> shadow;  // one, or none when the state knows nothing
  };

  uint8_t to_;
  std::vector<Copy> copies_;
};

}  // namespace soft
