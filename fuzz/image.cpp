// Any text as an image: what a device holds after a load, also after one that failed half way, is
// an image that makes another device the same, by load and by apply.
#include "fuzz/tool.hpp"

using namespace tesselctl;

void try_input(std::string_view input) {
  const MemoryFile file(input);
  Tool tool;
  tool.run("load @", file);
  const std::string saved = tool.image();
  const MemoryFile saved_file(saved);
  require(tool.run("diff @", saved_file), "a device equals its image");
  for (const char *command : {"load @", "apply @"}) {
    Tool other({.terse = true}, 1);
    require(other.run(command, saved_file), "a saved image loads and applies");
    require(other.image() == saved || *command == 'a', "a loaded image is saved again");
    require(other.run("diff @", saved_file), "what was loaded or applied is there");
  }
  tool.run("apply --atomic @", file);
}
