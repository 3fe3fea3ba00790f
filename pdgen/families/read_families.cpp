// Reads the files of the families.
#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "pdgen/families/families.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

// A text whose structure is its indentation: lines that begin with # and, outside of verbatim text,
// blank ones mean nothing.
class TextLines {
 public:
  struct Line {
    std::size_t indent = 0;
    std::string text;  // without the indentation; empty: a blank line
    Place place;
  };

  explicit TextLines(const TextFile &file) {
    std::istringstream stream(file.text);
    std::string text;
    for (std::size_t number = 1; std::getline(stream, text); ++number) {
      if (text.starts_with("#")) continue;
      const std::size_t indent = std::min(text.find_first_not_of(' '), text.size());
      lines_.push_back({indent, text.substr(indent), {file.path, number}});
    }
  }

  // The next line if it stands at that indentation or further in, null at the end of the block.
  const Line *next(std::size_t indent) {
    while (at_ < lines_.size() && lines_[at_].text.empty()) ++at_;
    return is_within(at_, indent) ? &lines_[at_++] : nullptr;
  }

  // The lines that follow, as long as they stand at least that far in: as one line, or as they are
  // with the indentation cut off and blank lines between them.
  std::string joined(std::size_t indent) {
    std::string text;
    while (is_within(at_, indent)) text += (text.empty() ? "" : " ") + lines_[at_++].text;
    return text;
  }
  std::string verbatim(std::size_t indent) {
    std::string text;
    for (std::size_t end = at_;; ++end) {
      while (end < lines_.size() && lines_[end].text.empty()) ++end;
      if (!is_within(end, indent)) return text;
      text.append(end - at_, '\n');
      text += std::string(lines_[end].indent - indent, ' ') + lines_[end].text + '\n';
      at_ = end + 1;
    }
  }

 private:
  bool is_within(std::size_t at, std::size_t indent) const {
    return at < lines_.size() && !lines_[at].text.empty() && lines_[at].indent >= indent;
  }

  std::vector<Line> lines_;
  std::size_t at_ = 0;
};

// The items between commas outside of any bracket.
std::vector<std::string> list_items(std::string_view text) {
  std::vector<std::string> items;
  int depth = 0;
  std::string item;
  for (const char c : text) {
    if (c == '(' || c == '{') ++depth;
    if (c == ')' || c == '}') --depth;
    if (c == ',' && depth == 0) {
      items.push_back(item);
      item.clear();
    } else if (c != ' ' || !item.empty()) {
      item += c;
    }
  }
  if (!item.empty()) items.push_back(item);
  return items;
}

struct DeclaredParameter {
  std::string type;
  std::string condition;
};

// Words that stand for a parameter, by word and by "*word".
using DeclaredParameters = std::map<std::string, DeclaredParameter>;

class FamilyReader {
 public:
  FamilyReader(const TextFile &file, const DeclaredParameters &declared, Diagnostics &diagnostics)
      : lines_(file), declared_(declared), binder_(diagnostics), diagnostics_(diagnostics) {}

  Family read(const Place &start) {
    Family family;
    const Kinds program = {"program"};
    while (const TextLines::Line *line = lines_.next(0)) {
      const std::string &text = line->text;
      if (text.starts_with("note ")) {
        family.notes.push_back(read_note(program, text.substr(5), line->place));
      } else if (text.starts_with("unit ")) {
        read_unit(text.substr(5), line->place, family);
      } else if (text.starts_with("each ") || text.starts_with("program")) {
        family.blocks.push_back(read_block(program, *line, 2, false));
        family.blocks.back().notes = family.notes.size();
      } else {
        diagnostics_.report(line->place, "line", "\"{}\" begins no note, unit, each or program",
                            text);
        lines_.joined(1);
      }
    }
    if (family.unit.empty()) diagnostics_.report(start, "unit", "this file names no unit");
    return family;
  }

 private:
  StatedNote read_note(const Kinds &kinds, std::string title, const Place &place) {
    const Where where = binder_.where(kinds, cut_tail(title, "where"), place);
    return {binder_.text(kinds, title, place, "note"),
            binder_.text(kinds, lines_.joined(2), place, "note"), where};
  }

  void read_unit(const std::string &text, const Place &place, Family &family) {
    const std::size_t colon = text.find(": ");
    family.unit = text.substr(0, colon);
    const std::string parts = cut_tail(family.unit, "in");
    if (!parts.empty()) family.parts = static_cast<unsigned>(std::atoi(parts.c_str()));
    if (colon == std::string::npos || family.parts == 0 || family.parts > 9) {
      return diagnostics_.report(place, "unit",
                                 "\"{}\" must be NAME: HEADERS or NAME in N: HEADERS", text);
    }
    family.includes = words(text.substr(colon + 2));
  }

