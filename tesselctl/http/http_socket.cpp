#include "tesselctl/http/http_socket.hpp"

#include <arpa/inet.h>
#include <fmt/format.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "tesselctl/program/value.hpp"

namespace tesselctl {

namespace {

constexpr int kBacklog = 128;

// "ADDRESS:PORT" or "[ADDRESS]:PORT" in its parts; no port where there is no ':'.
struct HostAndPort {
  explicit HostAndPort(std::string_view text) {
    const size_t colon = text.rfind(':');
    host = text.substr(0, colon);
    if (colon != std::string_view::npos && text.find(']', colon) == std::string_view::npos) {
      port = text.substr(colon + 1);
    } else {
      host = text;
    }
    if (host.starts_with('[') && host.ends_with(']')) host = host.substr(1, host.size() - 2);
  }
  std::string_view host;
  std::string_view port = {};
};

bool is_local(std::string_view host) {
  const std::string text(host);
  in_addr four;
  in6_addr six;
  if (strcasecmp(text.c_str(), "localhost") == 0) return true;
  if (inet_pton(AF_INET, text.c_str(), &four) == 1) return ntohl(four.s_addr) >> 24 == 127;
  return inet_pton(AF_INET6, text.c_str(), &six) == 1 && IN6_IS_ADDR_LOOPBACK(&six);
}

using Addresses = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

Addresses find_addresses(const std::string &where) {
  const bool has_host = where.find(':') != std::string::npos;
  const std::string whole = has_host ? where : "127.0.0.1:" + where;
  const HostAndPort parts(whole);
  const std::string host(parts.host.empty() ? "127.0.0.1" : parts.host);
  const uint64_t port = parse_limited({parts.port, 0}, 65535, "the port");
  addrinfo wanted = {};
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo *found = nullptr;
  const int error = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &wanted, &found);
  if (error != 0) throw Fault(fmt::format("{}: {}", host, gai_strerror(error)));
  return {found, freeaddrinfo};
}

// The socket's own address, as text.
std::string address_of(int socket) {
  sockaddr_storage address = {};
  socklen_t size = sizeof address;
  auto *any = reinterpret_cast<sockaddr *>(&address);
  char host[NI_MAXHOST], port[NI_MAXSERV];
  getsockname(socket, any, &size);
  getnameinfo(any, size, host, sizeof host, port, sizeof port, NI_NUMERICHOST | NI_NUMERICSERV);
  return fmt::format(fmt::runtime(address.ss_family == AF_INET6 ? "[{}]:{}" : "{}:{}"), host, port);
}

}  // namespace

HttpSocket::HttpSocket(const std::string &where) {
  try {
    const Addresses found = find_addresses(where);
    socket_ = Descriptor(socket(found->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const int yes = 1;
    setsockopt(get(), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    if (!socket_.is_open() || bind(get(), found->ai_addr, found->ai_addrlen) != 0 ||
        listen(get(), kBacklog) != 0) {
      throw Fault(strerror(errno));
    }
  } catch (const Fault &fault) {
    throw Fault(fmt::format("--http {}: {}", where, fault.sentence()));
  }
  const std::string address = address_of(get());
  url_ = "http://" + address + "/";
  is_local_ = is_local(HostAndPort(address).host);
}

bool HttpSocket::is_for(std::string_view host) const {
  return !is_local_ || host.empty() || is_local(HostAndPort(host).host);
}

}  // namespace tesselctl
