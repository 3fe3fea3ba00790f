// The command line of tesselctl.
#include <fmt/ranges.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <new>
#include <optional>

#include "tesselctl/client.hpp"
#include "tesselctl/command_help.hpp"
#include "tesselctl/files.hpp"
#include "tesselctl/history.hpp"
#include "tesselctl/image_file.hpp"
#include "tesselctl/library.hpp"
#include "tesselctl/script.hpp"
#include "tesselctl/serve.hpp"
#include "tesselctl/shell.hpp"
#include "tesselctl/utf8.hpp"
#include "tesselctl/version.hpp"
#include "tesselctl/watch.hpp"

namespace tesselctl {

namespace {

constexpr int kDone = 0;
constexpr int kFault = 1;
constexpr int kDiffers = 2;

struct Options {
  bool no_colour = false;
  DeviceOptions device;
  std::string socket;  // of the server that has the device; empty for a device of our own
  std::string image;   // where the device comes from and goes to
  Settings settings;
  ScriptOptions script;
  std::string script_file;
  ShellOptions shell = {.history = default_history_path()};
};

bool wants_colour(const Options &options, int fd) {
  const char *no_colour = std::getenv("NO_COLOR");
  const bool refused = options.no_colour || (no_colour != nullptr && *no_colour != '\0');
  return !refused && isatty(fd) != 0;
}

std::string version_text() {
  return fmt::format(
      "tesselctl {}\n"
      "library libp4_pd_{}.so.{}\n"
      "contracts: C interface {}, JSON {}",
      kVersion, program().name, kLibraryVersion, kInterfaceVersion, kJsonVersion);
}

// Where a command line comes from and goes to.
struct Streams {
  explicit Streams(const Options &options)
      : out(stdout, wants_colour(options, STDOUT_FILENO)),
        errors(stderr, wants_colour(options, STDERR_FILENO)) {}
  Output out;
  Output errors;
};

// The terminal whose lines can be drawn anew, -1 when the output is none.
int redrawn_terminal() {
  const char *term = std::getenv("TERM");
  const bool dumb = term == nullptr || std::string_view(term) == "dumb";
  return isatty(STDOUT_FILENO) != 0 && !dumb ? STDOUT_FILENO : -1;
}

// What runs command lines: a server, or a device that lives as long as this, or in an image.
class Session {
 public:
  Session(const Options &options, Streams &streams) : image_(options.image) {
    if (options.socket.empty()) {
      open_device(options, streams);
    } else {
      runner_ = std::make_unique<RemoteRunner>(options.socket, streams.out, streams.errors,
                                               options.settings);
    }
    watch_.emplace(*runner_, streams.out, options.settings, redrawn_terminal());
  }
  Runner &runner() { return *watch_; }
  // Call it when all is done.
  void save_if_changed() const {
    if (local_ != nullptr && !image_.empty() && local_->has_changed()) {
      save_image_file(*device_, image_);
    }
  }

 private:
  void open_device(const Options &options, Streams &streams) {
    device_.emplace(options.device);
    if (!image_.empty() && access(image_.c_str(), F_OK) == 0) {
      load_image_file(*device_, image_, image_);
    }
    auto local =
        std::make_unique<LocalRunner>(*device_, streams.out, streams.errors, options.settings);
    local_ = local.get();
    runner_ = std::move(local);
  }

