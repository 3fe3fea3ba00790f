// Any bytes as calls of the functions of the library, one after the other. Whatever they did, a
// copy of the device and an image of it hold the same.
#include "fuzz/arguments.hpp"
#include "tesselctl/device/device_copy.hpp"

using namespace tesselctl;

namespace {

// Replays need two devices at rest, the other ones end or begin the library.
bool is_left_out(std::string_view family) {
  return family == "init" || family == "cleanup" || family.find("restore") != family.npos ||
         family.starts_with("client_");
}

std::vector<const bindings::Export *> callable() {
  std::vector<const bindings::Export *> found;
  for_each_export([&](const bindings::Export &one) {
    if (!is_left_out(one.family)) found.push_back(&one);
  });
  return found;
}

}  // namespace

void try_input(std::string_view input) {
  static const std::vector<const bindings::Export *> kExports = callable();
  const bool is_left_open = input.size() % 8 != 0;
  Tool tool;
  Caller caller(tool.device);
  while (!input.empty()) caller.run(*kExports[take_number(input, 2) % kExports.size()], input);
  // Most of the time would be spent on images.
  if (is_left_open) return;
  const std::string image = tool.image();
  require(image_of(*copy_of(tool.device)) == image, "a copy holds what the device holds");
  if (!is_new(image)) return;
  Tool other({.terse = true}, 1);
  // Records may hold more bits than their fields have, which an image does not.
  if (!other.run("load @", MemoryFile(image))) return;
  require(other.image() == image, "an image that loads holds what the device holds");
}
