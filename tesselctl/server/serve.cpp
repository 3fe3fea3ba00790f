#include "tesselctl/server/serve.hpp"

#include <malloc.h>

#include "tesselctl/http/http_service.hpp"
#include "tesselctl/server/server.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

std::atomic<Server *> served = nullptr;

void stop_server(int) {
  if (Server *server = served.load()) server->stop();
}

struct ServedScope {
  explicit ServedScope(Server &server) { served = &server; }
  ~ServedScope() { served = nullptr; }
  ServedScope(const ServedScope &) = delete;
  ServedScope &operator=(const ServedScope &) = delete;
};

// Keeps the memory of one answer for the next one: states of a million entries would else be mapped
// and cleared page by page each time.
void keep_memory() {
#ifdef __GLIBC__
  mallopt(M_MMAP_THRESHOLD, 32 << 20);
  mallopt(M_TRIM_THRESHOLD, 256 << 20);
#endif
}

}  // namespace

void serve(const ServeOptions &options, Output &out, Output &errors) {
  keep_memory();
  // First of all the socket, so that a second server is refused by the first one's.
  ListeningSocket listening(options.socket);
  std::optional<HttpSocket> http_socket;
  if (!options.http.empty()) http_socket.emplace(options.http);
  const StartHttp start_http = http_socket ? load_http() : nullptr;
  DeviceOfImage home(options.device, options.image, ImageUse::changes, errors);
  Server server(home.device(), std::move(listening));
  const ServedScope scope(server);
  const SignalScope signals({SIGINT, SIGTERM, SIGHUP}, stop_server);
  std::optional<HttpService> http;
  if (http_socket) http.emplace(start_http, *http_socket, server, home.device());
  out.line("device {} is served at {}{}", home.device().id(), options.socket,
           http_socket ? " and " + http_socket->url() : "");
  out.flush();
  server.run();
  home.save();
}

}  // namespace tesselctl
