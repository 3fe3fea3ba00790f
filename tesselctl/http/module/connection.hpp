// A client of the HTTP server: what it sends and takes is bounded in size and time, so that one
// that does either slowly is dropped.
#pragma once

#include <httplib.h>
#include <poll.h>

#include "tesselctl/http/listener.hpp"
#include "tesselctl/text/descriptor.hpp"

namespace tesselctl {

class Connection : public httplib::Stream {
 public:
  // The socket is non-blocking and stays the caller's.
  Connection(int socket, const HttpLimits &limits)
      : socket_(socket), limits_(limits), deadline_(Clock::now() + limits.time) {}

  bool is_readable() const override { return at_ < end_ || wait(POLLIN); }
  bool is_writable() const override { return wait(POLLOUT); }
  ssize_t read(char *to, size_t room) override {
    if (at_ == end_ && !fill()) return -1;
    const size_t taken = std::min(room, end_ - at_);
    memcpy(to, bytes_ + at_, taken);
    at_ += taken;
    return static_cast<ssize_t>(taken);
  }
  // All of it, or -1.
  ssize_t write(const char *from, size_t size) override {
    if (!answering_) deadline_ = Clock::now() + limits_.time;
    answering_ = true;
    for (size_t sent = 0; sent < size;) {
      const ssize_t count = send(socket_, from + sent, size - sent, MSG_NOSIGNAL);
      if (count > 0) sent += static_cast<size_t>(count);
      if (count <= 0 && (errno != EAGAIN || !wait(POLLOUT))) return -1;
    }
    return static_cast<ssize_t>(size);
  }
  void get_remote_ip_and_port(std::string &, int &) const override {}
  void get_local_ip_and_port(std::string &, int &) const override {}
  socket_t socket() const override { return socket_; }

  // Lets the client read the answer before the connection goes: closing it with bytes unread, such
  // as those of a body that nobody asked for, would take the answer back.
  void finish() {
    shutdown(socket_, SHUT_WR);
    while (wait(POLLIN) && recv(socket_, bytes_, sizeof bytes_, 0) > 0) {
    }
  }

 private:
  using Clock = std::chrono::steady_clock;

  bool wait(short events) const {
    using std::chrono::milliseconds;
    const auto left = std::chrono::ceil<milliseconds>(deadline_ - Clock::now());
    pollfd waited = {socket_, events, 0};
    return left > milliseconds(0) && poll(&waited, 1, static_cast<int>(left.count())) > 0;
  }
  bool fill() {
    if (received_ >= limits_.request || !wait(POLLIN)) return false;
    const size_t room = std::min(sizeof bytes_, limits_.request - received_);
    const ssize_t got = recv(socket_, bytes_, room, 0);
    if (got <= 0) return false;
    at_ = 0;
    end_ = static_cast<size_t>(got);
    received_ += end_;
    return true;
  }

  int socket_;
  const HttpLimits &limits_;
  Clock::time_point deadline_;
  bool answering_ = false;
  size_t received_ = 0;
  char bytes_[4096];
  size_t at_ = 0;  // what was received and not read yet
  size_t end_ = 0;
};

}  // namespace tesselctl
