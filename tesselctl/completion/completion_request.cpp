// Completion as a command, so that it works through a server and from other shells.
#include <algorithm>
#include <charconv>

#include <fmt/format.h>
#include "tesselctl/completion/completion.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

namespace {

// Bytes that a word in double quotes cannot hold, or that would make it an option.
bool must_be_encoded(char c, bool first) {
  return c == '"' || c == '%' || (first && c == '-') || static_cast<unsigned char>(c) < ' ';
}

}  // namespace

std::string completion_request(std::string_view line, size_t cursor) {
  std::string text = "complete \"";
  for (size_t i = 0; i < line.size(); ++i) {
    const auto byte = static_cast<unsigned char>(line[i]);
    text +=
        must_be_encoded(line[i], i == 0) ? fmt::format("%{:02x}", byte) : std::string(1, line[i]);
  }
  return text + "\" cursor=" + std::to_string(cursor);
}

std::string decode_line(std::string_view text) {
  std::string line;
  for (size_t i = 0; i < text.size(); ++i) {
    unsigned byte = 0;
    const char *digits = text.data() + i + 1;
    if (text[i] == '%' && text.size() - i > 2 &&
        std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
      line += static_cast<char>(byte);
      i += 2;
    } else {
      line += text[i];
    }
  }
  return line;
}

Completion read_completion(std::string_view answer) {
  Completion completion;
  std::string_view line;
  for (const LineSource next = lines_of(answer); next(line);) {
    const std::string_view start = take_until(line, '\t');
    std::from_chars(start.data(), start.data() + start.size(), completion.start);
    const std::string_view word = take_until(line, '\t');
    if (word.empty()) {
      completion.hint = line;
    } else {
      completion.candidates.push_back({std::string(word), std::string(line)});
    }
  }
  return completion;
}

void print_completion(const Completion &completion, Results &results) {
  const auto add = [&](const std::string &word, const std::string &help) {
    Row row;
    row.number("start", completion.start).text("word", word).text("help", help);
    results.row(row, fmt::format("{}\t{}\t{}", completion.start, word, help));
  };
  for (const Candidate &candidate : completion.candidates) add(candidate.word, candidate.help);
  if (!completion.hint.empty()) add("", completion.hint);
}

}  // namespace tesselctl
