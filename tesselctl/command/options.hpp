// The NAME=VALUE words of commands that take a fixed set of names.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "tesselctl/command/command.hpp"

namespace tesselctl {

class Options {
 public:
  // Reads the arguments from position at on. Throws Fault for another name than those, a name
  // given twice, and a word without '='.
  Options(const Invocation &invocation, size_t at, std::initializer_list<std::string_view> names);

  const Word *find(std::string_view name) const;
  bool has(std::string_view name) const { return find(name) != nullptr; }
  // The value. Throws Fault when it is missing.
  Word need(std::string_view name) const;

  uint64_t number(std::string_view name, uint64_t limit, uint64_t least = 0) const;
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

}  // namespace tesselctl
