#include "tesselctl/server/protocol.hpp"

#include <algorithm>

namespace tesselctl {

namespace {

constexpr uint8_t kAsk = 1;
constexpr uint8_t kColourOutput = 2;
constexpr uint8_t kColourErrors = 4;
constexpr uint8_t kScript = 8;
constexpr uint8_t kMore = 16;
constexpr uint8_t kAllFlags = 31;

void put_number(std::string &to, uint64_t value, size_t bytes) {
  while (bytes-- > 0) to += static_cast<char>(value >> (8 * bytes) & 0xff);
}

void put_text(std::string &to, std::string_view text) {
  put_number(to, text.size(), 4);
  to += text;
}

uint64_t number_at(std::string_view bytes) {
  uint64_t value = 0;
  for (const char byte : bytes) value = value << 8 | static_cast<uint8_t>(byte);
  return value;
}

// Reads a payload from the front.
class Payload {
 public:
  explicit Payload(std::string_view bytes) : rest_(bytes) {}

  std::string_view take(uint64_t count) {
    if (count > rest_.size()) throw Fault("a message ends too early");
    const std::string_view taken = rest_.substr(0, static_cast<size_t>(count));
    rest_.remove_prefix(taken.size());
    return taken;
  }
  uint64_t number(size_t bytes) { return number_at(take(bytes)); }
  std::string text() { return std::string(take(number(4))); }
  void end() const {
    if (!rest_.empty()) throw Fault("a message is longer than what it holds");
  }

 private:
  std::string_view rest_;
};

bool is_type(uint8_t type) {
  switch (static_cast<MessageType>(type)) {
    case MessageType::request:
    case MessageType::interrupt:
    case MessageType::output:
    case MessageType::errors:
    case MessageType::end:
    case MessageType::refusal:
      return true;
  }
  return false;
}

}  // namespace

std::string encode_message(MessageType type, std::string_view payload) {
  std::string bytes;
  bytes.reserve(kMessageHeader + payload.size());
  put_number(bytes, payload.size(), 4);
  bytes += static_cast<char>(type);
  bytes += payload;
  return bytes;
}

std::string encode_request(const Request &request) {
  std::string payload;
  put_number(payload, kProtocolVersion, 1);
  put_number(payload,
             (request.ask ? kAsk : 0u) | (request.colour_output ? kColourOutput : 0u) |
                 (request.colour_errors ? kColourErrors : 0u) | (request.script ? kScript : 0u) |
                 (request.more ? kMore : 0u),
             1);
  put_number(payload, request.line, 8);
  put_text(payload, request.directory);
  put_text(payload, request.settings);
  put_text(payload, request.file);
  put_text(payload, request.text);
  if (payload.size() > kMostPayload) {
    throw Fault("the line is too long for the server: " + std::to_string(payload.size()) +
                " bytes, at most " + std::to_string(kMostPayload));
  }
  return encode_message(MessageType::request, payload);
}

std::string encode_end(LineOutcome outcome) {
  const char byte = static_cast<char>(outcome);
  return encode_message(MessageType::end, {&byte, 1});
}

Request decode_request(std::string_view bytes) {
  Payload payload(bytes);
  const uint64_t version = payload.number(1);
  if (version != kProtocolVersion) {
    throw Fault("the server speaks version " + std::to_string(kProtocolVersion) +
                " of its protocol, the client version " + std::to_string(version));
  }
  const uint64_t flags = payload.number(1);
  if ((flags & ~uint64_t{kAllFlags}) != 0) throw Fault("a request has unknown flags");
  Request request;
  request.ask = (flags & kAsk) != 0;
  request.colour_output = (flags & kColourOutput) != 0;
  request.colour_errors = (flags & kColourErrors) != 0;
  request.script = (flags & kScript) != 0;
  request.more = (flags & kMore) != 0;
  request.line = payload.number(8);
  request.directory = payload.text();
  request.settings = payload.text();
  request.file = payload.text();
  request.text = payload.text();
  payload.end();
  return request;
}

LineOutcome decode_end(std::string_view payload) {
  if (payload.size() == 1) {
    for (const LineOutcome outcome :
         {LineOutcome::blank, LineOutcome::done, LineOutcome::differs, LineOutcome::fault}) {
      if (static_cast<uint8_t>(payload[0]) == static_cast<uint8_t>(outcome)) return outcome;
    }
  }
  throw Fault("an end has no outcome");
}

void MessageReader::add(std::string_view bytes) {
  if (start_ > 0) bytes_.erase(0, start_);
  start_ = 0;
  bytes_ += bytes;
}

std::optional<Message> MessageReader::front() const {
  const std::string_view bytes = std::string_view(bytes_).substr(start_);
  if (bytes.size() < kMessageHeader) return std::nullopt;
  const uint64_t length = number_at(bytes.substr(0, 4));
  if (length > kMostPayload) {
    throw Fault("a message has " + std::to_string(length) + " bytes, at most " +
                std::to_string(kMostPayload));
  }
  const auto type = static_cast<uint8_t>(bytes[4]);
  if (!is_type(type)) throw Fault("a message has the unknown type " + std::to_string(type));
  if (bytes.size() - kMessageHeader < length) return std::nullopt;
  return Message{static_cast<MessageType>(type),
                 bytes.substr(kMessageHeader, static_cast<size_t>(length))};
}

void MessageReader::pop() {
  if (const auto message = front()) start_ += kMessageHeader + message->payload.size();
}

size_t MessageReader::room() const {
  return kMessageHeader + kMostPayload - std::min(waiting(), kMessageHeader + kMostPayload);
}

}  // namespace tesselctl
