// Any text as an image: what a device holds after a load, also after one that failed half way, is
// an image that makes another device the same, by load and by apply.
#include "fuzz/tool.hpp"

using namespace tesselctl;

namespace {

void check_saved(Tool &tool, const std::string &saved) {
  const MemoryFile file(saved);
  require(tool.run("diff @", file), "a device equals its image");
  Tool loaded({.terse = true}, 1);
  require(loaded.run("load @", file), "a saved image loads");
  require(loaded.image() == saved, "a loaded image is saved again");
  Tool applied({.terse = true}, 2);
  require(applied.run("apply @", file), "a saved image is applied");
  require(applied.run("diff @", file), "what was applied is there");
}

}  // namespace

void try_input(std::string_view input) {
  const MemoryFile file(input);
  Tool tool;
  tool.run("load @", file);
  const std::string saved = tool.image();
  if (is_new(saved)) check_saved(tool, saved);
  tool.run("apply --atomic @", file);
}
