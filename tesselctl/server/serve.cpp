#include "tesselctl/server/serve.hpp"

#include <malloc.h>

#include "tesselctl/http/http_service.hpp"
#include "tesselctl/journal/journal.hpp"
#include "tesselctl/server/server.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

std::atomic<Server *> running = nullptr;

void stop_server(int) {
  if (Server *server = running.load()) server->stop();
}

struct ServedScope {
  explicit ServedScope(Server &server) { running = &server; }
  ~ServedScope() { running = nullptr; }
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
  std::optional<DeviceOfImage> home;
  std::optional<Journal> journal;
  if (options.journal.path.empty()) {
    home.emplace(options.device, options.image, ImageUse::changes, errors);
  } else {
    journal.emplace(options.journal, options.device, options.image.keep_pipes, errors);
  }
  Device &device = home ? home->device() : journal->device();
  Server server(device, std::move(listening), {}, journal ? &*journal : nullptr);
  const ServedScope scope(server);
  const SignalScope signals({SIGINT, SIGTERM, SIGHUP}, stop_server);
  std::optional<HttpService> http;
  if (http_socket) http.emplace(start_http, *http_socket, server, device);
  out.line("device {} is served at {}{}", device.id(), options.socket,
           http_socket ? " and " + http_socket->url() : "");
  out.flush();
  server.run();
  if (home) home->save();
  if (journal) journal->finish();
}

}  // namespace tesselctl
