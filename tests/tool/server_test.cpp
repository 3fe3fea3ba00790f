// The server of a device, over its socket: clients that behave, and clients that do not.
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <random>
#include <thread>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/server/client.hpp"
#include "tesselctl/server/serve.hpp"
#include "tesselctl/server/server.hpp"
#include "tesselctl/text/file_writer.hpp"
#include "tesselctl/text/files.hpp"
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

struct TemporaryDirectory {
  TemporaryDirectory() : name(mkdtemp(std::string("/tmp/tesselctl.XXXXXX").data())) {}
  ~TemporaryDirectory() { std::filesystem::remove_all(name); }
  std::string name;
};

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

std::string fault_of(const std::function<void()> &body) {
  try {
    body();
  } catch (const Fault &fault) {
    return fault.what();
  }
  return "no fault";
}

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

TEST(ProtocolTest, MessagesComeWholeFromAnyPiecesAndRubbishComesToNothing) {
  MessageReader reader;
  std::string types;
  for (const char byte :
       encode_end(LineOutcome::fault) + encode_message(MessageType::output, "ab")) {
    reader.add({&byte, 1});
    while (const auto message = reader.front()) {
      types += static_cast<char>(message->type) + std::to_string(message->payload.size());
      reader.pop();
    }
  }
  EXPECT_EQ(types, "x1o2");
  EXPECT_EQ(reader.waiting(), 0u);

  std::minstd_rand random(1);
  int refused = 0;
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(random() % 64, '\0');
    for (char &byte : bytes) byte = static_cast<char>(random() % (round % 2 == 0 ? 256 : 8));
    MessageReader any;
    any.add(bytes);
    try {
      while (const auto message = any.front()) {
        decode_request(message->payload);
        any.pop();
      }
    } catch (const Fault &) {
      ++refused;
    }
  }
  EXPECT_GT(refused, 1000);
}

TEST(ProtocolTest, SettingsTravelAsWords) {
  const Settings given = {.verbose = true,
                          .dry_run = true,
                          .filters = {{"dip", "10.0.0.0/8"}, {"a", "b c"}},
                          .sort = "dip"};
  std::vector<Word> words;
  const std::string text = words_of(given);
  split_words(text, words);
  Settings taken;
  take_flags(words, taken);
  EXPECT_EQ(taken, given);
}

// ---- Clients that behave ----

TEST_F(ServerTest, AnswersAreThoseOfADeviceOfOnesOwn) {
  start();
  TestClient client(path_);
  EXPECT_EQ(client.run(add_next_hop(1) + " as=it --verbose"), "nextHop entry=1 added\n");
  EXPECT_EQ(client.run("show nextHop entry=$it"),
            "nextHop entry=1 nextHop=1 action=setNextHopDetails dmac=00:00:00:00:00:01 domain=1\n");
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
  client.runner.defaults().json = true;
  EXPECT_EQ(client.run("count nextHop"),
            "{\"version\":1,\"command\":\"count nextHop\",\"rows\":[{\"table\":\"nextHop\","
            "\"entries\":1}]}\n");
  // Handles are remembered for the client that asked for it.
  EXPECT_EQ(TestClient(path_).run("show nextHop entry=$it"),
            "tesselctl: '$it': no handle was remembered under this name\n"
            "  show nextHop entry=$it\n                     ^^^\n");
  EXPECT_EQ(fault_of([&] { client.run(std::string(kMostPayload, 'x')); }).substr(0, 35),
            "the line is too long for the server");
  EXPECT_EQ(client.runner.ask("count nextHop"), "nextHop entries=1\n");
}

