// What a server answers over HTTP: a page, metrics, and commands that ask, as JSON.
#pragma once

#include <ctime>
#include <memory>

#include "tesselctl/http/http_socket.hpp"
#include "tesselctl/http/listener.hpp"
#include "tesselctl/metrics/metrics_text.hpp"
#include "tesselctl/server/server.hpp"

namespace tesselctl {

// The function of the module. Throws Fault when there is none.
StartHttp load_http();

// Answers as long as it lives. Requests are answered by the thread that runs the server, between
// the commands of its clients.
class HttpService {
 public:
  // All of these outlive it.
  HttpService(StartHttp start, const HttpSocket &socket, Server &server, Device &device);

 private:
  // By the thread of a client of HTTP.
  HttpAnswer answer(const HttpRequest &request);
  // By the thread that runs the server.
  HttpAnswer answer_of_device(const HttpRequest &request);
  std::string page(std::string_view query);
  std::string metrics(MetricsFormat format);

  const HttpSocket &socket_;
  Server &server_;
  Device &device_;
  const HttpLimits limits_;
  const std::time_t started_ = std::time(nullptr);
  std::atomic<uint64_t> requests_ = 0;
  std::unique_ptr<HttpListener> listener_;
};

}  // namespace tesselctl
