// Scripts: places of faults, stopping and going on, and the example that the repository ships.
#include "tesselctl/files.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

class ScriptTest : public ToolTest {
 protected:
  ScriptResult script(std::string_view text, bool keep_going = false) {
    return run_script(runner_, "x.tessel", text, {.keep_going = keep_going});
  }
};

TEST_F(ScriptTest, CommentsAndBlankLinesAreNoCommands) {
  const ScriptResult result = script("# a comment\n\n   \t\n  count # all\r\n");
  EXPECT_EQ(result.lines, 4u);
  EXPECT_EQ(result.commands, 1u);
  EXPECT_EQ(result.faults, 0u);
  EXPECT_EQ(out_.take(), "all tables are empty\n");
  EXPECT_EQ(errors_.take(), "");
}

TEST_F(ScriptTest, StopsAtTheFirstFaultAndMarksTheWord) {
  const ScriptResult result = script(
      "count nextHop\n"
      "\tadd nextHop nextHop=1 action=setNextHopDetail dmac=1 domain=1\n"
      "count nextHop");
  EXPECT_EQ(result.commands, 2u);
  EXPECT_EQ(result.faults, 1u);
  EXPECT_EQ(out_.take(), "nextHop entries=0\n");
  EXPECT_EQ(errors_.take(),
            "x.tessel:2:31: 'setNextHopDetail': nextHop has no action of this name; did you mean "
            "'setNextHopDetails'?\n"
            "   add nextHop nextHop=1 action=setNextHopDetail dmac=1 domain=1\n"
            "                                ^^^^^^^^^^^^^^^^\n");
}

TEST_F(ScriptTest, GoesOnWhenAsked) {
  const ScriptResult result = script("cuont\ncount nextHop\nmeter", true);
  EXPECT_EQ(result.commands, 3u);
  EXPECT_EQ(result.faults, 2u);
  EXPECT_EQ(out_.take(), "nextHop entries=0\n");
  EXPECT_EQ(errors_.take(),
            "x.tessel:1:1: 'cuont': no command has this name; did you mean 'count'?\n"
            "  cuont\n  ^^^^^\n"
            "x.tessel:3:1: 'meter': meter wants one of set, get\n"
            "  meter\n  ^^^^^\n");
}

TEST_F(ScriptTest, ControlCharactersOfAScriptNeverReachTheTerminal) {
  script("\033[2Jcount\n");
  EXPECT_EQ(errors_.take().find('\033'), std::string::npos);
}

TEST_F(ScriptTest, TheExampleRunsAndShowsWhatItLoaded) {
  const ScriptResult result = script(read_input(EXAMPLES_DIR "/leaf.tessel"));
  EXPECT_EQ(errors_.take(), "");
  EXPECT_EQ(result.faults, 0u);
  const std::string shown = out_.take();
  EXPECT_NE(shown.find("ipv4ShortMaskLpm entry=3 vrfId=1 dip=10.0.20.0/24 ttl=0 action=setNextHop "
                       "nextHop=13\n"),
            std::string::npos)
      << shown;
  EXPECT_EQ(run("count ingressPortMapping ipv4ShortMaskLpm firewallPolicy l2LookupMiss"),
            "ingressPortMapping entries=6\nipv4ShortMaskLpm entries=3\nfirewallPolicy entries=4\n"
            "l2LookupMiss entries=3\n");
}

// Whatever show prints adds the same entry to another table of the same shape: here, after a
// delete, to the same one.
TEST_F(ScriptTest, WhatShowPrintsCanBeAddedAgain) {
  script(read_input(EXAMPLES_DIR "/leaf.tessel"));
  out_.take();
  for (const char *table : {"ipv4ShortMaskLpm", "ipv6ShortMaskLpm", "firewallPolicy", "nextHop",
                            "l2LookupMiss", "ecmpGroup", "l2DomainLookup", "l2SmacCheck"}) {
    const std::string before = run("show " + std::string(table));
    ASSERT_NE(before, "") << table;
    std::string rest = before;
    std::string after;
    while (!rest.empty()) {
      const size_t end = rest.find('\n');
      const size_t entry = rest.find("entry=") + 6;
      const size_t words = rest.find(' ', entry);
      const std::string handle = rest.substr(entry, words - entry);
      EXPECT_EQ(run("delete " + std::string(table) + " entry=" + handle), "");
      EXPECT_EQ(run("add " + std::string(table) + rest.substr(words, end - words) + " as=it"), "");
      const std::string shown = run("show " + std::string(table) + " entry=$it");
      EXPECT_EQ(shown.substr(shown.find(' ', shown.find("entry="))),
                rest.substr(words, end + 1 - words));
      rest.erase(0, end + 1);
    }
  }
}

}  // namespace
}  // namespace tesselctl
