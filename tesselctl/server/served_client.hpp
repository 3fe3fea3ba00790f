// One client of a server: what it sent and was not looked at, what it was sent and has not read,
// and what its commands share. Nothing here waits for the client.
#pragma once

#include <atomic>

#include "tesselctl/command/local_runner.hpp"
#include "tesselctl/journal/change_log.hpp"
#include "tesselctl/server/monitors.hpp"
#include "tesselctl/server/protocol.hpp"
#include "tesselctl/text/descriptor.hpp"

namespace tesselctl {

struct ServerLimits {
  size_t clients = 64;
  // Of the bytes that a client has not read yet: with so many its next command waits, with more
  // than so many it is dropped.
  size_t paused_at = size_t{1} << 20;
  size_t dropped_at = size_t{256} << 20;
};

// Since the server began. A script that is run as a whole is one command.
struct ServerFigures {
  size_t clients = 0;  // now
  uint64_t commands = 0;
  uint64_t faults = 0;
};

// What a server serves.
struct Served {
  Device &device;
  ChangeLog &log;
  Monitors &monitors;
  Journal *journal = nullptr;
};

class ServedClient : private EventSource {
 public:
  // What the client shares with others outlives it; a command ends early once stopping is set.
  ServedClient(Descriptor socket, const Served &served, const ServerLimits &limits,
               ServerFigures &figures, const std::atomic<bool> &stopping);
  ~ServedClient() override;

  int fd() const { return socket_.get(); }
  // What to poll for, and what to do with what it gave.
  short events() const;
  void handle(short events);
  // Both at once, without waiting.
  void look();
  // Whether a message waits that may be looked at now, and looking at it.
  bool is_ready() const;
  void step();
  // Whether events wait that are sent together, and sending them.
  bool has_events() const {
    return monitor_ && (out_.waiting() != 0 || monitor_->is_done() ||
                        (monitor_->is_behind() && unread() < limits_.paused_at / 2));
  }
  void send_collected();
  // To be forgotten: the client left, broke the protocol or does not read.
  bool is_gone() const { return gone_; }

 private:
  size_t unread() const { return queue_.size() - sent_; }
  void receive();
  void send_queue();
  void push(std::string_view bytes);
  void look_at(const Message &message);
  void refuse(std::string_view why);
  void prepare(const Request &request);
  LineOutcome run(const Request &request);
  LineOutcome run_logged(const Request &request);
  LineOutcome end_line(const Request &request, std::string_view command, LineOutcome outcome);
  LineOutcome report_taken_back(const Request &request, const Fault &fault);
  LineOutcome change_trial(bool begin);
  void collect(std::string_view text);
  bool is_interrupted();
  void send_events(WantedEvents wanted) override;
  void end_events();

  Descriptor socket_;
  const Served &served_;
  const std::string name_;
  const ServerLimits &limits_;
  ServerFigures &figures_;
  const std::atomic<bool> &stopping_;
  bool gone_ = false;
  MessageReader reader_;
  std::string queue_;
  size_t sent_ = 0;  // of the queue
  Output out_;
  Output errors_;
  LocalRunner runner_;
  size_t trials_ = 0;
  std::optional<Monitor> monitor_;  // while it gets events
  std::string line_;                // that runs
  std::string script_;              // what came of it so far
};

}  // namespace tesselctl
