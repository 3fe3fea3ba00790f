// Journals: files that end anywhere, and damage.
#include "tesselctl/journal/journal.hpp"
#include "tesselctl/journal/change_log.hpp"
#include "tesselctl/text/files.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

namespace fs = std::filesystem;

class JournalTest : public ::testing::Test {
 protected:
  // With a change for each line, the last of which may be refused.
  void run(Journal &journal, std::initializer_list<std::string_view> lines) {
    ChangeLog log(journal.device());
    log.add(journal);
    log.count_from(journal.last());
    LocalRunner runner(journal.device(), out_, errors_, {});
    for (const std::string_view line : lines) {
      runner.run({{}, 0, line});
      log.end_line("anna[7]", line);
    }
  }
  Journal open() { return Journal({.path = path_}, {.id = 9, .pipes = 2}, false, errors_); }

  const TemporaryDirectory temporary_;
  const std::string path_ = temporary_.name + "/j";
  Output out_;
  Output errors_;
};

constexpr std::string_view kGroup = "group add ecmpMemberActionProfile size=4";
constexpr std::string_view kSeed = "hash set hashOuterIpv4Hdr seed=0x7";

TEST_F(JournalTest, AFileMayEndAnywhereInItsLastChange) {
  std::string first, text;
  {
    Journal journal = open();
    run(journal, {kGroup});
    first = image_of(journal.device());
    const auto size = static_cast<size_t>(fs::file_size(path_));
    run(journal, {kSeed});
    text = read_input(path_);
    ASSERT_GT(text.size(), size);
    EXPECT_EQ(fs::file_size(path_), text.size());
  }
  const size_t begin = text.rfind("\nchange ") + 1;
  for (size_t size = begin; size < text.size(); ++size) {
    write_file(path_, text.substr(0, size));
    Journal journal = open();
    EXPECT_EQ(journal.last(), 1u) << size;
    EXPECT_EQ(image_of(journal.device()), first) << size;
    EXPECT_EQ(fs::file_size(path_), begin) << size;
  }
}

TEST_F(JournalTest, DamageInTheMiddleIsAFaultAndStays) {
  {
    Journal journal = open();
    run(journal, {kGroup, kSeed});
  }
  std::string text = read_input(path_);
  text[text.find("size=4 members")] = 'S';
  write_file(path_, text);
  const std::string fault = fault_of([&] { open(); });
  EXPECT_TRUE(fault.starts_with(path_ + ":6:1: ")) << fault;
  EXPECT_EQ(read_input(path_), text);
}

}  // namespace
}  // namespace tesselctl
