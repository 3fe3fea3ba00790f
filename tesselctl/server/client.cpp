#include "tesselctl/server/client.hpp"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/server/unix_socket.hpp"

namespace tesselctl {

namespace {

// A signal that comes just before the wait is heard of so much later.
constexpr int kLookUpMs = 100;
// Of a script; names and settings have room beside it.
constexpr size_t kTextPiece = kMostPayload / 2;

std::string working_directory() {
  std::error_code error;
  const std::string path = std::filesystem::current_path(error).string();
  if (error) throw Fault("the working directory has no name: " + error.message());
  return path;
}

}  // namespace

RemoteRunner::RemoteRunner(std::string path, Output &out, Output &errors, const Settings &defaults)
    : path_(std::move(path)),
      out_(&out),
      errors_(&errors),
      defaults_(defaults),
      socket_(connect_to(path_)) {}

Request RemoteRunner::request_of(const SourceLine &source) const {
  return {.colour_output = out_->colour(),
          .colour_errors = errors_->colour(),
          .directory = working_directory(),
          .settings = words_of(defaults_),
          .file = std::string(source.file),
          .line = source.line,
          .text = std::string(source.text)};
}

LineOutcome RemoteRunner::run(const SourceLine &source) {
  return exchange(encode_request(request_of(source)), *out_, *errors_);
}

LineOutcome RemoteRunner::run_whole(const WholeScript &script) {
  if (script.text.size() > kMostScript) {
    throw Fault(fmt::format("{}: the script is too long for the server: {} bytes, at most {}",
                            script.name, script.text.size(), kMostScript));
  }
  Request request = request_of({script.name, 0, {}});
  request.script = true;
  request.settings = words_of(script.settings);
  std::string bytes;
  std::string_view rest = script.text;
  do {
    request.text = rest.substr(0, kTextPiece);
    rest.remove_prefix(request.text.size());
    request.more = !rest.empty();
    bytes += encode_request(request);
  } while (!rest.empty());
  return exchange(std::move(bytes), *out_, *errors_);
}

void RemoteRunner::change_trial(bool Request::*what) {
  Request request = request_of({});
  request.*what = true;
  Output answer;
  Output nothing;
  if (exchange(encode_request(request), answer, nothing) == LineOutcome::done) return;
  throw Fault(answer.take());
}

void RemoteRunner::begin_trial() {
  change_trial(&Request::begin_trial);
  ++trials_;
}

void RemoteRunner::end_trial() {
  --trials_;
  if (socket_.is_open()) change_trial(&Request::end_trial);
}

std::string RemoteRunner::ask(std::string_view line) {
  Request request = request_of({{}, 0, line});
  request.ask = true;
  Output answer;
  Output nothing;
  exchange(encode_request(request), answer, nothing);
  return answer.take();
}

LineOutcome RemoteRunner::exchange(std::string requests, Output &out, Output &errors) {
  if (!socket_.is_open() && trials_ != 0) give_up("the copy of the device is gone");
  if (!socket_.is_open()) socket_ = connect_to(path_);
  to_send_ = std::move(requests);
  sent_ = 0;
  interrupt_sent_ = false;
  try {
    return follow_answer(out, errors);
  } catch (...) {
    // The rest of this answer must not become the next one.
    socket_.reset();
    reader_ = MessageReader();
    throw;
  }
}

LineOutcome RemoteRunner::follow_answer(Output &out, Output &errors) {
  while (true) {
    while (const auto message = reader_.front()) {
      if (message->type == MessageType::refusal) give_up(std::string(message->payload));
      if (message->type == MessageType::end) {
        const LineOutcome outcome = decode_end(message->payload);
        reader_.pop();
        return outcome;
      }
      const bool is_output = message->type == MessageType::output;
      Output &to = is_output ? out : errors;
      to.write(message->payload);
      to.flush();
      reader_.pop();
    }
    handle_interrupt();
    wait();
  }
}

void RemoteRunner::handle_interrupt() {
  if (!interrupt_requested()) return;
  clear_interrupt();
  if (interrupt_sent_) give_up("interrupted; the server ends the command when it can");
  to_send_ += encode_message(MessageType::interrupt, {});
  interrupt_sent_ = true;
}

void RemoteRunner::wait() {
  const int events = sent_ == to_send_.size() ? POLLIN : POLLIN | POLLOUT;
  pollfd waited = {socket_.get(), static_cast<short>(events), 0};
  const int ready = poll(&waited, 1, kLookUpMs);
  if (ready < 0 && errno != EINTR) give_up(strerror(errno));
  if (ready <= 0) return;
  if ((waited.revents & POLLOUT) != 0) send_some();
  if ((waited.revents & ~POLLOUT) != 0) receive_some();
}

void RemoteRunner::send_some() {
  const std::string_view rest = std::string_view(to_send_).substr(sent_);
  const ssize_t wrote = send(socket_.get(), rest.data(), rest.size(), MSG_NOSIGNAL);
  if (wrote >= 0) {
    sent_ += static_cast<size_t>(wrote);
  } else if (!would_wait(errno)) {
    sent_ = to_send_.size();  // the server may have said why
  }
}

void RemoteRunner::receive_some() {
  char bytes[size_t{1} << 16];
  const ssize_t got = recv(socket_.get(), bytes, sizeof bytes, 0);
  if (got > 0) {
    reader_.add({bytes, static_cast<size_t>(got)});
  } else if (got == 0 || !would_wait(errno)) {
    give_up("the server ended the connection");
  }
}

void RemoteRunner::give_up(const std::string &why) const { throw Fault(path_ + ": " + why); }

}  // namespace tesselctl
