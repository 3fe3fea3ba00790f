// Route files.
#include <unistd.h>

#include "tesselctl/command/command.hpp"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/kinds/routes.hpp"

namespace tesselctl {

namespace {

void routes(Context &context, const Invocation &invocation) {
  RoutesOptions options;
  size_t files = 0;
  for (const Word &word : invocation.arguments) {
    if (word.text.find('=') != std::string_view::npos) break;
    options.files.push_back(context.path(word));
    ++files;
  }
  need_argument(invocation, 0, "the name of a file");
  if (files == 0) throw Fault(invocation.arguments[0], "the name of a file should stand here");
  const Options words(invocation, files, {"vrf", "nexthop"});
  const RouteLimits limits = route_limits();
  options.vrf = words.number_or("vrf", limits.vrf, 0);
  options.nexthop = static_cast<uint16_t>(words.number_or("nexthop", limits.nexthop, 1));
  options.progress = context.out.is_stream() && isatty(STDERR_FILENO) != 0;
  Output report;
  Output errors;
  const bool good = load_routes(context.device, options, report, errors);
  context.results.text(report.take());
  const std::string faults = errors.take();
  if (!good) throw Fault("not every route could be loaded:\n" + faults);
}

constexpr Command kCommands[] = {
    {"routes", "FILE... [vrf=N] [nexthop=N]",
     "loads files of lines 'prefix[ nexthop]', plain or .xz, and finds every route again", routes,
     Kind::changes},
};

}  // namespace

extern const Topic kRoutesTopic = {"Routes", kCommands};

}  // namespace tesselctl
