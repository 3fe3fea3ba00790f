// Runs command lines on the device of a server.
#pragma once

#include <string>

#include "tesselctl/server/protocol.hpp"
#include "tesselctl/text/descriptor.hpp"

namespace tesselctl {

// The server keeps the names of handles (as=NAME) as long as the runner lives. An interrupt ends
// the command that runs; a second one, when the server does not get round to it, ends the
// connection, and the next line makes a new one.
class RemoteRunner : public Runner {
 public:
  // Connects. The outputs stay the caller's. Throws Fault when there is no server.
  RemoteRunner(std::string path, Output &out, Output &errors, const Settings &defaults);

  LineOutcome run(const SourceLine &source) override;
  LineOutcome run_whole(const WholeScript &script) override;
  void begin_trial() override;
  void end_trial() override;
  std::string ask(std::string_view line) override;
  Settings &defaults() override { return defaults_; }

 private:
  Request request_of(const SourceLine &source) const;
  void change_trial(bool Request::*what);
  // Sends encoded requests and gives the answer, as it comes, to the outputs.
  LineOutcome exchange(std::string requests, Output &out, Output &errors);
  LineOutcome follow_answer(Output &out, Output &errors);
  void handle_interrupt();
  void wait();
  void send_some();
  void receive_some();
  [[noreturn]] void give_up(const std::string &why) const;

  std::string path_;
  Output *out_;
  Output *errors_;
  Settings defaults_;
  Descriptor socket_;
  MessageReader reader_;
  std::string to_send_;
  size_t sent_ = 0;  // of that
  bool interrupt_sent_ = false;
  size_t trials_ = 0;  // that have begun; the server forgets them with the connection
};

}  // namespace tesselctl
