// What can stand at a point of a command line: for TAB and '?' in the shell, and for the shells
// that call the tool.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/command/command.hpp"
#include "tesselctl/completion/offers.hpp"

namespace tesselctl {

// The part of a line before the cursor: whole words, and the one that is being written.
struct Cut {
  std::vector<Word> words;
  size_t start = 0;  // of the word that is being written, behind its quote
  bool quoted = false;
  bool in_comment = false;
};
Cut cut(std::string_view before);

// Looks at the words before the cursor, and at the names of those behind it. Reads handles from the
// device, and names of files. Never throws Fault: where a word is wrong there is nothing to offer.
Completion complete(const Context &context, std::string_view line, size_t cursor);

// The same by the command "complete", which a Runner answers: the words of that command, and what
// its answer says.
std::string completion_request(std::string_view line, size_t cursor);
Completion read_completion(std::string_view answer);

// The answer of that command.
void print_completion(const Completion &completion, Results &results);

// The line of a "complete" word, where %XX stands for the byte of that hexadecimal number.
std::string decode_line(std::string_view text);

}  // namespace tesselctl
