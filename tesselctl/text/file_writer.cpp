#include "tesselctl/text/file_writer.hpp"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <cstring>
#include <mutex>
#include <thread>
#include <vector>

#include "tesselctl/text/fault.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

constexpr int kLooks = 1000;
constexpr auto kTryAgain = std::chrono::milliseconds(5);

bool is_same_file(const struct stat &a, const struct stat &b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// The path of an open file, as the kernel found it.
std::string path_of(int fd, const std::string &given) {
  char path[PATH_MAX];
  const ssize_t size = readlink(fmt::format("/proc/self/fd/{}", fd).c_str(), path, sizeof path);
  if (size < 0) throw_system(given);
  return {path, static_cast<size_t>(size)};
}

// The fault of a call that failed for a file of ours beside that of the place.
[[noreturn]] void throw_beside(const FilePlace &place, const std::string &name) {
  throw Fault(fmt::format("{}: {} beside it: {}", place.path, name, strerror(errno)));
}

// The lock files that this process holds, by device and number.
std::mutex held_mutex;
std::vector<struct stat> held;

auto find_held(const struct stat &status) {
  return std::find_if(held.begin(), held.end(),
                      [&](const struct stat &other) { return is_same_file(status, other); });
}

void write_holder(int fd) {
  const std::string number = fmt::format("{}\n", getpid());
  // Who reads an empty one knows less, and no more than that.
  [[maybe_unused]] const bool done =
      ftruncate(fd, 0) == 0 && pwrite(fd, number.data(), number.size(), 0) >= 0;
}

std::string holder_of(int fd) {
  char text[16] = {};
  const int process = pread(fd, text, sizeof text - 1, 0) > 0 ? atoi(text) : 0;
  // Who cannot write to the lock leaves the number of a process that is gone in it.
  const bool is_alive = process > 0 && (kill(process, 0) == 0 || errno == EPERM);
  return is_alive ? fmt::format("process {}", process) : "another process";
}

}  // namespace

FilePlace FilePlace::of_name(const std::string &path) {
  const size_t slash = path.rfind('/');
  const std::string parent = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  FilePlace place{path, path.substr(slash + 1)};
  const int flags = O_DIRECTORY | O_CLOEXEC;
  place.folder = Descriptor(open(parent.c_str(), O_RDONLY | flags));
  // One that may not be listed cannot be synced, and holds files all the same.
  if (!place.folder.is_open()) place.folder = Descriptor(open(parent.c_str(), O_PATH | flags));
  if (!place.folder.is_open()) throw_system(path);
  return place;
}

