// The server of a device, over its socket: clients that behave, and clients that do not.
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>

#include <random>
#include <thread>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/server/client.hpp"
#include "tesselctl/server/server.hpp"
#include "tesselctl/shell/tool_runner.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

using namespace std::string_literals;

struct TestClient {
  explicit TestClient(const std::string &path) : runner(path, out, errors, {.terse = true}) {}
  // What the line prints, on both streams.
  std::string run(std::string_view line) {
    runner.run({{}, 0, line});
    return out.take() + errors.take();
  }
  Output out;
  Output errors;
  RemoteRunner runner;
};

// A peer that says what it likes.
class Peer {
 public:
  explicit Peer(Descriptor socket) : socket_(std::move(socket)) {
    fcntl(socket_.get(), F_SETFL, 0);
  }
  void say(const std::string &bytes) {
    ASSERT_EQ(send(socket_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(bytes.size()));
  }
  // The next message as its type and payload; empty once the other side is gone.
  std::string hear() {
    while (true) {
      if (const auto message = reader_.front()) {
        std::string heard(1, static_cast<char>(message->type));
        heard += message->payload;
        reader_.pop();
        return heard;
      }
      pollfd waited = {socket_.get(), POLLIN, 0};
      if (poll(&waited, 1, 60000) <= 0) return "nothing came";
      char bytes[4096];
      const ssize_t got = recv(socket_.get(), bytes, sizeof bytes, 0);
      if (got <= 0) return {};
      reader_.add({bytes, static_cast<size_t>(got)});
    }
  }
  // Whether the other side hangs up without anything being read.
  bool is_left() {
    pollfd waited = {socket_.get(), 0, 0};
    return poll(&waited, 1, 60000) > 0 && (waited.revents & POLLHUP) != 0;
  }
  // The messages up to an end, the refusal or the last one.
  std::vector<std::string> hear_answer() {
    std::vector<std::string> heard;
    do {
      heard.push_back(hear());
    } while (heard.back()[0] == 'o' || heard.back()[0] == 'e');
    return heard;
  }

 private:
  Descriptor socket_;
  MessageReader reader_;
};

std::string request(std::string_view text, std::string_view directory = "/") {
  return encode_request({.directory = std::string(directory),
                         .settings = "--terse ",
                         .file = "x",
                         .line = 7,
                         .text = std::string(text)});
}

std::string add_next_hop(int n) {
  return fmt::format("add nextHop nextHop={} action=setNextHopDetails dmac=1 domain=1", n);
}

class ServerTest : public ToolTest {
 protected:
  ~ServerTest() override { stop(); }
  void start(const ServerLimits &limits = {}) {
    server_.emplace(device_, ListeningSocket(path_), limits);
    thread_ = std::thread([this] { server_->run(); });
  }
  void stop() {
    if (!server_) return;
    server_->stop();
    thread_.join();
    server_.reset();
  }
  void add_next_hops(int count) {
    for (int i = 0; i < count; ++i) ASSERT_EQ(run(add_next_hop(i)), "");
  }
  Peer peer() { return Peer(connect_to(path_)); }
  void expect_alive() {
    EXPECT_EQ(TestClient(path_).run("count l2Lookup"), "l2Lookup entries=0\n");
  }

