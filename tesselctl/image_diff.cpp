#include "tesselctl/image_diff.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <unordered_map>

#include "tesselctl/command.hpp"
#include "tesselctl/files.hpp"
#include "tesselctl/image.hpp"
#include "tesselctl/image_value.hpp"
#include "tesselctl/number.hpp"

namespace tesselctl {

namespace {

std::string_view first_words(std::string_view line, unsigned count) {
  size_t end = 0;
  for (unsigned i = 0; i < count && end != std::string_view::npos; ++i) {
    end = line.find(' ', end + (i == 0 ? 0 : 1));
  }
  return line.substr(0, end);
}

// What makes a line the line of an object: the key of an entry, with its priority where it has one,
// the number of a member or cell, the whole of a value.
struct Identity {
  std::string_view key;
  std::string_view priority;
  friend bool operator==(const Identity &, const Identity &) = default;
};

struct HashIdentity {
  size_t operator()(const Identity &identity) const {
    const std::hash<std::string_view> of;
    return of(identity.key) * 31 + of(identity.priority);
  }
};

Identity identity_of(std::string_view kind, std::string_view line) {
  if (line.starts_with("entry ")) {
    const size_t key = line.find("),");
    const size_t end = line.find(",True))");
    if (key == std::string_view::npos || end == std::string_view::npos) return {line, {}};
    const size_t comma = line.rfind('(', end);
    return {line.substr(0, key), line.substr(comma, end - comma)};
  }
  if (line.starts_with("value ")) return {line, {}};
  const bool numbered = line.starts_with("member ") || line.starts_with("group ");
  if (numbered) return {first_words(line, 2), {}};
  if (line.starts_with("cell ")) return {first_words(line, kind == "counter" ? 3 : 2), {}};
  return {first_words(line, 1), {}};
}

// "member 12 REST" in its parts.
struct Numbered {
  uint32_t number = 0;
  std::string_view rest;
};

Numbered numbered(std::string_view line) {
  const std::string_view head = first_words(line, 2);
  const size_t blank = head.find(' ');
  const auto number = parse_number(head.substr(std::min(head.size(), blank + 1)));
  return {number ? static_cast<uint32_t>(number->low) : 0, line.substr(head.size())};
}

}  // namespace

Image Image::of_file(const std::string &path, std::string_view shown) {
  Image image;
  image.file_ = shown;
  image.text_ = read_input(path);
  image.read();
  return image;
}

Image Image::of_device(const Device &device) {
  Image image;
  image.file_ = "the device";
  save_image(device, [&](std::string_view text) { image.text_ += text; });
  image.read();
  return image;
}

Image Image::of_profiles(const Device &device) {
  Image image;
  image.file_ = "the device";
  save_image(
      device, [&](std::string_view text) { image.text_ += text; }, ImagePart::profiles);
  image.read();
  return image;
}

Fault Image::fault_at(std::string_view line, const Fault &fault) const {
  const std::less<const char *> before;
  const bool is_own =
      !before(line.data(), text_.data()) && before(line.data(), text_.data() + text_.size());
  const size_t offset = is_own ? static_cast<size_t>(line.data() - text_.data()) : 0;
  const auto number =
      std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(offset), '\n') + 1;
  return fault_in(file_, static_cast<uint64_t>(number), fault);
}

void Image::read() {
  ImageFrame frame(0);
  std::string_view rest = text_;
  std::map<std::pair<std::string_view, std::string_view>, size_t> known;
  size_t open = 0;
  const auto take = [&](std::string_view line) {
    if (frame.takes(line)) return;
    const std::string_view keyword = first_words(line, 1);
    const std::string_view name = line.substr(std::min(line.size(), keyword.size() + 1));
    static const std::set<std::string_view> kKinds = {"profile",  "table", "counter", "meter",
                                                      "register", "hash",  "valueset"};
    if (kKinds.contains(keyword)) {
      const auto [place, is_new] = known.emplace(std::pair{keyword, name}, sections_.size());
      if (is_new) sections_.push_back({keyword, name, {}});
      open = place->second;
      return;
    }
    if (sections_.empty()) throw Fault({keyword, 1}, "this belongs to no object");
    sections_[open].lines.push_back(line);
  };
  try {
    while (!rest.empty()) {
      if (frame.lines() % 4096 == 0) check_interrupt();
      const size_t end = std::min(rest.find('\n'), rest.size());
      take(rest.substr(0, end));
      rest.remove_prefix(std::min(rest.size(), end + 1));
    }
    frame.finish();
  } catch (const Fault &fault) {
    throw fault_in(file_, frame.lines(), fault);
  }
}

