// The command layer on a device, for targets that give it files and lines.
#pragma once

#include <cjson/cJSON.h>
#include <sys/mman.h>
#include <unistd.h>

#include <string>
#include <unordered_set>

#include "fuzz/target.hpp"
#include "tesselctl/command/flags.hpp"
#include "tesselctl/command/grammar.hpp"
#include "tesselctl/command/local_runner.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/completion/offers.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/state/image.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

inline const bool has_used_program = (use_program(bindings::pd_binding), true);
// Keeps the library started: every input has devices of its own, as a first one would be.
inline const LibraryUse library_use;

// A file that lives in memory and has a name, for what reads files by name.
class MemoryFile {
 public:
  explicit MemoryFile(std::string_view bytes) : fd_(memfd_create("input", MFD_CLOEXEC)) {
    const auto size = static_cast<ssize_t>(bytes.size());
    require(fd_ >= 0 && write(fd_, bytes.data(), bytes.size()) == size, "a file has memory");
  }
  ~MemoryFile() { close(fd_); }
  MemoryFile(const MemoryFile &) = delete;
  MemoryFile &operator=(const MemoryFile &) = delete;

  std::string path() const { return "/proc/self/fd/" + std::to_string(fd_); }

 private:
  int fd_;
};

// A device of its own.
struct Tool {
  explicit Tool(const Settings &settings = {.terse = true}, uint32_t id = 0)
      : device({.id = id, .pipes = 2}), runner(device, out, errors, settings) {}
  // Whether the line is done; the word "@" stands for the file.
  bool run(std::string line, const MemoryFile &file) {
    line.replace(line.find('@'), 1, file.path());
    return runner.run({"input", 1, line}) == LineOutcome::done;
  }
  std::string image() const { return image_of(device); }

  Device device;
  Output out;
  Output errors;
  LocalRunner runner;
};

// Whether no input had this image yet: most fail early, and leave a device as another one did.
inline bool is_new(const std::string &image) {
  static std::unordered_set<size_t> known;
  return known.insert(std::hash<std::string>()(image)).second;
}

// Whether the line runs a command that reads or writes files, which the fuzzer must not choose.
inline bool uses_files(std::string_view line) {
  try {
    std::vector<Word> words;
    Settings settings;
    split_words(line, words);
    take_flags(words, settings);
    if (words.empty()) return false;
    Invocation invocation;
    for (const Argument &argument : grammar_of(find_command(words, invocation).arguments)) {
      for (const std::string_view value : alternatives_of(argument.value)) {
        if (is_file_placeholder(value)) return true;
      }
    }
  } catch (const Fault &) {
    // The runner finds the same fault before it runs anything.
  }
  return false;
}

// Each line of an answer in JSON is an object.
inline void require_json_lines(std::string_view text) {
  while (!text.empty()) {
    const size_t end = text.find('\n');
    require(end != text.npos, "an answer in JSON ends its line");
    cJSON *json = cJSON_ParseWithLength(text.data(), end);
    require(cJSON_IsObject(json), "an answer in JSON is an object");
    cJSON_Delete(json);
    text.remove_prefix(end + 1);
  }
}

}  // namespace tesselctl
