#include "tesselctl/server/protocol.hpp"

#include <algorithm>

namespace tesselctl {

namespace {

// What a request has, in the order of its bits and of its texts.
constexpr bool Request::*kFlags[] = {
    &Request::ask,  &Request::colour_output, &Request::colour_errors, &Request::script,
    &Request::more, &Request::begin_trial,   &Request::end_trial};
constexpr std::string Request::*kTexts[] = {&Request::directory, &Request::settings, &Request::file,
                                            &Request::text};

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
  uint64_t flags = 0;
  for (size_t i = 0; i < std::size(kFlags); ++i) flags |= uint64_t{request.*kFlags[i]} << i;
  put_number(payload, flags, 1);
  put_number(payload, request.line, 8);
  for (const auto member : kTexts) put_text(payload, request.*member);
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
  if (flags >> std::size(kFlags) != 0) throw Fault("a request has unknown flags");
  Request request;
  for (size_t i = 0; i < std::size(kFlags); ++i) request.*kFlags[i] = (flags >> i & 1) != 0;
  request.line = payload.number(8);
  for (const auto member : kTexts) request.*member = payload.text();
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
