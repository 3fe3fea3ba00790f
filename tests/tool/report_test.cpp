// Reports: what stands on the page, that it is well formed, and that it stays small.
#include "tesselctl/report/report.hpp"

#include <fmt/format.h>

#include <cstdio>
#include <vector>

#include "soft_sdk.h"
#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/text/file_writer.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/html.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

class ReportTest : public ToolTest {
 protected:
  ~ReportTest() override {
    for (const char *name : {"page.html", "a.image", "b.image"}) std::remove(path(name).c_str());
  }
  static std::string path(const std::string &name) {
    return ::testing::TempDir() + "tesselctl_report_" + name;
  }
  // The page of "report FILE" with further words.
  std::string page(const std::string &words = {}) {
    EXPECT_EQ(run("report " + path("page.html") + " " + words), "");
    return read_input(path("page.html"));
  }
  void run_all(std::initializer_list<const char *> lines) {
    for (const char *line : lines) ASSERT_EQ(run(line), "") << line;
  }
  // A group with an inactive member, a loose member, counters with and without labels, a meter.
  void fill() {
    run_all({"member add ecmpMemberActionProfile as=gone action=setEcmpNextHop nextHop=9",
             "member add ecmpMemberActionProfile as=a action=setEcmpNextHop nextHop=1",
             "member add ecmpMemberActionProfile as=b action=setEcmpNextHop nextHop=2",
             "member add ecmpMemberActionProfile as=c action=setEcmpNextHop nextHop=3",
             "member delete ecmpMemberActionProfile member=$gone",
             "group add ecmpMemberActionProfile size=4 as=g",
             "group join ecmpMemberActionProfile group=$g member=$a",
             "group join ecmpMemberActionProfile group=$g member=$b",
             "group disable ecmpMemberActionProfile group=$g member=$b",
             "add ecmpGroup ecmpGroup=7 group=$g",
             "add ecmpGroup ecmpGroup=8 member=$c",
             "add ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 action=setNextHop nextHop=12",
             "add ipv4ShortMaskLpm vrfId=1 dip=11.0.0.0/8 action=setNextHop nextHop=13",
             "add ipv4ShortMaskLpm vrfId=1 dip=0.0.0.0/0 action=setEcmp ecmpGroup=7",
             "add finalDropControl dropSmac=1 priority=1 action=dropCount",
             "counter write finalDropControlCount entry=1 packets=3 bytes=192",
             "counter write firewallPolicyCount index=4 packets=5 bytes=1000",
             "counter write firewallPolicyCount index=9 packets=1500 bytes=96000",
             "meter set newFlowMeter index=2 cir=5000 cbs=100 pir=10000 pbs=200",
             "register write flowDigestCountReg index=3 value=77",
             "valueset add recirc_ports value=0x40 mask=0xf0"});
  }
};

#define EXPECT_HOLDS(text, part) \
  EXPECT_NE((text).find(part), std::string::npos) << (part) << "\nnot in\n" << (text)
#define EXPECT_LACKS(text, part) EXPECT_EQ((text).find(part), std::string::npos) << (part)

// Whether every element closes in its turn; gives the first that does not.
std::string unbalanced(std::string_view text) {
  std::vector<std::string> open;
  for (size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at + 1)) {
    const size_t end = text.find('>', at);
    if (end == std::string_view::npos) return "an open tag";
    const std::string_view tag = text.substr(at + 1, end - at - 1);
    if (tag.starts_with('!') || tag.ends_with('/')) continue;
    if (!tag.starts_with('/')) {
      open.emplace_back(tag.substr(0, tag.find(' ')));
    } else if (open.empty() || open.back() != tag.substr(1)) {
      return std::string(tag) + (open.empty() ? "" : " in " + open.back());
    } else {
      open.pop_back();
    }
  }
  return open.empty() ? "" : open.back();
}

