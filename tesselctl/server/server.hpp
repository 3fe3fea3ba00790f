// Keeps a device for clients that come and go. All of it happens in the thread that runs the
// server: commands are run one at a time, a line of each client in turn, and nothing waits for a
// client.
#pragma once

#include <poll.h>

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "tesselctl/server/served_client.hpp"
#include "tesselctl/server/unix_socket.hpp"

namespace tesselctl {

class Server {
 public:
  // The device and the journal, if there is one, outlive the server. Throws Fault.
  Server(Device &device, ListeningSocket listening, const ServerLimits &limits = {},
         Journal *journal = nullptr);

  Journal *journal() const { return served_.journal; }
  // Serves until somebody stops it. Throws Fault when it cannot go on.
  void run();
  // Safe in signal handlers and from any thread. The command that runs ends where it can.
  void stop() noexcept;
  // Has something done in the thread that runs the server, between two commands; jobs that wait
  // when the server ends are destroyed. From any thread.
  void post(std::function<void()> job);
  // For jobs. A command that they run ends early when this is set.
  const std::atomic<bool> &stopping() const { return stopping_; }
  ServerFigures figures() const;

 private:
  void wait();
  void wake_up() noexcept;
  void run_job();
  int wait_for_events(int timeout);
  void send_events();
  void forget_gone();
  void accept_clients();
  void accept_client(Descriptor socket);

  ChangeLog log_;
  Monitors monitors_;
  Served served_;
  const ServerLimits limits_;
  std::atomic<bool> stopping_ = false;
  Descriptor wake_;  // readable once the server is to stop, and while jobs wait
  ListeningSocket listening_;
  bool out_of_descriptors_ = false;
  // When the events that wait are sent, if any do.
  std::optional<std::chrono::steady_clock::time_point> send_events_at_;
  // With room for as many as there may be, so that a server that waits needs no memory.
  std::vector<std::unique_ptr<ServedClient>> clients_;
  std::vector<pollfd> waited_;
  ServerFigures figures_;
  std::mutex jobs_mutex_;
  std::deque<std::function<void()>> jobs_;
  bool ended_ = false;
};

}  // namespace tesselctl
