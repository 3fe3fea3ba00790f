#include "tesselctl/journal/journal_file.hpp"

#include <fmt/format.h>

#include <charconv>
#include <filesystem>

#include "tesselctl/journal/utc_text.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/state/checksum.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/utf8.hpp"

namespace tesselctl {

namespace {

constexpr size_t kPiece = size_t{1} << 20;
// Of a command, which is there to be read.
constexpr size_t kMostCommand = 4096;

std::string end_line(uint64_t number, const Checksum &checksum) {
  return fmt::format("end {} checksum={:016x}", number, checksum.value());
}

bool begins_change(std::string_view line) {
  return line.starts_with("change ") || line.starts_with("undo ");
}

}  // namespace

// ---- Text ----

std::string journal_head(uint64_t after) {
  return fmt::format("{}{} {}\nafter {}\n", kJournalFirst, kJournalVersion, program().name, after);
}

void print_journaled(const LineChanges &line, uint64_t undone,
                     const std::function<void(std::string_view)> &sink) {
  Checksum checksum;
  std::string text;
  size_t start = 0;  // of the line
  const auto finish_line = [&] {
    checksum.add_line(std::string_view(text).substr(start));
    text += '\n';
    if (text.size() > kPiece) {
      sink(text);
      text.clear();
    }
    start = text.size();
  };
  text = undone == 0 ? fmt::format("change {} ", line.number)
                     : fmt::format("undo {} {} ", line.number, undone);
  text += fmt::format("{} {} {}", utc_text(line.time_ms), line.client,
                      printable(line.command.substr(0, kMostCommand)));
  finish_line();
  const ItemKind *kind = nullptr;
  const char *object = nullptr;
  for (const Change &change : line.changes) {
    const DeviceState::Part &part = *change.part;
    if (kind == nullptr || &kind->object != &part.kind->object || object != part.object) {
      text += fmt::format("{} {}", part.kind->object.keyword, part.object);
      finish_line();
    }
    kind = part.kind;
    object = part.object;
    const auto print = [&](char sign, const ItemStore::Item *item) {
      if (item == nullptr) return;
      text += {sign, ' '};
      text += part.kind->keyword;
      text += ' ';
      part.access->print(text, item->view());
      finish_line();
    };
    const bool both = change.edit() == Edit::modify;
    print(both ? '<' : '-', change.before);
    print(both ? '=' : '+', change.after);
  }
  text += end_line(line.number, checksum) + "\n";
  sink(text);
}

// ---- Reader ----

namespace {

uint64_t take_number(Word &text) {
  const Word word = take_until(text, ' ');
  uint64_t number = 0;
  const char *const end = word.text.data() + word.text.size();
  const auto [stop, error] = std::from_chars(word.text.data(), end, number);
  if (error != std::errc() || stop != end) throw Fault(word, "a number should stand here");
  return number;
}

void check_first(std::string_view line) {
  if (!line.starts_with(kJournalFirst)) throw Fault({line, 1}, "this is no journal of tesselctl");
  Word rest = Word{line, 1}.from(kJournalFirst.size());
  const Word version = rest;
  if (take_number(rest) != kJournalVersion) {
    throw Fault(version, fmt::format("this tool reads journals of version {}", kJournalVersion));
  }
  if (rest.text == program().name) return;
  throw Fault(rest, std::string("the device runs ") + program().name);
}

// "change 42 TIME WHO COMMAND", "undo 43 1 TIME WHO COMMAND"
Journaled parse_head(std::string_view line) {
  Journaled change;
  Word rest = {line, 1};
  const bool is_undo = take_until(rest, ' ').text == "undo";
  change.number = take_number(rest);
  if (is_undo) change.undone = take_number(rest);
  change.time = take_until(rest, ' ').text;
  change.client = take_until(rest, ' ').text;
  change.command = rest.text;
  return change;
}

}  // namespace

void JournalReader::add_item(char sign, const KeywordLine &line, Journaled &to) {
  const auto item = lines_.read(line);
  if (!item) throw Fault(line.keyword, "an item should stand here");
  const ItemStore::Item *const kept = &items_.emplace_back(store_.add(item->item));
  const DeviceState::Part *const part = &parts_.of(*item->kind, item->object.data());
  if (sign == '=') {
    const bool is_pair = !to.changes.empty() && to.changes.back().part == part;
    if (!is_pair) throw Fault(line.keyword, "what the item was is missing");
    to.changes.back().after = kept;
  } else {
    to.changes.push_back({part, sign == '+' ? nullptr : kept, sign == '+' ? kept : nullptr});
  }
}

namespace {

// The lines of a file, with what is known of them so far.
class ChangeFrame {
 public:
  std::optional<Journaled> change = {};  // the one that is read
  JournalExtent extent = {};

