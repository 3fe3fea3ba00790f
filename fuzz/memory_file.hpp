// A file that lives in memory and has a name, for what reads files by name.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <string_view>

class MemoryFile {
 public:
  explicit MemoryFile(std::string_view bytes) : fd_(memfd_create("input", MFD_CLOEXEC)) {
    if (fd_ < 0 || write(fd_, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
      abort();
    }
  }
  ~MemoryFile() { close(fd_); }
  MemoryFile(const MemoryFile &) = delete;
  MemoryFile &operator=(const MemoryFile &) = delete;

  std::string path() const { return "/proc/self/fd/" + std::to_string(fd_); }

 private:
  int fd_;
};