TEST_F(ReportTest, PageOfASmallDevice) {
  fill();
  ASSERT_EQ(
      soft_table_capacity_set(0, resolve_table({"ipv4ShortMaskLpm", 1}).description->handle, 4),
      BF_SUCCESS);
  const std::string text = page();
  EXPECT_EQ(unbalanced(text), "");
  EXPECT_HOLDS(text, "<title>tessel_switch: device 0</title>");
  EXPECT_HOLDS(text, "<dd class=\"big\">6</dd><dd>in 3 of 120 tables</dd>");
  // A bar of a table with a capacity, and one of a table without.
  EXPECT_HOLDS(text, "aria-label=\"3 of 4 entries, 75 %\"");
  EXPECT_HOLDS(text, "<rect class=\"fill\" width=\"75.00\" height=\"1\"/></svg><small>75 % of 4");
  EXPECT_HOLDS(text, "aria-label=\"2 entries, no limit is set\"");
  // Two of three routes are as high as the chart, the third is half of it.
  EXPECT_HOLDS(text, "3 entries, 67 % of them /8");
  EXPECT_HOLDS(
      text,
      "viewBox=\"0 0 33 100\" preserveAspectRatio=\"none\"><rect class=\"fill\" x=\"0.10\" "
      "y=\"52.00\" width=\"0.8\" height=\"48.00\"><title>/0: 1</title></rect><rect "
      "class=\"fill\" x=\"8.10\" y=\"4.00\" width=\"0.8\" height=\"96.00\"><title>/8: 2");
  // Members go by numbers of their own, not by handles.
  EXPECT_HOLDS(text, "aria-label=\"1 active, 1 inactive, 2 free\"");
  EXPECT_HOLDS(text,
               "<th scope=\"row\">#2</th><td>set<wbr/>Ecmp<wbr/>Next<wbr/>Hop<br/><span "
               "class=\"mono soft\">nextHop=2</span></td><td class=\"off\">○ inactive</td>");
  EXPECT_HOLDS(text, "Used by ecmpGroup ecmpGroup=7</p>");
  EXPECT_HOLDS(text, "<td>ecmpGroup ecmpGroup=8</td>");
  EXPECT_HOLDS(text, "<li>group #1 of ecmpMemberActionProfile has 1 of 2 members inactive</li>");
  EXPECT_HOLDS(text, "ecmpGroup=7</td><td>group #1</td>");
  // The busiest cell stands first.
  EXPECT_HOLDS(text,
               "<th scope=\"row\">drop<wbr/>Smac</th><td class=\"n\">3</td><td class=\"n\">192");
  EXPECT_LT(text.find("cell 9</th><td class=\"n\">1,500"), text.find("cell 4</th>"));
  EXPECT_HOLDS(text, "2 cells have counted: 1,505 packets, 97,000 bytes");
  EXPECT_HOLDS(text,
               "cell 2</th><td>5,000 packets/s, burst 100 packets</td><td>10,000 packets/s, burst "
               "200 packets</td>");
  EXPECT_HOLDS(text, "<small>register</small></th><td class=\"mono\">index=3 values=77,77</td>");
  EXPECT_HOLDS(text,
               "<small>value set</small></th><td class=\"mono\">value=0x40 mask=0xf0 "
               "direction=ingress</td>");
}

TEST_F(ReportTest, EmptyFullAndIdleDevices) {
  const std::string empty = page();
  EXPECT_EQ(unbalanced(empty), "");
  EXPECT_HOLDS(empty, "120 tables without entries");
  EXPECT_LACKS(empty, "id=\"groups\"");
  EXPECT_LACKS(empty, "Worth a look");
  run_all({"group add ecmpMemberActionProfile size=4",
           "add ingressPortMapping ingressPort=1 action=setPhase0 ingVPort=1 nativeAintf=1 "
           "switchPort=1 physicalPort=0"});
  soft_table_capacity_set(0, resolve_table({"ingressPortMapping", 1}).description->handle, 1);
  const std::string text = page();
  EXPECT_HOLDS(text, "<li>ingressPortMapping is 100 % full: 1 of 1 entries</li>");
  EXPECT_HOLDS(text, "<rect class=\"full\" width=\"100.00\"");
  EXPECT_HOLDS(text, "<li>group #1 of ecmpMemberActionProfile has no active member</li>");
  EXPECT_HOLDS(text, "<li>group #1 of ecmpMemberActionProfile is used by no entry</li>");
}

