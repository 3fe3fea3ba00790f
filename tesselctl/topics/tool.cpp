// What the tool does itself. The functions here are reached where a line does not come from the
// tool that it was typed into: on a server, and in a script that is one transaction.
#include "tesselctl/command/topic.hpp"
#include "tesselctl/command/watch_line.hpp"

namespace tesselctl {

namespace {

void refuse_run(Context &, const Invocation &invocation) {
  need_argument(invocation, 0, "the name of a script");
  refuse_arguments_from(invocation, 1);
  throw Fault(invocation.command, "a script that is one transaction cannot run another one");
}

void refuse_watch(Context &, const Invocation &invocation) {
  std::vector<Word> words = {invocation.command};
  words.insert(words.end(), invocation.arguments.begin(), invocation.arguments.end());
  read_watch(words);
  throw Fault(invocation.command, "only the tool that the command is typed into can repeat it");
}

void refuse_serve(Context &, const Invocation &invocation) {
  refuse_arguments_from(invocation, 0);
  throw Fault(invocation.command, "a server is started as 'tesselctl --socket PATH serve'");
}

constexpr Command kCommands[] = {
    {.name = "run",
     .arguments = "FILE|-",
     .summary = "runs a script, one command a line, until a line has a fault",
     .run = refuse_run,
     .kind = Kind::changes,
     .flags = "--atomic --keep-going --from",
     .where = Where::tool},
    {.name = "serve",
     .arguments = "",
     .summary = "keeps a device that others work on with --socket, until a signal ends it",
     .run = refuse_serve,
     .where = Where::command_line},
    {.name = "watch",
     .arguments = "[SECONDS] [count=N] COMMAND...",
     .summary = "repeats a command that asks or lists, or age advance, every SECONDS (1)",
     .run = refuse_watch,
     .kind = Kind::lists,
     .flags = "--raw --delta",
     .where = Where::tool},
};

}  // namespace

extern const Topic kToolTopic = {"Scripts, servers and repetition", kCommands};

}  // namespace tesselctl
