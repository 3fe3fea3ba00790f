// Every malformed line of the corpus gets exactly its message.
#include <fstream>

#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

TEST_F(ToolTest, MalformedLinesSayWhatIsWrongAndWhere) {
  std::ifstream corpus(TOOL_TEST_DIR "/malformed.txt");
  ASSERT_TRUE(corpus.is_open());
  size_t count = 0;
  for (std::string line; std::getline(corpus, line);) {
    if (line.empty() || line[0] == '#') continue;
    const size_t arrow = line.find(" => ");
    ASSERT_NE(arrow, std::string::npos) << line;
    EXPECT_EQ(run(line.substr(0, arrow)), line.substr(arrow + 4)) << line.substr(0, arrow);
    ++count;
  }
  EXPECT_GE(count, 70u);
  // Nothing of all that reached the device.
  EXPECT_EQ(run("count"), "all tables are empty\n");
}

}  // namespace
}  // namespace tesselctl