  Block read_block(Kinds kinds, const TextLines::Line &first, std::size_t indent, bool has_group) {
    Block block;
    std::string head = first.text;
    block.group = cut_tail(head, "under");
    const std::string condition = cut_tail(head, "where");
    if (head.starts_with("each ")) block.objects = binder_.walk(kinds, head.substr(5), first.place);
    block.where = binder_.where(kinds, condition, first.place);
    has_group = has_group || !block.group.empty() || kinds.empty() ||
                std::ranges::any_of(kinds, [](std::string_view kind) {
                  return kind == "table" || kind == "profile" || kind == "action";
                });
    if (!has_group) {
      diagnostics_.report(first.place, "each", "nothing says under which title this stands");
    }
    while (const TextLines::Line *line = lines_.next(indent)) {
      if (line->text.starts_with("declare")) {
        block.items.emplace_back(read_declaration(kinds, *line, indent + 2));
      } else if (line->text.starts_with("each ")) {
        block.items.emplace_back(read_block(kinds, *line, indent + 2, has_group));
      } else {
        block.items.emplace_back(read_function(kinds, *line, indent));
      }
    }
    return block;
  }

  Block read_declaration(const Kinds &kinds, const TextLines::Line &first, std::size_t indent) {
    Block block = binder_.block(lines_.verbatim(indent), first.place, kinds, nullptr);
    block.declares = true;
    for (const std::string &name : words(first.text.substr(7))) {
      block.declared.push_back(binder_.text(kinds, name, first.place, "declare"));
    }
    return block;
  }

  StatedFunction read_function(const Kinds &kinds, const TextLines::Line &first,
                               std::size_t indent) {
    const Place &place = first.place;
    std::string head = first.text + " " + lines_.joined(indent + 3);
    head.resize(head.find_last_not_of(' ') + 1);
    StatedFunction function;
    function.where = binder_.where(kinds, cut_tail(head, "where"), place);
    function.family = cut_tail(head, "as");
    const std::size_t open = head.find('(');
    if (open == std::string::npos || head.back() != ')') {
      diagnostics_.report(place, "function", "\"{}\" is no RESULT NAME(PARAMETERS)", head);
      return function;
    }
    const std::size_t name = head.find_last_of(" *", open) + 1;
    const std::string stated = head.substr(name, open - name);
    function.name = binder_.text(kinds, stated, place, "function");
    function.result = head.substr(0, head.find_last_not_of(' ', name - 1) + 1);
    if (function.result == "status") function.result = "p4_pd_status_t";
    if (function.family.empty()) function.family = family_of(stated);
    for (const std::string &item : list_items(head.substr(open + 1, head.size() - open - 2))) {
      function.parameters.push_back(read_parameter(kinds, item, place));
    }
    const std::string statement = lines_.joined(indent + 2);
    function.statement = binder_.text(kinds, statement, place, "statement");
    check_statement(statement, function.parameters, place);
    return function;
  }

  // The name without the objects in it: "table_add" of "<table>_table_add_with_<action>".
  static std::string family_of(std::string_view name) {
    std::string family;
    while (!name.empty()) {
      const std::size_t end =
          std::min(name.find('_', name[0] == '<' ? name.find('>') : 0), name.size());
      const std::string_view word = name.substr(0, end);
      const bool of_object = word[0] == '<' || name.starts_with("with_<");
      if (!of_object) family += fmt::format("{}{}", family.empty() ? "" : "_", word);
      name.remove_prefix(std::min(end + 1, name.size()));
    }
    return family;
  }

  StatedParameter read_parameter(const Kinds &kinds, std::string item, const Place &place) {
    const bool optional = item.ends_with("?");
    if (optional) item.pop_back();
    const auto bound = [&](const std::string &type) {
      return binder_.text(kinds, type, place, "function");
    };
    if (const std::size_t name = item.find_last_of(" *") + 1; item.find(' ') != std::string::npos) {
      // "const char *label"
      if (optional || name == item.size()) {
        diagnostics_.report(place, "function", "\"{}\" is no parameter: TYPE NAME", item);
      }
      return {bound(item.substr(0, item.find_last_not_of(' ', name - 1) + 1)), item.substr(name),
              nullptr};
    }
    const bool pointer = item.starts_with("*");
    const std::string word = pointer ? item.substr(1) : item;
    const bool exact = declared_.count(item) != 0;
    const auto found = declared_.find(exact ? item : word);
    if (found == declared_.end()) {
      diagnostics_.report(place, "function", "{} is no parameter that is declared", item);
      return {bound("int"), word, nullptr};
    }
    const auto &[type, condition] = found->second;
    if (optional && condition.empty()) {
      diagnostics_.report(place, "function", "{} has no condition, so it is never left out", item);
    }
    const char *star = !pointer || exact ? "" : type.ends_with("*") ? "*" : " *";
    return {bound(type + star), word, binder_.where(kinds, optional ? condition : "", place)};
  }

