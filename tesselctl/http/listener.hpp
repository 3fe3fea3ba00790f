// What the tool and the module that speaks HTTP have in common. The library behind the module is
// loaded by servers that were asked to answer HTTP alone: every start of the tool would pay for it.
#pragma once

#include <chrono>
#include <functional>
#include <string>

namespace tesselctl {

struct HttpRequest {
  std::string target;  // "/json/show/fdb?domain=7", as it came
  std::string host;    // the header fields of these names, or empty
  std::string accept;
};

struct HttpAnswer {
  int status = 200;
  std::string type = "text/plain; charset=utf-8";
  std::string body = {};
};

struct HttpLimits {
  size_t clients = 32;            // at a time; more are refused
  size_t request = 16 << 10;      // bytes of one
  std::chrono::seconds time{10};  // to send a request, and to take the answer
};

// Called by a thread of each client.
using HttpHandler = std::function<HttpAnswer(const HttpRequest &)>;

// Answers until it is destroyed, which waits for the handlers that run.
class HttpListener {
 public:
  virtual ~HttpListener() = default;
};

// What the module exports: it answers at a socket that listens, which outlives the listener.
using StartHttp = HttpListener *(*)(int socket, const HttpLimits &limits, HttpHandler handler);
inline constexpr const char *kStartHttp = "tesselctl_start_http";
extern "C" HttpListener *tesselctl_start_http(int socket, const HttpLimits &limits,
                                              HttpHandler handler);

}  // namespace tesselctl
