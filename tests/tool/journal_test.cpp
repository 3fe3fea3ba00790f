// Journals: servers that are killed, files that end anywhere, and a disk that is full.
#include <signal.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <random>
#include <thread>

#include "tesselctl/journal/change_log.hpp"
#include "tesselctl/journal/journal.hpp"
#include "tesselctl/server/client.hpp"
#include "tesselctl/text/files.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

namespace fs = std::filesystem;

class JournalTest : public ::testing::Test {
 protected:
  static std::string image_of(Journal &journal) {
    std::string text;
    save_image(journal.device(), [&](std::string_view piece) { text += piece; });
    return text;
  }
  // With a change for each line, the last of which may be refused.
  void run(Journal &journal, std::initializer_list<std::string_view> lines) {
    ChangeLog log(journal.device());
    log.add(journal);
    log.count_from(journal.last());
    LocalRunner runner(journal.device(), out_, errors_, {});
    for (const std::string_view line : lines) {
      runner.run({{}, 0, line});
      log.end_line("anna[7]", line);
    }
  }
  Journal open() { return Journal({.path = path_}, {.id = 9, .pipes = 2}, false, errors_); }

  const TemporaryDirectory temporary_;
  const std::string path_ = temporary_.name + "/j";
  Output out_;
  Output errors_;
};

constexpr std::string_view kGroup = "group add ecmpMemberActionProfile size=4";
constexpr std::string_view kSeed = "hash set hashOuterIpv4Hdr seed=0x7";

TEST_F(JournalTest, AFileMayEndAnywhereInItsLastChange) {
  std::string first, text;
  {
    Journal journal = open();
    run(journal, {kGroup});
    first = image_of(journal);
    const auto size = static_cast<size_t>(fs::file_size(path_));
    run(journal, {kSeed});
    text = read_input(path_);
    ASSERT_GT(text.size(), size);
    EXPECT_EQ(fs::file_size(path_), text.size());
  }
  const size_t begin = text.rfind("\nchange ") + 1;
  for (size_t size = begin; size < text.size(); ++size) {
    write_file(path_, text.substr(0, size));
    Journal journal = open();
    EXPECT_EQ(journal.last(), 1u) << size;
    EXPECT_EQ(image_of(journal), first) << size;
    EXPECT_EQ(fs::file_size(path_), begin) << size;
  }
}

TEST_F(JournalTest, DamageInTheMiddleIsAFaultAndStays) {
  {
    Journal journal = open();
    run(journal, {kGroup, kSeed});
  }
  std::string text = read_input(path_);
  text[text.find("size=4 members")] = 'S';
  write_file(path_, text);
  try {
    open();
    FAIL();
  } catch (const Fault &fault) {
    EXPECT_TRUE(std::string(fault.what()).starts_with(path_ + ":6:1: ")) << fault.what();
  }
  EXPECT_EQ(read_input(path_), text);
}

TEST_F(JournalTest, WhatCannotBeWrittenIsTakenBack) {
  Journal journal = open();
  run(journal, {kGroup});
  const std::string before = image_of(journal);
  rlimit limit = {};
  getrlimit(RLIMIT_FSIZE, &limit);
  rlimit small = limit;
  small.rlim_cur = static_cast<rlim_t>(fs::file_size(path_) + 50);
  signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_THROW(run(journal, {kSeed}), Fault);
  setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_EQ(image_of(journal), before);
  run(journal, {kSeed});
  EXPECT_EQ(journal.last(), 2u);
}

// ---- Servers that are killed ----

class KilledServer {
 public:
  explicit KilledServer(const std::string &folder) : socket_(folder + "/s") {
    const std::vector<std::string> words = {TOOL,        "serve",       "--socket", socket_,
                                            "--journal", folder + "/j", "--rotate", "1"};
    std::vector<char *> arguments;
    for (const std::string &word : words) arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    EXPECT_EQ(posix_spawn(&process_, TOOL, nullptr, nullptr, arguments.data(), environ), 0);
  }
  RemoteRunner connect(Output &out, Output &errors) const {
    for (int tries = 0;; ++tries) {
      try {
        return RemoteRunner(socket_, out, errors, {.terse = true});
      } catch (const Fault &) {
        if (tries > 3000) throw;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
      }
    }
  }
  void kill() const {
    ::kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }

 private:
  std::string socket_;
  pid_t process_ = -1;
};

// JOURNAL_ROUNDS in the environment is how often. Each command adds three entries.
TEST(JournalKillTest, WhatWasAnsweredIsThereAndNothingHalf) {
  const char *const asked = getenv("JOURNAL_ROUNDS");
  const int rounds = asked == nullptr ? 3 : atoi(asked);
  const TemporaryDirectory folder;
  std::mt19937 random(std::random_device{}());
  uint32_t answered = 0;  // commands, or one more that was done
  for (int round = 0; round <= rounds; ++round) {
    const KilledServer server(folder.name);
    Output out, errors;
    RemoteRunner client = server.connect(out, errors);
    client.run({{}, 0, "count ipv4ShortMaskLpm"});
    const std::string counted = out.take();
    const auto count = static_cast<uint32_t>(atoi(counted.c_str() + counted.find('=') + 1));
    EXPECT_EQ(count % 3, 0u);
    EXPECT_GE(count / 3, answered);
    EXPECT_LE(count / 3, answered + 1);
    answered = count / 3;
    const std::chrono::milliseconds wait(random() % 300);
    std::thread killer([&] {
      std::this_thread::sleep_for(wait);
      server.kill();
    });
    try {
      for (;; ++answered) {
        const std::string line = fmt::format(
            "add ipv4ShortMaskLpm vrfId=1..3 dip={}.{}.{}.0/24 action=setNextHop nextHop=1",
            answered / 65536, answered / 256 % 256, answered % 256);
        if (client.run({{}, 0, line}) != LineOutcome::done) break;
      }
      ADD_FAILURE() << errors.take();
    } catch (const Fault &) {
      // The server is gone.
    }
    killer.join();
  }
  std::printf("%d kills, %u commands answered\n", rounds + 1, answered);
}

}  // namespace
}  // namespace tesselctl
