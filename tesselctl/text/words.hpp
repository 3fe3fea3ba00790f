// The words of a command line.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "tesselctl/text/fault.hpp"

namespace tesselctl {

using Words = std::span<const Word>;

// Splits a line at white space. A word that begins with '#' starts a comment; a word in double
// quotes may hold white space and '#', but no quote. The words point into the line. Throws Fault
// for a quote that does not end.
void split_words(std::string_view line, std::vector<Word> &words);

// The word as it stands in a line, in quotes where it needs them. Throws Fault where it cannot.
std::string written(Word word);

// Takes the text up to a character off its front, and that character with it; all without one.
Word take_until(Word &text, char end);
std::string_view take_until(std::string_view &text, char end);

// Without the white space around it.
std::string_view trimmed(std::string_view line);

// "name=value" in its two parts. The value of "name=" is empty.
struct Assignment {
  Word whole;
  Word name;
  Word value;
};

// Throws Fault when the word has no '=' or nothing before it.
Assignment split_assignment(Word word);

}  // namespace tesselctl
