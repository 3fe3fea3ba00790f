// The shell as a user meets it: the built tool on a pseudo-terminal.
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <fstream>

#include "tesselctl/shell/line_editor.hpp"
#include "tests/tool/tool_fixture.hpp"

namespace tesselctl {

namespace {

using std::chrono::steady_clock;

class Session {
 public:
  explicit Session(const std::string &history, const char *image = nullptr,
                   const char *no_color = "1") {
    const winsize size = {.ws_row = 24, .ws_col = 120, .ws_xpixel = 0, .ws_ypixel = 0};
    child_ = forkpty(&terminal_, nullptr, nullptr, &size);
    if (child_ != 0) return;
    setenv("TERM", "xterm", 1);
    setenv("NO_COLOR", no_color, 1);
    setenv("TESSELCTL_PAGER", "cat", 1);
    setenv("TESSELCTL_HISTORY", history.c_str(), 1);
    execl(TOOL, "tesselctl", image == nullptr ? nullptr : "--image", image, nullptr);
    _exit(127);
  }
  ~Session() {
    close(terminal_);
    if (child_ > 0) kill(child_, SIGKILL);
    if (child_ > 0) waitpid(child_, nullptr, 0);
  }
  Session(const Session &) = delete;
  Session &operator=(const Session &) = delete;

  void terminate() { kill(child_, SIGTERM); }
  void type(std::string_view text) {
    ASSERT_EQ(write(terminal_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  // Reads on until the text comes; what came is in seen() then, up to its end.
  bool sees(std::string_view text) {
    const auto deadline = steady_clock::now() + std::chrono::seconds(30);
    size_t at = std::string::npos;
    while ((at = unread_.find(text)) == std::string::npos) {
      if (steady_clock::now() > deadline || !read_some()) {
        ADD_FAILURE() << "no '" << text << "' in: " << unread_;
        return false;
      }
    }
    seen_ = unread_.substr(0, at + text.size());
    unread_.erase(0, at + text.size());
    return true;
  }
  const std::string &seen() const { return seen_; }
  // Types each text, and waits for what comes of it.
  void talk(std::initializer_list<std::array<std::string_view, 2>> turns) {
    for (const auto &[typed, shown] : turns) {
      type(typed);
      if (!sees(shown)) return;
    }
  }
  // -1 when the tool does not end by itself in time.
  int exit_code() {
    while (read_some()) {
    }
    int status = -1;
    const auto deadline = steady_clock::now() + std::chrono::seconds(30);
    while (waitpid(child_, &status, WNOHANG) == 0) {
      if (steady_clock::now() > deadline) {
        ADD_FAILURE() << "the tool goes on behind: " << unread_;
        return -1;
      }
      poll(nullptr, 0, 5);
    }
    child_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  // False once nothing more can come.
  bool read_some() {
    pollfd wait = {terminal_, POLLIN, 0};
    if (poll(&wait, 1, 30000) <= 0) return false;
    char bytes[4096];
    const ssize_t count = read(terminal_, bytes, sizeof bytes);
    if (count > 0) unread_.append(bytes, static_cast<size_t>(count));
    return count > 0;
  }

  int terminal_ = -1;
  pid_t child_ = -1;
  std::string unread_;
  std::string seen_;
};

class ShellTest : public ::testing::Test {
 protected:
  const TemporaryDirectory temporary_;
  const std::string folder_ = temporary_.name;
  const std::string history_ = folder_ + "/deep/history";
};

constexpr char kPrompt[] = "tesselctl> ";
#define NEEDS_LINE_EDITING() \
  if (!has_line_editing()) GTEST_SKIP() << "this build has no line editing"

TEST_F(ShellTest, CompletesAndExplainsWhatCanStandAtThePoint) {
  NEEDS_LINE_EDITING();
  Session shell(history_);
  shell.talk({{"", kPrompt},
              {"fi\t", "nd "},
              {"ipv4S\t", "hortMaskLpm "},
              {"vr\t1 DI\t", "dip="},
              {"10.0.0.0/8\r", "BF_OBJECT_NOT_FOUND"},
              {"", kPrompt},
              // Nothing to insert: the candidates are listed, and the line comes back.
              {"age \t", "disable  ends ageing"},
              {"", "tesselctl> age "},
              {"\x03", kPrompt},
              {"add ipv4ShortMaskLpm vrfId=1 ?", "dip=     32 bits, prefix, 10.0.0.0/8"},
              {"", "action=  what is done on a hit"},
              {"", "tesselctl> add ipv4ShortMaskLpm vrfId=1 "},
              {"dip=?", "  32 bits, prefix, 10.0.0.0/8"}});
}

TEST_F(ShellTest, ThePromptAloneIsBold) {
  NEEDS_LINE_EDITING();
  Session(history_, nullptr, "").talk({{"", "\033[1mtesselctl>\033[0m "}});
}

TEST_F(ShellTest, KeepsItsHistoryForTheUserAlone) {
  NEEDS_LINE_EDITING();
  {
    Session first(history_);
    first.talk({{"", kPrompt}, {"count nextHop\r", "nextHop        0"}, {"", kPrompt}});
    first.type("\x04");
    EXPECT_EQ(first.exit_code(), 0);
  }
  struct stat status = {};
  ASSERT_EQ(stat(history_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777u, 0600u);
  Session second(history_);
  second.talk({{"", kPrompt}, {"\x1b[A\r", "nextHop        0"}});
}

TEST_F(ShellTest, AnInterruptClearsTheLineAndNothingIsLost) {
  const std::string image = folder_ + "/image";
  for (const bool quits : {true, false}) {
    Session shell(history_, image.c_str());
    shell.talk({{"", kPrompt},
                {"register write ingVlanCheckData value=1\r", kPrompt},
                {"age advance", "age advance"},
                {"\x03", kPrompt},
                {"nosuch\r", "'nosuch': no command has this name"},
                {"", kPrompt},
                {"\x03", kPrompt}});
    quits ? shell.type("quit\r") : shell.terminate();
    EXPECT_EQ(shell.exit_code(), 0);
    EXPECT_EQ(unlink(image.c_str()), 0) << quits;
  }
}

// The rows fill the terminal's buffer long before the last, so the command runs while nobody reads.
TEST_F(ShellTest, AnInterruptEndsALongCommand) {
  constexpr int kRoutes = 20000;
  std::ofstream routes(folder_ + "/routes");
  for (int i = 0; i < kRoutes; ++i) routes << "10." << i / 256 << "." << i % 256 << ".0/24\n";
  routes.close();
  Session shell(history_);
  shell.talk({{"", kPrompt},
              {"routes " + folder_ + "/routes\r", "0 errors"},
              {"", kPrompt},
              {"show ipv4ShortMaskLpm --terse\r", "ipv4ShortMaskLpm entry=1 "},
              {"\x03", "interrupted"}});
  EXPECT_EQ(shell.seen().find("dip=10.78.31.0/24"), std::string::npos) << "the last route";
  shell.talk({{"", kPrompt}, {"count ipv4ShortMaskLpm\r", "20000"}});
}

}  // namespace

}  // namespace tesselctl
