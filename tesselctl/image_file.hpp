#pragma once

#include <optional>
#include <string>

#include "tesselctl/image.hpp"

namespace tesselctl {

// The image of the device replaces the file, whole or not at all. The number of bytes. Throws
// Fault.
uint64_t save_image_file(const Device &device, const std::string &path);
// Adds what the file holds to the device; faults name it as shown. See load_image.
LoadCounts load_image_file(const Device &device, const std::string &path, std::string_view shown);
// The pipes of the device that was saved to the file; nothing when that cannot be told.
std::optional<uint32_t> pipes_of_image_file(const std::string &path);

}  // namespace tesselctl
