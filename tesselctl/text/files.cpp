#include "tesselctl/text/files.hpp"

#include <fcntl.h>
#include <fmt/format.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "tesselctl/text/fault.hpp"
#include "tesselctl/text/interrupt.hpp"

extern char **environ;

namespace tesselctl {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kXzMagic = "\xfd\x37\x7a\x58\x5a\0"sv;

// What some editors put before a text in UTF-8.
constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";

constexpr size_t kPiece = size_t{1} << 16;

// Starts xz with the file as its standard input; its standard output takes the place of the file.
pid_t start_xz(Descriptor &file, const std::string &path) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw_system(path);
  Descriptor reader(ends[0]);
  const Descriptor writer(ends[1]);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, file.get(), STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, writer.get(), STDOUT_FILENO);
  char name[] = "xz";
  char option[] = "-dc";
  char *arguments[] = {name, option, nullptr};
  pid_t child = -1;
  const int error = posix_spawnp(&child, name, &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw Fault(fmt::format("{}: cannot run xz: {}", path, strerror(error)));
  file = std::move(reader);
  return child;
}

bool is_xz(int fd) {
  char begin[kXzMagic.size()];
  return pread(fd, begin, sizeof begin, 0) == sizeof begin &&
         std::string_view(begin, sizeof begin) == kXzMagic;
}

}  // namespace

void throw_system(const std::string &path) {
  throw Fault(fmt::format("{}: {}", path, strerror(errno)));
}

void throw_unopened(const std::string &path) {
  const int error = errno;
  struct stat status = {};
  const bool is_link = lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
  if (error == ENOENT && is_link) throw Fault(path + ": the link leads to no file");
  errno = error;
  throw_system(path);
}

FileBytes::FileBytes(const std::string &path)
    : path_(path == "-" ? "standard input" : path),
      file_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
  if (!file_.is_open()) throw_unopened(path_);
  if (path != "-" && is_xz(file_.get())) xz_ = start_xz(file_, path_);
}

FileBytes::~FileBytes() { end_xz(); }

// Whether it ended well, or there is none. One that is still writing ends by its closed pipe.
bool FileBytes::end_xz() {
  if (xz_ < 0) return true;
  file_.reset();
  int status = 0;
  while (waitpid(xz_, &status, 0) < 0 && errno == EINTR) {
  }
  xz_ = -1;
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

size_t FileBytes::read(char *to, size_t room) {
  check_interrupt();
  if (!file_.is_open()) return 0;
  ssize_t got;
  do {
    if (!wait_for_input(file_.get())) check_interrupt();
    got = ::read(file_.get(), to, room);
  } while (got < 0 && errno == EINTR);
  if (got < 0) throw_system(path_);
  if (got == 0 && !end_xz()) throw Fault(path_ + ": xz could not decompress it");
  size_ += static_cast<size_t>(got);
  if (size_ > kMostFile) {
    throw Fault(
        fmt::format("{}: the file is too long, it may have {} MiB", path_, kMostFile >> 20));
  }
  return static_cast<size_t>(got);
}

std::string read_input(const std::string &path) {
  FileBytes file(path);
  std::string text;
  size_t size = 0;
  do {
    if (text.size() - size < kPiece) text.resize(text.size() + kPiece + text.size() / 2);
    const size_t got = file.read(text.data() + size, text.size() - size);
    if (got == 0) break;
    size += got;
  } while (true);
  text.resize(size);
  if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  return text;
}

bool FileLines::next(std::string_view &line) {
  size_t looked = 0;  // bytes that hold no end of a line
  while (true) {
    const std::string_view rest(buffer_.data() + start_, end_ - start_);
    const size_t size = rest.find('\n', looked);
    const bool is_last = size == rest.npos && at_end_;
    if (is_last && rest.empty()) return false;
    if (std::min(size, rest.size()) > kMostLine) {
      throw Fault(fmt::format("{}:{}: the line is too long, it may have {} bytes", bytes_.path(),
                              number_ + 1, kMostLine));
    }
    if (size != rest.npos || is_last) {
      line = rest.substr(0, size);
      start_ += std::min(line.size() + 1, rest.size());
      if (number_++ == 0 && line.starts_with(kByteOrderMark)) {
        line.remove_prefix(kByteOrderMark.size());
      }
      return true;
    }
    looked = rest.size();
    fill();
  }
}

// Reads behind what waits, which moves to the front.
void FileLines::fill() {
  memmove(buffer_.data(), buffer_.data() + start_, end_ - start_);
  end_ -= start_;
  start_ = 0;
  if (buffer_.size() - end_ < kPiece) buffer_.resize(buffer_.size() + kPiece);
  const size_t got = bytes_.read(buffer_.data() + end_, buffer_.size() - end_);
  end_ += got;
  at_end_ = got == 0;
}

LineSource lines_of(std::string_view text) {
  return [rest = text](std::string_view &line) mutable {
    if (rest.empty()) return false;
    line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    return true;
  };
}

std::string path_in(const std::string &directory, const std::string &name) {
  if (directory.empty() || name.starts_with('/')) return name;
  return directory + (directory.ends_with('/') ? "" : "/") + name;
}

std::string file_of_user(const char *variable, std::string_view folder, std::string_view name) {
  const auto value = [](const char *of) {
    const char *text = std::getenv(of);
    return text == nullptr ? std::string() : std::string(text);
  };
  std::string path = value(variable);
  // A relative one is none.
  if (!path.starts_with('/')) {
    path = value("HOME");
    if (path.empty()) return {};
    path = path_in(path, std::string(folder));
  }
  return path_in(path, "tesselctl/" + std::string(name));
}

bool is_compressed(const std::string &path) {
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  return file.is_open() && is_xz(file.get());
}

bool is_no_regular_file(const std::string &path) {
  struct stat status;
  return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

}  // namespace tesselctl
