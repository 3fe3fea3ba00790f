// The command line of tesselctl.
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <new>
#include <optional>

#include "tesselctl/command/command_help.hpp"
#include "tesselctl/command/flags.hpp"
#include "tesselctl/command/local_runner.hpp"
#include "tesselctl/command/manual.hpp"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/explain/path_file.hpp"
#include "tesselctl/journal/journal.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/module.hpp"
#include "tesselctl/server/client.hpp"
#include "tesselctl/server/serve.hpp"
#include "tesselctl/shell/history.hpp"
#include "tesselctl/shell/pager.hpp"
#include "tesselctl/shell/shell.hpp"
#include "tesselctl/shell/tool_completion.hpp"
#include "tesselctl/shell/tool_runner.hpp"
#include "tesselctl/state/image_file.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/interrupt.hpp"
#include "tesselctl/text/utf8.hpp"
#include "tesselctl/version.hpp"

namespace tesselctl {

namespace {

constexpr int kDone = 0;
constexpr int kFault = 1;
constexpr int kDiffers = 2;

bool wants_colour(const ToolSettings &settings, int fd) {
  const char *no_colour = std::getenv("NO_COLOR");
  const bool refused = settings.no_colour || (no_colour != nullptr && *no_colour != '\0');
  return !refused && isatty(fd) != 0;
}

// The program that the tool's own options name, or else the environment.
void load_program_of(const ToolSettings &settings) {
  const char *chosen = std::getenv("TESSELCTL_PROGRAM");
  if (!settings.program.empty() || chosen == nullptr || *chosen == '\0') {
    return load_program({{settings.program, settings.program_column}, settings.image});
  }
  try {
    load_program({{chosen, 1}, settings.image});
  } catch (const Fault &fault) {
    throw Fault("TESSELCTL_PROGRAM: " + fault.sentence());
  }
}

// The library is there when a program is.
std::string version_text(const ToolSettings &settings) {
  std::string library;
  try {
    load_program_of(settings);
    library =
        fmt::format("library libp4_pd_{}.so.{}\n", binding().program, binding().library_version);
  } catch (const Fault &) {
    if (!settings.program.empty()) throw;
  }
  return fmt::format("tesselctl {}\n{}contracts: C interface {}, JSON {}", kVersion, library,
                     kInterfaceVersion, kJsonVersion);
}

// Where a command line comes from and goes to.
struct Streams {
  explicit Streams(const ToolSettings &settings)
      : out(stdout, wants_colour(settings, STDOUT_FILENO)),
        errors(stderr, wants_colour(settings, STDERR_FILENO)) {}
  Output out;
  Output errors;
};

// The terminal whose lines can be drawn anew, -1 when the output is none.
int redrawn_terminal() {
  const char *term = std::getenv("TERM");
  const bool dumb = term == nullptr || std::string_view(term) == "dumb";
  return isatty(STDOUT_FILENO) != 0 && !dumb ? STDOUT_FILENO : -1;
}

ImageOptions image_of(const ToolSettings &settings) {
  return {.path = settings.image, .keep_pipes = settings.pipes_are_given};
}

// What runs command lines: a server, or a device that lives as long as this, or in an image.
class Session {
 public:
  // use: of the image, by all that will be run. goes_on: lines are typed as long as it lives.
  Session(const ToolSettings &settings, Streams &streams, ImageUse use, bool goes_on = false) {
    if (settings.socket.empty()) {
      load_program_of(settings);
      home_.emplace(settings.device, image_of(settings), use, streams.errors);
      auto local = std::make_unique<LocalRunner>(home_->device(), streams.out, streams.errors,
                                                 settings.lines);
      local_ = local.get();
      runner_ = std::move(local);
    } else {
      runner_ = std::make_unique<RemoteRunner>(settings.socket, streams.out, streams.errors,
                                               settings.lines);
    }
    const bool device_stays = goes_on || !settings.socket.empty() || !settings.image.empty();
    tool_.emplace(*runner_, streams.out, streams.errors, redrawn_terminal(), device_stays);
    if (!settings.no_pager) tool_->page_answers(pager_command());
    if (home_ && home_->may_be_old()) tool_->before_each([this] { home_->read_again(); });
    if (home_ && !settings.image.empty() && use == ImageUse::changes) {
      signals_.emplace({SIGINT, SIGTERM, SIGHUP, SIGPIPE}, take_signal);
    }
  }
  Runner &runner() { return *tool_; }
  // Runs something with the runner, and saves what it changed, whatever ended it.
  void run(const std::function<void(Runner &)> &run) {
    try {
      run(runner());
    } catch (...) {
      save_if_changed();
      throw;
    }
    save_if_changed();
    signals_.reset();
  }

