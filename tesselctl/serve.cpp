#include "tesselctl/serve.hpp"

#include <csignal>

#include "tesselctl/server.hpp"

namespace tesselctl {

namespace {

std::atomic<Server *> served = nullptr;

void stop_server(int) {
  if (Server *server = served.load()) server->stop();
}

// While it lives, the signals that end programs stop the server.
class StopSignals {
 public:
  explicit StopSignals(Server &server) {
    served = &server;
    struct sigaction action = {};
    action.sa_handler = stop_server;
    sigemptyset(&action.sa_mask);
    for (size_t i = 0; i < std::size(kSignals); ++i) {
      sigaction(kSignals[i], nullptr, &before_[i]);
      // What is ignored, as by nohup, stays so.
      if (before_[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &action, nullptr);
    }
  }
  ~StopSignals() {
    for (size_t i = 0; i < std::size(kSignals); ++i) sigaction(kSignals[i], &before_[i], nullptr);
    served = nullptr;
  }
  StopSignals(const StopSignals &) = delete;
  StopSignals &operator=(const StopSignals &) = delete;

 private:
  static constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
  struct sigaction before_[std::size(kSignals)];
};

}  // namespace

void serve(const DeviceOptions &options, const std::string &path, Output &out) {
  Device device(options);
  Server server(device, path);
  const StopSignals signals(server);
  out.line("device {} is served at {}", device.id(), path);
  out.flush();
  server.run();
}

}  // namespace tesselctl
