#include "tesselctl/server/unix_socket.hpp"

#include <fcntl.h>
#include <fmt/format.h>
#include <pwd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cerrno>
#include <cstring>

#include "tesselctl/text/fault.hpp"
#include "tesselctl/text/file_writer.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

constexpr int kBacklog = 128;

sockaddr_un address_of(const std::string &path) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  if (path.empty() || path.size() >= sizeof address.sun_path) {
    throw Fault(fmt::format("{}: the path of a socket has 1 to {} bytes", path,
                            sizeof address.sun_path - 1));
  }
  path.copy(address.sun_path, path.size());
  return address;
}

Descriptor new_socket(const std::string &path, int flags = SOCK_NONBLOCK) {
  Descriptor made(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | flags, 0));
  if (!made.is_open()) throw_system(path);
  return made;
}

// 0, or why there is no connection.
int try_connect(const Descriptor &socket, const sockaddr_un &address) {
  const auto *any = reinterpret_cast<const sockaddr *>(&address);
  while (connect(socket.get(), any, sizeof address) != 0) {
    if (errno != EINTR) return errno;
    check_interrupt();
  }
  return 0;
}

bool try_bind(const Descriptor &socket, const sockaddr_un &address) {
  const auto *any = reinterpret_cast<const sockaddr *>(&address);
  const mode_t mask = umask(0177);
  const bool bound = bind(socket.get(), any, sizeof address) == 0;
  const int error = errno;
  umask(mask);
  errno = error;
  return bound;
}

// Removes a socket at which nobody listens; throws Fault for anything else.
void remove_stale(const std::string &path, const sockaddr_un &address) {
  struct stat status;
  if (lstat(path.c_str(), &status) != 0) throw_system(path);
  if (!S_ISSOCK(status.st_mode)) throw Fault(path + ": this exists and is no socket");
  const int error = try_connect(new_socket(path), address);
  if (error == 0 || error == EAGAIN) throw Fault(path + ": a server runs there already");
  if (error != ECONNREFUSED) throw Fault(fmt::format("{}: {}", path, strerror(error)));
  if (unlink(path.c_str()) != 0) throw_system(path);
}

}  // namespace

Descriptor connect_to(const std::string &path) {
  const sockaddr_un address = address_of(path);
  // Waits while more clients ask than the server has got round to.
  Descriptor socket = new_socket(path, 0);
  const int error = try_connect(socket, address);
  if (error == 0 && fcntl(socket.get(), F_SETFL, O_NONBLOCK) == 0) return socket;
  if (error == 0) throw_system(path);
  const bool nobody = error == ENOENT || error == ECONNREFUSED;
  throw Fault(fmt::format("{}: {}", path, nobody ? "no server runs there" : strerror(error)));
}

std::string peer_of(const Descriptor &socket) {
  ucred peer = {};
  socklen_t size = sizeof peer;
  if (getsockopt(socket.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0) return "?";
  passwd user = {};
  passwd *found = nullptr;
  char names[4096];
  getpwuid_r(peer.uid, &user, names, sizeof names, &found);
  const std::string name = found != nullptr ? found->pw_name : std::to_string(peer.uid);
  return fmt::format("{}[{}]", name, peer.pid);
}

ListeningSocket::ListeningSocket(std::string path) : path_(std::move(path)) {
  const sockaddr_un address = address_of(path_);
  // Of two servers that start at once the second is refused here, so that it cannot take the socket
  // of the first for one that is left over.
  const FilePlace place = FilePlace::of_name(path_);
  const FileLock lock(place, 0);
  socket_ = new_socket(path_);
  if (!try_bind(socket_, address)) {
    if (errno != EADDRINUSE) throw_system(path_);
    remove_stale(path_, address);
    if (!try_bind(socket_, address)) throw_system(path_);
  }
  struct stat status;
  if (lstat(path_.c_str(), &status) != 0) throw_system(path_);
  file_ = status.st_ino;
  if (listen(socket_.get(), kBacklog) != 0) throw_system(path_);
}

bool ListeningSocket::is_ours() const {
  struct stat status;
  return socket_.is_open() && lstat(path_.c_str(), &status) == 0 && S_ISSOCK(status.st_mode) &&
         status.st_ino == file_;
}

ListeningSocket::~ListeningSocket() {
  if (is_ours()) unlink(path_.c_str());
}

Descriptor ListeningSocket::accept_client() const {
  while (true) {
    const int fd = accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (fd >= 0 || (errno != EINTR && errno != ECONNABORTED)) return Descriptor(fd);
  }
}

}  // namespace tesselctl
