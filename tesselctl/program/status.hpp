// Statuses of the library and the device in words.
#pragma once

#include <cstdint>
#include <string>

namespace tesselctl {

struct StatusWords {
  const char *name;  // "BF_TABLE_FULL"
  const char *text;  // "The table, profile, group or set has no room left."
};

StatusWords status_words(uint32_t status);
// "BF_TABLE_FULL (8): The table, profile, group or set has no room left."
std::string status_text(uint32_t status);
// "BF_TABLE_FULL (8)"
std::string status_name(uint32_t status);

}  // namespace tesselctl
