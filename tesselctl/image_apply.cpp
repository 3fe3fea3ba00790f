#include "tesselctl/image_apply.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/command.hpp"
#include "tesselctl/image_edit.hpp"
#include "tesselctl/number.hpp"
#include "tesselctl/read_back.hpp"

namespace tesselctl {

namespace {

// A step edits the lines of one keyword that come, go or change.
struct Step {
  std::string_view keyword;
  Edit edit;
  Edit as = edit;  // what is done to them
};

// Entries are edited while no ageing that ends or changes holds their ttl to its limits.
constexpr Step kSteps[] = {
    {"ageing", Edit::remove},  {"ageing", Edit::modify, Edit::remove},
    {"member", Edit::add},     {"member", Edit::modify},
    {"group", Edit::add},      {"group", Edit::modify},
    {"fallback", Edit::add},   {"fallback", Edit::modify},
    {"entry", Edit::remove},   {"entry", Edit::modify},
    {"default", Edit::modify}, {"entry", Edit::add},
    {"default", Edit::add},    {"default", Edit::remove},
    {"ageing", Edit::modify},  {"ageing", Edit::add},
    {"group", Edit::remove},   {"fallback", Edit::remove},
    {"member", Edit::remove},  {"cell", Edit::remove},
    {"cell", Edit::modify},    {"cell", Edit::add},
    {"seed", Edit::remove},    {"seed", Edit::modify},
    {"seed", Edit::add},       {"value", Edit::remove},
    {"value", Edit::add},
};

Edit edit_of(const Change &change) {
  if (change.before.empty()) return Edit::add;
  return change.after.empty() ? Edit::remove : Edit::modify;
}

std::string_view line_of(const Change &change) {
  return change.after.empty() ? change.before : change.after;
}

std::string_view keyword_of(const Change &change) {
  const std::string_view line = line_of(change);
  return line.substr(0, line.find(' '));
}

class Applier {
 public:
  Applier(const Device &device, const Image &after) : editor_(device), after_(after) {
    for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
      ImageEditor::Numbers &numbers = editor_.numbers_of(profile);
      const auto count = [](std::map<uint32_t, uint32_t> &handles, uint32_t handle) {
        handles.emplace(static_cast<uint32_t>(handles.size() + 1), handle);
      };
      for_each_member(device, profile.name, {},
                      [&](uint32_t member) { count(numbers.members, member); });
      for_each_group(device, profile.name, {},
                     [&](uint32_t group) { count(numbers.groups, group); });
    }
  }

  void run(const Change &change, Edit as) {
    if (change.kind == "register") return run_register(change);
    edit(change.kind, change.name, as, line_of(change));
  }

  // All cells of a register whose common value changes are written anew.
  void rewrite_register(const Change &all) {
    edit(all.kind, all.name, edit_of(all), line_of(all));
    const Image::Section *section = after_.find(all.kind, all.name);
    if (section == nullptr) return;
    for (const std::string_view line : section->lines) {
      if (line.starts_with("cell ")) edit(all.kind, all.name, Edit::modify, line);
    }
  }

 private:
  // A cell that differs no longer gets the value of all others.
  void run_register(const Change &change) {
    const Image::Section *section = after_.find(change.kind, change.name);
    const bool has_common =
        section != nullptr && !section->lines.empty() && section->lines.front().starts_with("all ");
    if (edit_of(change) != Edit::remove || !has_common) {
      return edit(change.kind, change.name, edit_of(change), line_of(change));
    }
    const std::string_view cell = change.before.substr(0, change.before.find(' ', 5));
    edit(change.kind, change.name, Edit::modify,
         fmt::format("{} {}", cell, section->lines.front().substr(4)));
  }

  void edit(std::string_view kind, std::string_view name, Edit edit, std::string_view line) {
    if (kind != kind_ || name != name_) editor_.open({kind, 1}, {name, 1});
    kind_ = kind;
    name_ = name;
    try {
      editor_.edit(edit, line);
    } catch (const Fault &fault) {
      throw Fault(fmt::format("{} {}: {}: {}", kind, name, line, fault.sentence()));
    }
  }

  ImageEditor editor_;
  const Image &after_;
  std::string_view kind_;
  std::string_view name_;
};

std::vector<uint32_t> numbers_in(const Image::Section &section, std::string_view keyword) {
  std::vector<uint32_t> numbers;
  for (const std::string_view line : section.lines) {
    if (!line.starts_with(keyword)) continue;
    const std::string_view rest = line.substr(keyword.size());
    const auto number = parse_number(rest.substr(0, rest.find(' ')));
    numbers.push_back(number ? static_cast<uint32_t>(number->low) : 0);
  }
  return numbers;
}

// Adds the members or groups of a profile in the order of their numbers. Where a number is missing,
// a copy of the next one takes it; those are returned.
std::vector<std::string> add_by_number(ImageEditor &editor, const Image::Section &section,
                                       std::string_view keyword) {
  std::map<uint32_t, std::string_view> lines;
  const std::vector<uint32_t> numbers = numbers_in(section, keyword);
  size_t at = 0;
  for (const std::string_view line : section.lines) {
    if (line.starts_with(keyword)) lines.emplace(numbers[at++], line);
  }
  std::vector<std::string> fillers;
  uint32_t next = 1;
  for (const auto &[number, line] : lines) {
    const std::string_view rest = line.substr(keyword.size() + decimal(number).size());
    for (; next < number; ++next) {
      const bool group = keyword == "group ";
      fillers.push_back(fmt::format("{}{}{}", keyword, next, group ? " size=0 members=" : rest));
      editor.edit(Edit::add, fillers.back());
    }
    editor.edit(Edit::add, line);
    ++next;
  }
  return fillers;
}

}  // namespace

void apply_changes(const Device &device, const Image &after, const std::vector<Change> &changes) {
  Applier applier(device, after);
  std::map<std::string_view, const Change *> common;  // by register
  for (const Change &change : changes) {
    if (keyword_of(change) == "all") common[change.name] = &change;
  }
  for (const Step &step : kSteps) {
    for (const Change &change : changes) {
      if (edit_of(change) != step.edit || keyword_of(change) != step.keyword) continue;
      if (change.kind == "register" && common.contains(change.name)) continue;
      check_interrupt();
      applier.run(change, step.as);
    }
  }
  for (const auto &[name, change] : common) applier.rewrite_register(*change);
}

void load_by_number(const Device &device, const Image &image) {
  ImageEditor editor(device);
  for (const Image::Section &section : image.sections()) {
    editor.open({section.kind, 1}, {section.name, 1});
    if (section.kind != "profile") {
      for (const std::string_view line : section.lines) editor.edit(Edit::add, line);
      continue;
    }
    const std::vector<std::string> members = add_by_number(editor, section, "member ");
    const std::vector<std::string> groups = add_by_number(editor, section, "group ");
    for (const std::string &line : groups) editor.edit(Edit::remove, line);
    for (const std::string &line : members) editor.edit(Edit::remove, line);
    for (const std::string_view line : section.lines) {
      if (line.starts_with("fallback ")) editor.edit(Edit::add, line);
    }
  }
}

bool numbers_are_handles(const Device &device) {
  bool good = true;
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    uint32_t next = 1;
    for_each_member(device, profile.name, {}, [&](uint32_t member) { good &= member == next++; });
    next = 1;
    for_each_group(device, profile.name, {}, [&](uint32_t group) { good &= group == next++; });
  }
  return good;
}

}  // namespace tesselctl
