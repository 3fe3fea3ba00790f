#include "tesselctl/server/served_client.hpp"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <new>
#include <utility>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/server/unix_socket.hpp"

namespace tesselctl {

namespace {

constexpr std::string_view kNoMemory = "there is no memory for this";

Settings settings_of(std::string_view text) {
  std::vector<Word> words;
  split_words(text, words);
  ToolSettings tool;
  take_tool_flags(words, tool);
  take_flags(words, tool.lines);
  if (!words.empty()) throw Fault("the settings of a request hold other words");
  return tool.lines;
}

}  // namespace

ServedClient::ServedClient(Descriptor socket, const Served &served, const ServerLimits &limits,
                           ServerFigures &figures, const std::atomic<bool> &stopping)
    : socket_(std::move(socket)),
      served_(served),
      name_(peer_of(socket_)),
      limits_(limits),
      figures_(figures),
      stopping_(stopping),
      out_([this](std::string_view text) { push(encode_message(MessageType::output, text)); }),
      errors_([this](std::string_view text) { push(encode_message(MessageType::errors, text)); }),
      runner_(served.device, out_, errors_, Settings{}) {
  runner_.context().journal = served.journal;
  runner_.context().events = this;
}

ServedClient::~ServedClient() {
  if (monitor_) served_.monitors.remove(*monitor_);
}

short ServedClient::events() const {
  int events = 0;
  if (reader_.room() > 0) events |= POLLIN;
  if (unread() > 0) events |= POLLOUT;
  return static_cast<short>(events);
}

void ServedClient::handle(short events) {
  // Who hung up reads no answer, so that what it may have asked before is not done either.
  if ((events & (POLLERR | POLLHUP | POLLNVAL)) != 0) gone_ = true;
  if (gone_) return;
  try {
    if ((events & POLLIN) != 0) receive();
    if ((events & POLLOUT) != 0) send_queue();
  } catch (const std::bad_alloc &) {
    gone_ = true;  // what it sent is lost
  }
}

void ServedClient::look() {
  pollfd now = {fd(), events(), 0};
  if (poll(&now, 1, 0) > 0) handle(now.revents);
}

void ServedClient::receive() {
  char bytes[1 << 16];
  const ssize_t got = recv(fd(), bytes, std::min(sizeof bytes, reader_.room()), 0);
  if (got > 0) {
    reader_.add({bytes, static_cast<size_t>(got)});
  } else if (got == 0 || !would_wait(errno)) {
    gone_ = true;
  }
}

void ServedClient::send_queue() {
  while (unread() > 0) {
    const ssize_t wrote = send(fd(), queue_.data() + sent_, unread(), MSG_NOSIGNAL);
    if (wrote < 0 && !would_wait(errno)) gone_ = true;
    if (wrote < 0) return;
    sent_ += static_cast<size_t>(wrote);
    // Moves no more bytes than were sent.
    if (sent_ < unread()) continue;
    queue_.erase(0, sent_);
    sent_ = 0;
    if (queue_.empty() && queue_.capacity() > limits_.paused_at) queue_.shrink_to_fit();
  }
}

void ServedClient::push(std::string_view bytes) {
  if (unread() + bytes.size() > limits_.dropped_at) gone_ = true;
  if (gone_) throw Fault("the client is gone or does not read");
  queue_ += bytes;
  send_queue();
}

bool ServedClient::is_ready() const {
  if (gone_ || unread() >= limits_.paused_at) return false;
  try {
    return reader_.front().has_value();
  } catch (const std::exception &) {
    return true;  // step refuses it
  }
}

void ServedClient::step() {
  try {
    if (const auto message = reader_.front()) look_at(*message);
  } catch (const std::bad_alloc &) {
    refuse(kNoMemory);
  } catch (const std::exception &error) {
    refuse(error.what());
  }
}

void ServedClient::refuse(std::string_view why) {
  if (gone_) return;
  try {
    // What the socket takes at once is all that such a client gets.
    queue_ += encode_message(MessageType::refusal, why);
    send_queue();
  } catch (const std::bad_alloc &) {
    // It gets the end of the connection.
  }
  gone_ = true;
}

void ServedClient::look_at(const Message &message) {
  if (message.type == MessageType::interrupt) {
    reader_.pop();
    if (monitor_) end_events();
    return;  // any other command has ended
  }
  if (monitor_) throw Fault("a client that monitors sends interrupts alone");
  if (message.type != MessageType::request) throw Fault("a client sends requests and interrupts");
  const Request request = decode_request(message.payload);
  reader_.pop();
  if (request.script && request.more) return collect(request.text);
  prepare(request);
  const InterruptScope scope([this] { return is_interrupted(); });
  const LineOutcome outcome = run_logged(request);
  if (!request.ask && outcome != LineOutcome::blank) ++figures_.commands;
  if (!request.ask && outcome == LineOutcome::fault) ++figures_.faults;
  served_.monitors.note_events(name_);
  out_.flush();
  errors_.flush();
  if (!monitor_) push(encode_end(outcome));
}

void ServedClient::prepare(const Request &request) {
  if (!request.directory.starts_with('/')) throw Fault("a request names no directory");
  runner_.context().defaults = settings_of(request.settings);
  runner_.context().directory = request.directory;
  out_.set_colour(request.colour_output);
  errors_.set_colour(request.colour_errors);
}

void ServedClient::collect(std::string_view text) {
  script_ += text;
  if (script_.size() > kMostScript) throw Fault("a script is too long");
}

LineOutcome ServedClient::run(const Request &request) {
  line_ = trimmed(request.text);
  try {
    if (request.begin_trial || request.end_trial) return change_trial(request.begin_trial);
    std::string script = std::exchange(script_, {});
    if (request.script) {
      script += request.text;
      return runner_.run_whole({request.file, script, runner_.defaults()});
    }
    if (!request.ask) return runner_.run({request.file, request.line, request.text});
    out_.write(runner_.ask(request.text));
    return LineOutcome::done;
  } catch (const Fault &) {
    throw;  // the output is gone
  } catch (const std::bad_alloc &) {
    errors_.line("tesselctl: {}", kNoMemory);
    return LineOutcome::fault;
  } catch (const std::exception &error) {
    errors_.line("tesselctl: {}", error.what());
    return LineOutcome::fault;
  }
}

LineOutcome ServedClient::run_logged(const Request &request) {
  // Before the line runs, as what it changed is to reach the log without memory for this.
  const std::string command =
      request.script ? "run --atomic " + request.file : std::string(trimmed(request.text));
  LineOutcome outcome;
  try {
    outcome = run(request);
  } catch (...) {
    end_line(request, command, LineOutcome::fault);
    throw;
  }
  return end_line(request, command, outcome);
}

// What the line changed goes to the log, or it was not done.
LineOutcome ServedClient::end_line(const Request &request, std::string_view command,
                                   LineOutcome outcome) {
  try {
    served_.log.end_line(name_, command);
    return outcome;
  } catch (const Fault &fault) {
    return report_taken_back(request, fault);
  } catch (const std::bad_alloc &) {
    return report_taken_back(request, Fault(std::string(kNoMemory)));
  }
}

LineOutcome ServedClient::report_taken_back(const Request &request, const Fault &fault) {
  // As far as it is not sent yet, the answer does not hold.
  out_.take();
  const Settings &settings = runner_.defaults();
  Results results(out_);
  results.begin(settings, trimmed(request.text), false);
  const Fault whole("the change could not be kept and was taken back: " + fault.sentence());
  report_fault(whole, {}, results, settings.json, out_, errors_);
  return LineOutcome::fault;
}

LineOutcome ServedClient::change_trial(bool begin) {
  try {
    if (begin) {
      runner_.begin_trial();
      ++trials_;
    } else if (trials_ != 0) {
      runner_.end_trial();
      --trials_;
    }
    return LineOutcome::done;
  } catch (const std::exception &error) {
    out_.write(error.what());
    return LineOutcome::fault;
  }
}

// ---- Events ----

void ServedClient::send_events(WantedEvents wanted) {
  wanted.command = line_;
  monitor_.emplace(std::move(wanted), out_, limits_.paused_at,
                   [this] { return unread() + out_.waiting(); });
  try {
    served_.monitors.add(*monitor_);
  } catch (...) {
    served_.monitors.remove(*monitor_);
    monitor_.reset();
    throw;
  }
}

void ServedClient::send_collected() {
  if (!monitor_ || gone_) return;
  try {
    monitor_->catch_up(limits_.paused_at / 2);
    if (monitor_->is_done()) return end_events();
    out_.flush();
  } catch (const std::exception &) {
    gone_ = true;
  }
}

void ServedClient::end_events() {
  served_.monitors.remove(*monitor_);
  monitor_->catch_up(limits_.dropped_at);
  monitor_.reset();
  out_.flush();
  push(encode_end(LineOutcome::done));
}

// Asked while a command of this client runs.
bool ServedClient::is_interrupted() {
  if (stopping_) return true;
  look();
  try {
    const auto message = reader_.front();
    return gone_ || (message && message->type == MessageType::interrupt);
  } catch (const std::exception &) {
    return true;
  }
}

}  // namespace tesselctl
