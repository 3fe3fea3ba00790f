// What is offered at a point of a line, word by word.
#include "tesselctl/completion/completion.hpp"

#include <fstream>

#include "tests/tool/tool_fixture.hpp"

namespace tesselctl {

namespace {

class CompletionTest : public ToolTest {
 protected:
  // "START: WORD WORD...", and "| HINT" where there is one. '^' is the cursor, otherwise the end.
  std::string at(std::string line) {
    size_t cursor = line.find('^');
    if (cursor == std::string::npos)
      cursor = line.size();
    else
      line.erase(cursor, 1);
    const Completion completion = complete(context_, line, cursor);
    std::string text = std::to_string(completion.start) + ":";
    for (const Candidate &candidate : completion.candidates) text += " " + candidate.word;
    if (!completion.hint.empty()) text += " | " + completion.hint;
    return text;
  }
  std::string help_of(std::string_view line, std::string_view word) {
    for (const Candidate &candidate : complete(context_, line, line.size()).candidates) {
      if (candidate.word == word) return candidate.help;
    }
    return "not offered";
  }
};

TEST_F(CompletionTest, CommandsAndTheirSecondWords) {
  EXPECT_EQ(at("va"), "0: valueset");
  EXPECT_EQ(at("  me"), "2: member meter");
  EXPECT_EQ(at("group "), "6: add delete join leave enable disable choose show");
  EXPECT_EQ(at("group e"), "6: enable");
  EXPECT_EQ(at("help va"), "5: valueset");
  EXPECT_EQ(at("help valueset d"), "14: delete");
  EXPECT_EQ(help_of("fall", "fallback"), "set, reset");
  EXPECT_EQ(help_of("", "complete"), "not offered");
  EXPECT_EQ(at("nosuch "), "7:");
  EXPECT_EQ(at("count # "), "8:");
}

TEST_F(CompletionTest, ObjectsOfEveryKind) {
  EXPECT_EQ(at("show IPV4"), "5: ipv4ShortMaskLpm");
  EXPECT_EQ(at("count l2Lookup l2L"), "15: l2LearningLookup l2LookupMiss");
  EXPECT_EQ(at("member add ecmp"), "11: ecmpMemberActionProfile");
  EXPECT_EQ(at("meter get storm"), "10: stormControlMeter");
  EXPECT_EQ(at("counter sync kf1"), "13: kf1Count");
  EXPECT_EQ(at("hash get hashOuterIpv"), "9: hashOuterIpv4Hdr hashOuterIpv6Hdr");
  EXPECT_EQ(help_of("show ipv4S", "ipv4ShortMaskLpm"), "prefix: vrfId dip");
}

TEST_F(CompletionTest, AnEntryFromItsFieldsToTheParametersOfItsAction) {
  EXPECT_EQ(at("add ipv4ShortMaskLpm "), "21: vrfId= dip= ttl= as= action=");
  // Given under another name, and behind the cursor.
  EXPECT_EQ(at("add ipv4ShortMaskLpm vrf_id=1 ^ as=x"), "30: dip= ttl= action=");
  EXPECT_EQ(help_of("add ipv4ShortMaskLpm ", "dip="), "32 bits, prefix, 10.0.0.0/8");
  EXPECT_EQ(at("add ipv4ShortMaskLpm dip="), "25: | 32 bits, prefix, 10.0.0.0/8");
  EXPECT_EQ(at("add ipv4ShortMaskLpm dip=1.2.3.4 action=setN"),
            "40: setNextHop setNextHop2 setNextHop3");
  EXPECT_EQ(at("add ipv4ShortMaskLpm action=setNextHop n"), "39: nextHop=");
  EXPECT_EQ(at("add ipv4ShortMaskLpm action=setNextHop nextHop="), "47: | 14 bits, 0 to 16383");
  // A ternary table whose entries have meters; halves of an address for who asks for them.
  EXPECT_EQ(at("add l2LookupMiss p"), "17: priority=");
  EXPECT_EQ(at("add l2LookupMiss me"), "17: meter=");
  EXPECT_EQ(at("add l2LookupMiss dmac"), "17: dmac=");
  EXPECT_EQ(at("add l2LookupMiss dmacO"), "17: dmacOui=");
  EXPECT_EQ(at("add l2LookupMiss dmac=1 dmacO"), "24:");
  // A table of a profile; what excludes each other.
  EXPECT_EQ(at("add ecmpGroup ecmpGroup=7 "), "26: as= member= group=");
  EXPECT_EQ(at("add ecmpGroup ecmpGroup=7 as=a group=1 "),
            "39: | the end of the command, or --json, --terse and other options");
  EXPECT_EQ(at("delete ipv4ShortMaskLpm entry=1 d"), "32:");
  EXPECT_EQ(at("default set ipv4ShortMaskLpm "), "29: as= action=");
}

TEST_F(CompletionTest, HandlesThatExist) {
  run("add nextHop nextHop=1 action=setNextHopDetails dmac=2 domain=0 as=hop");
  EXPECT_EQ(at("delete nextHop entry="), "21: $hop 1");
  EXPECT_EQ(help_of("delete nextHop entry=", "1"),
            "nextHop=1 action=setNextHopDetails dmac=00:00:00:00:00:02 domain=0");
  EXPECT_EQ(at("delete nextHop entry=$"), "21: $hop");
  run("group add ecmpMemberActionProfile size=4");
  EXPECT_EQ(at("add ecmpGroup ecmpGroup=7 group=1"), "32: 1");
  for (int i = 2; i < 70; ++i) {
    run("add nextHop nextHop=" + std::to_string(i) + " action=setNextHopDetails dmac=2 domain=0");
  }
  const std::string line = "show nextHop entry=";
  EXPECT_EQ(complete(context_, line, line.size()).candidates.size(), 51u);
  EXPECT_EQ(at("show nextHop entry=69"), "19: 69");
  EXPECT_EQ(at("meter get stormControlMeter "), "28: entry=");
  EXPECT_EQ(at("meter get newFlowMeter "), "23: index=");
}

TEST_F(CompletionTest, OptionsChoicesAndFiles) {
  EXPECT_EQ(at("show nextHop --s"), "13: --sort");
  EXPECT_EQ(at("show nextHop --sort d"), "20: dmac domain");
  EXPECT_EQ(at("show nextHop --filter=d"), "22: dmac= domain=");
  EXPECT_EQ(at("add nextHop --d"), "12: --dry-run");
  EXPECT_EQ(at("add --dry-run nextHop --d"), "22:");
  EXPECT_EQ(at("counter read kf1Count source="), "29: hardware software");
  const std::string folder = ::testing::TempDir() + "completion_test";
  std::ofstream(folder + "_one two");
  EXPECT_EQ(at("state log " + folder + "_o"), "10: \"" + folder + "_one two\"");
  EXPECT_EQ(at("state log \"" + folder + "_one t"), "11: " + folder + "_one two\"");
  std::remove((folder + "_one two").c_str());
}

// The command that other shells call, with a line that no word could hold as it is.
TEST_F(CompletionTest, TheCommandAnswersTheSame) {
  EXPECT_EQ(completion_request("-\"%\t", 2), "complete \"%2d%22%25%09\" cursor=2");
  EXPECT_EQ(decode_line("%2d%22%25%09%4%zz%"), "-\"%\t%4%zz%");
  EXPECT_EQ(run("complete \"counter read kf1Count source=\""), "29\thardware\t\n29\tsoftware\t\n");
  EXPECT_EQ(run(completion_request("age advance ", 12)), "12\t\tmilliseconds\n");
  const Completion answer = read_completion(run(completion_request("fallback r", 10)));
  ASSERT_EQ(answer.candidates.size(), 1u);
  EXPECT_EQ(answer.start, 9u);
  EXPECT_EQ(answer.candidates[0].help, "takes the fallback member back");
  EXPECT_EQ(common_beginning(complete(context_, "c", 1).candidates), "count");
}

TEST_F(CompletionTest, HelpExplainsEveryCommand) {
  EXPECT_TRUE(run("help age advance").starts_with("age advance MS\n    lets time pass"));
  EXPECT_EQ(run("help ad"), "6: 'ad': no command has this name; did you mean 'add'?");
  EXPECT_EQ(run("help add x"), "10: 'x': nothing should stand here");
}

}  // namespace

}  // namespace tesselctl