const Image::Section *Image::find(std::string_view kind, std::string_view name) const {
  for (const Section &section : sections_) {
    if (section.kind == kind && section.name == name) return &section;
  }
  return nullptr;
}

// ---- Numbers of members and groups ----

struct Image::NewNumbers {
  std::map<uint32_t, uint32_t> members;
  std::map<uint32_t, uint32_t> groups;
};

namespace {

// What a member or group keeps for life: its action, its size.
std::string_view lasting(std::string_view rest) {
  return rest.substr(0, rest.starts_with(" size=") ? rest.find(' ', 1) : rest.find(','));
}

// Pairs numbered things of one image with those of another: same number and same contents, then
// same contents, then same number where one can become the other, then any number that is free.
std::map<uint32_t, uint32_t> pair_up(const std::vector<Numbered> &mine,
                                     const std::vector<Numbered> &theirs) {
  std::map<uint32_t, uint32_t> pairs;
  std::set<uint32_t> taken;
  const auto pair = [&](uint32_t number, uint32_t other) {
    pairs[number] = other;
    taken.insert(other);
  };
  std::map<uint32_t, std::string_view> by_number;
  for (const Numbered &item : theirs) by_number[item.number] = item.rest;
  for (const Numbered &item : mine) {
    const auto found = by_number.find(item.number);
    if (found != by_number.end() && found->second == item.rest) pair(item.number, item.number);
  }
  std::multimap<std::string_view, uint32_t> by_contents;
  for (const Numbered &item : theirs) {
    if (!taken.contains(item.number)) by_contents.emplace(item.rest, item.number);
  }
  for (const Numbered &item : mine) {
    if (pairs.contains(item.number)) continue;
    const auto found = by_contents.find(item.rest);
    if (found == by_contents.end()) continue;
    pair(item.number, found->second);
    by_contents.erase(found);
  }
  for (const Numbered &item : mine) {
    const auto found = by_number.find(item.number);
    if (pairs.contains(item.number) || taken.contains(item.number) || found == by_number.end() ||
        lasting(found->second) != lasting(item.rest)) {
      continue;
    }
    pair(item.number, item.number);
  }
  uint32_t next = 1;
  for (const Numbered &item : mine) {
    if (pairs.contains(item.number)) continue;
    while (taken.contains(next) || by_number.contains(next)) ++next;
    pair(item.number, next);
  }
  return pairs;
}

std::vector<Numbered> all_numbered(const Image::Section *section, std::string_view keyword) {
  std::vector<Numbered> items;
  if (section == nullptr) return items;
  for (const std::string_view line : section->lines) {
    if (line.starts_with(keyword)) items.push_back(numbered(line));
  }
  return items;
}

uint32_t renumbered(const std::map<uint32_t, uint32_t> &numbers, uint64_t number) {
  const auto found = numbers.find(static_cast<uint32_t>(number));
  return found == numbers.end() ? static_cast<uint32_t>(number) : found->second;
}

// " size=4 members=1,2 inactive=2" with other numbers, in their order.
std::string renumber_lists(std::string_view rest, const std::map<uint32_t, uint32_t> &numbers) {
  std::string text;
  const Attributes attributes(ValueScanner(rest, 1));
  for (const Assignment &word : attributes.words()) {
    if (word.name.text == "size") {
      text += " " + std::string(word.whole.text);
      continue;
    }
    std::set<uint32_t> members;
    for (const uint64_t member : number_list(&word.value)) {
      members.insert(renumbered(numbers, member));
    }
    text += fmt::format(" {}={}", word.name.text, fmt::join(members, ","));
  }
  return text;
}

}  // namespace

