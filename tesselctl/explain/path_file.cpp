#include "tesselctl/explain/path_file.hpp"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include "tesselctl/command/fault_report.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

std::string NamedPath::joined_words() const {
  std::string joined;
  for (const Word &word : words) joined += (joined.empty() ? "" : " ") + written(word);
  return joined;
}

PathFile::PathFile(const std::string &path, std::string shown) : shown_(std::move(shown)) {
  FileLines lines(path);
  uint64_t number = 0;
  for (std::string_view line; lines.next(line);) {
    try {
      read_line(++number, line);
    } catch (const Fault &fault) {
      throw Fault(fault_text(fault, shown_, number));
    }
  }
}

PathFile PathFile::of(const Context &context) {
  const std::string &name = context.settings.paths;
  return name.empty() ? PathFile() : PathFile(context.path({name, 0}), name);
}

void PathFile::read_line(uint64_t number, std::string_view text) {
  std::vector<Word> words;
  split_words(text, words);
  if (words.empty()) return;
  if (words.size() < 4 || words[0].text != "path" || words[2].text != "=") {
    throw Fault(words[0], "a line is: path NAME = TABLE...");
  }
  const Word name = words[1];
  if (name.text.find('=') != std::string_view::npos) throw Fault(name, "a name has no '='");
  if (find_record(tables(), name.text) != nullptr) throw Fault(name, "a table has this name");
  if (const NamedPath *before = find(name.text)) {
    throw Fault(name, fmt::format("line {} has a path of this name", before->line));
  }
  NamedPath &path = paths_.emplace_back(NamedPath{number, std::string(text)});
  split_words(path.text, words);
  path.name = words[1].text;
  path.words.assign(words.begin() + 3, words.end());
}

const NamedPath *PathFile::find(std::string_view name) const {
  const auto found = std::ranges::find(paths_, name, &NamedPath::name);
  return found == paths_.end() ? nullptr : &*found;
}

Fault PathFile::placed(const Fault &fault, const NamedPath &path) const {
  return Fault(fault_text(fault, shown_, path.line));
}

std::string default_paths_file() {
  if (const char *chosen = std::getenv("TESSELCTL_PATHS")) return chosen;
  const std::string path = file_of_user("XDG_CONFIG_HOME", ".config", "paths");
  return access(path.c_str(), R_OK) == 0 ? path : std::string();
}

}  // namespace tesselctl
