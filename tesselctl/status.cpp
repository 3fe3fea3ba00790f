#include "tesselctl/status.hpp"

#include <fmt/format.h>

#include "p4_pd_types.h"
#include "soft_sdk.h"

namespace tesselctl {

namespace {

struct LibraryStatus {
  uint32_t code;
  const char *name;
  const char *text;
};

// Numbers 2, 3, 6 and 15 are the device's as well; its name and sentence serve for them.
constexpr LibraryStatus kLibraryStatuses[] = {
    {P4_PD_NULL_ARGUMENT, "P4_PD_NULL_ARGUMENT", "A mandatory pointer is null."},
    {P4_PD_METER_SPEC_MISSING, "P4_PD_METER_SPEC_MISSING",
     "The table's direct meter needs a meter spec on add."},
    {P4_PD_METER_TYPE_REFUSED, "P4_PD_METER_TYPE_REFUSED",
     "The meter type is unknown, or colour-aware for a meter without a pre-colour."},
    {P4_PD_MEMBER_STATE_REFUSED, "P4_PD_MEMBER_STATE_REFUSED",
     "The member state is neither active nor inactive."},
    {P4_PD_DRIVER_REFUSED, "P4_PD_DRIVER_REFUSED",
     "The driver framework refused the registration of the client."},
    {P4_PD_UNKNOWN_HANDLE, "P4_PD_UNKNOWN_HANDLE",
     "No table or profile of the program has this handle."},
    {static_cast<uint32_t>(P4_PD_MEMBER_KEEPS_ACTION), "P4_PD_MEMBER_KEEPS_ACTION",
     "The member has another action, which it keeps for life."},
};

}  // namespace

namespace {

LibraryStatus status_row(uint32_t status) {
  for (const LibraryStatus &known : kLibraryStatuses) {
    if (known.code == status) return known;
  }
  return {status, soft_status_name(status), soft_status_text(status)};
}

}  // namespace

std::string status_name(uint32_t status) {
  return fmt::format("{} ({})", status_row(status).name, static_cast<int32_t>(status));
}

std::string status_text(uint32_t status) {
  return status_name(status) + ": " + status_row(status).text;
}

}  // namespace tesselctl
