// Named paths through tables, as users keep them in a file, a line each:
//
//   path NAME = WORD...
//
// with the words that explain takes: tables, paths of lines above, FIELD=VALUE, PARAMETER=FIELD.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "tesselctl/command/command.hpp"

namespace tesselctl {

struct NamedPath {
  uint64_t line;
  std::string text;              // of the line
  std::vector<Word> words = {};  // behind the '='; of the text
  std::string_view name = {};

  std::string joined_words() const;
};

class PathFile {
 public:
  // Throws Fault with file, line and column, also for a path that has the name of a table.
  PathFile(const std::string &path, std::string shown);
  // That of the settings; without paths where they have none.
  static PathFile of(const Context &context);

  // Null when there is none.
  const NamedPath *find(std::string_view name) const;
  const std::deque<NamedPath> &paths() const { return paths_; }
  // The fault of a word in the line of the path.
  Fault placed(const Fault &fault, const NamedPath &path) const;

 private:
  PathFile() = default;
  void read_line(uint64_t number, std::string_view text);

  std::string shown_;
  std::deque<NamedPath> paths_;
};

// Of $TESSELCTL_PATHS, else tesselctl/paths in $XDG_CONFIG_HOME or ~/.config if it is there.
std::string default_paths_file();

}  // namespace tesselctl
