#include "tesselctl/image_file.hpp"

#include <unistd.h>

#include "tesselctl/files.hpp"
#include "tesselctl/interrupt.hpp"
#include "tesselctl/number.hpp"

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

std::optional<uint32_t> pipes_of_image_file(const std::string &path) {
  constexpr std::string_view kKeyword = "pipes ";
  if (access(path.c_str(), R_OK) != 0 || is_no_regular_file(path)) return {};
  FileLines lines{path};
  std::string_view line;
  if (!lines.next(line) || !lines.next(line) || !line.starts_with(kKeyword)) return {};
  const std::optional<Number> pipes = parse_number(line.substr(kKeyword.size()));
  if (!pipes || pipes->high != 0 || pipes->low < 1 || pipes->low > 8) return {};
  return static_cast<uint32_t>(pipes->low);
}

}  // namespace tesselctl