void Image::number_like(const Image &other) {
  std::map<std::string_view, NewNumbers> by_profile;
  for (Section &section : sections_) {
    if (section.kind != "profile") continue;
    const Section *theirs = other.find(section.kind, section.name);
    NewNumbers &numbers = by_profile[section.name];
    numbers.members = pair_up(all_numbered(&section, "member "), all_numbered(theirs, "member "));
    for (std::string_view &line : section.lines) {
      const Numbered item = numbered(line);
      if (line.starts_with("member ")) {
        line = keep(fmt::format("member {}{}", numbers.members[item.number], item.rest));
      } else if (line.starts_with("group ")) {
        try {
          const std::string lists = renumber_lists(item.rest, numbers.members);
          line = keep(fmt::format("group {}{}", item.number, lists));
        } catch (const Fault &fault) {
          throw fault_at(line, fault);
        }
      } else if (line.starts_with("fallback ")) {
        line = keep(fmt::format("fallback {}", renumbered(numbers.members, item.number)));
      }
    }
    numbers.groups = pair_up(all_numbered(&section, "group "), all_numbered(theirs, "group "));
    for (std::string_view &line : section.lines) {
      if (!line.starts_with("group ")) continue;
      const Numbered item = numbered(line);
      line = keep(fmt::format("group {}{}", numbers.groups[item.number], item.rest));
    }
  }
  for (Section &section : sections_) {
    if (section.kind != "table") continue;
    const TableInfo table = resolve_table({section.name, 1});
    if (!table.indirect()) continue;
    for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
      if (profile.action_data_table != table.description->action_data_table) continue;
      const auto numbers = by_profile.find(profile.name);
      if (numbers != by_profile.end()) renumber_targets(section, numbers->second);
    }
  }
}

void Image::renumber_targets(Section &section, const NewNumbers &numbers) {
  for (std::string_view &line : section.lines) {
    for (const bool group : {false, true}) {
      const std::string_view name = group ? "('setGrpHdl',(" : "('setMbrHdl',(";
      const size_t at = line.find(name);
      if (at == std::string_view::npos) continue;
      const size_t begin = at + name.size();
      const size_t end = std::min(line.find(',', begin), line.size());
      const auto number = parse_number(line.substr(begin, end - begin));
      if (!number) continue;
      const uint32_t other = renumbered(group ? numbers.groups : numbers.members, number->low);
      line = keep(fmt::format("{}{:#x}{}", line.substr(0, begin), other, line.substr(end)));
    }
  }
}

// ---- Changes ----

namespace {

void add_changes(const Image::Section *before, const Image::Section *after,
                 std::vector<Change> &changes) {
  const Image::Section &any = before != nullptr ? *before : *after;
  std::unordered_map<Identity, std::string_view, HashIdentity> wanted;
  if (after != nullptr) {
    wanted.reserve(after->lines.size());
    for (const std::string_view line : after->lines) {
      wanted.emplace(identity_of(any.kind, line), line);
    }
  }
  if (before != nullptr) {
    for (const std::string_view line : before->lines) {
      const auto found = wanted.find(identity_of(any.kind, line));
      if (found == wanted.end()) {
        changes.push_back({any.kind, any.name, line, {}});
        continue;
      }
      if (found->second != line) changes.push_back({any.kind, any.name, line, found->second});
      wanted.erase(found);
    }
  }
  if (after == nullptr) return;
  for (const std::string_view line : after->lines) {
    const auto found = wanted.find(identity_of(any.kind, line));
    if (found == wanted.end() || found->second.data() != line.data()) continue;
    changes.push_back({any.kind, any.name, {}, line});
  }
}

}  // namespace

std::vector<Change> changes_between(const Image &before, const Image &after) {
  std::vector<Change> changes;
  std::map<std::pair<std::string_view, std::string_view>, const Image::Section *> wanted;
  for (const Image::Section &section : after.sections()) {
    wanted[{section.kind, section.name}] = &section;
  }
  for (const Image::Section &section : before.sections()) {
    check_interrupt();
    const auto found = wanted.find({section.kind, section.name});
    add_changes(&section, found == wanted.end() ? nullptr : found->second, changes);
    if (found != wanted.end()) wanted.erase(found);
  }
  for (const Image::Section &section : after.sections()) {
    if (wanted.contains({section.kind, section.name})) add_changes(nullptr, &section, changes);
  }
  return changes;
}

Row change_row(std::string_view sign, std::string_view kind, std::string_view name,
               std::string_view line) {
  Row row;
  row.object("change", sign).object(kind, name);
  const std::string_view keyword = first_words(line, 1);
  const size_t behind = std::min(line.size(), keyword.size() + 1);
  ValueScanner rest(line.substr(behind), behind + 1);
  if (keyword == "entry" || keyword == "default") {
    if (keyword == "default") row.object("which", "default");
    add_entry_line(row, resolve_table({name, 1}), rest);
  } else if (keyword == "member") {
    row.text("member", fmt::format("#{}", rest.decimal()));
    rest.expect(" ");
    ActionValue action;
    action.read(rest);
    row.text("action", action.action->name);
    add_record(row, Row::kParameters, action_shape(action.action->name), action.parameters.data());
  } else {
    row.object("what", keyword).object("value", rest.rest());
  }
  return row;
}

}  // namespace tesselctl
