// The rules of the families that need the vocabulary: whatever is named must be known there.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/families/families.hpp"
#include "pdgen/families/lines.hpp"
#include "pdgen/families/scope.hpp"

namespace pdgen {

std::vector<std::string_view> placeholders(std::string_view text) {
  std::vector<std::string_view> found;
  for (std::size_t open = text.find('<'); open != std::string_view::npos;
       open = text.find('<', open + 1)) {
    const std::size_t end = text.find_first_not_of(kWordCharacters, open + 1);
    if (end == std::string_view::npos || text[end] != '>' || end == open + 1) continue;
    found.push_back(text.substr(open + 1, end - open - 1));
  }
  return found;
}

namespace {

class FamilyChecker {
 public:
  explicit FamilyChecker(Diagnostics &diagnostics) : diagnostics_(diagnostics) {}

  void check(const Family &family, bool is_output) {
    const Kinds program = {"program"};
    for (const StatedText &note : family.notes) {
      check_where(program, note.where, note.place);
      check_text(program, note.text, note.place, "note");
    }
    for (const Block &block : family.blocks) check(program, block, is_output);
  }

 private:
  void check(Kinds kinds, const Block &block, bool has_group) {
    if (!block.walk.empty()) {
      const Walk *walk = find_walk(kinds, block.walk);
      if (walk == nullptr) {
        return report(block.place, "each", fmt::format("there is no \"each {}\" here", block.walk));
      }
      kinds.insert(kinds.end(), walk->kinds.begin(), walk->kinds.end());
    }
    has_group = has_group || !block.group.empty() || has_group_of_its_own(kinds);
    check_where(kinds, block.where, block.place);
    if (!has_group) report(block.place, "each", "nothing says under which title this stands");
    for (const auto &item : block.items) {
      if (const auto *function = std::get_if<StatedFunction>(&item)) {
        check(kinds, *function);
      } else if (const auto *text = std::get_if<StatedText>(&item)) {
        check_text(kinds, text->text, text->place, "declare");
      } else {
        check(kinds, std::get<Block>(item), has_group);
      }
    }
  }

  void check(const Kinds &kinds, const StatedFunction &function) {
    check_where(kinds, function.where, function.place);
    check_text(kinds, function.name, function.place, "function");
    check_text(kinds, function.statement, function.place, "statement");
    for (const StatedParameter &parameter : function.parameters) {
      check_where(kinds, parameter.where, function.place);
      check_text(kinds, parameter.type, function.place, "function");
      check_use(function, parameter);
    }
    check_marks(function);
  }

  // A parameter that is not handed on would be lost; one that may be missing needs its mark.
  void check_use(const StatedFunction &function, const StatedParameter &parameter) {
    const std::string &text = function.statement;
    bool used = false;
    for (std::size_t at = text.find(parameter.name); at != std::string::npos;
         at = text.find(parameter.name, at + 1)) {
      const std::size_t end = at + parameter.name.size();
      const bool whole =
          (at == 0 || kWordCharacters.find(text[at - 1]) == std::string_view::npos) &&
          (end == text.size() || kWordCharacters.find(text[end]) == std::string_view::npos);
      const bool member = at > 0 && text[at - 1] == '.';
      if (!whole || member) continue;
      used = true;
      const bool marked = end < text.size() && text[end] == '?';
      if (marked || parameter.where.name.empty()) continue;
      report(function.place, "statement",
             fmt::format("{} may be missing, so it is written {}? here", parameter.name,
                         parameter.name));
    }
    if (!used) {
      report(function.place, "statement", fmt::format("{} is not handed on", parameter.name));
    }
  }

  void check_marks(const StatedFunction &function) {
    const std::string &text = function.statement;
    for (std::size_t mark = text.find('?'); mark != std::string::npos;
         mark = text.find('?', mark + 1)) {
      const std::size_t before = text.find_last_not_of(kWordCharacters, mark - 1);
      const std::string word = text.substr(before + 1, mark - before - 1);
      const auto optional = [&](const StatedParameter &parameter) {
        return parameter.name == word && !parameter.where.name.empty();
      };
      if (std::any_of(function.parameters.begin(), function.parameters.end(), optional)) continue;
      report(function.place, "statement", fmt::format("{}? is no parameter with a mark", word));
    }
  }

  static bool has_group_of_its_own(const Kinds &kinds) {
    return std::any_of(kinds.begin(), kinds.end(), [](std::string_view kind) {
      return kind == "table" || kind == "profile" || kind == "action";
    });
  }

  void check_where(const Kinds &kinds, const Where &where, const Place &place) {
    if (where.name.empty() || find_condition(kinds, where.name) != nullptr) return;
    report(place, "where", fmt::format("{} is no condition of {}", where.name, kinds.back()));
  }

  void check_text(const Kinds &kinds, std::string_view text, const Place &place,
                  std::string_view key) {
    for (const std::string_view name : placeholders(text)) {
      if (find_placeholder(kinds, name) != nullptr) continue;
      report(place, key, fmt::format("<{}> is no placeholder of {}", name, kinds.back()));
    }
  }

  void report(const Place &place, std::string_view key, std::string message) {
    diagnostics_.report(place, key, std::move(message));
  }

  Diagnostics &diagnostics_;
};

}  // namespace

void check_families(const Families &families, Diagnostics &diagnostics) {
  FamilyChecker checker(diagnostics);
  for (const Family &family : families.families) checker.check(family, false);
  for (const Family &output : families.outputs) checker.check(output, true);
}

}  // namespace pdgen
