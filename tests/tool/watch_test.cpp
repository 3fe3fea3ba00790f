// Commands that run again and again.
#include "tesselctl/watch.hpp"

#include <regex>

#include "tesselctl/completion.hpp"
#include "tests/tool/tool_fixture.hpp"

namespace tesselctl {

namespace {

class WatchTest : public ToolTest {
 protected:
  // What the line prints, with TIME for each line that tells the time.
  std::string watch(std::string_view line, Settings settings = {.terse = true}) {
    context_.defaults = settings;
    WatchRunner watching(runner_, out_, settings, -1);
    outcome_ = watching.run({"w", 7, line});
    static const std::regex time("# \\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\n");
    return std::regex_replace(out_.take(), time, "TIME\n") + errors_.take();
  }
  LineOutcome outcome_ = LineOutcome::blank;
};

TEST_F(WatchTest, EveryRoundIsTheCommandAnew) {
  ASSERT_EQ(run("register write ingVlanCheckData index=3 value=1"), "");
  EXPECT_EQ(watch("watch 0.1 count=2 register read ingVlanCheckData index=3"),
            "TIME\ningVlanCheckData index=3 values=1,1\n"
            "TIME\ningVlanCheckData index=3 values=1,1\n");
  EXPECT_EQ(outcome_, LineOutcome::done);
  // The words of watch and of the command do not meet; the flags are the command's.
  const std::string round =
      "{\"version\":1,\"command\":\"--json            register range ingVlanCheckData first=3 "
      "count=1\",\"rows\":[{\"register\":\"ingVlanCheckData\",\"index\":3,\"values\":[1,1]}]}\n";
  EXPECT_EQ(watch("watch --json .1 count=2 register range ingVlanCheckData first=3 count=1"),
            round + round);
  EXPECT_EQ(watch("count"), "all tables are empty\n");
}

// Time goes on with every round.
TEST_F(WatchTest, ShowsWhatExpires) {
  ASSERT_EQ(run("age enable ipv4ShortMaskLpm sweep=10 ttl=1000"), "");
  ASSERT_EQ(run("add ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 ttl=1500 action=setEcmp ecmpGroup=1"),
            "");
  EXPECT_EQ(watch("watch 0.1 count=3 age advance 1000"),
            "TIME\nTIME\n"
            "ipv4ShortMaskLpm entry=1 expired vrfId=1 dip=10.0.0.0/8 ttl=1500 action=setEcmp "
            "ecmpGroup=1\nTIME\n");
}

TEST_F(WatchTest, AFaultEndsItAndHasItsPlace) {
  EXPECT_EQ(
      watch("watch 0.1 show ipv4ShortMaskLpm entry=1"),
      "TIME\nw:7:16: 'ipv4ShortMaskLpm': BF_OBJECT_NOT_FOUND (7): No object has this handle, key "
      "or name.\n"
      "            show ipv4ShortMaskLpm entry=1\n"
      "                 ^^^^^^^^^^^^^^^^\n");
  EXPECT_EQ(outcome_, LineOutcome::fault);
  const auto refused = [&](std::string_view line) {
    const std::string text = watch(line);
    return text.substr(0, text.find('\n'));
  };
  EXPECT_EQ(refused("watch"), "w:7: watch wants a command behind it");
  EXPECT_EQ(refused("watch 0 count"), "w:7:7: '0': this should be seconds, 0.1 to 86400");
  EXPECT_EQ(refused("watch 1e3 count"), "w:7:7: '1e3': this should be seconds, 0.1 to 86400");
  EXPECT_EQ(refused("watch count=0 count"), "w:7:13: '0': this should be 1 or more");
  EXPECT_EQ(refused("watch 1 cuont"),
            "w:7:9: 'cuont': no command has this name; did you mean 'count'?");
  EXPECT_EQ(refused("watch delete l2Lookup entry=1"),
            "w:7:7: 'delete': watch repeats what asks and lists; this changes the device");
  EXPECT_EQ(refused("watch watch count"), "w:7:7: 'watch': watch repeats other commands");
  // A server does not wait for anybody.
  EXPECT_EQ(run("watch 1 count"),
            "1: 'watch': only the tool that the command is typed into can repeat it");
}

TEST_F(WatchTest, AnInterruptEndsIt) {
  clear_interrupt();
  std::string text;
  Output out([&](std::string_view piece) {
    text += piece;
    request_interrupt();
  });
  LocalRunner runner(device_, out, errors_, {.terse = true});
  WatchRunner watching(runner, out, {}, -1);
  EXPECT_EQ(watching.run({"w", 1, "watch 3600 count"}), LineOutcome::done);
  EXPECT_TRUE(text.ends_with("\nall tables are empty\n")) << text;
  EXPECT_FALSE(interrupt_requested());
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
