// Completion of the command line that starts the tool, for the shells that call it.
#pragma once

#include <functional>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/completion/completion.hpp"

namespace tesselctl {

// Completes a line of commands on the device that the settings name.
using LineCompleter =
    std::function<Completion(const ToolSettings &settings, std::string_view line, size_t cursor)>;

// The line is that behind the name of the tool. Its own options are completed here and, on top of
// the settings, say which device the others are completed on.
Completion complete_tool_line(const ToolSettings &settings, std::string line, size_t cursor,
                              const LineCompleter &complete_line);

}  // namespace tesselctl
