// Files, texts and commands for the tests of what the build leaves behind.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace pd_test {

// Fails the test when the file cannot be read.
std::string read_file(const std::string &path);

std::vector<std::string> lines_of(const std::string &text);

// The status of a shell command and what it wrote, standard error included.
struct Outcome {
  int status;
  std::string output;
};
Outcome run(const std::string &command);

// Where two texts part: the number and both versions of the first line that differs, empty when
// they are the same.
std::string first_difference(const std::string &wanted, const std::string &found);

// "-x" for each name that is in wanted only and "+x" for each that is in found only.
std::string difference(const std::set<std::string> &wanted, const std::set<std::string> &found);

}  // namespace pd_test
