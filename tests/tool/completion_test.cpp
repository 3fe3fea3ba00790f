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

TEST_F(CompletionTest, OffersWhatCanStandAtThePoint) {
  const std::string folder = ::testing::TempDir() + "completion_test";
  std::ofstream(folder + "_one two");
  const struct {
    std::string line;
    std::string offers;
  } cases[] = {
      {"  me", "2: member meter"},
      {"group ", "6: add replace delete join leave enable disable choose show"},
      {"help valueset d", "14: delete"},
      {"nosuch ", "7:"},
      {"count # ", "8:"},
      {"show IPV4", "5: ipv4ShortMaskLpm"},
      {"hash get hashOuterIpv", "9: hashOuterIpv4Hdr hashOuterIpv6Hdr"},
      // An entry from its fields to the parameters of its action.
      {"add ipv4ShortMaskLpm ", "21: vrfId= dip= ttl= as= action="},
      {"add ipv4ShortMaskLpm vrf_id=1 ^ as=x", "30: dip= ttl= action="},
      {"add ipv4ShortMaskLpm dip=", "25: | 32 bits, prefix, 10.0.0.0/8"},
      {"add ipv4ShortMaskLpm dip=1.2.3.4 action=setN", "40: setNextHop setNextHop2 setNextHop3"},
      {"add ipv4ShortMaskLpm action=setNextHop nextHop=", "47: | 14 bits, 0 to 16383"},
      {"add pdpClassify protocol=ic",
       "25: icmp icmpv6 | 8 bits, ternary, 0 to 255, "
       "VALUE&MASK, LOW..HIGH; may be left out"},
      {"add pdpClassify dstPort=ssh..tel",
       "29: telnet | 16 bits, ternary, 0 to 65535, "
       "VALUE&MASK, LOW..HIGH; may be left out"},
      {"acl rules kite", "10: kiteFlow3"},
      {"acl rules firewallPolicy srcS", "25: srcSegment="},
      // Halves of an address for who asks for them.
      {"add l2LookupMiss dmac", "17: dmac="},
      {"add l2LookupMiss dmacO", "17: dmacOui="},
      {"add l2LookupMiss dmac=1 dmacO", "24:"},
      {"add l2LookupMiss ingressPort=1 dmac=1 ", "38: priority= meter= as= action="},
      // What excludes each other.
      {"add ecmpGroup ecmpGroup=7 ", "26: as= member= group="},
      {"add ecmpGroup ecmpGroup=7 as=a group=1 ",
       "39: | the end of the command, or --json, --terse and other options"},
      {"delete ipv4ShortMaskLpm entry=1 d", "32:"},
      {"default set ipv4ShortMaskLpm ", "29: as= action="},
      {"meter get stormControlMeter ", "28: entry="},
      {"meter get newFlowMeter ", "23: index="},
      // Options, choices and files.
      {"show nextHop --sort d", "20: dmac domain"},
      {"show nextHop --filter=d", "22: dmac= domain="},
      {"show nextHop --filter action=", "29: setNextHopDetails"},
      {"add --dry-run nextHop --d", "22:"},
      {"counter read kf1Count source=", "29: hardware software"},
      {"state log " + folder + "_o", "10: \"" + folder + "_one two\""},
      {"state log \"" + folder + "_one t", "11: " + folder + "_one two\""},
      // What watch repeats.
      {"watch cou", "6: count= count counter"},
      {"watch 2 count=3 cou", "16: count counter"},
      {"watch de", "6: default describe"},
      {"wred set ", "9: handle= index= min= max= probability= time= pipe="},
  };
  for (const auto &given : cases) EXPECT_EQ(at(given.line), given.offers) << given.line;
  std::remove((folder + "_one two").c_str());
  EXPECT_EQ(help_of("fall", "fallback"), "set, reset");
  EXPECT_EQ(help_of("", "complete"), "not offered");
  EXPECT_EQ(help_of("show ipv4S", "ipv4ShortMaskLpm"), "prefix: vrfId dip");
}

TEST_F(CompletionTest, HandlesThatExist) {
  for (int i = 1; i < 70; ++i) {
    run(fmt::format("add nextHop nextHop={} action=setNextHopDetails dmac=2 domain=0 as=hop", i));
  }
  EXPECT_EQ(at("delete nextHop entry=$"), "21: $hop");
  const std::string line = "show nextHop entry=";
  EXPECT_EQ(complete(context_, line, line.size()).candidates.size(), 51u);
  EXPECT_EQ(at(line + "69"), "19: 69");
  EXPECT_EQ(help_of(line, "1"),
            "nextHop=1 action=setNextHopDetails dmac=00:00:00:00:00:02 domain=0");
  run("group add ecmpMemberActionProfile size=4");
  EXPECT_EQ(at("add ecmpGroup ecmpGroup=7 group="), "32: $hop 1");
}

// The command that other shells call, with a line that no word could hold as it is.
TEST_F(CompletionTest, TheCommandAnswersTheSame) {
  EXPECT_EQ(completion_request("-\"%\t", 2), "complete \"%2d%22%25%09\" cursor=2");
  EXPECT_EQ(decode_line("%2d%22%25%09%4%zz%"), "-\"%\t%4%zz%");
  EXPECT_EQ(run("complete \"counter read kf1Count source=\""), "29\thardware\t\n29\tsoftware\t\n");
  EXPECT_EQ(run(completion_request("age advance ", 12)),
            "12\t\tmilliseconds, or a time like 30s\n");
  const Completion answer = read_completion(run(completion_request("fallback r", 10)));
  ASSERT_EQ(answer.candidates.size(), 1u);
  EXPECT_EQ(answer.start, 9u);
  EXPECT_EQ(answer.candidates[0].help, "takes the fallback member back");
  EXPECT_EQ(common_beginning(complete(context_, "c", 1).candidates), "count");
}

}  // namespace

}  // namespace tesselctl