TEST_F(ReportTest, NothingLeavesItsPlace) {
  Html html;
  html.open("p", {{"title", "\"><b>"}}).text("<script>&\x01\xff'").name("aBc_d<").close();
  EXPECT_EQ(html.take(),
            "<p title=\"&quot;&gt;&lt;b&gt;\">&lt;script&gt;&amp;??&#39;a<wbr/>Bc_<wbr/>d&lt;</p>");
  const std::string text = page("\"note=<img src=x onerror=alert(1)>\"");
  EXPECT_HOLDS(text, "<p>&lt;img src=x onerror=alert(1)&gt;</p>");
  EXPECT_EQ(unbalanced(text), "");
  for (const char *part : {"<script", "<link", "<img", "src=\"", "url(", "@import"}) {
    EXPECT_LACKS(text, part);
  }
}

TEST_F(ReportTest, ManyEntriesMakeASmallPage) {
  const auto add = [&](uint32_t from, uint32_t to) {
    for (uint32_t i = from; i < to; ++i) {
      const std::string line =
          fmt::format("add ipv4ShortMaskLpm vrfId=1 dip=10.{}.{}.0/24 action=setNextHop nextHop=1",
                      i >> 8, i & 255);
      ASSERT_EQ(run(line), "");
    }
  };
  add(0, 1000);
  const std::string text = page("rows=5");
  EXPECT_HOLDS(text, "dip=10.0.4.0/24");
  EXPECT_LACKS(text, "dip=10.0.5.0/24");
  EXPECT_HOLDS(text, "<p class=\"soft\">and 995 more</p>");
  add(1000, 5000);
  const size_t larger = page("rows=5").size();
  EXPECT_LT(larger, text.size() + 64);
}

TEST_F(ReportTest, EqualDevicesHaveEqualPages) {
  fill();
  ASSERT_EQ(run("save " + path("a.image")), "");
  const std::string of_image = page(path("a.image"));
  std::string of_device = page();
  for (size_t at; (at = of_device.find("device 0")) != std::string::npos;) {
    of_device.replace(at, 8, path("a.image"));
  }
  // Handles of the two devices differ.
  EXPECT_EQ(of_image, of_device);
}

TEST_F(ReportTest, DifferencesOfTwoImages) {
  fill();
  ASSERT_EQ(run("save " + path("a.image")), "");
  run_all({"delete ipv4ShortMaskLpm vrfId=1 dip=11.0.0.0/8",
           "modify ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 action=setNextHop nextHop=14",
           "add nextHop nextHop=1 action=setNextHopDetails dmac=02:00:00:00:ff:01 domain=0",
           "group enable ecmpMemberActionProfile group=$g member=$b"});
  ASSERT_EQ(run("save " + path("b.image")), "");
  const std::string text = page(path("a.image") + " " + path("b.image"));
  EXPECT_EQ(unbalanced(text), "");
  EXPECT_HOLDS(text, "<h1>" + path("a.image") + " → " + path("b.image") + "</h1>");
  EXPECT_HOLDS(text, "<dd class=\"big\">4</dd><dd>in 3 objects</dd>");
  EXPECT_HOLDS(text, "0 added, 1 changed, 1 removed");
  EXPECT_HOLDS(text,
               "<li class=\"off\"><b>-</b>vrfId=1 dip=10.0.0.0/8 ttl=0 action=setNextHop "
               "nextHop=12</li>\n<li class=\"on\"><b>+</b>vrfId=1 dip=10.0.0.0/8 ttl=0 "
               "action=setNextHop nextHop=14</li>");
  // The contents are those behind the changes, with what became of the numbers.
  EXPECT_HOLDS(text, "<td class=\"n\">2<br/><small>-1</small></td>");
  EXPECT_HOLDS(text, "<td class=\"n\">1<br/><small>+1</small></td>");
  EXPECT_LACKS(text, "Worth a look");
  EXPECT_HOLDS(page(path("a.image") + " " + path("a.image")), "The images hold the same.");
}

TEST_F(ReportTest, FaultsOfTheCommand) {
  EXPECT_EQ(run("report"), "1: 'report': the name of the page is missing");
  EXPECT_EQ(run("report rows=5"), "8: 'rows=5': the name of the page is missing");
  EXPECT_EQ(run("report a b c d"), "14: 'd': a report is about two images at most");
  write_file(path("a.image"), "no image\n");
  EXPECT_EQ(run("report " + path("page.html") + " " + path("a.image")),
            "0: " + path("a.image") + ":1:1: 'no image': this is no image of tesselctl");
  EXPECT_EQ(std::fopen(path("page.html").c_str(), "r"), nullptr);
}

}  // namespace
}  // namespace tesselctl
