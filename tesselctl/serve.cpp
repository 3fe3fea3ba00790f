#include "tesselctl/serve.hpp"

#include <unistd.h>

#include <csignal>

#include "tesselctl/image_file.hpp"
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

void serve(const ServeOptions &options, Output &out) {
  Device device(options.device);
  // First of all the socket: whoever has it has the image.
  Server server(device, options.socket);
  const StopSignals signals(server);
  const std::string &image = options.image;
  if (!image.empty() && access(image.c_str(), F_OK) == 0) load_image_file(device, image, image);
  out.line("device {} is served at {}", device.id(), options.socket);
  out.flush();
  server.run();
  if (!image.empty()) save_image_file(device, image);
}

}  // namespace tesselctl