  // A parameter that is not handed on would be lost; one that may be missing needs its mark, and
  // nothing else has one.
  void check_statement(std::string_view text, const std::vector<StatedParameter> &parameters,
                       const Place &place) const {
    std::set<std::string_view> used;
    for (std::size_t at = 0, end = 0;
         (at = text.find_first_of(kWordCharacters, end)) != text.npos;) {
      end = std::min(text.find_first_not_of(kWordCharacters, at), text.size());
      const std::string_view word = text.substr(at, end - at);
      const bool marked = end < text.size() && text[end] == '?';
      const auto found = std::ranges::find(parameters, word, &StatedParameter::name);
      const bool optional = found != parameters.end() && found->where;
      if (marked && !optional) {
        diagnostics_.report(place, "statement", "{}? is no parameter with a mark", word);
      }
      if (at > 0 && text[at - 1] == '.') continue;
      used.insert(word);
      if (marked || !optional) continue;
      diagnostics_.report(place, "statement", "{} may be missing, so it is written {}? here", word,
                          word);
    }
    for (const StatedParameter &parameter : parameters) {
      if (used.contains(parameter.name)) continue;
      diagnostics_.report(place, "statement", "{} is not handed on", parameter.name);
    }
  }

  TextLines lines_;
  const DeclaredParameters &declared_;
  Binder binder_;
  Diagnostics &diagnostics_;
};

// interface.family: the parameters, and the names of the other files in order.
struct Index {
  DeclaredParameters parameters;
  std::vector<std::pair<std::string, Place>> files;  // with their endings
};

Index read_index(const TextFile &file, Diagnostics &diagnostics) {
  Index index;
  TextLines lines(file);
  while (const TextLines::Line *line = lines.next(0)) {
    std::string text = line->text;
    const Place &place = line->place;
    std::vector<std::string> parts = words(text);
    if (parts.front() == "families" || parts.front() == "outputs") {
      const char *ending = parts.front() == "outputs" ? ".output" : ".family";
      for (std::size_t i = 1; i < parts.size(); ++i)
        index.files.emplace_back(parts[i] + ending, place);
    } else if (parts.front() == "parameter" && parts.size() > 2) {
      const std::string condition = cut_tail(text, "where");
      if (text.ends_with(",")) text.pop_back();
      const std::size_t type =
          text.find_first_not_of(' ', text.find(" " + parts[1]) + 1 + parts[1].size());
      if (!index.parameters.try_emplace(parts[1], DeclaredParameter{text.substr(type), condition})
               .second) {
        diagnostics.report(place, "parameter", "{} is declared twice", parts[1]);
      }
    } else {
      diagnostics.report(place, "line",
                         "\"{}\" must be parameter NAME TYPE, families NAMES or outputs NAMES",
                         text);
    }
  }
  return index;
}

}  // namespace

std::string cut_tail(std::string &text, std::string_view keyword) {
  const std::string mark = fmt::format(" {} ", keyword);
  const std::size_t at = text.rfind(mark);
  const std::size_t close = text.rfind(')');
  if (at == std::string::npos || (close != std::string::npos && at < close)) return {};
  std::string tail = text.substr(at + mark.size());
  text.erase(at);
  return tail;
}

Families load_families(const std::vector<TextFile> &files, Diagnostics &diagnostics) {
  Families families;
  const auto by_names = by_name(files);
  const auto interface = by_names.find("interface.family");
  if (interface == by_names.end()) {
    diagnostics.report({"interface.family", 1}, "file", "the families need this file");
    return families;
  }
  const Index index = read_index(*interface->second, diagnostics);
  for (const auto &[name, place] : index.files) {
    const auto found = by_names.find(name);
    if (found == by_names.end()) {
      diagnostics.report(place, "families", "there is no file {}", name);
      continue;
    }
    const TextFile &file = *found->second;
    if (name.ends_with(".output")) {
      Output &output = families.outputs.emplace_back();
      output.name = name.substr(0, name.find('.'));
      output.block = Binder(diagnostics).block(file.text, {file.path, 0}, {"program"}, &output);
      if (!output.file.pieces.empty()) continue;
      diagnostics.report({file.path, 1}, "output", "this file names no file");
    } else {
      families.families.push_back(
          FamilyReader(file, index.parameters, diagnostics).read({file.path, 1}));
    }
  }
  return families;
}

}  // namespace pdgen
