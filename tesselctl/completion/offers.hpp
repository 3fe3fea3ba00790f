// What can stand at a point of a command line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

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

// The longest text that all candidates begin with.
std::string common_beginning(const std::vector<Candidate> &candidates);

// Collects the candidates that a word begins, upper and lower case making no difference.
class Offers {
 public:
  void start_at(size_t start, std::string_view typed) {
    completion_.start = start;
    typed_ = typed;
  }
  std::string_view typed() const { return typed_; }
  // Leaves the first characters as they are.
  void skip(size_t n) { start_at(completion_.start + n, typed_.substr(n)); }
  void offer(std::string_view word, std::string_view help);
  void hint(std::string_view text);
  bool has_hint() const { return !completion_.hint.empty(); }
  size_t count() const { return completion_.candidates.size(); }
  bool begins(std::string_view word) const;
  // The files whose path was begun. Relative names are those of the directory, or when it is empty
  // of that of this process. quoted: behind a quote that is open.
  void offer_files(const std::string &directory, bool quoted);
  Completion take() { return std::move(completion_); }

 private:
  std::string_view typed_;
  Completion completion_;
};

bool is_file_placeholder(std::string_view placeholder);

}  // namespace tesselctl