 private:
  void save_if_changed() {
    const UninterruptedScope scope;
    if (local_ == nullptr || local_->changed() == Changed::no) return;
    if (local_->changed() == Changed::yes || home_->is_worth_saving()) home_->save();
  }

  // An image is saved behind them; with none they end the process.
  std::optional<SignalScope> signals_;
  std::optional<DeviceOfImage> home_;
  std::unique_ptr<Runner> runner_;
  LocalRunner *local_ = nullptr;
  std::optional<ToolRunner> tool_;
};

int exit_of(LineOutcome outcome) {
  if (outcome == LineOutcome::fault) return kFault;
  return outcome == LineOutcome::differs ? kDiffers : kDone;
}

int run_serve(const ToolSettings &settings) {
  if (settings.socket.empty()) throw Fault("serve needs --socket PATH");
  const std::string &journal = settings.journal.path;
  if (journal.empty() && !settings.journal.flag.empty()) {
    throw Fault(
        fmt::format("{} is for a journal: name its file by --journal", settings.journal.flag));
  }
  if (!journal.empty() && !settings.image.empty()) {
    throw Fault(
        "a journal keeps the device itself: leave out --image, and load it when it is served");
  }
  ToolSettings of_program = settings;
  if (!journal.empty()) of_program.image = checkpoint_of(journal);
  load_program_of(of_program);
  Streams streams(settings);
  serve({settings.device, settings.socket, image_of(settings), settings.http, settings.journal},
        streams.out, streams.errors);
  return kDone;
}

// Words as one line of ours.
std::string line_of(Words words) {
  std::string line;
  for (const Word &word : words) {
    if (!line.empty()) line += ' ';
    line += written(word);
  }
  return line;
}

int run_command(const ToolSettings &settings, const std::string &line,
                const std::vector<Word> &words) {
  Streams streams(settings);
  Session session(settings, streams, image_use(words));
  LineOutcome outcome = LineOutcome::done;
  session.run([&](Runner &runner) { outcome = runner.run({{}, 0, line}); });
  streams.out.flush();
  return exit_of(outcome);
}

int run_terminal(const ToolSettings &settings) {
  Streams streams(settings);
  Session session(settings, streams, ImageUse::changes, true);
  session.run([&](Runner &runner) {
    run_shell(runner, streams.out, {.history = settings.history.value_or(default_history_path())});
  });
  return kDone;
}

// What can stand at a point of the tool's own command line, on the device that this line names, or
// an empty one where there is none.
int run_completion(const ToolSettings &settings, const Invocation &invocation) {
  const std::string line = decode_line(need_argument(invocation, 0, "the line").text);
  const Options options(invocation, 1, {"cursor"});
  const auto cursor = static_cast<size_t>(options.number_or("cursor", line.size(), line.size()));
  Streams streams(settings);
  const auto ask = [&](const ToolSettings &named, std::string_view text, size_t at) {
    Session session(named, streams, ImageUse::reads);
    return read_completion(session.runner().ask(completion_request(text, at)));
  };
  const auto complete_line = [&](const ToolSettings &named, std::string_view text, size_t at) {
    try {
      return ask(named, text, at);
    } catch (const Fault &) {
      // Options that do not hold complete as on a new device.
      return ask({.program = named.program}, text, at);
    }
  };
  Results results(streams.out);
  results.begin(settings.lines, "complete", false);
  print_completion(complete_tool_line(settings, line, cursor, complete_line), results);
  results.end();
  streams.out.flush();
  return kDone;
}

int print_text(const Settings &settings, std::string_view command, const std::string &text) {
  Output out(stdout, false);
  Results results(out);
  results.begin(settings, command, false);
  results.text(text);
  results.end();
  out.flush();
  return kDone;
}

// The page lists what the tool has, so it needs no program.
int run_manual(const Settings &settings, const Invocation &invocation) {
  const Word path = need_argument(invocation, 0, "the template of the page");
  refuse_arguments_from(invocation, 1);
  std::string page = manual_page(read_input(std::string(path.text)));
  page.pop_back();  // the end of the last line
  return print_text(settings, "manual", page);
}

// The device of a server is what the server made it, and only a server answers HTTP.
void check_no_server(const ToolSettings &settings) {
  if (!settings.http.empty()) throw Fault("--http is for serve");
  if (!settings.journal.path.empty()) throw Fault("--journal is for serve");
  if (!settings.journal.flag.empty()) {
    throw Fault(fmt::format("{} is for serve", settings.journal.flag));
  }
  if (settings.socket.empty() || settings.device_flag.empty()) return;
  throw Fault(fmt::format("{} is for the server to choose", settings.device_flag));
}

// line has the words behind the tool's own options.
int run_words(ToolSettings &settings, const std::string &line) {
  std::vector<Word> words;
  split_words(line, words);
  std::vector<Word> plain = words;
  Settings of_line = settings.lines;
  const TakenFlags flags = take_flags(plain, of_line);
  if (plain.empty() && of_line.help) {
    return print_text(of_line, "--help", tool_help());
  }
  if (plain.empty() && isatty(STDIN_FILENO) != 0) {
    if (!words.empty()) throw Fault(words[0], "this option needs a command");
    check_no_server(settings);
    return run_terminal(settings);
  }
  if (plain.empty()) return run_words(settings, "run - " + line);
  Invocation invocation;
  const std::string_view first = plain[0].text;
  if (!of_line.help && (first == "serve" || first == "complete" || first == "manual")) {
    flags.check(find_command(plain, invocation));
    if (first == "manual") return run_manual(of_line, invocation);
    if (first == "complete") return run_completion(settings, invocation);
    refuse_arguments_from(invocation, 0);
    return run_serve(settings);
  }
  // Help needs no device.
  if (of_line.help) settings.image.clear(), settings.socket.clear();
  check_no_server(settings);
  return run_command(settings, line, words);
}

int run_tool(int argc, char **argv) {
  ToolSettings settings;
  std::vector<Word> words;
  size_t column = 1;
  for (int i = 1; i < argc; ++i) {
    words.push_back({argv[i], column});
    column += words.back().text.size() + 1;
  }
  const bool json = std::any_of(words.begin(), words.end(),
                                [](const Word &word) { return word.text == "--json"; });
  std::string line;
  try {
    // With the tool's own options as long as there may be a fault in them.
    line = line_of(words);
    take_tool_flags(words, settings);
    if (settings.lines.paths.empty()) settings.lines.paths = default_paths_file();
    line = line_of(words);
    if (!settings.version) return run_words(settings, line);
    if (!words.empty()) throw Fault({words[0].text, 1}, "nothing should stand here");
    return print_text(settings.lines, "--version", version_text(settings));
  } catch (const Fault &fault) {
    // What keeps a command from being run at all is an answer in JSON, too.
    settings.lines.json = json;
    Streams streams(settings);
    Results results(streams.out);
    results.begin(settings.lines, line, false);
    report_fault(fault, {}, results, settings.lines.json, streams.out, streams.errors);
    return kFault;
  }
}

}  // namespace

}  // namespace tesselctl

int main(int argc, char **argv) {
  // A file that may not grow is a fault of the command that writes it.
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return tesselctl::run_tool(argc, argv);
  } catch (const std::bad_alloc &) {
    std::fputs("tesselctl: there is no memory for this\n", stderr);
    return 1;
  } catch (const std::exception &error) {
    const auto *fault = dynamic_cast<const tesselctl::Fault *>(&error);
    const std::string text = fault != nullptr ? fault->sentence() : error.what();
    // The terminal may be gone.
    std::fputs(("tesselctl: " + tesselctl::printable(text) + "\n").c_str(), stderr);
    return 1;
  }
}
