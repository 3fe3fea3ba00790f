// Files as they are read: whole or line by line, plain or compressed with xz. A byte-order mark
// before the text is skipped.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "tesselctl/text/descriptor.hpp"

namespace tesselctl {

// What is read has at most so many bytes, decompressed, and a line at most so many.
inline constexpr uint64_t kMostFile = uint64_t{512} << 20;
inline constexpr size_t kMostLine = size_t{1} << 20;

// The bytes of a file, or of standard input for "-". A file that begins as xz files do is
// decompressed by the xz program. All throw Fault.
class FileBytes {
 public:
  explicit FileBytes(const std::string &path);
  ~FileBytes();
  FileBytes(const FileBytes &) = delete;
  FileBytes &operator=(const FileBytes &) = delete;

  // How many came, of at most room; 0 behind the last.
  size_t read(char *to, size_t room);
  // As faults name it.
  const std::string &path() const { return path_; }

 private:
  bool end_xz();

  std::string path_;
  Descriptor file_;
  pid_t xz_ = -1;
  uint64_t size_ = 0;
};

// All the bytes. Throws Fault when they cannot be read.
std::string read_input(const std::string &path);

// Gives lines one by one, without their ends; false behind the last one.
using LineSource = std::function<bool(std::string_view &line)>;
LineSource lines_of(std::string_view text);

// The lines of such a file, without their ends.
class FileLines {
 public:
  explicit FileLines(const std::string &path) : bytes_(path) {}

  // False behind the last line. The line is good until the next call. Reads no more than the line
  // needs while the rest is not there yet. Throws Fault.
  bool next(std::string_view &line);
  // The same; it does not outlive these.
  LineSource source() {
    return [this](std::string_view &line) { return next(line); };
  }

 private:
  void fill();

  FileBytes bytes_;
  std::string buffer_;
  size_t start_ = 0;  // of what waits in the buffer
  size_t end_ = 0;
  bool at_end_ = false;
  uint64_t number_ = 0;  // of the lines that were given
};

// The file of that name as seen from the directory: the name itself when it is absolute.
std::string path_in(const std::string &directory, const std::string &name);
// Of the tool, in the folder that the environment's variable has, or in that one of the user's
// home. Empty when the environment names none.
std::string file_of_user(const char *variable, std::string_view folder, std::string_view name);
bool is_compressed(const std::string &path);
// Whether something is there that a read or write could wait for: a pipe, a terminal, a device.
bool is_no_regular_file(const std::string &path);

// The fault of a call of the system that failed, by errno.
[[noreturn]] void throw_system(const std::string &path);
// The same of open, which says of a link to nothing no more than of nothing.
[[noreturn]] void throw_unopened(const std::string &path);

}  // namespace tesselctl
