// Any text as a file of many entries: access rules, routes, named paths through tables. What is
// refused as a whole leaves the device as it was, and what was added is an image that loads. The
// first byte chooses.
#include "fuzz/tool.hpp"
#include "tesselctl/explain/path_file.hpp"

using namespace tesselctl;

void try_input(std::string_view input) {
  static constexpr const char *kCommands[] = {
      "acl --atomic @",           "acl @", "acl --replace @ priority=4294967290", "routes @",
      "routes @ --replace vrf=3", "paths"};
  const size_t chosen = take_number(input, 1) % std::size(kCommands);
  std::string command = kCommands[chosen];
  if (chosen < 3) command += " action=setFirewallPolicyDrop counterIndex=3 log=1 meterDrop=0";
  const MemoryFile file(input);
  if (command == "paths") {
    Tool tool({.json = true, .paths = file.path()});
    tool.runner.run({"input", 1, command});
    tool.runner.run({"input", 2, "explain routed dip=10.0.20.5 ingressPort=1"});
    return require_json_lines(tool.out.take());
  }
  Tool tool;
  // Most of the time would be spent on images.
  const bool is_compared = input.size() % 8 == 0;
  const std::string before = is_compared ? tool.image() : std::string();
  const bool is_done = tool.run(command, file);
  if (!is_compared) return;
  const std::string after = tool.image();
  require(is_done || chosen != 0 || after == before, "a fault leaves the device as it was");
  if (!is_new(after)) return;
  Tool other({.terse = true}, 1);
  require(other.run("load @", MemoryFile(after)) && other.image() == after, "an image loads");
}
