// Reads the files of the families.
#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "pdgen/families/families.hpp"
#include "pdgen/families/lines.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

struct DeclaredParameter {
  std::string type;
  Where where;
};

// Words that stand for a parameter, by word and by "*word".
using DeclaredParameters = std::map<std::string, DeclaredParameter, std::less<>>;

bool is_word(char c) { return kWordCharacters.find(c) != std::string_view::npos; }

class FamilyReader {
 public:
  FamilyReader(const CatalogueFile &file, const DeclaredParameters &declared,
               Diagnostics &diagnostics)
      : lines_(file), declared_(declared), diagnostics_(diagnostics) {}

  Family read() {
    Family family;
    while (const TextLine *line = lines_.next(0)) {
      std::string text = line->text;
      const Place place = lines_.place(*line);
      if (text.starts_with("note ")) {
        read_note(text.substr(5), place, family);
      } else if (text.starts_with("unit ")) {
        read_unit(text.substr(5), place, family);
      } else if (text.starts_with("each ") || text.starts_with("program")) {
        family.blocks.push_back(read_block(text, place, 2));
      } else {
        diagnostics_.report(place, "line", "\"{}\" begins no note, unit, each or program", text);
        lines_.skip(1);
      }
    }
    if (family.unit.empty()) diagnostics_.report(lines_.start(), "unit", "this file names no unit");
    return family;
  }

 private:
  void read_note(std::string title, const Place &place, Family &family) {
    const Where where = where_of(cut_tail(title, "where"));
    family.notes.push_back({{place, title}, {place, lines_.joined(2)}, where});
  }

  void read_unit(const std::string &text, const Place &place, Family &family) {
    const std::size_t colon = text.find(": ");
    std::string name = text.substr(0, colon);
    const std::string parts = cut_tail(name, "in");
    family.place = place;
    family.unit = name;
    if (!parts.empty()) family.parts = static_cast<unsigned>(std::atoi(parts.c_str()));
    if (colon == std::string::npos || family.parts == 0 || family.parts > 9) {
      diagnostics_.report(place, "unit", "\"{}\" must be NAME: HEADERS or NAME in N: HEADERS",
                          text);
      return;
    }
    family.includes = words(text.substr(colon + 2));
  }

  Block read_block(std::string head, const Place &place, std::size_t indent) {
    Block block;
    block.place = place;
    block.group = cut_tail(head, "under");
    block.where = where_of(cut_tail(head, "where"));
    if (head.starts_with("each ")) block.walk = head.substr(5);
    while (const TextLine *line = lines_.next(indent)) {
      const Place at = lines_.place(*line);
      if (line->text.starts_with("declare")) {
        block.items.emplace_back(
            read_template(lines_.verbatim(indent + 2), at, nullptr, diagnostics_));
        Block &declaration = std::get<Block>(block.items.back());
        declaration.declares = true;
        for (const std::string &name : words(line->text.substr(7))) {
          declaration.declared.push_back({at, name});
        }
      } else if (line->text.starts_with("each ")) {
        block.items.emplace_back(read_block(line->text, at, indent + 2));
      } else {
        block.items.emplace_back(read_function(*line, at, indent));
      }
    }
    return block;
  }

  StatedFunction read_function(const TextLine &first, const Place &place, std::size_t indent) {
    std::string head = first.text;
    for (const std::string &rest : lines_.deeper(indent + 3)) head += " " + rest;
    StatedFunction function;
    function.place = place;
    function.where = where_of(cut_tail(head, "where"));
    function.family = cut_tail(head, "as");
    const std::size_t open = head.find('(');
    if (open == std::string::npos || head.back() != ')') {
      diagnostics_.report(place, "function", "\"{}\" is no RESULT NAME(PARAMETERS)", head);
      return function;
    }
    std::size_t name = open;
    while (name > 0 &&
           (is_word(head[name - 1]) || head[name - 1] == '<' || head[name - 1] == '>')) {
      --name;
    }
    function.name = {place, head.substr(name, open - name)};
    function.result = head.substr(0, head.find_last_not_of(' ', name - 1) + 1);
    if (function.result == "status") function.result = "p4_pd_status_t";
    if (function.family.empty()) function.family = family_of(function.name.text);
    for (const std::string &item : list_items(head.substr(open + 1, head.size() - open - 2))) {
      function.parameters.push_back(read_parameter(item, place));
    }
    function.statement = {place, lines_.joined(indent + 2)};
    return function;
  }

