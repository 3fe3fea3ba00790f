// Sockets of this machine that go by the name of a file.
#pragma once

#include <cerrno>
#include <string>

#include "tesselctl/text/descriptor.hpp"

namespace tesselctl {

// A connection to the server there. Non-blocking. Throws Fault when there is none.
Descriptor connect_to(const std::string &path);

// Whether a call on a non-blocking socket failed because it would have to wait.
inline bool would_wait(int error) {
  return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

// Who is at the other end: user and process, "anna[4711]".
std::string peer_of(const Descriptor &socket);

// The socket that a server listens at. Its file has mode 0600 from the first moment on and goes
// with its owner.
class ListeningSocket {
 public:
  // Replaces the socket of a server that is gone. Throws Fault when a server is there or when the
  // path names anything that is no socket.
  explicit ListeningSocket(std::string path);
  ~ListeningSocket();
  ListeningSocket(ListeningSocket &&) = default;
  ListeningSocket &operator=(ListeningSocket &&) = delete;

  int get() const { return socket_.get(); }
  const std::string &path() const { return path_; }
  // The next client, or none that is open when there is none or no descriptor is left;
  // non-blocking.
  Descriptor accept_client() const;

 private:
  bool is_ours() const;

  std::string path_;
  Descriptor socket_;
  unsigned long long file_ = 0;  // number of the socket's file, so that no other one is removed
};

}  // namespace tesselctl
