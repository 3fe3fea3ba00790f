// Any text as a script: every line answers or is a fault, and its JSON is JSON.
#include "tesselctl/command/script.hpp"
#include "fuzz/tool.hpp"

using namespace tesselctl;

void try_input(std::string_view input) {
  static const Settings kSettings[] = {
      {}, {.verbose = true, .trace = true}, {.terse = true}, {.json = true}};
  const Settings &settings = kSettings[input.size() % std::size(kSettings)];
  Tool tool(settings);
  const LineSource lines = lines_of(input);
  const auto next = [&](std::string_view &line) {
    bool is_there = lines(line);
    while (is_there && uses_files(line)) is_there = lines(line);
    return is_there;
  };
  run_script(tool.runner, "input", next, {.keep_going = true});
  if (settings.json) require_json_lines(tool.out.take());
}
