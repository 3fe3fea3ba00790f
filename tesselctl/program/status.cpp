#include "tesselctl/program/status.hpp"

#include <fmt/format.h>

#include "p4_pd_types.h"
#include "soft_sdk.h"

namespace tesselctl {

StatusWords status_words(uint32_t status) {
  // Below the first number that the library has alone the device's words serve for both.
  const p4_pd_status_info_t library = p4_pd_describe_status(status);
  if (status >= P4_PD_NULL_ARGUMENT && library.name != nullptr) return {library.name, library.text};
  return {soft_status_name(status), soft_status_text(status)};
}

std::string status_name(uint32_t status) {
  return fmt::format("{} ({})", status_words(status).name, static_cast<int32_t>(status));
}

std::string status_text(uint32_t status) {
  return status_name(status) + ": " + status_words(status).text;
}

}  // namespace tesselctl
