#include "tesselctl/watch.hpp"

#include <signal.h>
#include <sys/ioctl.h>

#include <algorithm>
#include <charconv>
#include <ctime>
#include <thread>

#include "tesselctl/interrupt.hpp"
#include "tesselctl/value.hpp"

namespace tesselctl {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// An interrupt is heard of so much later.
constexpr auto kLookUp = milliseconds(50);

extern "C" void on_interrupt_of_watch(int) { request_interrupt(); }

// While it lives, SIGINT ends the watch, unless somebody else makes it an interrupt already.
class InterruptibleScope {
 public:
  InterruptibleScope() {
    sigaction(SIGINT, nullptr, &before_);
    if (before_.sa_handler != SIG_DFL) return;
    struct sigaction action = {};
    action.sa_handler = on_interrupt_of_watch;
    sigaction(SIGINT, &action, nullptr);
  }
  ~InterruptibleScope() {
    clear_interrupt();  // the lines that follow go on
    sigaction(SIGINT, &before_, nullptr);
  }
  InterruptibleScope(const InterruptibleScope &) = delete;
  InterruptibleScope &operator=(const InterruptibleScope &) = delete;

 private:
  struct sigaction before_ = {};
};

// "0.5": from a tenth of a second to a day.
milliseconds parse_period(Word word) {
  double seconds = 0;
  const char *end = word.text.data() + word.text.size();
  const auto [stop, error] =
      std::from_chars(word.text.data(), end, seconds, std::chars_format::fixed);
  if (error != std::errc() || stop != end || !(seconds >= 0.1 && seconds <= 86400)) {
    throw Fault(word, "this should be seconds, 0.1 to 86400");
  }
  return milliseconds(static_cast<int64_t>(seconds * 1000 + 0.5));
}

void wait_until(Clock::time_point when) {
  while (!interrupt_requested()) {
    const auto left = std::chrono::duration_cast<milliseconds>(when - Clock::now());
    if (left <= milliseconds(0)) return;
    std::this_thread::sleep_for(std::min<milliseconds>(left, kLookUp));
  }
}

std::string time_text() {
  const time_t now = time(nullptr);
  struct tm parts = {};
  localtime_r(&now, &parts);
  char text[32];
  return {text, strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts)};
}

size_t window_rows(int terminal) {
  winsize size = {};
  const bool known = ioctl(terminal, TIOCGWINSZ, &size) == 0 && size.ws_row != 0;
  return known ? size.ws_row : 24;
}

// The command of the line in its place, with blanks for the words of watch before it, so that the
// columns of faults stay true.
std::string command_line(std::string_view line, Words words, const Watch &watch) {
  std::string text(line);
  for (const Word &word : words.first(1 + watch.first)) {
    text.replace(word.column - 1, word.text.size(), word.text.size(), ' ');
  }
  return text;
}

}  // namespace

Watch read_watch(Words arguments) {
  Watch watch;
  if (!arguments.empty() && arguments[0].text.find_first_of("0123456789.") == 0) {
    watch.period = parse_period(arguments[watch.first++]);
  }
  if (watch.first < arguments.size() && arguments[watch.first].text.starts_with("count=")) {
    const Word value = arguments[watch.first++].from(6);
    watch.rounds = parse_limited(value, 1000000000, "the number of rounds");
    if (watch.rounds == 0) throw Fault(value, "this should be 1 or more");
  }
  if (watch.first == arguments.size()) throw Fault("watch wants a command behind it");
  const Word first = arguments[watch.first];
  Invocation invocation;
  const Command &command = find_command(arguments.subspan(watch.first), invocation);
  if (command.name == "watch") throw Fault(first, "watch repeats other commands");
  if (!can_be_watched(command)) {
    throw Fault(first, "watch repeats what asks and lists; this changes the device");
  }
  return watch;
}

LineOutcome WatchRunner::run(const SourceLine &source) {
  Settings settings = defaults_;
  std::string line;
  Watch watch;
  try {
    std::vector<Word> words;
    split_words(source.text, words);
    take_flags(words, settings);
    if (words.empty() || words[0].text != "watch") return runner_->run(source);
    watch = read_watch(Words(words).subspan(1));
    line = command_line(source.text, words, watch);
  } catch (const Fault &) {
    // The runner finds the same fault, and tells it as it tells all.
    return runner_->run(source);
  }
  return repeat(watch, {source.file, source.line, line}, settings.json);
}

LineOutcome WatchRunner::repeat(const Watch &watch, const SourceLine &source, bool json) {
  const InterruptibleScope scope;
  WatchScreen screen(*out_);
  Clock::time_point next = Clock::now();
  LineOutcome outcome = LineOutcome::done;
  for (uint64_t round = 1; !interrupt_requested(); ++round) {
    if (terminal_ >= 0 && !json) {
      outcome = draw_round(screen, source);
    } else {
      if (!json) out_->line("# {}", time_text());
      outcome = runner_->run(source);
      out_->flush();
    }
    if (outcome == LineOutcome::fault || round == watch.rounds) break;
    // A round that took longer than a period has the next one follow at once.
    next = std::max(next + watch.period, Clock::now());
    wait_until(next);
  }
  return outcome;
}

LineOutcome WatchRunner::draw_round(WatchScreen &screen, const SourceLine &source) {
  out_->flush();
  LineOutcome outcome = LineOutcome::fault;
  {
    const Output::Hold hold(*out_);
    outcome = runner_->run(source);
  }
  const std::string text = out_->take();
  if (outcome == LineOutcome::fault) {
    out_->write(text);
  } else {
    screen.draw(time_text(), text, window_rows(terminal_));
  }
  return outcome;
}

}  // namespace tesselctl
