// What the two halves of a verification share.
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "soft_placement.h"
#include "soft_sdk.h"
#include "tesselctl/library.hpp"
#include "tesselctl/verify.hpp"

namespace tesselctl {

// Both sides of a verification, and where its results go.
struct Verification {
  const Device &old_device;
  const Device &new_device;
  const std::function<void(const Finding &)> &report;
  VerifyCounts counts = {};
};

void verify_table(Verification &run, const soft_table_t &table);
void verify_profile(Verification &run, const soft_profile_t &profile);

// Throws Fault "WHAT of OBJECT: status" unless the status is BF_SUCCESS.
void need(uint64_t status, const char *what, const char *object);

inline uint8_t short_id(const Device &device) { return static_cast<uint8_t>(device.id()); }

// Runs visit(handle) along an enumeration: first(&handle), then next(handle, count, handles).
template <class First, class Next, class Visit>
void walk(const char *object, First first, Next next, Visit visit) {
  uint32_t last = 0;
  uint64_t status = first(&last);
  if (status == BF_SUCCESS) visit(last);
  while (status == BF_SUCCESS) {
    std::array<uint32_t, 256> batch;
    status = next(last, static_cast<uint32_t>(batch.size()), batch.data());
    if (status != BF_SUCCESS) break;
    for (const uint32_t handle : batch) {
      if (handle == 0xffffffffu) return;
      visit(handle);
    }
    last = batch.back();
  }
  if (status != BF_OBJECT_NOT_FOUND) need(status, "walking the handles", object);
}

// Placement data, made anew in the same memory for one object after the other.
class Placement {
 public:
  Placement() = default;
  ~Placement() { soft_placement_free(object_); }
  Placement(const Placement &) = delete;
  Placement &operator=(const Placement &) = delete;

  const pipe_mgr_placement_t *of_entry(const Device &device, const soft_table_t &table,
                                       uint32_t entry) {
    need(soft_placement_of_entry(device.id(), table.handle, entry, &object_), "an entry",
         table.name);
    return object_;
  }
  const pipe_mgr_placement_t *of_member(const Device &device, const soft_profile_t &profile,
                                        uint32_t member) {
    need(soft_placement_of_member(device.id(), profile.action_data_table, member, &object_),
         "a member", profile.name);
    return object_;
  }

 private:
  pipe_mgr_placement_t *object_ = nullptr;
};

}  // namespace tesselctl
