// Route files: reading, faults by line, and the load into the tables.
#include "tesselctl/routes.hpp"

#include <cstdio>
#include <cstdlib>

#include "tesselctl/files.hpp"
#include "tesselctl/progress.hpp"
#include "tesselctl/route_file.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

TEST(RouteFileTest, ReadsBothFamiliesNexthopsAndComments) {
  const RouteFile file = parse_routes(
      "10.1.0.0/16\n# comment\n\n2001:db8::/32 7\r\n  0.0.0.0/0\t16383 # default\n"
      "255.255.255.255/32 0",
      3, 16383);
  ASSERT_EQ(file.faults.size(), 0u) << file.faults[0].message;
  ASSERT_EQ(file.ipv4.size(), 3u);
  EXPECT_EQ(file.ipv4[0].address, 0x0a010000u);
  EXPECT_EQ(file.ipv4[0].length, 16);
  EXPECT_EQ(file.ipv4[0].nexthop, 3);
  EXPECT_EQ(file.ipv4[1].length, 0);
  EXPECT_EQ(file.ipv4[1].nexthop, 16383);
  EXPECT_EQ(file.ipv4[2].line, 6u);
  ASSERT_EQ(file.ipv6.size(), 1u);
  EXPECT_EQ(file.ipv6[0].address, (std::array<uint8_t, 16>{0x20, 0x01, 0x0d, 0xb8}));
  EXPECT_EQ(file.ipv6[0].nexthop, 7);
}

TEST(RouteFileTest, LinesThatAreNoRouteAreFaultsAndTheOthersStay) {
  const struct {
    const char *line;
    size_t column;
    const char *message;
  } cases[] = {
      {"10.0.0/8", 7, "this is not an IPv4 address"},
      {"10.0.0.256/8", 11, "this is not an IPv4 address"},
      {"10.0.0.0", 9, "there should be a '/' and a prefix length"},
      {"10.0.0.0/33", 12, "this is not a prefix length"},
      {"10.0.0.0/", 10, "this is not a prefix length"},
      {"10.0.0.1/31", 12, "the address has bits behind its prefix"},
      {"2001:db8:::/32", 1, "this is not an IPv6 address"},
      {"2001:db8::/129", 15, "this is not a prefix length"},
      {"2001:db8::1/127", 16, "the address has bits behind its prefix"},
      {"10.0.0.0/8 x", 12, "this is not a next hop"},
      {"10.0.0.0/8 16384", 17, "the next hop is too large"},
      {"10.0.0.0/8 1 2", 14, "nothing should stand here"},
  };
  for (const auto &given : cases) {
    const RouteFile file = parse_routes(std::string(given.line) + "\n11.0.0.0/8\n", 1, 16383);
    ASSERT_EQ(file.faults.size(), 1u) << given.line;
    EXPECT_EQ(file.faults[0].line, 1u);
    EXPECT_EQ(file.faults[0].column, given.column) << given.line;
    EXPECT_EQ(file.faults[0].message, given.message) << given.line;
    EXPECT_EQ(file.ipv4.size(), 1u) << given.line;
  }
}

class RoutesTest : public ToolTest {
 protected:
  std::string write(const char *name, const std::string &text) {
    const std::string path = ::testing::TempDir() + "tesselctl_" + name;
    write_file(path, text);
    paths_.push_back(path);
    return path;
  }
  ~RoutesTest() override {
    for (const std::string &path : paths_) std::remove(path.c_str());
  }
  std::vector<std::string> paths_;
  Output errors_;
};