  const TemporaryDirectory temporary_;
  const std::string directory_ = temporary_.name;
  const std::string path_ = directory_ + "/socket";
  std::optional<Server> server_;
  std::thread thread_;
};

// ---- Messages ----

TEST(ProtocolTest, ARequestHasTheseBytes) {
  const std::string payload =
      "\x01\x06\0\0\0\0\0\0\x01\x02"
      "\0\0\0\x02/d\0\0\0\x07--json \0\0\0\0\0\0\0\x05"
      "count"s;
  const Request given = {.colour_output = true,
                         .colour_errors = true,
                         .directory = "/d",
                         .settings = words_of({.json = true}),
                         .line = 0x102,
                         .text = "count"};
  EXPECT_EQ(encode_request(given), "\0\0\0\x28r"s + payload);
  const Request taken = decode_request(payload);
  EXPECT_TRUE(taken.colour_output && taken.colour_errors && !taken.ask);
  EXPECT_EQ(taken.line, 0x102u);
  EXPECT_EQ(taken.directory + taken.settings + taken.file + taken.text, "/d--json count");
  for (size_t i = 0; i < payload.size(); ++i) {
    EXPECT_THROW(decode_request(payload.substr(0, i)), Fault) << i;
  }
  EXPECT_THROW(decode_request(payload + "x"), Fault);
  EXPECT_EQ(fault_of([&] { decode_request("\x02" + payload.substr(1)); }),
            "the server speaks version 1 of its protocol, the client version 2");
  EXPECT_THROW(encode_request({.text = std::string(kMostPayload, 'x')}), Fault);
}

// ---- Clients that behave ----

TEST_F(ServerTest, AnswersAreThoseOfADeviceOfOnesOwn) {
  start();
  TestClient client(path_);
  EXPECT_EQ(client.run(add_next_hop(1) + " --verbose"), "nextHop entry=1 added\n");
  EXPECT_EQ(client.runner.ask("count nextHop"), "nextHop entries=1\n");
  EXPECT_EQ(client.runner.ask("cuont"), "");
  EXPECT_EQ(client.runner.run({"x.tessel", 3, " # blank"}), LineOutcome::blank);
  EXPECT_EQ(client.runner.run({"x.tessel", 4, "cuont"}), LineOutcome::fault);
  EXPECT_EQ(client.out.take(), "");
  EXPECT_EQ(client.errors.take(),
            "x.tessel:4:1: 'cuont': no command has this name; did you mean 'count'?\n"
            "  cuont\n  ^^^^^\n");
  client.errors.set_colour(true);
  client.runner.run({{}, 0, "cuont"});
  EXPECT_TRUE(client.errors.take().starts_with("\033[1;31mtesselctl: 'cuont': "));
  EXPECT_EQ(fault_of([&] { client.run(std::string(kMostPayload, 'x')); }).substr(0, 35),
            "the line is too long for the server");
  // The client's options, words that need quotes among them.
  client.runner.defaults() = {.json = true, .filters = {{"dmac", "0 0"}}, .sort = "entry"};
  EXPECT_NE(client.run("show nextHop").find("--filter dmac: '0 0'"), std::string::npos);
}

TEST_F(ServerTest, EightClientsWorkAtOnce) {
  start();
  std::vector<std::thread> threads;
  for (int n = 0; n < 8; ++n) {
    threads.emplace_back([&, n] {
      TestClient client(path_);
      for (int hop = 100 * n; hop < 100 * n + 50; ++hop) {
        EXPECT_EQ(client.run(add_next_hop(hop) + " as=it"), "");
        EXPECT_NE(client.run("count --terse=1").find("--terse takes no value"), std::string::npos);
        const std::string shown = client.run("show nextHop entry=$it");
        EXPECT_NE(shown.find(fmt::format(" nextHop={} action=", hop)), shown.npos) << shown;
        EXPECT_EQ(hop % 2 == 0 ? client.run(fmt::format("delete nextHop nextHop={}", hop)) : "",
                  "");
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
  EXPECT_EQ(TestClient(path_).run("count nextHop"), "nextHop entries=200\n");
}

TEST_F(ServerTest, AnInterruptEndsTheCommandBeforeItAlone) {
  add_next_hops(3);
  start();
  Peer client = peer();
  const std::string interrupt = "\0\0\0\0i"s;
  client.say(interrupt + request("show nextHop") + interrupt + interrupt +
             request("count nextHop"));
  std::vector<std::string> answer = client.hear_answer();
  ASSERT_EQ(answer.back(), "x\x02");
  EXPECT_EQ(answer[answer.size() - 2], "ex:7: interrupted\n");
  answer = client.hear_answer();
  ASSERT_EQ(answer.size(), 2u);
  EXPECT_EQ(answer[0], "onextHop entries=3\n");
  EXPECT_EQ(answer[1], "x\x01");
}

TEST_F(ServerTest, AClientSendsItsInterruptAndThenLeaves) {
  const ListeningSocket listening(path_);
  TestClient client(path_);
  Peer server(listening.accept_client());
  std::string fault;
  LineOutcome outcome = LineOutcome::blank;
  std::thread runs([&] {
    outcome = client.runner.run({{}, 0, "count"});
    fault = fault_of([&] { client.run("count"); });
  });
  EXPECT_EQ(server.hear().front(), 'r');
  request_interrupt();
  EXPECT_EQ(server.hear(), "i");
  server.say(encode_message(MessageType::errors, "it ended\n") + encode_end(LineOutcome::fault));
  EXPECT_EQ(server.hear().front(), 'r');
  request_interrupt();
  EXPECT_EQ(server.hear(), "i");
  request_interrupt();
  EXPECT_EQ(server.hear(), "");
  runs.join();
  EXPECT_EQ(outcome, LineOutcome::fault);
  EXPECT_EQ(client.errors.take(), "it ended\n");
  EXPECT_EQ(fault, path_ + ": interrupted; the server ends the command when it can");
}

TEST_F(ServerTest, AServerThatGoesInTheMiddleIsAFaultAndNotAskedAgain) {
  const ListeningSocket listening(path_);
  TestClient client(path_);
  ToolRunner tool(client.runner, client.out, client.errors, -1, true);
  for (const std::string &answer :
       {encode_message(MessageType::output, "half"), "\0\0\0\1"s, "\0\0\0\1x"s,
        "\xff\xff\xff\xff"
        "o"s}) {
    std::string fault;
    std::atomic<bool> ended = false;
    std::thread runs([&] {
      fault = fault_of([&] { tool.run({{}, 0, "count"}); });
      ended = true;
    });
    int asked = 0;
    while (!ended) {
      pollfd waited = {listening.get(), POLLIN, 0};
      if (poll(&waited, 1, 10) <= 0) continue;
      Peer server(listening.accept_client());
      EXPECT_EQ(server.hear().front(), 'r');
      server.say(answer);
      ++asked;
    }
    runs.join();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(fault, answer.size() > 5 || answer[0] == 0
                         ? path_ + ": the server ended the connection"
                         : "a message has 4294967295 bytes, at most 1048576");
  }
}

// ---- Clients that do not ----

TEST_F(ServerTest, BrokenClientsAreToldAndForgotten) {
  start();
  const struct {
    std::string bytes;
    std::string refusal;
  } cases[] = {
      {"\0\x10\0\x01r"s, "na message has 1048577 bytes, at most 1048576"},
      {"\0\0\0\0?"s, "na message has the unknown type 63"},
      {encode_end(LineOutcome::done), "na client sends requests and interrupts"},
      {encode_message(MessageType::request, "\x01"), "na message ends too early"},
      {encode_message(MessageType::request, "\x07"),
       "nthe server speaks version 1 of its protocol, the client version 7"},
      {request("count", "tmp"), "na request names no directory"},
      {encode_request({.directory = "/", .settings = "count"}),
       "nthe settings of a request hold other words"},
  };
  for (const auto &broken : cases) {
    Peer client = peer();
    client.say(broken.bytes);
    EXPECT_EQ(client.hear(), broken.refusal);
    EXPECT_EQ(client.hear(), "");
  }
  // More of them than the server has room for, and all gone again.
  std::minstd_rand random(7);
  for (int round = 0; round < 200; ++round) {
    std::string bytes = request("count");
    for (int i = 0; i < 4; ++i) bytes[random() % bytes.size()] = static_cast<char>(random());
    if (round % 2 == 0) bytes.resize(random() % bytes.size());  // and leaves in the middle
    peer().say(bytes);
  }
  expect_alive();
}

TEST_F(ServerTest, ASlowClientWaitsWithItsOwnCommandsOnly) {
  add_next_hops(1200);
  start({.paused_at = 1u << 16, .dropped_at = 1u << 19});
  const std::string shown = run("show nextHop");
  ASSERT_GT(shown.size(), 90000u);
  Peer slow = peer();
  // More than the socket, and were it run at once more than what drops a client.
  for (int i = 0; i < 12; ++i) slow.say(request("show nextHop"));
  for (int i = 0; i < 5; ++i) expect_alive();
  peer().say(request("show nextHop"));  // and leaves with the answer under way
  for (int i = 0; i < 12; ++i) {
    std::string text;
    const std::vector<std::string> answer = slow.hear_answer();
    for (const std::string &message : answer) text += message.substr(message[0] == 'o' ? 1 : 0);
    EXPECT_TRUE(text == shown + "x\x01") << i << ": " << text.size();
  }
  expect_alive();
}

TEST_F(ServerTest, AClientThatNeverReadsIsDroppedAndOneTooManyRefused) {
  add_next_hops(1200);
  start({.clients = 2, .paused_at = 1u << 30, .dropped_at = 1u << 17});
  Peer slow = peer();
  for (int i = 0; i < 10; ++i) slow.say(request("show nextHop"));
  EXPECT_TRUE(slow.is_left());
  TestClient first(path_);
  TestClient second(path_);
  for (TestClient *one : {&first, &second})
    EXPECT_EQ(one->run("count l2Lookup"), "l2Lookup entries=0\n");
  EXPECT_EQ(peer().hear(), "nthe server has 2 clients, no more");
  EXPECT_EQ(first.run("count l2Lookup"), "l2Lookup entries=0\n");
}

// ---- Monitors ----

std::string write_of(int n) {
  return fmt::format("register write flowDigestCountReg index=1 value={}", n);
}

// The output up to the end.
std::string hear_events(Peer &client) {
  std::string text;
  for (const std::string &heard : client.hear_answer()) {
    text += heard[0] == 'o' ? heard.substr(1) : "<" + heard + ">";
  }
  return text;
}

TEST_F(ServerTest, EightMonitorsHearTheSame) {
  start({.clients = 9});
  std::vector<Peer> monitors;
  for (int i = 0; i < 8; ++i) {
    monitors.push_back(peer());
    monitors.back().say(request("monitor flowDigestCountReg count=200 --json"));
    EXPECT_TRUE(monitors.back().hear().ends_with("\"rows\":[]}\n"));
  }
  TestClient client(path_);
  EXPECT_EQ(client.run(add_next_hop(1)), "");
  for (int n = 1; n <= 201; ++n) EXPECT_EQ(client.run(write_of(n)), "");
  EXPECT_EQ(peer().hear(), "nthe server has 9 clients, no more");
  const std::string heard = hear_events(monitors[0]);
  EXPECT_EQ(std::count(heard.begin(), heard.end(), '\n'), 200);
  EXPECT_NE(heard.find(" index=1 values=200,200\"}]}\n<x\x01>"), heard.npos) << heard;
  EXPECT_EQ(heard.find("nextHop"), heard.npos);
  for (int i = 1; i < 8; ++i) EXPECT_TRUE(hear_events(monitors[static_cast<size_t>(i)]) == heard);
}

TEST_F(ServerTest, ASlowMonitorReadsHowMuchItMissedAndHoldsUpNobody) {
  constexpr int kChanges = 20000;
  start({.paused_at = 1u << 16});
  Peer slow = peer();
  slow.say(request("monitor"));
  TestClient client(path_);
  for (int n = 1; n <= kChanges; ++n) ASSERT_EQ(client.run(write_of(n)), "");
  // Each change has a line, or is counted by the line of a gap.
  int64_t changes = 0;
  int64_t missed = 0;
  for (std::string heard; changes + missed < kChanges;) {
    const std::string message = slow.hear();
    ASSERT_EQ(message.front(), 'o') << message;
    heard += message.substr(1);
    for (size_t end; (end = heard.find('\n')) != heard.npos; heard.erase(0, end + 1)) {
      std::string line = heard.substr(0, end);
      std::erase(line, ',');
      const bool is_gap = line.starts_with("missed ");
      (is_gap ? missed : changes) += is_gap ? std::stol(line.substr(7)) : 1;
    }
  }
  EXPECT_EQ(changes + missed, kChanges);
  EXPECT_GT(missed, 0);
  EXPECT_EQ(client.run(write_of(kChanges + 1)), "");
  EXPECT_NE(slow.hear().find(fmt::format("={0},{0}\n", kChanges + 1)), std::string::npos);
  slow.say("\0\0\0\0i"s);
  EXPECT_EQ(slow.hear(), "x\x01");
}

TEST(OutputTest, KeepsWhatItsSinkHasNoMemoryFor) {
  std::string got;
  size_t room = 100'000;
  Output out([&](std::string_view piece) {
    if (got.size() + piece.size() > room) throw std::bad_alloc();
    got += piece;
  });
  const std::string text = std::string(100'000, 'a') + "b";
  out.write(text);
  EXPECT_THROW(out.flush(), std::bad_alloc);
  EXPECT_EQ(got.size() + out.waiting(), text.size());
  room += 2;
  out.write("c");
  out.flush();
  EXPECT_TRUE(got == text + "c");
}

}  // namespace
}  // namespace tesselctl
