#include "tesselctl/image_file.hpp"

#include "tesselctl/files.hpp"
#include "tesselctl/interrupt.hpp"

namespace tesselctl {

uint64_t save_image_file(const Device &device, const std::string &path) {
  FileWriter file{path};
  uint64_t bytes = 0;
  save_image(device, [&](std::string_view text) {
    check_interrupt();
    file.write(text);
    bytes += text.size();
  });
  file.commit();
  return bytes;
}

LoadCounts load_image_file(const Device &device, const std::string &path, std::string_view shown) {
  FileLines lines{path};
  return load_image(device, shown, [&](std::string_view &line) { return lines.next(line); });
}

}  // namespace tesselctl