  std::string image_;
  std::optional<Device> device_;
  std::unique_ptr<Runner> runner_;
  LocalRunner *local_ = nullptr;
  std::optional<WatchRunner> watch_;
};

int run_file(const Options &options) {
  Streams streams(options);
  const std::string text = read_input(options.script_file);
  const std::string name = options.script_file == "-" ? "standard input" : options.script_file;
  Session session(options, streams);
  const ScriptResult result = run_script(session.runner(), name, text, options.script);
  session.save_if_changed();
  if (!options.settings.json) {
    streams.out.line("{}: {} command{}, {} fault{}", name, result.commands,
                     result.commands == 1 ? "" : "s", result.faults, result.faults == 1 ? "" : "s");
  }
  streams.out.flush();
  if (result.faults != 0) return kFault;
  return result.differs ? kDiffers : kDone;
}

int run_serve(const Options &options) {
  if (options.socket.empty()) throw Fault("serve needs --socket PATH");
  Streams streams(options);
  serve({options.device, options.socket, options.image}, streams.out);
  return kDone;
}

// The words of the shell that called, as one line of ours.
std::string line_of(const std::vector<std::string> &words) {
  std::string line;
  for (const std::string &word : words) {
    if (!line.empty()) line += ' ';
    const bool plain = !word.empty() && word.find_first_of(" \t\r\v\f#") == std::string::npos;
    if (!plain && word.find('"') != std::string::npos) {
      throw Fault(word + ": a word with blanks cannot hold quotes");
    }
    line += plain ? word : '"' + word + '"';
  }
  return line;
}

int run_one(const Options &options, const std::vector<std::string> &words) {
  Streams streams(options);
  Session session(options, streams);
  const std::string line = line_of(words);
  const LineOutcome outcome = session.runner().run({{}, 0, line});
  session.save_if_changed();
  streams.out.flush();
  if (outcome == LineOutcome::fault) return kFault;
  return outcome == LineOutcome::differs ? kDiffers : kDone;
}

// Without a command: a shell on a terminal, a script otherwise.
int run_input(Options &options) {
  if (isatty(STDIN_FILENO) == 0) {
    options.script_file = "-";
    return run_file(options);
  }
  Streams streams(options);
  Session session(options, streams);
  run_shell(session.runner(), streams.out, options.shell);
  session.save_if_changed();
  return kDone;
}

void add_subcommands(CLI::App &app, Options &options) {
  CLI::App *run = app.add_subcommand("run", "Runs a script of commands");
  run->add_option("FILE", options.script_file, "the script, or - for standard input")->required();
  run->add_flag("-k,--keep-going", options.script.keep_going, "go on behind a line with a fault");

  app.add_subcommand("serve", "Keeps a soft device that others work on, until it is told to end");
}

void add_options(CLI::App &app, Options &options) {
  app.set_version_flag("--version", version_text);
  app.add_option("--device", options.device.id, "id of the device")
      ->check(CLI::Range(0, 255))
      ->capture_default_str();
  app.add_option("--pipes", options.device.pipes,
                 "pipes of the device; those of the image if it has some")
      ->check(CLI::Range(1, 8))
      ->capture_default_str();
  app.add_option("--socket", options.socket, "work on the device of the server that listens there");
  app.add_option("--image", options.image,
                 "file that the device comes from, if there is one, and goes to when it changed");
  app.add_flag("--json", options.settings.json, "answer in JSON, a line for every command");
  app.add_flag("--terse", options.settings.terse, "answer with one row a line, without columns");
  app.add_flag("-v,--verbose", options.settings.verbose, "tell what each command changed");
  app.add_flag("--trace", options.settings.trace, "print the C calls behind the commands");
  app.add_option("--history", options.shell.history, "file of the shell's history")
      ->type_name("FILE");
  app.add_flag("--no-color", options.no_colour, "never print in colour (also: NO_COLOR)");
}

// The device of a server is what the server made it.
void check_socket(const CLI::App &app, const Options &options) {
  if (options.socket.empty() || app.got_subcommand("serve")) return;
  for (const char *name : {"--device", "--pipes", "--image"}) {
    if (app.count(name) > 0) throw Fault(fmt::format("{} is for the server to choose", name));
  }
}

int run_parsed(const CLI::App &app, Options &options) {
  check_socket(app, options);
  if (!options.image.empty() && app.count("--pipes") == 0) {
    options.device.pipes = pipes_of_image_file(options.image).value_or(options.device.pipes);
  }
  if (app.got_subcommand("serve")) return run_serve(options);
  if (app.got_subcommand("run")) return run_file(options);
  if (app.remaining().empty()) return run_input(options);
  return run_one(options, app.remaining());
}

// What keeps a command from being run at all is told as JSON, too.
void report_as_json(const Fault &fault, const Options &options,
                    const std::vector<std::string> &words) {
  Output out(stdout, false);
  Results results(out);
  results.begin(options.settings, fmt::format("{}", fmt::join(words, " ")), false);
  results.fail(fault, {}, 0);
  out.flush();
}

int exit_of(const CLI::App &app, const CLI::ParseError &error) {
  const bool good = app.exit(error) == 0;
  if (!std::cout.flush()) throw Fault("cannot write the output");
  return good ? kDone : kFault;
}

int run_tool(int argc, char **argv) {
  Options options;
  CLI::App app("Works on the tables of the tessel_switch program, in a soft device", "tesselctl");
  app.require_subcommand(0, 1);
  app.fallthrough();
  app.prefix_command();
  app.footer(command_help);
  add_options(app, options);
  add_subcommands(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError &error) {
    return exit_of(app, error);
  }
  try {
    return run_parsed(app, options);
  } catch (const Fault &fault) {
    if (!options.settings.json) throw;
    report_as_json(fault, options, app.remaining());
    return kFault;
  }
}

}  // namespace

}  // namespace tesselctl

int main(int argc, char **argv) {
  try {
    return tesselctl::run_tool(argc, argv);
  } catch (const std::bad_alloc &) {
    fmt::print(stderr, "tesselctl: there is no memory for this\n");
    return 1;
  } catch (const std::exception &error) {
    const auto *fault = dynamic_cast<const tesselctl::Fault *>(&error);
    const std::string text = fault != nullptr ? fault->sentence() : error.what();
    fmt::print(stderr, "tesselctl: {}\n", tesselctl::printable(text));
    return 1;
  }
}
