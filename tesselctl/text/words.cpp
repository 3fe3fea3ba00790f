#include "tesselctl/text/words.hpp"

#include <algorithm>

namespace tesselctl {

namespace {

bool is_space(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f'; }

}  // namespace

std::string written(Word word) {
  const std::string text(word.text);
  const bool plain = !text.empty() && text.find_first_of(" \t\r\v\f#") == std::string::npos;
  if (plain) return text;
  if (text.find('"') == std::string::npos) return '"' + text + '"';
  throw Fault(word, "a word with blanks cannot hold quotes");
}

Word take_until(Word &text, char end) {
  const size_t size = std::min(text.text.find(end), text.text.size());
  const Word taken = text.first(size);
  text = text.from(std::min(size + 1, text.text.size()));
  return taken;
}

std::string_view take_until(std::string_view &text, char end) {
  Word word = {text, 0};
  const Word taken = take_until(word, end);
  text = word.text;
  return taken.text;
}

std::string_view trimmed(std::string_view line) {
  while (!line.empty() && is_space(line.front())) line.remove_prefix(1);
  while (!line.empty() && is_space(line.back())) line.remove_suffix(1);
  return line;
}

void split_words(std::string_view line, std::vector<Word> &words) {
  words.clear();
  size_t at = 0;
  while (true) {
    while (at < line.size() && is_space(line[at])) ++at;
    if (at == line.size() || line[at] == '#') return;
    if (line[at] == '"') {
      const size_t end = line.find('"', at + 1);
      if (end == std::string_view::npos) {
        throw Fault({line.substr(at), at + 1}, "the quote has no end");
      }
      words.push_back({line.substr(at + 1, end - at - 1), at + 2});
      at = end + 1;
      continue;
    }
    const size_t begin = at;
    while (at < line.size() && !is_space(line[at])) ++at;
    words.push_back({line.substr(begin, at - begin), begin + 1});
  }
}

Assignment split_assignment(Word word) {
  const size_t equals = word.text.find('=');
  if (equals == std::string_view::npos) throw Fault(word, "this should be NAME=VALUE");
  if (equals == 0) throw Fault(word, "there is no name before '='");
  return {word, word.first(equals), word.from(equals + 1)};
}

}  // namespace tesselctl
