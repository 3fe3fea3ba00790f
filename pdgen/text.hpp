// Small helpers for writing source text.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace pdgen {

inline constexpr std::string_view kWordCharacters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";

// "0x" and eight digits.
std::string hex32(std::uint32_t value);

// The words between blanks.
std::vector<std::string> words(std::string_view text);

// The words with blanks between them, in lines of at most width columns. The first line starts in
// that column, every other one with the indent.
std::string fill(const std::vector<std::string> &words, std::size_t width, std::string_view indent,
                 std::size_t column = 0);

std::string in_capitals(std::string_view text);

// A string literal of C with that contents.
std::string c_literal(std::string_view text);

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
