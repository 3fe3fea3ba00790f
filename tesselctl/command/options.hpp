// The NAME=VALUE words of commands that take a fixed set of names.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "tesselctl/command/command.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/record.hpp"

namespace tesselctl {

class Options {
 public:
  // Reads the arguments from position at on. Throws Fault for another name than those, a name
  // given twice, and a word without '='. The names are constants.
  Options(const Invocation &invocation, size_t at, std::span<const std::string_view> names);
  Options(const Invocation &invocation, size_t at, std::initializer_list<std::string_view> names)
      : Options(invocation, at, std::span(names.begin(), names.size())) {}

  const Word *find(std::string_view name) const;
  bool has(std::string_view name) const { return find(name) != nullptr; }
  // The value. Throws Fault when it is missing.
  Word need(std::string_view name) const;

  uint64_t number(std::string_view name, uint64_t limit, uint64_t least = 0) const;
  // A number, or so much of the unit.
  uint64_t quantity(std::string_view name, const Unit &unit, uint64_t limit = 0xffffffffu) const;
  uint64_t quantity_or(std::string_view name, const Unit &unit, uint64_t otherwise,
                       uint64_t limit = 0xffffffffu) const {
    return has(name) ? quantity(name, unit, limit) : otherwise;
  }
  uint64_t number_or(std::string_view name, uint64_t limit, uint64_t otherwise) const {
    return has(name) ? number(name, limit) : otherwise;
  }
  // One of the words of a set, by its position in it; otherwise when it is not given.
  size_t choice_or(std::string_view name, std::initializer_list<std::string_view> words,
                   size_t otherwise) const;
  uint32_t handle(const Context &context, std::string_view name) const {
    return parse_handle(context, need(name), std::string(name));
  }

 private:
  struct Option {
    std::string_view name;
    Word value;
  };
  Word command_;
  std::vector<Option> given_;
};

// "OBJECT [NAME=VALUE...]": an object of the program, and options. Where each entry of a table has
// a cell of the object, "entry" takes the place of the name "index".
template <class Object>
struct ObjectLine {
  // Throws Fault.
  ObjectLine(Context &of_command, const Invocation &invocation,
             std::initializer_list<std::string_view> names = {})
      : context(of_command),
        word(need_argument(invocation, 0, fmt::format("the name of a {}", kObjects<Object>.noun))),
        object(resolve_object<Object>(word)),
        options(invocation, 1, own_names(names)) {}

  Context &context;
  Word word;
  const Object &object;
  Options options;

  Call call(std::string_view family) const { return context.device.prepare(family, object.name); }
  void run(const Call &call) const { check(call.run(), word); }
  Row row() const {
    Row row;
    row.object(kObjects<Object>.keyword, object.name);
    return row;
  }
  void done(std::string_view what) const { done(row(), what); }
  void done(const Row &row, std::string_view what) const { context.results.done(row, what); }
  // Of as=NAME, if it is given.
  void remember(uint32_t handle) const {
    if (options.has("as")) tesselctl::remember(context, options.need("as"), handle);
  }

  // How a cell of a counter or meter is addressed.
  const char *cell_name() const { return object.table != 0 ? "entry" : "index"; }
  uint32_t cell(uint64_t last) const {
    if (object.table != 0) return options.handle(context, "entry");
    return static_cast<uint32_t>(options.number("index", last));
  }

 private:
  std::vector<std::string_view> own_names(std::initializer_list<std::string_view> names) const {
    std::vector<std::string_view> own = names;
    if constexpr (requires { object.table; }) {
      for (std::string_view &name : own) name = name == "index" ? cell_name() : name;
    }
    return own;
  }
};

// The words of "[WORD...] FIELD=VALUE... [NAME=VALUE...]": some are options, the others fields of a
// record. A field goes before an option of its name.
struct FieldWords {
  FieldWords(const Invocation &invocation, size_t at, std::initializer_list<std::string_view> names,
             const bindings::Record *record = nullptr);

  Word command;
  std::vector<Word> before;  // those up to there, and the options
  std::vector<Word> fields;

  Invocation options() const { return {command, before}; }
  // Not yet finished. Throws Fault.
  RecordWriter record(const bindings::Record &record, std::string what) const;
};

// The pipe of the option pipe=. Throws Fault.
inline bf_pipe_id_t pipe_of(const Context &context, const Options &options, uint64_t otherwise) {
  return static_cast<bf_pipe_id_t>(
      options.number_or("pipe", context.device.pipes() - 1, otherwise));
}

}  // namespace tesselctl
