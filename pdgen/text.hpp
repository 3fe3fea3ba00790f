// Small helpers for writing source text.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace pdgen {

// Replaces $0 to $9 by the arguments and $$ by a dollar sign.
std::string expand(std::string_view pattern, const std::vector<std::string> &arguments);

// "0x" and eight digits.
std::string hex32(std::uint32_t value);

std::string join(const std::vector<std::string> &parts, std::string_view separator);

// Breaks text at blanks into lines of at most width columns; every line but the first starts with
// the indent.
std::string wrap(std::string_view text, std::size_t width, std::string_view indent);

// A string literal of C with that contents.
std::string c_literal(std::string_view text);

// A C block comment of the text's lines.
std::string comment(std::string_view text);

// Files of one run. A file is written only if its contents change, so that nothing is rebuilt
// without need.
class OutputFiles {
 public:
  void add(std::filesystem::path path, std::string contents);
  // All files, or none of those that follow the first failure; false with a message then.
  bool write(std::string &message) const;

 private:
  struct File {
    std::filesystem::path path;
    std::string contents;
  };
  std::vector<File> files_;
};

}  // namespace pdgen
