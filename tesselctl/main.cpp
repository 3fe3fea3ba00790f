// The command line of tesselctl.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cstdlib>

#include "tesselctl/input_file.hpp"
#include "tesselctl/library.hpp"
#include "tesselctl/routes.hpp"
#include "tesselctl/script.hpp"
#include "tesselctl/version.hpp"

namespace tesselctl {

namespace {

constexpr int kDone = 0;
constexpr int kFault = 1;

struct Options {
  bool no_colour = false;
  DeviceOptions device;
  ScriptOptions script;
  bool verbose = false;
  std::string script_file;
  RoutesOptions routes;
};

bool wants_colour(const Options &options, int fd) {
  const char *no_colour = std::getenv("NO_COLOR");
  const bool refused = options.no_colour || (no_colour != nullptr && *no_colour != '\0');
  return !refused && isatty(fd) != 0;
}

std::string version_text() {
  return fmt::format("tesselctl {} (program {}, C interface {})", kVersion, program().name,
                     kInterfaceVersion);
}

// The commands of scripts, for the end of the help.
std::string command_help() {
  std::string text = "Commands of a script, one a line:\n";
  for (const std::span<const Command> topic : command_topics()) {
    for (const Command &command : topic) {
      text += fmt::format("  {} {}\n      {}\n", command.name, command.arguments, command.summary);
    }
  }
  return text +
         "OUTCOME is action=NAME [PARAM=VALUE...], or member=HANDLE or group=HANDLE for a table\n"
         "that is bound to a profile. $NAME stands for a handle that as=NAME remembered.";
}

void add_device_options(CLI::App &command, Options &options) {
  command.add_option("--device", options.device.id, "id of the device")
      ->check(CLI::Range(0, 255))
      ->capture_default_str();
  command.add_option("--pipes", options.device.pipes, "pipes of the device")
      ->check(CLI::Range(1, 8))
      ->capture_default_str();
}

int run_file(const Options &options) {
  Output out(stdout, wants_colour(options, STDOUT_FILENO));
  Output errors(stderr, wants_colour(options, STDERR_FILENO));
  const std::string text = read_input(options.script_file);
  const std::string name = options.script_file == "-" ? "standard input" : options.script_file;
  Device device(options.device);
  Context context = {.device = device, .out = out, .verbose = options.verbose};
  const ScriptResult result = run_script(context, name, text, options.script, errors);
  out.line("{}: {} command{}, {} fault{}", name, result.commands, result.commands == 1 ? "" : "s",
           result.faults, result.faults == 1 ? "" : "s");
  return result.faults == 0 ? kDone : kFault;
}

int run_routes(const Options &options) {
  Output out(stdout, wants_colour(options, STDOUT_FILENO));
  Output errors(stderr, wants_colour(options, STDERR_FILENO));
  RoutesOptions routes = options.routes;
  routes.progress = isatty(STDERR_FILENO) != 0;
  const Device device(options.device);
  return load_routes(device, routes, out, errors) ? kDone : kFault;
}

void add_commands(CLI::App &app, Options &options) {
  CLI::App *run = app.add_subcommand("run", "Runs a script of commands on a new soft device");
  run->add_option("FILE", options.script_file, "the script, or - for standard input")->required();
  run->add_flag("-k,--keep-going", options.script.keep_going, "go on behind a line with a fault");
  run->add_flag("-v,--verbose", options.verbose, "tell what each command changed");
  run->footer(command_help);
  add_device_options(*run, options);

  CLI::App *routes =
      app.add_subcommand("routes", "Loads route files into a new soft device and verifies them");
  routes->add_option("FILE", options.routes.files, "lines 'prefix[ nexthop]', plain or .xz")
      ->required();
  routes->add_option("--vrf", options.routes.vrf, "VRF that the routes go to")
      ->check(CLI::Range(0, 255))
      ->capture_default_str();
  routes->add_option("--nexthop", options.routes.nexthop, "next hop of lines without one")
      ->check(CLI::Range(0, 16383))
      ->capture_default_str();
  add_device_options(*routes, options);
}

int run_tool(int argc, char **argv) {
  Options options;
  CLI::App app("Works on the tables of the tessel_switch program, in a soft device", "tesselctl");
  app.require_subcommand(1);
  app.fallthrough();
  app.set_version_flag("--version", version_text);
  app.add_flag("--no-color", options.no_colour, "never print in colour (also: NO_COLOR)");
  add_commands(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    return app.exit(error) == 0 ? kDone : kFault;
  }
  return app.got_subcommand("run") ? run_file(options) : run_routes(options);
}

}  // namespace

}  // namespace tesselctl

int main(int argc, char **argv) {
  try {
    return tesselctl::run_tool(argc, argv);
  } catch (const std::exception &error) {
    fmt::print(stderr, "tesselctl: {}\n", error.what());
    return 1;
  }
}
