#include "tesselctl/state/line_words.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/program/value.hpp"

namespace tesselctl {

LineWords::LineWords(const ValueScanner &line, std::span<const std::string_view> names) {
  Word rest = line.word();
  while (!rest.text.empty()) {
    const Word next = take_until(rest, ' ');
    if (next.text.empty()) continue;
    const Assignment word = split_assignment(next);
    if (std::find(names.begin(), names.end(), word.name.text) == names.end()) {
      throw Fault(word.name, "nothing of this name belongs here");
    }
    if (find(word.name.text) != nullptr) throw Fault(word.name, "this is given twice");
    words_[count_++] = word;  // as many as there are names
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

uint32_t parse_counted(ValueScanner &line, uint64_t from) {
  const Word word = line.here();
  const int64_t number = line.decimal();
  if (number >= static_cast<int64_t>(from)) return static_cast<uint32_t>(number);
  throw Fault(word, fmt::format("these are numbered from {}", from));
}

}  // namespace tesselctl
