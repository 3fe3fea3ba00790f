// Whole files as text; read plain or compressed with xz, written in one step.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace tesselctl {

// The contents of the file, or of standard input for "-". A file that begins as xz files do is
// decompressed by the xz program. Throws Fault when it cannot be read.
std::string read_input(const std::string &path);

// A file that is written beside the one it replaces, brought to the disk and renamed. Whatever goes
// wrong before commit is done, the old file stays as it was; the new one has its permissions. What
// is no regular file, such as a pipe or a terminal, is written to as it is. All throw Fault.
class FileWriter {
 public:
  explicit FileWriter(std::string path);
  ~FileWriter();
  FileWriter(const FileWriter &) = delete;
  FileWriter &operator=(const FileWriter &) = delete;

  void write(std::string_view text);
  void commit();

 private:
  [[noreturn]] void fail();
  void discard();
  std::string path_;
  std::string target_;     // what is replaced
  std::string temporary_;  // empty when it is written to as it is
  unsigned mode_ = 0;
  int fd_ = -1;
};

void write_file(const std::string &path, std::string_view text);

// The lines of a file, or of standard input for "-", without their ends.
class FileLines {
 public:
  explicit FileLines(const std::string &path);
  ~FileLines();
  FileLines(const FileLines &) = delete;
  FileLines &operator=(const FileLines &) = delete;

  // False behind the last line. The line is good until the next call. Throws Fault.
  bool next(std::string_view &line);

 private:
  std::string path_;
  std::FILE *file_;
  char *line_ = nullptr;
  size_t room_ = 0;
};

// The file of that name as seen from the directory: the name itself when it is absolute.
std::string path_in(const std::string &directory, const std::string &name);
// Whether something is there that a read or write could wait for: a pipe, a terminal, a device.
bool is_no_regular_file(const std::string &path);

}  // namespace tesselctl
