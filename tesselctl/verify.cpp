#include "tesselctl/verify.hpp"

#include <fmt/format.h>

#include "tesselctl/status.hpp"
#include "tesselctl/verify_parts.hpp"

namespace tesselctl {

void need(uint64_t status, const char *what, const char *object) {
  if (status == BF_SUCCESS) return;
  throw Fault(
      fmt::format("{} of {}: {}", what, object, status_text(static_cast<uint32_t>(status))));
}

const char *difference_text(Difference difference) {
  switch (difference) {
    case Difference::missing:
      return "missing";
    case Difference::different:
      return "different";
    default:
      return "extra";
  }
}

VerifyCounts verify(const Device &old_device, const Device &new_device,
                    const std::function<void(const Finding &)> &report) {
  Verification run = {old_device, new_device, report};
  for (const soft_table_t &table : program_rows<soft_table_t>()) verify_table(run, table);
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    verify_profile(run, profile);
  }
  return run.counts;
}

}  // namespace tesselctl
