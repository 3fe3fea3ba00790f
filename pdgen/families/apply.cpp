// The families applied to a program: every function with its parameters and statement, and what the
// outputs make of them.
#include "pdgen/families/apply.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "pdgen/families/scope.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

// Lines of a comment begin like its first one.
void repeat_margin(std::string &out, std::size_t at, const std::string &margin) {
  while ((at = out.find('\n', at)) != std::string::npos) out.insert(++at, margin);
}

void append(std::string &out, const StatedText &text, const Scope &scope) {
  for (const StatedText::Piece &piece : text.pieces) {
    out += piece.before;
    if (!piece.placeholder) continue;
    const std::size_t at = out.size();
    out += piece.placeholder(scope);
    if (piece.begins_comment) repeat_margin(out, at, piece.before);
  }
}

std::string filled_in(const StatedText &text, const Scope &scope) {
  std::string out;
  append(out, text, scope);
  return out;
}

bool holds(const Where &where, const Scope &scope) { return !where || where(scope); }

// Drops the items of lists that are marked with a parameter that is missing, and all marks.
std::string without_missing(std::string_view statement, const std::vector<Parameter> &present) {
  std::string out;
  std::size_t item = 0;  // where the item of the list begins
  for (std::size_t i = 0; i < statement.size(); ++i) {
    const char c = statement[i];
    if (c != '?') {
      out += c;
      if (c == '(' || c == '{' || (c == ' ' && out.ends_with(", "))) item = out.size();
      continue;
    }
    const std::size_t end =
        std::min(statement.find_first_not_of(kWordCharacters, i + 1), statement.size());
    const std::string_view other = statement.substr(i + 1, end - i - 1);
    const std::size_t word = out.find_last_not_of(kWordCharacters) + 1;
    const bool missing = std::ranges::none_of(
        present, [&](const Parameter &parameter) { return parameter.name == out.substr(word); });
    i = end - 1;
    if (!missing) continue;
    out.resize(other.empty() ? item : word);
    out += other;
    if (!other.empty()) continue;
    if (statement.substr(end).starts_with(", ")) {
      i += 2;
    } else if (out.ends_with(", ")) {
      out.resize(out.size() - 2);
    }
  }
  return out;
}

std::vector<Scope> objects_of(const Block &block, const Scope &outer) {
  if (block.objects == nullptr) return {outer};
  std::vector<Scope> objects = block.objects->objects(outer);
  if (block.order.pieces.empty()) return objects;
  std::ranges::stable_sort(objects, {},
                           [&](const Scope &object) { return filled_in(block.order, object); });
  return objects;
}

void append(std::string &out, const Block &block, const Scope &outer);

void append_items(std::string &out, const Block &block, const Scope &scope) {
  for (const auto &item : block.items) {
    if (const auto *text = std::get_if<StatedText>(&item)) {
      append(out, *text, scope);
    } else if (const auto *inner = std::get_if<Block>(&item)) {
      append(out, *inner, scope);
    }
  }
}

void append(std::string &out, const Block &block, const Scope &outer) {
  bool first = true;
  for (const Scope &scope : objects_of(block, outer)) {
    if (!holds(block.where, scope)) continue;
    if (!first) out += block.separator;
    first = false;
    append_items(out, block, scope);
  }
}

class Builder {
 public:
  explicit Builder(Api &api) : api_(api), program_(api) {}

  void add(const Family &family) {
    std::vector<std::size_t> notes = {0};
    for (const StatedNote &note : family.notes) {
      const bool is_there = holds(note.where, program_);
      notes.push_back(is_there ? api_.notes.size() : 0);
      if (!is_there) continue;
      api_.notes.push_back({filled_in(note.title, program_), filled_in(note.text, program_)});
    }
    for (unsigned part = 0; part < family.parts; ++part) {
      const std::string number = family.parts == 1 ? "" : fmt::format("_{}", part + 1);
      api_.units.push_back({family.unit + number, family.includes, {}, {}});
      lists_.clear();
      for (const Block &block : family.blocks) {
        note_ = notes[block.notes];
        add(block, program_, block.group, {part, family.parts});
      }
    }
  }

  // Behind those of the functions: where two clash, the fault is the declaration's.
  void add_declared_names() {
    api_.names.insert(api_.names.end(), declared_.begin(), declared_.end());
  }

 private:
  // The share of the objects that a unit takes: units of about equal size compile at a time.
  struct Share {
    std::size_t part = 0;
    std::size_t parts = 1;
  };