  // The name without the objects in it.
  static std::string family_of(std::string name) {
    for (const char *object : {"_with_<action>", "_<action>"}) {
      if (const std::size_t at = name.find(object); at != std::string::npos) {
        name.erase(at, std::string_view(object).size());
      }
    }
    std::size_t open = 0;
    while ((open = name.find('<')) != std::string::npos) {
      const std::size_t end = std::min(name.find('>', open), name.size() - 1) + 1;
      const bool with_separator_in_front = end == name.size() && open > 0;
      if (with_separator_in_front) --open;
      name.erase(open, end - open + (with_separator_in_front ? 0 : 1));
    }
    return name;
  }

  StatedParameter read_parameter(std::string item, const Place &place) {
    const bool optional = item.ends_with("?");
    if (optional) item.pop_back();
    if (item.find(' ') != std::string::npos) return full_parameter(item, optional, place);
    const bool pointer = item.starts_with("*");
    const std::string word = pointer ? item.substr(1) : item;
    auto found = declared_.find(item);
    const bool exact = found != declared_.end();
    if (!exact) found = declared_.find(word);
    if (found == declared_.end()) {
      diagnostics_.report(place, "function", "{} is no parameter that is declared", item);
      return {{place, "int"}, word, {}};
    }
    if (optional && found->second.where.name.empty()) {
      diagnostics_.report(place, "function", "{} has no condition, so it is never left out", item);
    }
    const std::string star =
        pointer && !exact ? (found->second.type.ends_with("*") ? "*" : " *") : "";
    return {{place, found->second.type + star}, word, optional ? found->second.where : Where{}};
  }

  // "const char *label"
  StatedParameter full_parameter(const std::string &item, bool optional, const Place &place) {
    std::size_t name = item.size();
    while (name > 0 && is_word(item[name - 1])) --name;
    if (optional || name == item.size()) {
      diagnostics_.report(place, "function", "\"{}\" is no parameter: TYPE NAME", item);
    }
    std::string type = item.substr(0, name);
    if (type.ends_with(" ")) type.pop_back();
    return {{place, type}, item.substr(name), {}};
  }

  TextLines lines_;
  const DeclaredParameters &declared_;
  Diagnostics &diagnostics_;
};

// interface.family: the parameters, and the names of the other files in order.
struct Index {
  DeclaredParameters parameters;
  std::vector<std::pair<std::string, Place>> files;  // with their endings
};

Index read_index(const CatalogueFile &file, Diagnostics &diagnostics) {
  Index index;
  TextLines lines(file);
  while (const TextLine *line = lines.next(0)) {
    std::string text = line->text;
    const Place place = lines.place(*line);
    std::vector<std::string> parts = words(text);
    if (parts.front() == "families" || parts.front() == "outputs") {
      const char *ending = parts.front() == "outputs" ? ".output" : ".family";
      for (std::size_t i = 1; i < parts.size(); ++i)
        index.files.emplace_back(parts[i] + ending, place);
    } else if (parts.front() == "parameter" && parts.size() > 2) {
      const Where where = where_of(cut_tail(text, "where"));
      if (text.ends_with(",")) text.pop_back();
      const std::size_t type =
          text.find_first_not_of(' ', text.find(" " + parts[1]) + 1 + parts[1].size());
      if (!index.parameters.try_emplace(parts[1], DeclaredParameter{text.substr(type), where})
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

const CatalogueFile *find_file(const std::vector<CatalogueFile> &files, const std::string &name) {
  const auto found = std::ranges::find_if(files, [&](const CatalogueFile &file) {
    return std::filesystem::path(file.path).filename() == name;
  });
  return found == files.end() ? nullptr : &*found;
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

Where where_of(std::string text) {
  const bool negated = text.starts_with("not ");
  return {negated ? text.substr(4) : text, negated};
}

Families load_families(const std::vector<CatalogueFile> &files, Diagnostics &diagnostics) {
  Families families;
  const CatalogueFile *interface = find_file(files, "interface.family");
  if (interface == nullptr) {
    diagnostics.report({"interface.family", 1}, "file", "the families need this file");
    return families;
  }
  const Index index = read_index(*interface, diagnostics);
  for (const auto &[name, place] : index.files) {
    const CatalogueFile *file = find_file(files, name);
    if (file == nullptr) {
      diagnostics.report(place, "families", "there is no file {}", name);
      continue;
    }
    if (name.ends_with(".output")) {
      Output output{name.substr(0, name.find('.')), {}, {}};
      output.block = read_template(file->text, {file->path, 0}, &output, diagnostics);
      families.outputs.push_back(std::move(output));
    } else {
      families.families.push_back(FamilyReader(*file, index.parameters, diagnostics).read());
    }
  }
  bind_families(families, diagnostics);
  return families;
}

}  // namespace pdgen