TEST_F(RoutesTest, LoadsPlainAndCompressedFiles) {
  // "10.0.0.0/8\n2001:db8::/32 5\n" through xz.
  const unsigned char compressed[] = {
      0xfd, 0x37, 0x7a, 0x58, 0x5a, 0x00, 0x00, 0x01, 0x69, 0x22, 0xde, 0x36, 0x02, 0x00,
      0x21, 0x01, 0x1c, 0x00, 0x00, 0x00, 0x10, 0xcf, 0x58, 0xcc, 0x01, 0x00, 0x1a, 0x31,
      0x30, 0x2e, 0x30, 0x2e, 0x30, 0x2e, 0x30, 0x2f, 0x38, 0x0a, 0x32, 0x30, 0x30, 0x31,
      0x3a, 0x64, 0x62, 0x38, 0x3a, 0x3a, 0x2f, 0x33, 0x32, 0x20, 0x35, 0x0a, 0x00, 0x00,
      0x80, 0x8c, 0xcf, 0x3b, 0x00, 0x01, 0x2f, 0x1b, 0xaa, 0x44, 0xff, 0xb8, 0x90, 0x42,
      0x99, 0x0d, 0x01, 0x00, 0x00, 0x00, 0x00, 0x01, 0x59, 0x5a};
  RoutesOptions options;
  options.vrf = 9;
  options.nexthop = 2;
  options.files = {
      write("plain", "10.1.0.0/16 4\n"),
      write("xz", std::string(reinterpret_cast<const char *>(compressed), sizeof compressed))};
  EXPECT_TRUE(load_routes(device_, options, out_, errors_));
  EXPECT_EQ(errors_.take(), "");
  const std::string report = out_.take();
  EXPECT_NE(report.find("ipv4ShortMaskLpm\n  added              2 of 2 in "), std::string::npos)
      << report;
  EXPECT_NE(report.find("ipv6ShortMaskLpm\n  added              1 of 1 in "), std::string::npos)
      << report;
  EXPECT_NE(report.find("  verified           2 of 2 in "), std::string::npos) << report;
  EXPECT_NE(report.find("  /8            1\n  /16           1\n"), std::string::npos) << report;
  EXPECT_TRUE(report.ends_with("0 errors\n"));
  EXPECT_EQ(run("show ipv4ShortMaskLpm"),
            "ipv4ShortMaskLpm entry=1 vrfId=9 dip=10.1.0.0/16 ttl=0 action=setNextHop nextHop=4\n"
            "ipv4ShortMaskLpm entry=2 vrfId=9 dip=10.0.0.0/8 ttl=0 action=setNextHop nextHop=2\n");
  EXPECT_EQ(run("find ipv6ShortMaskLpm vrfId=9 dip=2001:db8::/32"), "ipv6ShortMaskLpm entry=1\n");
}

TEST_F(RoutesTest, FaultsNameFileAndLineAndTheFirstTenAreShown) {
  std::string text = "10.0.0.0/8\n10.0.0.0/8\nnonsense\n";
  for (int i = 0; i < 20; ++i) text += "10.0.0.0/8\n";
  RoutesOptions options;
  options.files = {write("faulty", text)};
  EXPECT_FALSE(load_routes(device_, options, out_, errors_));
  const std::string messages = errors_.take();
  EXPECT_TRUE(messages.starts_with(paths_[0] + ":3:1: this is not an IPv4 address\n" + paths_[0] +
                                   ":2: BF_ALREADY_EXISTS (4): "))
      << messages;
  EXPECT_TRUE(messages.ends_with("and 11 more of them\n")) << messages;
  EXPECT_TRUE(out_.take().ends_with("22 errors\n"));
}

TEST_F(RoutesTest, FilesThatCannotBeReadAreFaults) {
  RoutesOptions options;
  options.files = {"/nonexistent/routes"};
  EXPECT_THROW(load_routes(device_, options, out_, errors_), Fault);
  options.files = {write("broken", std::string("\xfd\x37\x7a\x58\x5a\0 no more", 14))};
  EXPECT_THROW(load_routes(device_, options, out_, errors_), Fault);
}

TEST(ProgressTest, TellsRateAndRemainingTime) {
  EXPECT_EQ(progress_text("adding", 250000, 1000000, 0.5),
            "adding 250,000 of 1,000,000 (25 %), 500,000 a second, 1.5 s left");
  EXPECT_EQ(progress_text("adding", 0, 10, 0), "adding 0 of 10 (0 %), 0 a second");
}

}  // namespace
}  // namespace tesselctl
