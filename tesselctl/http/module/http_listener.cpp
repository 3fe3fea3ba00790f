// The module that speaks HTTP: a thread that accepts, and one of each client, which sends one
// request. The library reads requests and writes answers.
#include "connection.hpp"

#include <signal.h>
#include <sys/eventfd.h>

#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

namespace tesselctl {

namespace {

// Signals are for the thread that runs the server. Threads have the mask of who makes them.
struct SignalsBlocked {
  SignalsBlocked() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
  }
  ~SignalsBlocked() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }
  sigset_t before;
};

constexpr const char *kPlain = "text/plain; charset=utf-8";

class Listener final : public HttpListener, private httplib::Server {
 public:
  Listener(int socket, const HttpLimits &limits, HttpHandler handler)
      : socket_(socket),
        limits_(limits),
        handler_(std::move(handler)),
        stop_(eventfd(0, EFD_CLOEXEC)) {
    set_default_headers({{"Cache-Control", "no-store"},
                         {"Content-Security-Policy",
                          "default-src 'none'; style-src 'self'; script-src 'self'; connect-src "
                          "'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'"},
                         {"Cross-Origin-Resource-Policy", "same-origin"},
                         {"Referrer-Policy", "no-referrer"},
                         {"X-Content-Type-Options", "nosniff"}});
    set_pre_routing_handler([this](const httplib::Request &request, httplib::Response &response) {
      answer(request, response);
      return HandlerResponse::Handled;
    });
    set_error_handler([](const httplib::Request &, httplib::Response &response) {
      if (response.body.empty()) response.set_content(sentence_of(response.status), kPlain);
    });
    const SignalsBlocked blocked;
    accepting_ = std::thread([this] { accept_clients(); });
  }

  ~Listener() override {
    eventfd_write(stop_.get(), 1);
    accepting_.join();
    std::unique_lock lock(mutex_);
    for (const int client : clients_) shutdown(client, SHUT_RDWR);
    nobody_.wait(lock, [this] { return clients_.empty(); });
  }

 private:
  // What is wrong with a request that the library or this class refuses or has no memory for.
  static std::string sentence_of(int status) {
    if (status == 405) return "requests are GET or HEAD\n";
    if (status == 414) {
      return "a request line has at most " + std::to_string(CPPHTTPLIB_REQUEST_URI_MAX_LENGTH) +
             " bytes\n";
    }
    if (status == 416) return "answers come whole, without a Range\n";
    if (status == 500) return "there is no answer\n";
    return "this is no request of HTTP/1.1 that can be read\n";
  }

  void answer(const httplib::Request &request, httplib::Response &response) {
    if (request.method != "GET" && request.method != "HEAD") {
      response.status = 405;
      response.set_header("Allow", "GET, HEAD");
      return;
    }
    HttpAnswer answer = handler_(
        {request.target, request.get_header_value("Host"), request.get_header_value("Accept")});
    response.status = answer.status;
    response.set_header("Content-Type", answer.type);
    response.body = std::move(answer.body);
  }

  void accept_clients() {
    pollfd waited[] = {{stop_.get(), POLLIN, 0}, {socket_, POLLIN, 0}};
    // Without a descriptor or memory for the client that waits, later.
    for (int timeout = -1;;) {
      if (timeout > 0) waited[1].events = 0;
      poll(waited, std::size(waited), timeout);
      if (waited[0].revents != 0) return;
      waited[1].events = POLLIN;
      const int client = accept4(socket_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
      timeout = client < 0 && errno != EAGAIN ? 100 : -1;
      if (client >= 0) begin(client);
    }
  }

  void begin(int client) {
    Descriptor socket(client);
    const std::lock_guard lock(mutex_);
    if (clients_.size() == limits_.clients) {
      constexpr std::string_view kBusy =
          "HTTP/1.1 503 Service Unavailable\r\nContent-Length: 0\r\nConnection: close\r\n"
          "Retry-After: 1\r\n\r\n";
      send(client, kBusy.data(), kBusy.size(), MSG_NOSIGNAL);
      return;
    }
    try {
      clients_.insert(client);
      std::thread([this, kept = std::move(socket)]() mutable { serve(kept); }).detach();
    } catch (const std::exception &) {
      clients_.erase(client);  // there is no thread or memory for it
    }
  }

  void serve(Descriptor &socket) {
    try {
      answer_client(socket.get());
    } catch (const std::exception &) {
      // There is no memory for the answer.
    }
    const std::lock_guard lock(mutex_);
    clients_.erase(socket.get());
    socket.reset();
    nobody_.notify_all();
  }

  void answer_client(int socket) {
    Connection connection(socket, limits_);
    bool closed = false;
    // Ranges of an answer could ask for many times its size, and nothing here is worth the time
    // that it takes to compress it.
    process_request(connection, true, closed, [](httplib::Request &request) {
      request.ranges.clear();
      request.headers.erase("Accept-Encoding");
    });
    connection.finish();
  }

  int socket_;
  const HttpLimits limits_;
  const HttpHandler handler_;
  Descriptor stop_;
  std::thread accepting_;
  std::mutex mutex_;
  std::condition_variable nobody_;
  std::set<int> clients_;
};

}  // namespace

HttpListener *tesselctl_start_http(int socket, const HttpLimits &limits, HttpHandler handler) {
  return new Listener(socket, limits, std::move(handler));
}

}  // namespace tesselctl