  // Whether the line ends the change. Throws Fault where it is none that can stand here.
  bool take(std::string_view line) {
    ++lines_;
    at_ += line.size() + 1;
    Word rest = {line, 1};
    if (lines_ == 1) {
      check_first(line);
    } else if (lines_ == 2) {
      if (take_until(rest, ' ').text != "after") throw Fault({line, 1}, "this should be 'after N'");
      extent = {take_number(rest), 0, at_};
      extent.last = extent.after;
    } else if (!change) {
      begin(line);
    } else if (line.starts_with("end ")) {
      return end(line);
    } else {
      checksum_.add_line(line);
    }
    return false;
  }
  void finish() {
    extent.last = change->number;
    extent.bytes = at_;
    change.reset();
  }
  uint64_t lines() const { return lines_; }
  uint64_t at() const { return at_; }  // where the line ends

 private:
  void begin(std::string_view line) {
    if (!begins_change(line)) throw Fault({line, 1}, "a change should begin here");
    checksum_ = {};
    checksum_.add_line(line);
    change = parse_head(line);
    if (change->number == extent.last + 1) return;
    throw Fault({line, 1}, fmt::format("this should be change {}", extent.last + 1));
  }
  bool end(std::string_view line) const {
    const std::string wanted = end_line(change->number, checksum_);
    if (line == wanted) return true;
    throw Fault({line, 1}, fmt::format("the change is damaged: its end is '{}'", wanted));
  }

  uint64_t lines_ = 0;
  uint64_t at_ = 0;
  Checksum checksum_;
};

}  // namespace

void JournalReader::add_line(std::string_view line, Journaled &to) {
  if (line.size() > 2 && line[1] == ' ') return add_item(line[0], KeywordLine(line.substr(2)), to);
  if (lines_.read(KeywordLine(line))) throw Fault({line, 1}, "an item has a sign before it");
}

JournalExtent JournalReader::read(const std::string &path, const Wanted &is_wanted,
                                  const Visitor &visit) {
  const uint64_t size = std::filesystem::file_size(path);
  FileLines file(path);
  ChangeFrame frame;
  bool is_read = false;
  std::optional<Fault> damage;   // of the change, behind which there is no whole one then
  std::optional<Fault> refusal;  // of an item of a change that may be whole
  const auto here = [&](const Fault &fault) {
    return Fault(
        fmt::format("{}:{}:{}: {}", path, frame.lines(), fault.column(), fault.sentence()));
  };
  for (std::string_view line; file.next(line);) {
    if (damage && begins_change(line)) throw *damage;
    if (damage) continue;
    const bool is_open = frame.change.has_value();
    bool is_whole = false;
    try {
      is_whole = frame.take(line);
    } catch (const Fault &fault) {
      damage = here(fault);
      if (frame.lines() <= 2) throw *damage;
      continue;
    }
    if (is_open && begins_change(line))
      throw here(Fault({line, 1}, "the change before has no end"));
    if (!is_open) {
      is_read = frame.change && is_wanted && is_wanted(frame.change->number);
      refusal.reset();
    } else if (!is_whole && is_read && !refusal) {
      try {
        add_line(line, *frame.change);
      } catch (const Fault &fault) {
        refusal = here(fault);
      }
    } else if (is_whole && frame.at() <= size) {
      if (refusal) throw *refusal;
      visit(*frame.change);
      frame.finish();
    }
  }
  if (frame.lines() < 2) throw Fault(path + ": this is no journal of tesselctl");
  return frame.extent;
}

}  // namespace tesselctl
