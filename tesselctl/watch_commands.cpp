#include "tesselctl/watch.hpp"

namespace tesselctl {

namespace {

// Only reached where no WatchRunner stands before: whoever runs it would be held up by it.
void refuse_watch(Context &, const Invocation &invocation) {
  read_watch(invocation.arguments);
  throw Fault(invocation.command, "only the tool that the command is typed into can repeat it");
}

constexpr Command kCommands[] = {
    {"watch", "[SECONDS] [count=N] COMMAND...",
     "repeats a command that asks or lists, or age advance, every SECONDS (1)", refuse_watch,
     Kind::lists, "--raw"},
};

}  // namespace

std::span<const Command> watch_commands() { return kCommands; }

}  // namespace tesselctl
