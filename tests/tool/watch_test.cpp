// Commands that run again and again.
#include "tesselctl/shell/tool_runner.hpp"

#include "tesselctl/completion/completion.hpp"
#include "tesselctl/shell/watch_screen.hpp"
#include "tests/tool/tool_fixture.hpp"

namespace tesselctl {

namespace {

class WatchTest : public ToolTest {};

TEST_F(WatchTest, AnInterruptEndsIt) {
  clear_interrupt();
  std::string text;
  Output out([&](std::string_view piece) {
    text += piece;
    request_interrupt();
  });
  LocalRunner runner(device_, out, errors_, {.terse = true});
  ToolRunner watching(runner, out, errors_, -1);
  EXPECT_EQ(watching.run({"w", 1, "watch 3600 count"}), LineOutcome::done);
  EXPECT_TRUE(text.ends_with("\nall tables are empty\n")) << text;
  EXPECT_FALSE(interrupt_requested());
  // A server does not wait for anybody.
  EXPECT_EQ(run("watch 1 count"),
            "1: 'watch': only the tool that the command is typed into can repeat it");
}

TEST_F(WatchTest, CompletesWhatItRepeats) {
  const auto at = [&](std::string_view line) {
    std::string text;
    for (const Candidate &candidate : complete(context_, line, line.size()).candidates) {
      text += candidate.word + " ";
    }
    return text;
  };
  EXPECT_EQ(at("watch cou"), "count= count counter ");
  EXPECT_EQ(at("watch 2 count=3 cou"), "count counter ");
  EXPECT_EQ(at("watch de"), "default describe ");
  EXPECT_EQ(at("watch 2 counter l"), "list ");
  EXPECT_EQ(at("watch 2 show ipv4S"), "ipv4ShortMaskLpm ");
}

TEST(WatchScreenTest, ARoundStandsWhereTheOneBeforeStoodWithItsChangesMarked) {
  Output out;
  WatchScreen plain(out);
  plain.draw("10:00", "table  n\na  1\nb  2\n", 24);
  EXPECT_EQ(out.take(),
            "\r\033[?7l10:00\033[K\n  table  n\033[K\n  a  1\033[K\n  b  2\033[K\n\033[J\033[?7h");
  // A line that moved is no change; too many lines for the window are counted.
  plain.draw("10:01", "table  n\nb  2\na  5\n", 4);
  EXPECT_EQ(out.take(),
            "\033[4A\r\033[?7l10:01\033[K\n  table  n\033[K\n(2 more lines)\033[K\n\033[J\033[?7h");
  plain.draw("10:02", "", 24);
  EXPECT_EQ(out.take(), "\033[3A\r\033[?7l10:02\033[K\n\033[J\033[?7h");

  out.set_colour(true);
  WatchScreen coloured(out);
  coloured.draw("h", "a  1  x\nb  2  y\n", 24);
  EXPECT_EQ(out.take().find("\033[7m"), std::string::npos);
  coloured.draw("h", "new 1\nb  3  y\na  1  x\n", 24);
  EXPECT_EQ(out.take(),
            "\033[3A\r\033[?7l\033[2mh\033[0m\033[K\n"
            "\033[7mnew\033[0m \033[7m1\033[0m\033[K\n"
            "b  \033[7m3\033[0m  y\033[K\n"
            "a  1  x\033[K\n\033[J\033[?7h");
}

}  // namespace

}  // namespace tesselctl
