// A report of tables with a capacity, which no command sets.
#include <fmt/format.h>

#include <cstdio>

#include "soft_sdk.h"
#include "tesselctl/device/table_info.hpp"
#include "tesselctl/text/files.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

TEST_F(ToolTest, AReportShowsHowFullTablesAre) {
  const auto limit = [](const char *table, uint32_t capacity) {
    const uint32_t handle = resolve_table({table, 1}).description->handle;
    EXPECT_EQ(soft_table_capacity_set(0, handle, capacity), BF_SUCCESS);
  };
  run("add nextHop nextHop=1 action=setNextHopDetails dmac=2 domain=0");
  run("add ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 action=setNextHop nextHop=12");
  run("group add ecmpMemberActionProfile size=4");
  limit("ipv4ShortMaskLpm", 4);
  limit("nextHop", 1);
  const std::string path = ::testing::TempDir() + "tesselctl_report.html";
  EXPECT_EQ(run("report " + path), "");
  const std::string page = read_input(path);
  std::remove(path.c_str());
  for (const char *part : {
           "aria-label=\"1 of 4 entries, 25 %\"",
           "<rect class=\"fill\" width=\"25.00\" height=\"1\"/></svg><small>25 % of 4",
           "<rect class=\"full\" width=\"100.00\"",
           "<li>nextHop is 100 % full: 1 of 1 entries</li>",
           "<li>group #1 of ecmpMemberActionProfile has no active member</li>",
           "<li>group #1 of ecmpMemberActionProfile is used by no entry</li>",
       }) {
    EXPECT_NE(page.find(part), std::string::npos) << part << "\nnot in\n" << page;
  }
}

}  // namespace
}  // namespace tesselctl
