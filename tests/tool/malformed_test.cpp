// Malformed lines get exactly their message, damaged images some.
#include <cstdlib>
#include <fstream>

#include "tesselctl/text/files.hpp"
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

// Every flipped bit is noticed, or leaves the image what it was. IMAGE_BIT_FLIPS=N tries so many.
TEST_F(ToolTest, ADamagedImageIsNoticed) {
  // What a new device that loads the image saves, or the fault.
  const auto loaded_and_saved = [](std::string_view image) -> std::string {
    const Device device({.id = 9, .pipes = 2});
    const std::string fault = fault_of([&] { load_image(device, "x", lines_of(image)); });
    return fault == "no fault" ? image_of(device) : fault;
  };
  const std::string script = read_input(TOOL_TEST_DIR "/everything.tessel");
  ASSERT_EQ(run_script(runner_, "everything", script, {}).faults, 0u);
  const std::string text = image_of(device_);
  ASSERT_EQ(loaded_and_saved(text), text);
  const char *const wanted = getenv("IMAGE_BIT_FLIPS");
  const size_t flips = wanted == nullptr ? 2000 : std::stoul(wanted);
  size_t refused = 0;
  for (size_t i = 0; i < flips; ++i) {
    // A prime, so that every place has its turn.
    const size_t bit = i * 7919 % (8 * text.size());
    std::string damaged = text;
    damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ 1 << bit % 8);
    const std::string again = loaded_and_saved(damaged);
    if (again == text) continue;
    ++refused;
    EXPECT_TRUE(again.starts_with("x:")) << "bit " << bit << ": " << again;
  }
  EXPECT_GT(refused, flips * 99 / 100);
}

}  // namespace
}  // namespace tesselctl
