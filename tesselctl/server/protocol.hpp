// What a client and a server of a device say to each other over a stream socket. A message is
//
//   4 bytes  length of the payload, big-endian, at most kMostPayload
//   1 byte   type
//   payload
//
// A client sends requests, each but those that say that more is to come answered by any number of
// output and errors messages and one end. An interrupt belongs to the request before it, and does
// nothing once that has ended. A refusal says why the server ends the connection.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tesselctl/command/runner.hpp"

namespace tesselctl {

inline constexpr uint8_t kProtocolVersion = 1;
inline constexpr size_t kMessageHeader = 5;
inline constexpr size_t kMostPayload = size_t{1} << 20;
// Of a script that is run as a whole.
inline constexpr size_t kMostScript = size_t{64} << 20;

enum class MessageType : uint8_t {
  request = 'r',
  interrupt = 'i',
  output = 'o',  // a piece of what goes to the standard output
  errors = 'e',  // of what goes to standard error
  end = 'x',     // one byte: the outcome of the request
  refusal = 'n',
};

struct Message {
  MessageType type;
  std::string_view payload;
};

// One command line, or a script that is run as a whole, and what its run depends on.
struct Request {
  bool ask = false;     // answered with what Runner::ask gives
  bool script = false;  // answered with what Runner::run_whole prints
  bool more = false;    // the text of the script goes on in the next request
  // These have no text. What keeps a trial from beginning is answered as output.
  bool begin_trial = false;
  bool end_trial = false;
  bool colour_output = false;
  bool colour_errors = false;
  std::string directory = {};  // absolute; what file names are relative to
  std::string settings = {};   // the words of its defaults, see words_of
  std::string file = {};
  uint64_t line = 0;
  std::string text = {};
};

std::string encode_message(MessageType type, std::string_view payload);
std::string encode_request(const Request &request);
std::string encode_end(LineOutcome outcome);

// These throw Fault for a payload that is none.
Request decode_request(std::string_view payload);
LineOutcome decode_end(std::string_view payload);

// Takes the bytes of a stream, whatever they are, and gives its messages.
class MessageReader {
 public:
  void add(std::string_view bytes);
  // The oldest message, once all of it has come; its payload stays until the next add or pop.
  // Throws Fault when the bytes are no message or it is too long, and ever after.
  std::optional<Message> front() const;
  // Forgets the message that front gave.
  void pop();
  // Bytes that wait, and how many may come at once without more than a message waiting.
  size_t waiting() const { return bytes_.size() - start_; }
  size_t room() const;

 private:
  std::string bytes_;
  size_t start_ = 0;
};

}  // namespace tesselctl
