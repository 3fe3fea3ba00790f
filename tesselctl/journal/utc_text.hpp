// A time as people and programs read it: "2026-11-23T17:20:31.004Z".
#pragma once

#include <fmt/format.h>

#include <cstdint>
#include <ctime>
#include <string>

namespace tesselctl {

inline std::string utc_text(int64_t ms_since_1970) {
  const auto seconds = static_cast<time_t>(ms_since_1970 / 1000);
  tm parts = {};
  gmtime_r(&seconds, &parts);
  char text[32];
  const size_t size = strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &parts);
  return fmt::format("{}.{:03}Z", std::string_view(text, size), ms_since_1970 % 1000);
}

}  // namespace tesselctl
