#include "tesselctl/shell/history.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "tesselctl/text/fault.hpp"
#include "tesselctl/text/file_writer.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

namespace {

constexpr mode_t kOwnFile = 0600;
constexpr mode_t kOwnFolder = 0700;

void make_folders(const std::string &path) {
  for (size_t at = path.find('/', 1); at != std::string::npos; at = path.find('/', at + 1)) {
    mkdir(path.substr(0, at).c_str(), kOwnFolder);
  }
}

bool is_regular(const std::string &path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

std::vector<std::string> History::load() const {
  std::vector<std::string> lines;
  if (!is_regular(path_)) return lines;
  std::string text;
  try {
    text = read_input(path_);
  } catch (const Fault &) {
    return lines;
  }
  std::string_view line;
  for (const LineSource next = lines_of(text); next(line);) {
    if (!line.empty()) lines.emplace_back(line);
  }
  if (lines.size() <= kMost) return lines;
  const bool cut = lines.size() > 2 * kMost;
  lines.erase(lines.begin(), lines.end() - kMost);
  if (!cut) return lines;
  text.clear();
  for (const std::string &kept : lines) text += kept + "\n";
  try {
    write_file(path_, text);
    chmod(path_.c_str(), kOwnFile);
  } catch (const Fault &) {
    // It stays as long as it is.
  }
  return lines;
}

void History::add(const std::string &line) const {
  if (path_.empty()) return;
  make_folders(path_);
  const int file = open(path_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, kOwnFile);
  if (file < 0) return;
  const std::string text = line + "\n";
  // One write, so that shells side by side do not mix their lines.
  const ssize_t written = write(file, text.data(), text.size());
  static_cast<void>(written);
  close(file);
}

std::string default_history_path() {
  if (const char *chosen = std::getenv("TESSELCTL_HISTORY")) return chosen;
  return file_of_user("XDG_STATE_HOME", ".local/state", "history");
}

}  // namespace tesselctl
