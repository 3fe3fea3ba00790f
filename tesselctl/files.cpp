#include "tesselctl/files.hpp"

#include <fcntl.h>
#include <fmt/format.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

#include "tesselctl/descriptor.hpp"
#include "tesselctl/fault.hpp"

extern char **environ;

namespace tesselctl {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kXzMagic = "\xfd\x37\x7a\x58\x5a\0"sv;

[[noreturn]] void throw_system(const std::string &path) {
  throw Fault(fmt::format("{}: {}", path, strerror(errno)));
}

std::string read_all(int fd, const std::string &path) {
  std::string text;
  size_t size = 0;
  while (true) {
    if (text.size() - size < 1u << 16) text.resize(text.size() + (1u << 16) + text.size() / 2);
    const ssize_t got = read(fd, text.data() + size, text.size() - size);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throw_system(path);
    if (got == 0) break;
    size += static_cast<size_t>(got);
  }
  text.resize(size);
  return text;
}

// Runs xz with the file as its standard input and reads what it writes.
std::string decompress(int fd, const std::string &path) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw_system(path);
  const Descriptor reader(ends[0]);
  pid_t child = -1;
  int error;
  {
    const Descriptor writer(ends[1]);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fd, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, writer.get(), STDOUT_FILENO);
    char name[] = "xz";
    char option[] = "-dc";
    char *arguments[] = {name, option, nullptr};
    error = posix_spawnp(&child, name, &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
  }
  if (error != 0) throw Fault(fmt::format("{}: cannot run xz: {}", path, strerror(error)));
  std::string text = read_all(reader.get(), path);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    throw Fault(fmt::format("{}: xz could not decompress it", path));
  }
  return text;
}

// The file that a link names, else the path itself: a link is to stay when its file is replaced.
std::string followed(const std::string &path) {
  const std::unique_ptr<char, decltype(&free)> real(realpath(path.c_str(), nullptr), free);
  return real == nullptr ? path : real.get();
}

}  // namespace

std::string read_input(const std::string &path) {
  if (path == "-") return read_all(STDIN_FILENO, "standard input");
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.get() < 0) throw_system(path);
  char begin[6];
  const ssize_t got = pread(file.get(), begin, sizeof begin, 0);
  if (got == sizeof begin && std::string_view(begin, sizeof begin) == kXzMagic) {
    return decompress(file.get(), path);
  }
  return read_all(file.get(), path);
}

FileWriter::FileWriter(std::string path) : path_(std::move(path)) {
  struct stat old = {};
  const bool replaces = stat(path_.c_str(), &old) == 0;
  if (replaces && S_ISDIR(old.st_mode)) {
    errno = EISDIR;
    throw_system(path_);
  }
  if (replaces && !S_ISREG(old.st_mode)) {
    fd_ = open(path_.c_str(), O_WRONLY | O_CLOEXEC);
  } else {
    target_ = followed(path_);
    temporary_ = target_ + ".XXXXXX";
    fd_ = mkostemp(temporary_.data(), O_CLOEXEC);
  }
  if (fd_ < 0) throw_system(path_);
  const mode_t mask = umask(0);
  umask(mask);
  mode_ = replaces ? old.st_mode & 0777 : 0666 & ~mask;
}

FileWriter::~FileWriter() {
  if (fd_ >= 0) discard();
}

void FileWriter::discard() {
  close(std::exchange(fd_, -1));
  if (!temporary_.empty()) unlink(temporary_.c_str());
}

void FileWriter::fail() {
  const int error = errno;
  discard();
  errno = error;
  throw_system(path_);
}

void FileWriter::write(std::string_view text) {
  while (!text.empty()) {
    const ssize_t wrote = ::write(fd_, text.data(), text.size());
    if (wrote < 0 && errno == EINTR) continue;
    if (wrote < 0) fail();
    text.remove_prefix(static_cast<size_t>(wrote));
  }
}

void FileWriter::commit() {
  if (!temporary_.empty()) {
    if (fchmod(fd_, mode_) != 0 || fsync(fd_) != 0) fail();
    if (rename(temporary_.c_str(), target_.c_str()) != 0) fail();
  }
  close(std::exchange(fd_, -1));
}

void write_file(const std::string &path, std::string_view text) {
  FileWriter file(path);
  file.write(text);
  file.commit();
}

FileLines::FileLines(const std::string &path)
    : path_(path), file_(path == "-" ? stdin : fopen(path.c_str(), "re")) {
  if (file_ == nullptr) throw_system(path);
}

FileLines::~FileLines() {
  free(line_);
  if (file_ != stdin) fclose(file_);
}

bool FileLines::next(std::string_view &line) {
  errno = 0;
  const ssize_t size = getline(&line_, &room_, file_);
  if (size < 0) {
    if (ferror(file_) != 0 || errno != 0) throw_system(path_);
    return false;
  }
  line = {line_, static_cast<size_t>(size)};
  if (line.ends_with('\n')) line.remove_suffix(1);
  return true;
}

std::string path_in(const std::string &directory, const std::string &name) {
  if (directory.empty() || name.starts_with('/')) return name;
  return directory + (directory.ends_with('/') ? "" : "/") + name;
}

bool is_no_regular_file(const std::string &path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

}  // namespace tesselctl