  void add(const Block &block, const Scope &outer, const std::string &group, Share share) {
    const std::vector<Scope> scopes = objects_of(block, outer);
    const std::size_t end = scopes.size() * (share.part + 1) / share.parts;
    for (std::size_t i = scopes.size() * share.part / share.parts; i < end; ++i) {
      const Scope &scope = scopes[i];
      if (!holds(block.where, scope)) continue;
      const std::string title = group.empty() ? scope.group() : group;
      for (const auto &item : block.items) {
        if (const auto *function = std::get_if<StatedFunction>(&item)) {
          if (holds(function->where, scope)) add(*function, scope, title);
        } else if (const auto &inner = std::get<Block>(item); inner.declares) {
          declare(inner, scope, title);
        } else {
          add(inner, scope, group, {});
        }
      }
    }
  }

  void declare(const Block &block, const Scope &scope, const std::string &group) {
    for (const StatedText &name : block.declared) {
      add_name(declared_, filled_in(name, scope), scope);
    }
    if (block.items.empty()) return;
    std::string &text = group_of(group).declarations;
    if (!text.empty()) text += '\n';
    append_items(text, block, scope);
  }

  static void add_name(std::vector<MadeName> &names, std::string name, const Scope &scope) {
    Owner owner = scope.owner();
    names.push_back(
        {std::move(name), owner.name.empty() ? "the program" : owner.name, owner.place});
  }

  void add(const StatedFunction &stated, const Scope &scope, const std::string &group) {
    Function &function = api_.functions.emplace_back();
    function.name = name_prefix(api_.program) + filled_in(stated.name, scope);
    function.result = stated.result;
    for (const StatedParameter &parameter : stated.parameters) {
      if (!holds(parameter.where, scope)) continue;
      function.parameters.push_back({filled_in(parameter.type, scope), parameter.name});
    }
    if (!stated.statement.pieces.empty()) {
      function.statement =
          "return " + without_missing(filled_in(stated.statement, scope), function.parameters);
    }
    function.family = stated.family;
    function.note = note_;
    function.object = scope.owner().name;
    add_name(api_.names, function.name, scope);
    const bool of_object = scope.find<Table>() != nullptr || scope.find<Profile>() != nullptr;
    const Action *action = scope.find<Action>();
    if (of_object && action != nullptr) function.action = action->name;
    function.list = list_of(function.parameters);
    group_of(group).functions.push_back(&function);
    api_.units.back().functions.push_back(&function);
  }

  // The group of that title, made at the end if there is none.
  Group &group_of(const std::string &title) {
    const auto found =
        std::ranges::find_if(api_.groups, [&](const Group &group) { return group.title == title; });
    return found != api_.groups.end() ? *found : api_.groups.emplace_back(Group{title, {}, {}});
  }

  std::string list_of(const std::vector<Parameter> &parameters) {
    std::string key;
    for (const Parameter &parameter : parameters) key += parameter.type + parameter.name + ", ";
    const auto [list, added] = lists_.try_emplace(key, fmt::format("list_{}", lists_.size()));
    if (parameters.empty()) return "nullptr";
    if (added) api_.units.back().lists.push_back({list->second, parameters});
    return list->second;
  }

  Api &api_;
  Scope program_;
  std::size_t note_ = 0;  // of the functions that are added
  std::vector<MadeName> declared_;
  std::map<std::string, std::string> lists_;  // of the unit, by their parameters
};

Families compiled_in() {
  Diagnostics diagnostics;
  return load_families(embedded_families(), diagnostics);
}

}  // namespace

Api build_api(const Program &program, const Families &families) {
  Api api(program);
  Builder builder(api);
  for (const Family &family : families.families) builder.add(family);
  builder.add_declared_names();
  api.exports = {"bf_drv_hdl", name_prefix(program) + "action_name_strings"};
  for (const Function &function : api.functions) api.exports.push_back(function.name);
  std::sort(api.exports.begin(), api.exports.end());
  return api;
}

Api build_api(const Program &program) { return build_api(program, compiled_in()); }

std::vector<TextFile> written(const Output &output, const Api &api) {
  std::vector<TextFile> files;
  for (const Scope &scope : objects_of(output.block, Scope(api))) {
    files.push_back({filled_in(output.file, scope), ""});
    append_items(files.back().text, output.block, scope);
  }
  return files;
}

std::string written(std::string_view output, const Api &api) {
  const Families families = compiled_in();
  return written(*find_row(families.outputs, output), api).front().text;
}

}  // namespace pdgen
