#include "tesselctl/program/status.hpp"

#include <fmt/format.h>

#include "p4_pd_types.h"
#include "soft_sdk.h"

namespace tesselctl {

namespace {

// Below the first number that the library has alone the device's words serve for both.
p4_pd_status_info_t words_of(uint32_t status) {
  const p4_pd_status_info_t library = p4_pd_describe_status(status);
  if (status >= P4_PD_NULL_ARGUMENT && library.name != nullptr) return library;
  return {status, soft_status_name(status), soft_status_text(status)};
}

}  // namespace

std::string status_name(uint32_t status) {
  return fmt::format("{} ({})", words_of(status).name, static_cast<int32_t>(status));
}

std::string status_text(uint32_t status) {
  return status_name(status) + ": " + words_of(status).text;
}

}  // namespace tesselctl
