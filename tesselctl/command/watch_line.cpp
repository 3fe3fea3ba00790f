#include "tesselctl/command/watch_line.hpp"

#include <charconv>
#include <optional>

#include "tesselctl/command/topic.hpp"
#include "tesselctl/program/value.hpp"

namespace tesselctl {

namespace {

// Of "0.5" or "500ms"; nothing of what is no time.
std::optional<double> seconds_of(Word word) {
  double seconds = 0;
  const char *end = word.text.data() + word.text.size();
  const auto [stop, error] =
      std::from_chars(word.text.data(), end, seconds, std::chars_format::fixed);
  if (error == std::errc() && stop == end) return seconds;
  try {
    return static_cast<double>(parse_quantity(word, kMilliseconds, "")) / 1000;
  } catch (const Fault &) {
    return std::nullopt;
  }
}

// From a tenth of a second to a day.
std::chrono::milliseconds parse_period(Word word) {
  const std::optional<double> seconds = seconds_of(word);
  if (!seconds || !(*seconds >= 0.1 && *seconds <= 86400)) {
    throw Fault(word, "this should be seconds, 0.1 to 86400, or a time like 500ms");
  }
  return std::chrono::milliseconds(static_cast<int64_t>(*seconds * 1000 + 0.5));
}

}  // namespace

size_t words_of_watch(Words words) {
  size_t at = 1;
  if (at < words.size() && words[at].text.find_first_of("0123456789.") == 0) ++at;
  if (at < words.size() && words[at].text.starts_with("count=")) ++at;
  return at;
}

const Command &find_watched(Words words) {
  const Words watched = words.subspan(words_of_watch(words));
  if (watched.empty()) throw Fault("watch wants a command behind it");
  Invocation invocation;
  const Command &command = find_command(watched, invocation);
  if (can_be_watched(command)) return command;
  throw Fault(watched[0], command.where == Where::device
                              ? "watch repeats what asks and lists; this changes the device"
                              : "watch repeats other commands");
}

Watch read_watch(Words words) {
  Watch watch;
  watch.first = words_of_watch(words);
  for (const Word &word : words.first(watch.first).subspan(1)) {
    if (!word.text.starts_with("count=")) {
      watch.period = parse_period(word);
      continue;
    }
    watch.rounds = parse_limited(word.from(6), 1000000000, "the number of rounds", 1);
  }
  find_watched(words);
  return watch;
}

}  // namespace tesselctl
