// The families applied to a program: every function with its parameters and statement.
#include "pdgen/families/api.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "pdgen/families/lines.hpp"
#include "pdgen/families/scope.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

std::string filled_in(const Kinds &kinds, std::string_view text, const Scope &scope) {
  std::string out;
  std::size_t done = 0;
  for (const std::string_view name : placeholders(text)) {
    const auto open = static_cast<std::size_t>(name.data() - text.data()) - 1;
    out.append(text.substr(done, open - done));
    out += find_placeholder(kinds, name)->text(scope);
    done = open + name.size() + 2;
  }
  return out.append(text.substr(done));
}

bool holds(const Kinds &kinds, const Where &where, const Scope &scope) {
  return where.name.empty() || find_condition(kinds, where.name)->holds(scope) != where.negated;
}

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
    const bool missing = std::none_of(
        present.begin(), present.end(),
        [&](const Parameter &parameter) { return parameter.name == out.substr(word); });
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

// The objects that a block is for, and the kinds in reach there.
std::vector<Scope> objects_of(const Block &block, const Scope &outer, Kinds &kinds) {
  if (block.walk.empty()) return {outer};
  const Walk &walk = *find_walk(kinds, block.walk);
  kinds.insert(kinds.end(), walk.kinds.begin(), walk.kinds.end());
  return walk.objects(outer);
}

void append_text(std::string &out, Kinds kinds, const Block &block, const Scope &outer) {
  for (const Scope &scope : objects_of(block, outer, kinds)) {
    if (!holds(kinds, block.where, scope)) continue;
    for (const auto &item : block.items) {
      if (const auto *text = std::get_if<StatedText>(&item)) {
        out += filled_in(kinds, text->text, scope);
      } else if (const auto *inner = std::get_if<Block>(&item)) {
        append_text(out, kinds, *inner, scope);
      }
    }
  }
}

class Builder {
 public:
  Builder(Api &api, const Program &program) : api_(api) { program_.program = &program; }

  void add(const Family &family) {
    for (const StatedText &note : family.notes) {
      if (!holds(kProgram, note.where, program_)) continue;
      api_.add_note(note.title, filled_in(kProgram, note.text, program_));
    }
    for (unsigned part = 0; part < family.parts; ++part) {
      const std::string number = family.parts == 1 ? "" : fmt::format("_{}", part + 1);
      api_.begin_unit(family.unit + number, family.includes);
      for (const Block &block : family.blocks) {
        add(kProgram, block, program_, block.group, {part, family.parts});
      }
    }
  }

 private:
  // The share of the objects that a unit takes: units of about equal size compile at a time.
  struct Share {
    std::size_t part = 0;
    std::size_t parts = 1;
  };

  void add(Kinds kinds, const Block &block, const Scope &outer, const std::string &group,
           Share share) {
    const std::vector<Scope> scopes = objects_of(block, outer, kinds);
    const std::size_t end = scopes.size() * (share.part + 1) / share.parts;
    for (std::size_t i = scopes.size() * share.part / share.parts; i < end; ++i) {
      const Scope &scope = scopes[i];
      if (!holds(kinds, block.where, scope)) continue;
      const std::string title = group.empty() ? scope.group() : group;
      for (const auto &item : block.items) {
        if (const auto *function = std::get_if<StatedFunction>(&item)) {
          if (holds(kinds, function->where, scope)) add(kinds, *function, scope, title);
        } else if (const auto *text = std::get_if<StatedText>(&item)) {
          api_.declare(title, filled_in(kinds, text->text, scope));
        } else {
          add(kinds, std::get<Block>(item), scope, group, {});
        }
      }
    }
  }

  void add(const Kinds &kinds, const StatedFunction &stated, const Scope &scope,
           const std::string &group) {
    Function function;
    function.name = name_prefix(*scope.program) + filled_in(kinds, stated.name, scope);
    function.result = stated.result;
    for (const StatedParameter &parameter : stated.parameters) {
      if (!holds(kinds, parameter.where, scope)) continue;
      function.parameters.push_back({filled_in(kinds, parameter.type, scope), parameter.name});
    }
    if (!stated.statement.empty()) {
      const std::string statement = without_missing(stated.statement, function.parameters);
      function.statement = "return " + filled_in(kinds, statement, scope);
    }
    function.family = stated.family;
    function.object = scope.object();
    const bool of_object = scope.table != nullptr || scope.profile != nullptr;
    if (of_object && scope.action != nullptr) function.action = scope.action->name;
    api_.add(group, std::move(function));
  }

  static inline const Kinds kProgram = {"program"};
  Api &api_;
  Scope program_;
};

}  // namespace

Group &Api::group(const std::string &title) {
  const auto found = std::find_if(groups_.begin(), groups_.end(),
                                  [&](const Group &group) { return group.title == title; });
  if (found != groups_.end()) return *found;
  groups_.push_back({title, {}, {}});
  return groups_.back();
}

void Api::declare(const std::string &title, const std::string &declarations) {
  std::string &text = group(title).declarations;
  if (!text.empty()) text += '\n';
  text += declarations;
}

void Api::add(const std::string &title, Function function) {
  Group &home = group(title);
  home.functions.push_back(std::move(function));
  order_.push_back({units_.size() - 1, static_cast<std::size_t>(&home - groups_.data()),
                    home.functions.size() - 1});
}

std::vector<const Function *> Api::functions_of(const Unit &unit) const {
  const auto wanted = static_cast<std::size_t>(&unit - units_.data());
  std::vector<const Function *> found;
  for (const Address &address : order_) {
    if (address.unit == wanted) found.push_back(&groups_[address.group].functions[address.index]);
  }
  return found;
}

std::vector<const Function *> Api::functions() const {
  std::vector<const Function *> all;
  for (const Address &address : order_) {
    all.push_back(&groups_[address.group].functions[address.index]);
  }
  return all;
}

Api build_api(const Program &program, const Families &families) {
  Api api(program);
  Builder builder(api, program);
  for (const Family &family : families.families) builder.add(family);
  return api;
}

std::string fill_in(const Family &output, const Program &program) {
  Scope scope;
  scope.program = &program;
  std::string text;
  for (const Block &block : output.blocks) append_text(text, {"program"}, block, scope);
  return text;
}

Api build_api(const Program &program) {
  Diagnostics diagnostics;
  return build_api(program, load_families(embedded_families(), diagnostics));
}

}  // namespace pdgen
