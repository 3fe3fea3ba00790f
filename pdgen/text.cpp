#include "pdgen/text.hpp"

#include <fmt/format.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <system_error>

namespace pdgen {

std::string hex32(std::uint32_t value) { return fmt::format("0x{:08x}", value); }

std::vector<std::string> words(std::string_view text) {
  std::istringstream stream{std::string(text)};
  return {std::istream_iterator<std::string>(stream), {}};
}

std::string fill(const std::vector<std::string> &words, std::size_t width, std::string_view indent,
                 std::size_t column) {
  std::string out;
  for (const std::string &word : words) {
    const std::size_t blank = out.empty() ? 0 : 1;
    if (column > 0 && column + blank + word.size() > width) {
      out += fmt::format("\n{}", indent);
      column = indent.size();
    } else if (blank != 0) {
      out += ' ';
      ++column;
    }
    out += word;
    column += word.size();
  }
  return out;
}

std::string in_capitals(std::string_view text) {
  std::string out(text);
  for (char &c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return out;
}

std::string c_literal(std::string_view text) {
  std::string out = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    // The second of two question marks too: trigraphs begin with them.
    if (c == '"' || c == '\\' || (c == '?' && out.back() == '?')) {
      out += fmt::format("\\{}", c);
    } else if (byte < 0x20 || byte >= 0x7f) {
      out += fmt::format("\\{:03o}", byte);
    } else {
      out += c;
    }
  }
  return out + '"';
}

std::string c_literal_lines(std::string_view text) {
  std::string out;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
    out += "\n      " + c_literal(text.substr(at, end - at));
    at = end;
  }
  return out;
}

std::optional<std::string> read_file(const std::filesystem::path &path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  std::ostringstream text;
  std::ifstream file(path, std::ios::binary);
  if (file.peek() != EOF) text << file.rdbuf();
  return file.is_open() ? std::optional(text.str()) : std::nullopt;
}

Written write_files(const std::vector<TextFile> &files) {
  Written written;
  for (const auto &[path, text] : files) {
    if (read_file(path) == text) continue;
    std::error_code error;  // shows when the file cannot be opened
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
    out.close();
    if (!out) return {written.count, path};
    ++written.count;
  }
  return written;
}

}  // namespace pdgen
