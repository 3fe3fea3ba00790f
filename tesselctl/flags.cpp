// The words of a command line that begin with "--".
#include "tesselctl/command.hpp"
#include "tesselctl/suggest.hpp"

namespace tesselctl {

namespace {

struct Flag {
  std::string_view name;
  std::string_view value;  // what stands behind it, in capitals; empty for nothing
  void (*set)(Settings &settings, Word value);
  std::string_view help;  // for people
};

void set_filter(Settings &settings, Word value) {
  const Assignment words = split_assignment(value);
  settings.filters.push_back({std::string(words.name.text), std::string(words.value.text)});
}

constexpr Flag kFlags[] = {
    {"--json", {}, [](Settings &settings, Word) { settings.json = true; }, "answers in JSON"},
    {"--terse",
     {},
     [](Settings &settings, Word) { settings.terse = true; },
     "one row a line, without columns"},
    {"--trace",
     {},
     [](Settings &settings, Word) { settings.trace = true; },
     "prints the C calls behind the command"},
    {"--verbose",
     {},
     [](Settings &settings, Word) { settings.verbose = true; },
     "tells what the command changed"},
    {"--dry-run",
     {},
     [](Settings &settings, Word) { settings.dry_run = true; },
     "works on a copy of the device"},
    {"--count",
     {},
     [](Settings &settings, Word) { settings.count = true; },
     "counts the rows instead"},
    {"--filter", "NAME=PATTERN", set_filter, "shows the rows whose value is so"},
    {"--sort", "NAME", [](Settings &settings, Word value) { settings.sort = value.text; },
     "sorts the rows by a value"},
    {"--raw", {}, [](Settings &settings, Word) { settings.raw = true; }, "shows values as numbers"},
    {"--atomic",
     {},
     [](Settings &settings, Word) { settings.atomic = true; },
     "changes all or nothing"},
};

const Flag *try_find_flag(std::string_view name) {
  for (const Flag &flag : kFlags) {
    if (flag.name == name) return &flag;
  }
  return nullptr;
}

const Flag &find_flag(Word name) {
  if (const Flag *flag = try_find_flag(name.text)) return *flag;
  Nearest near(name.text);
  for (const Flag &flag : kFlags) near.consider(flag.name);
  throw Fault(name, "no option has this name", near.name());
}

constexpr std::string_view kOfAll = "--json --terse --trace --verbose";
constexpr std::string_view kOfListings = "--count --filter --sort";
constexpr std::string_view kOfChanges = "--dry-run";

bool has_word(std::string_view words, std::string_view word) {
  while (!words.empty()) {
    const size_t end = words.find(' ');
    if (words.substr(0, end) == word) return true;
    words.remove_prefix(end == std::string_view::npos ? words.size() : end + 1);
  }
  return false;
}

}  // namespace

std::string_view flag_value(std::string_view name) {
  const Flag *flag = try_find_flag(name);
  return flag == nullptr ? std::string_view() : flag->value;
}

std::string_view flag_help(std::string_view name) {
  const Flag *flag = try_find_flag(name);
  return flag == nullptr ? std::string_view() : flag->help;
}

Flags take_flags(std::vector<Word> &words, Settings &settings) {
  Flags flags;
  std::vector<Word> others;
  for (size_t i = 0; i < words.size(); ++i) {
    const Word word = words[i];
    if (!word.text.starts_with("--")) {
      others.push_back(word);
      continue;
    }
    const size_t equals = word.text.find('=');
    const Word name = word.first(std::min(equals, word.text.size()));
    const Flag &flag = find_flag(name);
    Word value = {{}, word.column};
    if (equals != std::string_view::npos) {
      if (flag.value.empty()) throw Fault(word, std::string(flag.name) + " takes no value");
      value = word.from(equals + 1);
    } else if (!flag.value.empty()) {
      if (++i == words.size()) {
        throw Fault(word, std::string(flag.name) + " needs " + std::string(flag.value));
      }
      value = words[i];
    }
    flag.set(settings, value);
    flags.given.push_back(name);
  }
  words = std::move(others);
  return flags;
}

void Flags::check(const Command &command) const {
  for (const Word &flag : given) {
    const bool taken = has_word(kOfAll, flag.text) || has_word(command.flags, flag.text) ||
                       (command.kind == Kind::lists && has_word(kOfListings, flag.text)) ||
                       (command.kind == Kind::changes && has_word(kOfChanges, flag.text));
    if (!taken) throw Fault(flag, std::string(command.name) + " does not take this option");
  }
}

std::string words_of(const Settings &settings) {
  std::string words;
  for (const Flag &flag : kFlags) {
    if (!flag.value.empty()) continue;
    // A flag that changes nothing is set already.
    Settings with = settings;
    flag.set(with, {});
    if (with == settings) words += std::string(flag.name) + " ";
  }
  for (const Settings::Filter &filter : settings.filters) {
    words += "--filter \"" + filter.name + "=" + filter.pattern + "\" ";
  }
  if (!settings.sort.empty()) words += "--sort \"" + settings.sort + "\" ";
  return words;
}

}  // namespace tesselctl
