#include "files.hpp"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <fstream>
#include <sstream>

namespace pd_test {

std::string read_file(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

std::vector<std::string> lines_of(const std::string &text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

Outcome run(const std::string &command) {
  Outcome outcome{-1, {}};
  std::FILE *pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return outcome;
  char buffer[4096];
  size_t read = 0;
  while ((read = std::fread(buffer, 1, sizeof buffer, pipe)) > 0)
    outcome.output.append(buffer, read);
  const int status = pclose(pipe);
  outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return outcome;
}

std::string first_difference(const std::string &wanted, const std::string &found) {
  if (wanted == found) return "";
  const auto wanted_lines = lines_of(wanted);
  const auto found_lines = lines_of(found);
  size_t i = 0;
  while (i < wanted_lines.size() && i < found_lines.size() && wanted_lines[i] == found_lines[i])
    ++i;
  const auto at = [&](const auto &lines) { return i < lines.size() ? lines[i] : "(end)"; };
  return "line " + std::to_string(i + 1) + ":\n  " + at(wanted_lines) + "\n  " + at(found_lines);
}

std::string difference(const std::set<std::string> &wanted, const std::set<std::string> &found) {
  std::string text;
  for (const std::string &name : wanted) text += found.contains(name) ? "" : "-" + name + " ";
  for (const std::string &name : found) text += wanted.contains(name) ? "" : "+" + name + " ";
  return text;
}

}  // namespace pd_test
