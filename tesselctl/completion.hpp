// What can stand at a point of a command line: for TAB and '?' in the shell, and for the shells
// that call the tool.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/command.hpp"

namespace tesselctl {

struct Candidate {
  std::string word;  // replaces the line from the start to the cursor
  std::string help;  // one line

  // A word that ends so has more to come; behind the others stands a blank.
  bool is_complete() const { return !word.ends_with('=') && !word.ends_with('/'); }
};

struct Completion {
  size_t start = 0;  // byte of the line
  std::vector<Candidate> candidates;
  // What else can stand here, where no list of words can say it; or empty.
  std::string hint;
};

// Looks at the words before the cursor, and at the names of those behind it. Reads handles from the
// device, and names of files. Never throws Fault: where a word is wrong there is nothing to offer.
Completion complete(const Context &context, std::string_view line, size_t cursor);

// The same by the command "complete", which a Runner answers: the words of that command, and what
// its answer says.
std::string completion_request(std::string_view line, size_t cursor);
Completion read_completion(std::string_view answer);

// The line of a "complete" word, where %XX stands for the byte of that hexadecimal number.
std::string decode_line(std::string_view text);

// The longest text that all candidates begin with.
std::string common_beginning(const std::vector<Candidate> &candidates);

}  // namespace tesselctl
