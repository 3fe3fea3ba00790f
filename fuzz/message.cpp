// Any bytes as what a client sends to a server, in pieces of sizes that are in themselves: the
// server answers with messages, or ends the connection.
#include <sys/socket.h>

#include "fuzz/tool.hpp"
#include "tesselctl/server/served_client.hpp"

using namespace tesselctl;

namespace {

// Calls visit with each message before one that is none.
template <class Visit>
void visit_messages(MessageReader &reader, std::string_view bytes, Visit visit) {
  reader.add(bytes);
  while (const auto message = reader.front()) {
    visit(*message);
    reader.pop();
  }
}

// Whether a request runs a command with files, which the fuzzer must not choose. What is read twice
// is written once.
bool has_files(std::string_view bytes) {
  std::string lines;
  try {
    MessageReader reader;
    visit_messages(reader, bytes, [&](const Message &message) {
      if (message.type != MessageType::request) return;
      const Request request = decode_request(message.payload);
      require(encode_request(request).substr(kMessageHeader) == message.payload,
              "a request is written as it is read");
      lines += request.text;
      if (!request.script || !request.more) lines += '\n';
    });
  } catch (const Fault &) {
    // The server finds it, too.
  }
  const LineSource source = lines_of(lines);
  for (std::string_view line; source(line);) {
    if (uses_files(line)) return true;
  }
  return false;
}

// What a client reads.
class Peer {
 public:
  explicit Peer(int socket) : socket_(socket) {}
  void read() {
    char bytes[4096];
    for (ssize_t got; (got = recv(socket_.get(), bytes, sizeof bytes, 0)) > 0;) {
      visit_messages(reader_, {bytes, static_cast<size_t>(got)}, [](const Message &message) {
        if (message.type == MessageType::end) decode_end(message.payload);
        require(message.type != MessageType::request && message.type != MessageType::interrupt,
                "a server answers");
      });
    }
  }
  void send(std::string_view bytes) {
    ::send(socket_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
  }

 private:
  Descriptor socket_;
  MessageReader reader_;
};

}  // namespace

void try_input(std::string_view input) {
  if (has_files(input)) return;
  int ends[2];
  require(socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends) == 0, "there are sockets");
  Device device({.id = 0, .pipes = 2});
  ChangeLog log(device);
  Monitors monitors(device, log);
  ServerFigures figures;
  const ServerLimits limits;
  const std::atomic<bool> stopping = false;
  Peer peer(ends[1]);
  const Served served = {device, log, monitors};
  ServedClient client(Descriptor(ends[0]), served, limits, figures, stopping);
  while (!input.empty() && !client.is_gone()) {
    const std::string_view piece = input.substr(0, 1 + static_cast<uint8_t>(input[0]));
    peer.send(piece);
    input.remove_prefix(piece.size());
    client.look();
    while (client.is_ready()) client.step();
    if (client.has_events()) client.send_collected();
    peer.read();
  }
}
