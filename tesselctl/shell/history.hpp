// The lines that were typed, kept in a file from one shell to the next.
#pragma once

#include <string>
#include <vector>

namespace tesselctl {

class History {
 public:
  // path may be empty: nothing is kept. Folders of the path and the file are made at the first add,
  // for the user alone. A file that cannot be read or written is no fault: the shell goes on
  // without it.
  explicit History(std::string path) : path_(std::move(path)) {}

  // The lines of the file, the last kMost of them; a file much longer than that is cut.
  std::vector<std::string> load() const;
  void add(const std::string &line) const;

  static constexpr size_t kMost = 1000;

 private:
  std::string path_;
};

// $TESSELCTL_HISTORY, or tesselctl/history in $XDG_STATE_HOME or ~/.local/state. Empty when the
// environment names none.
std::string default_history_path();

}  // namespace tesselctl
