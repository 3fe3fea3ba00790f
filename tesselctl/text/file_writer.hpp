// Files that are replaced whole, and the locks that keep two processes from replacing one at once.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "tesselctl/text/descriptor.hpp"

namespace tesselctl {

// So long a process waits for one that holds the lock of a file that it is to write.
inline constexpr int kLockSeconds = 5;

// A file, there or not, as a name in a folder.
struct FilePlace {
  // The name is that of the path itself, whatever is there. Throws Fault.
  static FilePlace of_name(const std::string &path);
  // Where the path leads. Links are followed by the kernel, which refuses those that others put
  // into shared folders. Throws Fault for a folder and for a link to nothing.
  static FilePlace of_file(const std::string &path);
  // The same, or nothing when the file was replaced meanwhile.
  static std::optional<FilePlace> look_up(const std::string &path);

  std::string path;
  std::string name = {};
  Descriptor folder = Descriptor{};  // not open when there is a pipe, a terminal or a device
  bool exists = false;
  mode_t mode = 0;  // of the file that exists
};

// The lock of a file: ".NAME.lock" beside it, with the number of the process that holds it. It goes
// with its owner; one that a killed process left is taken over. A process that holds it already
// shares it with itself.
class FileLock {
 public:
  // The place outlives the lock. Waits so long for another holder. Throws Fault with its number.
  explicit FileLock(const FilePlace &place, int seconds = kLockSeconds);
  ~FileLock();
  FileLock(const FileLock &) = delete;
  FileLock &operator=(const FileLock &) = delete;

 private:
  FileLock(const FilePlace &place, std::string name) : place_(place), name_(std::move(name)) {}
  bool try_take();
  bool is_shared() const;

  const FilePlace &place_;
  std::string name_;
  Descriptor file_;
  bool owns_ = false;
};

// A file that is written beside the one it replaces, brought to the disk and renamed, under the
// lock of that file. Whatever goes wrong before commit is done, the old file stays as it was; the
// new one has its permissions. What a killed process left of ".NAME.new" is removed. What is no
// regular file, such as a pipe or a terminal, is written to as it is. All throw Fault.
class FileWriter {
 public:
  explicit FileWriter(const std::string &path);
  ~FileWriter();
  FileWriter(const FileWriter &) = delete;
  FileWriter &operator=(const FileWriter &) = delete;

  void write(std::string_view text);
  void commit();
  // Whether the file has its name. A commit that fails behind that leaves it to the system when the
  // folder gets to the disk.
  bool is_in_place() const { return temporary_.empty(); }
  // The file, at whose end more can be written.
  Descriptor take() { return std::move(file_); }

 private:
  void open_temporary();
  FilePlace place_;
  std::optional<FileLock> lock_;
  std::string temporary_ = {};  // in the folder of the place; empty when there is none
  Descriptor file_;
};

// Throws Fault where the name is one of a compressed file.
void refuse_compressed_name(const std::string &path);

void write_file(const std::string &path, std::string_view text);

}  // namespace tesselctl
