// The " name=value" words behind the value of a line of an image.
#pragma once

#include <array>
#include <initializer_list>

#include "tesselctl/program/value_scanner.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

class LineWords {
 public:
  // Reads to the end of the line. Throws Fault for another name, or one that is there twice.
  LineWords(const ValueScanner &line, std::span<const std::string_view> names);
  LineWords(const ValueScanner &line, std::initializer_list<std::string_view> names)
      : LineWords(line, std::span(names.begin(), names.size())) {}

  // Null without such a word.
  const Word *find(std::string_view name) const;
  Word need(std::string_view name) const;
  uint64_t number(std::string_view name, uint64_t limit, uint64_t otherwise = 0) const;
  uint32_t number32(std::string_view name, uint32_t otherwise = 0) const {
    return static_cast<uint32_t>(number(name, 0xffffffffu, otherwise));
  }

 private:
  static constexpr size_t kMost = 8;
  std::array<Assignment, kMost> words_;
  size_t count_ = 0;
  Word end_;
};

// "KEYWORD REST" of a line.
struct KeywordLine {
  explicit KeywordLine(std::string_view text) : rest{text, 1}, keyword(take_until(rest, ' ')) {}
  Word rest;
  Word keyword;
};

// The decimal number that a line begins with: of something that is counted from there on. Throws
// Fault.
uint32_t parse_counted(ValueScanner &line, uint64_t from);

}  // namespace tesselctl
