// Keeps a device for clients that come and go. All of it happens in the thread that runs the
// server: commands are run one at a time, a line of each client in turn, and nothing waits for a
// client.
#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "tesselctl/server/served_client.hpp"
#include "tesselctl/server/unix_socket.hpp"

namespace tesselctl {

class Server {
 public:
  // The device outlives the server. Throws Fault.
  Server(Device &device, ListeningSocket listening, const ServerLimits &limits = {});

  // Serves until somebody stops it. Throws Fault when it cannot go on.
  void run();
  // Safe in signal handlers and from any thread. The command that runs ends where it can.
  void stop() noexcept;

 private:
  void wait();
  void forget_gone();
  void accept_clients();
  void accept_client(Descriptor socket);

  Device &device_;
  const ServerLimits limits_;
  std::atomic<bool> stopping_ = false;
  Descriptor wake_;  // readable once the server is to stop
  ListeningSocket listening_;
  bool out_of_descriptors_ = false;
  std::vector<std::unique_ptr<ServedClient>> clients_;
};

}  // namespace tesselctl
