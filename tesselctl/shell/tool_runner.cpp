#include "tesselctl/shell/tool_runner.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/command/script.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/command/watch_line.hpp"
#include "tesselctl/shell/pager.hpp"
#include "tesselctl/shell/watch.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

namespace {

constexpr unsigned kDeepest = 16;

// While it lives, the lines of a script run, with settings of their own.
class ScriptScope {
 public:
  ScriptScope(Settings &settings, const Settings &of_lines, std::vector<RunningScript> &running,
              const RunningScript &script)
      : settings_(settings), before_(std::exchange(settings, of_lines)), running_(running) {
    running_.push_back(script);
  }
  ~ScriptScope() {
    settings_ = std::move(before_);
    running_.pop_back();
  }
  ScriptScope(const ScriptScope &) = delete;
  ScriptScope &operator=(const ScriptScope &) = delete;

 private:
  Settings &settings_;
  Settings before_;
  std::vector<RunningScript> &running_;
};

// While it lives, the runner tries lines on a copy of the device.
class TrialScope {
 public:
  TrialScope(Runner &runner, size_t &trials) : runner_(runner), trials_(trials) {
    runner_.begin_trial();
    ++trials_;
  }
  ~TrialScope() {
    --trials_;
    try {
      runner_.end_trial();
    } catch (const Fault &) {
      // The server that had the copy is gone.
    }
  }
  TrialScope(const TrialScope &) = delete;
  TrialScope &operator=(const TrialScope &) = delete;

 private:
  Runner &runner_;
  size_t &trials_;
};

// The command of the line in its place, with blanks for the words of watch before it and its own
// option, so that the columns of faults stay true.
std::string watched_line(std::string_view line, Words words, const TakenFlags &flags,
                         const Watch &watch) {
  std::string text(line);
  const auto blank = [&](const Word &word) {
    text.replace(word.column - 1, word.text.size(), word.text.size(), ' ');
  };
  std::ranges::for_each(words.first(watch.first), blank);
  for (const Word &word : flags.words) {
    if (word.text == "--delta") blank(word);
  }
  return text;
}

void check_run(Words words, const TakenFlags &flags) {
  Invocation invocation;
  flags.check(find_command(words, invocation));
  need_argument(invocation, 0, "the name of a script");
  refuse_arguments_from(invocation, 1);
}

}  // namespace

LineOutcome ToolRunner::run(const SourceLine &source) {
  Settings settings = runner_->defaults();
  std::vector<Word> words;
  std::string_view first;
  std::string line;
  Watch watch;
  bool paged = false;
  try {
    split_words(source.text, words);
    const TakenFlags flags = take_flags(words, settings);
    if (!words.empty() && !settings.help) first = words[0].text;
    if (first == "watch") {
      watch = read_watch(words);
      watch.delta = settings.delta;
      line = watched_line(source.text, words, flags, watch);
    } else if (first == "run") {
      check_run(words, flags);
    } else if (first != "monitor") {
      paged = is_paged(words);
    }
  } catch (const Fault &) {
    // The runner finds the same fault, and reports it as it reports all.
    return runner_->run(source);
  }
  if (first == "monitor") return run_monitor(source);
  if (first == "watch") {
    return WatchRounds(*runner_, *out_, settings.json ? -1 : terminal_, prepare_)
        .run(watch, {source.file, source.line, line}, settings.json);
  }
  if (first != "run") return paged ? run_paged(source) : runner_->run(source);
  try {
    return run_file(words[1], settings);
  } catch (const Fault &fault) {
    Results results(*out_);
    results.begin(settings, source.text, false);
    report_fault(fault, source, results, settings.json, *out_, *errors_);
    return LineOutcome::fault;
  }
}

LineOutcome ToolRunner::run_monitor(const SourceLine &source) {
  const InterruptibleScope scope;
  return runner_->run(source);
}

// What changes the device is not: one who leaves the pager ends the command.
bool ToolRunner::is_paged(Words words) const {
  if (pager_.empty() || terminal_ < 0 || words.empty() || !running_.empty()) return false;
  Invocation invocation;
  return find_command(words, invocation).kind != Kind::changes;
}

LineOutcome ToolRunner::run_paged(const SourceLine &source) {
  PagedAnswer answer(pager_, terminal_, *out_, *errors_);
  LineOutcome outcome = LineOutcome::fault;
  try {
    outcome = runner_->run(source);
  } catch (...) {
    answer.finish();
    throw;
  }
  const PagedAnswer::End end = answer.finish();
  if (end == PagedAnswer::End::no_pager) return LineOutcome::fault;
  return end == PagedAnswer::End::left_early ? LineOutcome::done : outcome;
}

LineOutcome ToolRunner::run_file(Word file, const Settings &settings) {
  const std::string path(file.text);
  if (std::ranges::find(running_, path, &RunningScript::path) != running_.end()) {
    throw Fault(file, "the script is running already");
  }
  if (running_.size() == kDeepest) {
    throw Fault(file, "the scripts that run one another are too many");
  }
  const std::string name = path == "-" ? "standard input" : path;
  if (settings.dry_run) {
    const TrialScope trial(*runner_, trials_);
    Settings as_real = settings;
    as_real.dry_run = false;
    return run_file(file, as_real);
  }
  if (settings.atomic) {
    return runner_->run_whole({name, read_input(path), settings});
  }
  hint_is_given_ = false;
  const ScriptScope scope(runner_->defaults(), settings_of_lines(settings), running_,
                          {path, settings.keep_going});
  FileLines lines(path);
  const auto next = [&](std::string_view &line) {
    // Whoever writes the lines may wait for the answer to the one before.
    if (path == "-") out_->flush();
    return lines.next(line);
  };
  const ScriptResult result = run_script(*this, name, next, ScriptOptions::of(settings));
  if (!settings.json) print_summary(*out_, name, result, note(file, result));
  return result.outcome();
}

std::string ToolRunner::note(Word file, const ScriptResult &result) {
  if (trials_ != 0) return std::string(kTriedNote);
  const bool stays = device_stays_ || std::ranges::any_of(running_, &RunningScript::goes_on);
  const bool in_middle = result.faults != 0 && result.commands > 1 && !running_.back().goes_on;
  if (!stays || !in_middle || hint_is_given_ || file.text == "-") return {};
  hint_is_given_ = true;
  return fmt::format("go on with 'run --from {} {}'", result.lines, written(file));
}

}  // namespace tesselctl
