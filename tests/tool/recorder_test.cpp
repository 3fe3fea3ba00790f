// What a recorder hears of the commands of all transcripts and scripts, by undoing them.
#include <algorithm>

#include "tesselctl/state/recorder.hpp"
#include "tesselctl/state/save_point.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

namespace fs = std::filesystem;

class RecorderTest : public ToolTest {
 protected:
  RecorderTest() { context_.directory = temporary_.name; }

  // The items of an image with lasting numbers, each behind its object; members come in any order.
  std::string contents() {
    std::string image, object;
    save_image({device_, recorder_.numbering()}, [&](std::string_view piece) { image += piece; });
    std::vector<std::string> items;
    const LineSource next = lines_of(std::string_view(image).substr(0, image.rfind("\nend ")));
    for (std::string_view line; next(line);) {
      const bool is_object = std::ranges::any_of(kinds(), [&](const ItemKind *kind) {
        return line.starts_with(std::string(kind->object.keyword) + " ");
      });
      if (is_object) object = line;
      if (!is_object) items.push_back(fmt::format("{}: {}\n", object, line));
    }
    std::ranges::sort(items);
    return fmt::format("{}", fmt::join(items, ""));
  }
  void check(const std::string &line) {
    const std::string before = contents();
    run(line);
    const std::string after = contents();
    const std::vector<Change> done = recorder_.changes();
    EXPECT_TRUE(before == after || !done.empty());
    recorder_.invert(done);
    EXPECT_EQ(contents(), before);
    const std::vector<Change> all = recorder_.changes();
    recorder_.invert({all.begin() + static_cast<ptrdiff_t>(done.size()), all.end()});
    EXPECT_EQ(contents(), after);
    recorder_.clear();
  }

  const TemporaryDirectory temporary_;
  Recorder recorder_{device_};
};

class RecorderOf : public RecorderTest {
 public:
  void TestBody() override {}
  using RecorderTest::check;
  using RecorderTest::run;
};

// What packets and time do is no change.
bool is_heard(std::string_view line) {
  return !line.starts_with("traffic") && !line.starts_with("age advance");
}

TEST(RecorderSweepTest, EveryCommandIsUndoneAndDoneAgain) {
  size_t lines = 0;
  for (const auto &file : fs::recursive_directory_iterator(TOOL_TEST_DIR)) {
    const bool is_script = file.path().extension() == ".tessel";
    if (!is_script && file.path().extension() != ".txt") continue;
    std::unique_ptr<RecorderOf> section;
    const std::string text = read_input(file.path().string());
    const LineSource next = lines_of(text);
    for (std::string_view line; next(line);) {
      if (line.starts_with("== ")) section = nullptr;
      if (!is_script && !line.starts_with("> ")) continue;
      if (!section) section = std::make_unique<RecorderOf>();
      const std::string command(line.substr(is_script ? 0 : 2));
      SCOPED_TRACE(file.path().filename().string() + ": " + command);
      if (!is_heard(command)) {
        section->run(command);
      } else {
        section->check(command);
        ++lines;
      }
    }
  }
  EXPECT_GT(lines, 200u);
}

TEST_F(RecorderTest, WhoGoesBackForgetsTheChangesSince) {
  run("add ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 action=setNextHop nextHop=1");
  const SavePoint before(device_);
  run("replace ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 action=setNextHop nextHop=2");
  run("member add ecmpMemberActionProfile action=setEcmpNextHop nextHop=1");
  before.go_back();
  ASSERT_EQ(recorder_.changes().size(), 1u);
  EXPECT_EQ(recorder_.changes()[0].edit(), Edit::add);
  recorder_.take_back();
  EXPECT_EQ(run("count ipv4ShortMaskLpm"), "ipv4ShortMaskLpm entries=0\n");
}

// The device gives handles of members again after many others, greater than any number may be.
TEST_F(RecorderTest, MembersKeepTheirNumbers) {
  for (int i = 0; i < 3000; ++i) {
    run("member add ecmpMemberActionProfile as=m action=setEcmpNextHop nextHop=1");
    if (i != 0) run("member delete ecmpMemberActionProfile member=$m");
    recorder_.clear();
  }
  const std::string before = contents();
  run("member add ecmpMemberActionProfile as=m action=setEcmpNextHop nextHop=1");
  run("group replace ecmpMemberActionProfile size=2 members=1,$m");
  EXPECT_GT(context_.labels.at("m"), 1u << 26);
  const std::vector<Change> done = recorder_.changes();
  EXPECT_EQ(done.size(), 2u);
  recorder_.take_back();
  EXPECT_EQ(contents(), before);
}

}  // namespace
}  // namespace tesselctl
