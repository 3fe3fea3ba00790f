// The states of the member-selector helper, which shadow a profile on every device.
#pragma once

#include <map>
#include <mutex>
#include <vector>

#include "profiles/profile_shadow.hpp"

struct p4_pd_ms_state {
  std::mutex mutex;
  std::map<uint8_t, soft::ProfileShadow> devices;  // those that something was recorded for
};

namespace soft {

// May throw std::bad_alloc.
p4_pd_ms_state_t *new_shadow_state();

// What the states hold of one device, to be held of another one.
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
