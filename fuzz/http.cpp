// Any bytes as what a client of HTTP sends: an answer of a known status with all of its body, or
// none where the request does not end. They go over a connection to a server that answers as long
// as the process lives.
#include <netinet/in.h>
#include <sys/socket.h>

#include <csignal>
#include <cstring>
#include <thread>

#include "fuzz/tool.hpp"
#include "tesselctl/http/http_service.hpp"

using namespace tesselctl;

namespace {

// The engine looks at the time whenever its alarm rings, which would end a call of a socket.
void restart_calls() {
  struct sigaction alarm = {};
  sigaction(SIGALRM, nullptr, &alarm);
  alarm.sa_flags |= SA_RESTART;
  sigaction(SIGALRM, &alarm, nullptr);
}

struct Answering {
  Answering() {
    restart_calls();
    for (const char *line :
         {"add ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 action=setNextHop nextHop=1",
          "counter write pdpClassCount index=2 packets=3 bytes=200"}) {
      require(tool.runner.run({"input", 1, line}) == LineOutcome::done, "a device has items");
    }
    std::thread([this] { server.run(); }).detach();
  }
  Tool tool;
  Server server{tool.device, ListeningSocket("/tmp/fuzz_http." + std::to_string(getpid())), {}};
  HttpSocket socket{"0"};
  HttpService service{tesselctl_start_http, socket, server, tool.device};
};

Descriptor connected(const HttpSocket &to) {
  sockaddr_in address = {};
  socklen_t size = sizeof address;
  auto *any = reinterpret_cast<sockaddr *>(&address);
  getsockname(to.get(), any, &size);
  Descriptor client(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  // Closing leaves nothing behind, so that ports do not run out.
  const linger now = {1, 0};
  setsockopt(client.get(), SOL_SOCKET, SO_LINGER, &now, sizeof now);
  if (connect(client.get(), any, size) != 0) {
    require(false, (std::string("the server accepts: ") + strerror(errno)).c_str());
  }
  return client;
}

void check_answer(std::string_view answer) {
  if (answer.empty()) return;
  require(answer.starts_with("HTTP/1.1 ") && answer.size() > 12, "an answer has a status");
  const std::string_view status = answer.substr(9, 3);
  const size_t end = answer.find("\r\n\r\n");
  require(end != answer.npos, "an answer has a head");
  const std::string_view head = answer.substr(0, end);
  const std::string_view body = answer.substr(end + 4);
  bool is_known = false;
  for (const char *known : {"200", "400", "403", "404", "405", "414", "416"})
    is_known |= status == known;
  require(is_known, "a status is one of those that are documented");
  if (body.empty()) return;  // of HEAD
  require(head.find("Content-Length: " + std::to_string(body.size())) != head.npos,
          "a body is whole");
  if (head.find("application/json") != head.npos) require_json_lines(body);
}

}  // namespace

void try_input(std::string_view input) {
  static Answering *const server = new Answering;
  const Descriptor client = connected(server->socket);
  send(client.get(), input.data(), input.size(), MSG_NOSIGNAL);
  shutdown(client.get(), SHUT_WR);
  std::string answer;
  char bytes[1 << 16];
  for (ssize_t got; (got = recv(client.get(), bytes, sizeof bytes, 0)) > 0;) {
    answer.append(bytes, static_cast<size_t>(got));
  }
  check_answer(answer);
}