// Nothing when the file was renamed between two looks at it.
std::optional<FilePlace> FilePlace::look_up(const std::string &path) {
  const Descriptor file(open(path.c_str(), O_PATH | O_CLOEXEC));
  const int error = errno;
  struct stat named = {};
  const bool is_link = lstat(path.c_str(), &named) == 0 && S_ISLNK(named.st_mode);
  errno = error;
  if (!file.is_open() && (error != ENOENT || is_link)) throw_unopened(path);
  struct stat found = {};
  if (file.is_open() && fstat(file.get(), &found) != 0) throw_system(path);
  errno = EISDIR;
  if (S_ISDIR(found.st_mode) || path.ends_with('/')) throw_system(path);
  if (file.is_open() && !S_ISREG(found.st_mode)) return FilePlace{path};

  FilePlace place = of_name(is_link ? path_of(file.get(), path) : path);
  place.path = path;
  if (!file.is_open()) return place;
  const bool is_there =
      fstatat(place.folder.get(), place.name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0;
  if (!is_there || !is_same_file(found, named)) return {};
  place.exists = true;
  place.mode = found.st_mode & 0777;
  return place;
}

FilePlace FilePlace::of_file(const std::string &path) {
  // Who replaces the file renames another one to its name, at any time.
  for (int look = 0; look < kLooks; ++look) {
    if (std::optional<FilePlace> place = look_up(path)) return std::move(*place);
  }
  throw Fault(path + ": the file is moved all the time");
}

// What is taken is left again when anything fails behind it: by then the other constructor is done.
FileLock::FileLock(const FilePlace &place, int seconds)
    : FileLock(place, "." + place.name + ".lock") {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point end = Clock::now() + std::chrono::seconds(seconds);
  while (!try_take()) {
    if (is_shared()) return;
    if (Clock::now() >= end) {
      throw Fault(fmt::format("{}: {} holds the lock {}{}", place_.path, holder_of(file_.get()),
                              name_,
                              seconds == 0 ? "" : fmt::format(", waited {} seconds", seconds)));
    }
    check_interrupt();
    std::this_thread::sleep_for(kTryAgain);
  }
}

// Whether the lock is held now. A file that its holder removed meanwhile is none to wait for.
bool FileLock::try_take() {
  {
    const std::lock_guard guard(held_mutex);
    held.reserve(held.size() + 1);
  }
  const int flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  file_ = Descriptor(openat(place_.folder.get(), name_.c_str(), O_RDWR | O_CREAT | flags, 0666));
  const bool is_ours = file_.is_open();
  // Of another user, left by a killed process unless somebody holds it.
  if (!is_ours && errno == EACCES) {
    file_ = Descriptor(openat(place_.folder.get(), name_.c_str(), O_RDONLY | flags));
    if (!file_.is_open()) errno = EACCES;
  }
  struct stat status = {};
  if (!file_.is_open() || fstat(file_.get(), &status) != 0) throw_beside(place_, name_);
  if (flock(file_.get(), LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) throw_system(place_.path);
    return false;
  }
  struct stat named = {};
  const bool is_named =
      fstatat(place_.folder.get(), name_.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0;
  if (!is_named || !is_same_file(status, named)) return false;
  if (!is_ours && unlinkat(place_.folder.get(), name_.c_str(), 0) == 0) return false;
  // In a sticky folder it stays, and locks as it is.
  if (!is_ours && errno != EPERM) throw_beside(place_, name_);
  {
    const std::lock_guard guard(held_mutex);
    held.push_back(status);
    owns_ = true;
  }
  if (is_ours) write_holder(file_.get());
  return true;
}

bool FileLock::is_shared() const {
  struct stat status = {};
  const std::lock_guard guard(held_mutex);
  return fstat(file_.get(), &status) == 0 && find_held(status) != held.end();
}

FileLock::~FileLock() {
  if (!owns_) return;
  struct stat status = {};
  const std::lock_guard guard(held_mutex);
  if (fstat(file_.get(), &status) == 0) held.erase(find_held(status));
  unlinkat(place_.folder.get(), name_.c_str(), 0);
}

FileWriter::FileWriter(const std::string &path) : place_(FilePlace::of_file(path)) {
  if (place_.folder.is_open()) {
    open_temporary();
  } else {
    file_ = Descriptor(open(path.c_str(), O_WRONLY | O_CLOEXEC));
  }
  if (!file_.is_open()) throw_system(path);
}

void refuse_compressed_name(const std::string &path) {
  if (!path.ends_with(".xz")) return;
  throw Fault(path + ": no file is written compressed; leave out .xz, and run xz on it");
}

void FileWriter::open_temporary() {
  refuse_compressed_name(place_.path);
  lock_.emplace(place_);
  const std::string name = "." + place_.name + ".new";
  if (unlinkat(place_.folder.get(), name.c_str(), 0) != 0 && errno != ENOENT) {
    throw_beside(place_, name);
  }
  const int flags = O_WRONLY | O_APPEND | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  file_ = Descriptor(openat(place_.folder.get(), name.c_str(), flags, place_.exists ? 0600 : 0666));
  if (file_.is_open()) temporary_ = name;
}

FileWriter::~FileWriter() {
  if (!temporary_.empty()) unlinkat(place_.folder.get(), temporary_.c_str(), 0);
}

void FileWriter::write(std::string_view text) {
  while (!text.empty()) {
    const ssize_t wrote = ::write(file_.get(), text.data(), text.size());
    if (wrote < 0 && errno == EINTR) continue;
    if (wrote < 0) throw_system(place_.path);
    text.remove_prefix(static_cast<size_t>(wrote));
  }
}

void FileWriter::commit() {
  if (temporary_.empty()) return;
  const int folder = place_.folder.get();
  if (place_.exists && fchmod(file_.get(), place_.mode) != 0) throw_system(place_.path);
  if (fsync(file_.get()) != 0) throw_system(place_.path);
  if (renameat(folder, temporary_.c_str(), folder, place_.name.c_str()) != 0) {
    throw_system(place_.path);
  }
  temporary_.clear();
  // The new name is on the disk with its folder. One that may not be read cannot be synced.
  if (fsync(folder) != 0 && errno != EBADF && errno != EINVAL) throw_system(place_.path);
}

void write_file(const std::string &path, std::string_view text) {
  FileWriter file(path);
  file.write(text);
  file.commit();
}

}  // namespace tesselctl
