#include "tesselctl/state/line_words.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/program/value.hpp"

namespace tesselctl {

LineWords::LineWords(const ValueScanner &line, std::span<const std::string_view> names) {
  Word rest = {line.rest(), line.column()};
  while (!rest.text.empty()) {
    const size_t blank = std::min(rest.text.find(' '), rest.text.size());
    if (blank != 0) {
      const Assignment word = split_assignment(rest.first(blank));
      if (std::find(names.begin(), names.end(), word.name.text) == names.end()) {
        throw Fault(word.name, "nothing of this name belongs here");
      }
      if (find(word.name.text) != nullptr) throw Fault(word.name, "this is given twice");
      words_[count_++] = word;  // as many as there are names
    }
    rest = rest.from(std::min(blank + 1, rest.text.size()));
  }
  end_ = {"end of line", rest.column};
}

const Word *LineWords::find(std::string_view name) const {
  for (size_t i = 0; i < count_; ++i) {
    if (words_[i].name.text == name) return &words_[i].value;
  }
  return nullptr;
}

Word LineWords::need(std::string_view name) const {
  if (const Word *word = find(name)) return *word;
  throw Fault(end_, std::string(name) + "= is missing");
}

uint64_t LineWords::number(std::string_view name, uint64_t limit, uint64_t otherwise) const {
  const Word *word = find(name);
  return word == nullptr ? otherwise : parse_limited(*word, limit, std::string(name));
}

KeywordLine::KeywordLine(std::string_view text) {
  const size_t blank = std::min(text.find(' '), text.size());
  const size_t behind = std::min(blank + 1, text.size());
  keyword = {text.substr(0, blank), 1};
  rest = {text.substr(behind), behind + 1};
}

uint32_t parse_counted(ValueScanner &line, uint64_t from) {
  const Word word = line.here();
  const int64_t number = line.decimal();
  if (number >= static_cast<int64_t>(from)) return static_cast<uint32_t>(number);
  throw Fault(word, fmt::format("these are numbered from {}", from));
}

std::vector<uint64_t> number_list(Word word, uint64_t limit) {
  std::vector<uint64_t> numbers;
  if (word.text.empty()) return numbers;
  for (Word rest = word;;) {
    const size_t comma = std::min(rest.text.find(','), rest.text.size());
    numbers.push_back(parse_limited(rest.first(comma), limit, "a number"));
    if (comma == rest.text.size()) return numbers;
    rest = rest.from(comma + 1);
  }
}

}  // namespace tesselctl
