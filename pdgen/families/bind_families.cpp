// Ties the families to the vocabulary: whatever they name must be known there.
#include <fmt/format.h>

#include <algorithm>

#include "pdgen/families/families.hpp"
#include "pdgen/families/lines.hpp"
#include "pdgen/families/scope.hpp"

namespace pdgen {

namespace {

class Binder {
 public:
  explicit Binder(Diagnostics &diagnostics) : diagnostics_(diagnostics) {}

  void bind(Family &family) {
    for (StatedNote &note : family.notes) {
      bind(kProgram, note.where, note.text.place);
      bind(kProgram, note.text, "note");
      bind(kProgram, note.title, "note");
    }
    for (Block &block : family.blocks) bind(kProgram, block, "declare", false);
  }

  void bind(Output &output) {
    const Place &place = output.block.place;
    if (output.file.text.empty()) diagnostics_.report(place, "output", "this file names no file");
    bind(bind(kProgram, output.block, "output", true), output.file, "file");
  }

 private:
  // The kinds in reach within the block.
  Kinds bind(Kinds kinds, Block &block, std::string_view key, bool has_group) {
    if (!block.walk.empty()) {
      block.objects = find_walk(kinds, block.walk);
      if (block.objects == nullptr) {
        diagnostics_.report(block.place, "each", "there is no \"each {}\" here", block.walk);
        return kinds;
      }
      kinds = kinds_within(kinds, *block.objects);
      bind(kinds, block.order, "each");
    }
    has_group = has_group || !block.group.empty() || has_group_of_its_own(kinds);
    bind(kinds, block.where, block.place);
    if (!has_group)
      diagnostics_.report(block.place, "each", "nothing says under which title this stands");
    for (StatedText &name : block.declared) bind(kinds, name, "declare");
    for (auto &item : block.items) {
      if (auto *function = std::get_if<StatedFunction>(&item)) {
        bind(kinds, *function);
      } else if (auto *text = std::get_if<StatedText>(&item)) {
        bind(kinds, *text, key);
      } else {
        bind(kinds, std::get<Block>(item), key, has_group);
      }
    }
    return kinds;
  }

  void bind(const Kinds &kinds, StatedFunction &function) {
    bind(kinds, function.where, function.place);
    bind(kinds, function.name, "function");
    bind(kinds, function.statement, "statement");
    for (StatedParameter &parameter : function.parameters) {
      bind(kinds, parameter.where, function.place);
      bind(kinds, parameter.type, "function");
      check_use(function, parameter);
    }
    check_marks(function);
  }

  // A parameter that is not handed on would be lost; one that may be missing needs its mark.
  void check_use(const StatedFunction &function, const StatedParameter &parameter) {
    const std::string &text = function.statement.text;
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
      diagnostics_.report(function.place, "statement",
                          "{} may be missing, so it is written {}? here", parameter.name,
                          parameter.name);
    }
    if (!used) {
      diagnostics_.report(function.place, "statement", "{} is not handed on", parameter.name);
    }
  }

  void check_marks(const StatedFunction &function) {
    const std::string &text = function.statement.text;
    for (std::size_t mark = text.find('?'); mark != std::string::npos;
         mark = text.find('?', mark + 1)) {
      const std::size_t before = text.find_last_not_of(kWordCharacters, mark - 1);
      const std::string word = text.substr(before + 1, mark - before - 1);
      const auto optional = [&](const StatedParameter &parameter) {
        return parameter.name == word && !parameter.where.name.empty();
      };
      if (std::ranges::any_of(function.parameters, optional)) continue;
      diagnostics_.report(function.place, "statement", "{}? is no parameter with a mark", word);
    }
  }

  static bool has_group_of_its_own(const Kinds &kinds) {
    return std::ranges::any_of(kinds, [](std::string_view kind) {
      return kind == "table" || kind == "profile" || kind == "action";
    });
  }

  void bind(const Kinds &kinds, Where &where, const Place &place) {
    if (where.name.empty()) return;
    where.holds = find_condition(kinds, where.name);
    if (where.holds) return;
    diagnostics_.report(place, "where", "{} is no condition of {}", where.name, kinds.back());
  }

  void bind(const Kinds &kinds, StatedText &text, std::string_view key) {
    std::string_view rest = text.text;
    std::size_t done = 0;
    for (std::size_t open = rest.find('<'); open != rest.npos; open = rest.find('<', open + 1)) {
      const std::size_t end =
          std::min(rest.find_first_not_of(kWordCharacters, open + 1), rest.size());
      const bool included = rest.substr(0, open).ends_with("#include ");
      if (included || end == rest.size() || rest[end] != '>' || end == open + 1) continue;
      const std::string_view name = rest.substr(open + 1, end - open - 1);
      const std::string before(rest.substr(done, open - done));
      const bool begins_comment = before == "// " || before == " * " || before == "# ";
      text.pieces.push_back({before, find_placeholder(kinds, name), begins_comment});
      done = end + 1;
      if (text.pieces.back().placeholder) continue;
      diagnostics_.report(text.place, key, "<{}> is no placeholder of {}", name, kinds.back());
    }
    text.pieces.push_back({std::string(rest.substr(done)), nullptr});
  }

  static inline const Kinds kProgram = {"program"};
  Diagnostics &diagnostics_;
};

}  // namespace

void bind_families(Families &families, Diagnostics &diagnostics) {
  Binder binder(diagnostics);
  for (Family &family : families.families) binder.bind(family);
  for (Output &output : families.outputs) binder.bind(output);
}

}  // namespace pdgen