TEST_F(ServerTest, EightClientsWorkAtOnce) {
  start();
  std::vector<std::string> wrong(8);
  std::vector<std::thread> threads;
  for (int n = 0; n < 8; ++n) {
    threads.emplace_back([&, n] {
      TestClient client(path_);
      const auto expect = [&](const std::string &line, const std::string &answer) {
        const std::string got = client.run(line);
        if (got != answer) wrong[static_cast<size_t>(n)] += line + ": " + got;
      };
      for (int i = 0; i < 50; ++i) {
        const int hop = 100 * n + i;
        expect(add_next_hop(hop) + " as=it", "");
        expect(add_next_hop(hop) + " --terse=1",
               "tesselctl: '--terse=1': --terse takes no value\n  " + add_next_hop(hop) +
                   " --terse=1\n  " + std::string(add_next_hop(hop).size() + 1, ' ') +
                   "^^^^^^^^^\n");
        const std::string shown = client.run("show nextHop entry=$it");
        const size_t fields = shown.find(fmt::format(" nextHop={} action=", hop));
        if (fields == std::string::npos) wrong[static_cast<size_t>(n)] += shown;
        expect(fmt::format("find nextHop nextHop={}", hop), shown.substr(0, fields) + "\n");
        if (i % 2 == 0) expect(fmt::format("delete nextHop nextHop={}", hop), "");
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
  for (const std::string &text : wrong) EXPECT_EQ(text, "");
  EXPECT_EQ(TestClient(path_).run("count nextHop"), "nextHop entries=200\n");
}

TEST_F(ServerTest, WhatAClientAskedTheDeviceToTellOutlivesIt) {
  start();
  {
    TestClient first(path_);
    EXPECT_EQ(first.run("age enable ipv4ShortMaskLpm sweep=100 ttl=1000"), "");
    EXPECT_EQ(first.run("add ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 ttl=1000 action=setEcmp "
                        "ecmpGroup=1"),
              "");
  }
  expect_alive();
  EXPECT_EQ(TestClient(path_).run("age advance 5000"),
            "ipv4ShortMaskLpm entry=1 expired vrfId=1 dip=10.0.0.0/8 ttl=1000 action=setEcmp "
            "ecmpGroup=1\n");
}

TEST_F(ServerTest, FilesAreThoseOfTheClientsDirectory) {
  start();
  ASSERT_EQ(mkfifo((directory_ + "/pipe").c_str(), 0600), 0);
  Peer client = peer();
  client.say(request("state log x.json", directory_) + request("state restore x.json", directory_) +
             request("save image", directory_) + request("load " + directory_ + "/image") +
             request("state restore x.json") + request("state restore pipe", directory_) +
             request("load -", directory_));
  EXPECT_EQ(client.hear(), "x\x01");
  EXPECT_EQ(client.hear(), "x\x01");
  EXPECT_TRUE(std::filesystem::exists(directory_ + "/x.json"));
  EXPECT_EQ(client.hear(), "x\x01");
  EXPECT_EQ(client.hear(), "x\x01");
  EXPECT_EQ(read_input(directory_ + "/image").substr(0, 31), "tesselctl image 1 tessel_switch");
  EXPECT_EQ(client.hear().substr(0, 16), "ex:7: /x.json: N");
  EXPECT_EQ(client.hear(), "x\x02");
  const std::string refused = ": the server reads and writes regular files only";
  EXPECT_EQ(client.hear().substr(0, 61), "ex:7:15: 'pipe'" + refused.substr(0, 46));
  EXPECT_EQ(client.hear(), "x\x02");
  EXPECT_EQ(client.hear().substr(0, 58), "ex:7:6: '-'" + refused.substr(0, 47));
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

TEST_F(ServerTest, AServerThatGoesInTheMiddleIsAFault) {
  const ListeningSocket listening(path_);
  TestClient client(path_);
  for (const std::string &answer :
       {encode_message(MessageType::output, "half"), encode_end(LineOutcome::done).substr(0, 5),
        "\xff\xff\xff\xff"
        "o"s}) {
    std::string fault;
    std::thread runs([&] { fault = fault_of([&] { client.run("count"); }); });
    Peer server = [&] {
      pollfd waited = {listening.get(), POLLIN, 0};
      poll(&waited, 1, 60000);
      return Peer(listening.accept_client());
    }();
    EXPECT_EQ(server.hear().front(), 'r');
    server.say(answer);
    { const Peer gone = std::move(server); }
    runs.join();
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

TEST_F(ServerTest, AClientThatNeverReadsIsDropped) {
  add_next_hops(1200);
  start({.paused_at = 1u << 30, .dropped_at = 1u << 17});
  Peer slow = peer();
  for (int i = 0; i < 10; ++i) slow.say(request("show nextHop"));
  EXPECT_TRUE(slow.is_left());
  expect_alive();
  expect_alive();
}

TEST_F(ServerTest, ClientsAreLimited) {
  start({.clients = 2});
  TestClient first(path_);
  first.run("count");
  Peer second = peer();
  second.say(request("count"));
  EXPECT_EQ(second.hear_answer().back(), "x\x01");
  EXPECT_EQ(peer().hear(), "nthe server has 2 clients, no more");
  EXPECT_EQ(first.run("count"), "all tables are empty\n");
}

// ---- The socket ----

TEST_F(ServerTest, TheSocketIsPrivateAndGoesWithTheServer) {
  start();
  struct stat status;
  ASSERT_EQ(lstat(path_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode, S_IFSOCK | 0600u);
  EXPECT_EQ(fault_of([&] { ListeningSocket second(path_); }),
            path_ + ": a server runs there already");
  expect_alive();
  stop();
  EXPECT_FALSE(std::filesystem::exists(path_));
  EXPECT_EQ(fault_of([&] { connect_to(path_); }), path_ + ": no server runs there");
}

TEST_F(ServerTest, OnlyTheSocketOfADeadServerIsReplaced) {
  {
    const ListeningSocket dead(path_);
    std::filesystem::create_hard_link(path_, directory_ + "/left");
  }
  std::filesystem::rename(directory_ + "/left", path_);
  EXPECT_EQ(fault_of([&] { connect_to(path_); }), path_ + ": no server runs there");
  start();
  expect_alive();
  // What has taken the place of its socket, the server leaves alone.
  std::filesystem::remove(path_);
  write_file(path_, "mine");
  stop();
  EXPECT_EQ(fault_of([&] { start(); }), path_ + ": this exists and is no socket");
  EXPECT_EQ(read_input(path_), "mine");
  EXPECT_EQ(fault_of([&] { ListeningSocket(std::string(108, 'x')); }),
            std::string(108, 'x') + ": the path of a socket has 1 to 107 bytes");
}

TEST(ServeTest, ASignalEndsItAndTheImageOutlivesIt) {
  const TemporaryDirectory temporary;
  const ServeOptions options = {
      {.id = 5, .pipes = 2}, temporary.name + "/socket", {temporary.name + "/image"}};
  const auto connected = [&]() -> std::unique_ptr<TestClient> {
    while (true) {
      try {
        return std::make_unique<TestClient>(options.socket);
      } catch (const Fault &) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
      }
    }
  };
  const auto with_server = [&](auto body) {
    Output out;
    Output errors;
    std::thread thread([&] { serve(options, out, errors); });
    body(*connected());
    pthread_kill(thread.native_handle(), SIGTERM);
    thread.join();
    EXPECT_EQ(out.take(), "device 5 is served at " + options.socket + "\n");
    EXPECT_FALSE(std::filesystem::exists(options.socket));
  };
  with_server([](TestClient &client) { EXPECT_EQ(client.run(add_next_hop(1)), ""); });
  with_server([](TestClient &client) {
    EXPECT_EQ(client.run("count nextHop"), "nextHop entries=1\n");
    EXPECT_EQ(client.run("delete nextHop nextHop=1"), "");
  });
  with_server(
      [](TestClient &client) { EXPECT_EQ(client.run("count nextHop"), "nextHop entries=0\n"); });
}

}  // namespace
}  // namespace tesselctl
