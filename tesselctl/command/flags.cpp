#include "tesselctl/command/flags.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "common/nearest.hpp"
#include "tesselctl/program/value.hpp"

namespace tesselctl {

namespace {

// The setters of flags that have no value.
template <bool Settings::*Member>
void turn_on(ToolSettings &settings, Word) {
  settings.lines.*Member = true;
}
template <bool ToolSettings::*Member>
void turn_on(ToolSettings &settings, Word) {
  settings.*Member = true;
}

template <auto Member>
void set_text(ToolSettings &settings, Word value) {
  settings.*Member = std::string(value.text);
}

void set_paths(ToolSettings &settings, Word value) { settings.lines.paths = value.text; }

void set_sort(ToolSettings &settings, Word value) { settings.lines.sort = value.text; }

void set_image(ToolSettings &settings, Word value) {
  settings.image = value.text;
  settings.device_flag = "--image";
}

void set_journal(ToolSettings &settings, Word value) { settings.journal.path = value.text; }

void set_sync(ToolSettings &settings, Word value) {
  static constexpr std::array<std::string_view, 2> kNames = {"interval", "always"};
  const auto *const found = std::ranges::find(kNames, value.text);
  if (found == kNames.end()) {
    throw Fault(value, "a journal is synced always or by interval",
                common::nearest(value.text, kNames));
  }
  settings.journal.sync = static_cast<JournalSync>(found - kNames.begin());
  settings.journal.flag = "--sync";
}

void set_rotate(ToolSettings &settings, Word value) {
  settings.journal.most_bytes = parse_limited(value, 256, "the size in MiB", 1) << 20;
  settings.journal.flag = "--rotate";
}

void set_program(ToolSettings &settings, Word value) {
  settings.program = value.text;
  settings.program_column = value.column;
  settings.device_flag = "--program";
}

void set_device(ToolSettings &settings, Word value) {
  settings.device.id = static_cast<uint32_t>(parse_limited(value, 255, "the device id"));
  settings.device_flag = "--device";
}

void set_pipes(ToolSettings &settings, Word value) {
  settings.device_flag = "--pipes";
  settings.device.pipes = static_cast<uint32_t>(parse_limited(value, 8, "the number of pipes", 1));
  settings.pipes_are_given = true;
}

void set_from(ToolSettings &settings, Word value) {
  settings.lines.from = parse_limited(value, 0xffffffffu, "the number of a line", 1);
}

void set_filter(ToolSettings &settings, Word value) {
  const Assignment words = split_assignment(value);
  settings.lines.filters.push_back({std::string(words.name.text), std::string(words.value.text)});
}

constexpr Flag kFlags[] = {
    {"--image", FlagOf::tool, set_image,
     "works on the device of an image, and saves it there when a command changed it", "FILE"},
    {"--socket", FlagOf::tool, set_text<&ToolSettings::socket>,
     "works on the device of the server that listens there; of serve: where it listens", "PATH"},
    {"--http", FlagOf::tool, set_text<&ToolSettings::http>,
     "of serve: answers HTTP there, too; without ADDR for this machine alone", "[ADDR:]PORT"},
    {"--journal", FlagOf::tool, set_journal,
     "of serve: appends each change to this file, and starts again from it", "FILE"},
    {"--sync", FlagOf::tool, set_sync,
     "when changes are on the disk: always before they are answered, or by interval, once a second",
     "always|interval"},
    {"--rotate", FlagOf::tool, set_rotate,
     "size of a journal from which a new checkpoint and file begin (64)", "MIB"},
    {"--program", FlagOf::tool, set_program,
     "the P4 program, by name or by its module's file (that of the image, or the usual one)",
     "NAME"},
    {"--device", FlagOf::tool, set_device, "id of the device, 0 to 255 (0)", "N"},
    {"--pipes", FlagOf::tool, set_pipes, "pipes of the device, 1 to 8 (those of the image, or 4)",
     "N"},
    {"--paths", FlagOf::tool, set_paths, "file of named paths, for explain", "FILE"},
    {"--history",
     FlagOf::tool,
     set_text<&ToolSettings::history>,
     "file of the shell's history; \"\" keeps none",
     "FILE",
     {},
     true},
    {"--no-color", FlagOf::tool, turn_on<&ToolSettings::no_colour>, "never prints in colour"},
    {"--no-pager", FlagOf::tool, turn_on<&ToolSettings::no_pager>,
     "never shows long answers by a pager"},
    {"--version", FlagOf::tool, turn_on<&ToolSettings::version>,
     "prints the versions of the tool, the library and its contracts"},
    {"--json", FlagOf::all, turn_on<&Settings::json>, "answers in JSON, one line a command"},
    {"--terse", FlagOf::all, turn_on<&Settings::terse>, "one row a line, without columns"},
    {"--trace", FlagOf::all, turn_on<&Settings::trace>, "prints the C calls behind the command"},
    {"--verbose", FlagOf::all, turn_on<&Settings::verbose>, "prints what was changed", {}, "-v"},
    {"--help", FlagOf::all, turn_on<&Settings::help>, "explains the command instead", {}, "-h"},
    {"--dry-run", FlagOf::changes, turn_on<&Settings::dry_run>,
     "answers as if it were done, on a copy of the device"},
    {"--count", FlagOf::listings, turn_on<&Settings::count>, "counts the rows instead"},
    {"--filter", FlagOf::listings, set_filter, "shows the rows whose value matches",
     "NAME=PATTERN"},
    {"--sort", FlagOf::listings, set_sort, "sorts the rows by a value", "NAME"},
    {"--raw", FlagOf::named, turn_on<&Settings::raw>, "shows values as numbers"},
    {"--openmetrics", FlagOf::named, turn_on<&Settings::openmetrics>,
     "prints OpenMetrics, for monitoring systems"},
    {"--script", FlagOf::named, turn_on<&Settings::script>, "prints commands instead"},
    {"--delta", FlagOf::named, turn_on<&Settings::delta>,
     "prints what numbers grow by a second, from one round to the next"},
    {"--atomic", FlagOf::named, turn_on<&Settings::atomic>, "changes all or nothing"},
    {"--from", FlagOf::named, set_from, "goes on at that line of the script", "LINE"},
    {"--replace", FlagOf::named, turn_on<&Settings::replace>, "modifies what is there already"},
    {"--keep-going",
     FlagOf::named,
     turn_on<&Settings::keep_going>,
     "goes on behind a line with a fault",
     {},
     "-k"},
};

const Flag &need_flag(Word word) {
  if (const Flag *flag = find_flag(word.text)) return *flag;
  Word rest = word;
  const Word name = take_until(rest, '=');
  common::Nearest near(name.text);
  for (const Flag &flag : kFlags) near.consider(flag.name);
  throw Fault(name, "no option has this name", near.name());
}

// The value of the flag at words[at]; at moves on when it is a word of its own.
Word take_value(const Flag &flag, Words words, size_t &at) {
  const Word word = words[at];
  const size_t equals = word.text.find('=');
  if (flag.value.empty()) {
    if (equals == std::string_view::npos) return {{}, word.column};
    throw Fault(word, std::string(flag.name) + " takes no value");
  }
  const bool is_next = flag.wants_next(word.text);
  const bool is_there = !is_next || at + 1 < words.size();
  Word value;
  if (is_there) value = is_next ? words[++at] : word.from(equals + 1);
  if (is_there && (flag.may_be_empty || !value.text.empty())) return value;
  throw Fault(word, std::string(flag.name) + " needs " + std::string(flag.value));
}

bool has_word(std::string_view words, std::string_view word) {
  while (!words.empty()) {
    if (take_until(words, ' ') == word) return true;
  }
  return false;
}

}  // namespace

std::span<const Flag> all_flags() { return kFlags; }

bool is_flag(std::string_view word) {
  const auto is_letter = [](char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; };
  return word.starts_with("--") || (word.size() > 1 && word[0] == '-' && is_letter(word[1]));
}

const Flag *find_flag(std::string_view word) {
  const std::string_view name = word.substr(0, word.find('='));
  const auto *found = std::find_if(std::begin(kFlags), std::end(kFlags), [&](const Flag &flag) {
    return flag.name == name || (!name.empty() && flag.letter == name);
  });
  return found == std::end(kFlags) ? nullptr : found;
}

bool takes_flag(const Command &command, const Flag &flag) {
  return flag.of == FlagOf::all || has_word(command.flags, flag.name) ||
         (flag.of == FlagOf::listings && command.kind == Kind::lists) ||
         (flag.of == FlagOf::changes && command.kind == Kind::changes);
}

TakenFlags take_flags(std::vector<Word> &words, Settings &settings) {
  TakenFlags taken;
  if (std::none_of(words.begin(), words.end(), [](Word word) { return is_flag(word.text); })) {
    return taken;
  }
  ToolSettings tool = {.lines = settings};
  std::vector<Word> others;
  for (size_t i = 0; i < words.size(); ++i) {
    const Word word = words[i];
    if (!is_flag(word.text)) {
      others.push_back(word);
      continue;
    }
    const Flag &flag = need_flag(word);
    if (flag.of == FlagOf::tool) {
      throw Fault(word, "this option belongs to the command line that starts tesselctl");
    }
    flag.set(tool, take_value(flag, words, i));
    Word rest = word;
    taken.words.push_back(take_until(rest, '='));
    taken.flags.push_back(&flag);
  }
  words = std::move(others);
  settings = std::move(tool.lines);
  return taken;
}

void take_tool_flags(std::vector<Word> &words, ToolSettings &settings) {
  std::vector<Word> others;
  bool in_command = false;
  for (size_t i = 0; i < words.size(); ++i) {
    const size_t first = i;
    if (!is_flag(words[i].text)) {
      in_command = true;
      others.push_back(words[i]);
      continue;
    }
    const Flag *flag = find_flag(words[i].text);
    const Word value = flag != nullptr ? take_value(*flag, words, i) : Word{};
    if (flag != nullptr && (flag->of == FlagOf::tool || (flag->of == FlagOf::all && !in_command))) {
      flag->set(settings, value);
    } else {
      others.insert(others.end(), words.begin() + static_cast<ptrdiff_t>(first),
                    words.begin() + static_cast<ptrdiff_t>(i + 1));
    }
  }
  words = std::move(others);
}

void TakenFlags::check(const Command &command) const {
  for (size_t i = 0; i < flags.size(); ++i) {
    if (takes_flag(command, *flags[i])) continue;
    throw Fault(words[i], std::string(command.name) + " does not take this option");
  }
}

std::string words_of(const Settings &settings) {
  std::string words;
  for (const Flag &flag : kFlags) {
    if (flag.of == FlagOf::tool || !flag.value.empty()) continue;
    // A flag that changes nothing is set already.
    ToolSettings with = {.lines = settings};
    flag.set(with, {});
    if (with.lines == settings) words += std::string(flag.name) + " ";
  }
  for (const Settings::Filter &filter : settings.filters) {
    words += "--filter \"" + filter.name + "=" + filter.pattern + "\" ";
  }
  if (settings.from != 1) words += fmt::format("--from {} ", settings.from);
  if (!settings.paths.empty()) words += "--paths " + written({settings.paths, 0}) + " ";
  if (!settings.sort.empty()) words += "--sort \"" + settings.sort + "\" ";
  return words;
}

}  // namespace tesselctl
