// Whether a device holds the state of another one: for a switch that was upgraded without loss, the
// virtual device with its old state against the new device.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "soft_placement.h"
#include "tesselctl/device/device.hpp"
#include "tesselctl/device/table_info.hpp"

namespace tesselctl {

enum class Difference : uint8_t {
  missing,    // the new device lacks it
  different,  // both have it
  extra       // only the new device has it
};
const char *difference_text(Difference difference);

// What is compared. Entries are the same entry when their keys are (and priorities, in a ternary
// table), default entries when they are of the same pipe; members and groups go by handle.
enum class Compared : uint8_t { entry, default_entry, member, group, membership };

struct Finding {
  Difference difference;
  Compared what;
  const char *object;   // name of the table or profile
  uint32_t old_handle;  // of the entry, member or group; 0 where a side has none
  uint32_t new_handle;
  // As value strings, empty where a side has none: "(( 0x0012,),('setMbrHdl',(0x5,)))" of an entry,
  // "('setEcmpNextHop',(0x0012,))," of a member. Groups and memberships are named as images do:
  // "group=#3", "group=#3 member=#7(inactive)".
  std::string old_text;
  std::string new_text;
};

struct VerifyCounts {
  uint64_t entries = 0;  // of the old device, as all but the last
  uint64_t default_entries = 0;
  uint64_t members = 0;
  uint64_t groups = 0;
  uint64_t memberships = 0;
  uint64_t differences = 0;

  uint64_t compared() const { return entries + default_entries + members + groups + memberships; }
};

// Walks the placement data of every table, default entry and profile member of the old device and
// the memberships of its groups, and compares each with what the new device holds: action and
// parameters, or the member or group that an entry points at. Times to live, meters, counters and
// the contents of registers are not looked at. Differences are reported as they are met, table by
// table and then profile by profile, so memory does not grow with the devices. Nobody may change
// either device meanwhile. Throws Fault when one cannot be read.
VerifyCounts verify(const Device &old_device, const Device &new_device,
                    const std::function<void(const Finding &)> &report);

// ---- Its parts ----

// Both sides of a verification, and where its results go.
struct Verification {
  const Device &old_device;
  const Device &new_device;
  const std::function<void(const Finding &)> &report;
  VerifyCounts counts = {};

  void find(Finding finding) {
    ++counts.differences;
    report(finding);
  }
};

// The value string of placement data by a function that writes one; empty when they cannot be
// decoded.
std::string value_of(const bindings::Export &function, const pipe_mgr_placement_t *placement);

void verify_table(Verification &run, const TableInfo &table);
void verify_profile(Verification &run, const soft_profile_t &profile);

// Placement data, made anew in the same memory for one object after the other.
class Placement {
 public:
  Placement() = default;
  ~Placement() { soft_placement_free(object_); }
  Placement(const Placement &) = delete;
  Placement &operator=(const Placement &) = delete;

  // Both throw Fault.
  const pipe_mgr_placement_t *of_entry(const Device &device, const TableInfo &table,
                                       uint32_t entry);
  const pipe_mgr_placement_t *of_member(const Device &device, const soft_profile_t &profile,
                                        uint32_t member);

 private:
  pipe_mgr_placement_t *object_ = nullptr;
};

}  // namespace tesselctl
