// A file descriptor that is closed with its owner.
#pragma once

#include <unistd.h>

#include <utility>

namespace tesselctl {

class Descriptor {
 public:
  explicit Descriptor(int fd = -1) : fd_(fd) {}
  ~Descriptor() { reset(); }
  Descriptor(Descriptor &&other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  Descriptor &operator=(Descriptor &&other) noexcept {
    if (this == &other) return *this;
    reset();
    fd_ = std::exchange(other.fd_, -1);
    return *this;
  }
  int get() const { return fd_; }
  bool is_open() const { return fd_ >= 0; }
  // The standard streams stay open.
  void reset() {
    if (fd_ > 2) close(fd_);
    fd_ = -1;
  }

 private:
  int fd_;
};

}  // namespace tesselctl
