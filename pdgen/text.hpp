// Small helpers for writing source text.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
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
// The same in lines of the source, split behind each newline.
std::string c_literal_lines(std::string_view text);

// What a projection gives of each; std::views need later compilers than those that build this.
template <class Range, class Projection>
auto projected(const Range &range, Projection projection) {
  using Value = decltype(std::invoke(projection, *range.begin()));
  std::vector<std::decay_t<Value>> values;
  for (const auto &element : range) values.push_back(std::invoke(projection, element));
  return values;
}

// A text and the path of its file.
struct TextFile {
  std::string path;
  std::string text;
};

// Only of a regular file, as a device may have no end.
std::optional<std::string> read_file(const std::filesystem::path &path);

// Writes those of the files whose text changes, so that nothing is rebuilt without need, up to the
// first that cannot be written, and returns their number.
struct Written {
  std::size_t count = 0;
  std::string failed;  // the path of that one, else ""
};
Written write_files(const std::vector<TextFile> &files);

}  // namespace pdgen
