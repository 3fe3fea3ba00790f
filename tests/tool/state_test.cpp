// The state that the library keeps of a device, through files.
#include <cstdio>

#include "tesselctl/files.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

class StateTest : public ::testing::Test {
 protected:
  ~StateTest() override {
    for (const std::string &path : {saved_, other_}) std::remove(path.c_str());
  }
  // What the commands print on a device of their own.
  static std::string on_new_device(const std::vector<std::string> &lines) {
    Device device{DeviceOptions{.id = 3, .pipes = 2}};
    Output out;
    Output errors;
    LocalRunner runner{device, out, errors, Settings{.terse = true}};
    for (const std::string &line : lines) {
      try {
        run_line(runner.context(), line);
      } catch (const Fault &fault) {
        return std::to_string(fault.column()) + ": " + fault.sentence();
      }
    }
    return out.take();
  }
  std::string restore(const std::string &document) {
    write_file(saved_, document);
    return on_new_device({"state restore " + saved_, "state log " + other_});
  }

  const std::string saved_ = ::testing::TempDir() + "tesselctl_state.json";
  const std::string other_ = ::testing::TempDir() + "tesselctl_other.json";
};

TEST_F(StateTest, OutlivesTheDevice) {
  EXPECT_EQ(on_new_device({"member add lagPortActionProfile as=m action=setLagPort "
                           "egrL2AintfPort=9",
                           "group add lagPortActionProfile size=4 as=g",
                           "group join lagPortActionProfile group=$g member=$m",
                           "member add ecmpMemberActionProfile action=setEcmpNextHop nextHop=2",
                           "state log " + saved_}),
            "");
  const std::string saved = read_input(saved_);
  EXPECT_NE(saved.find("\"lagPortActionProfile\""), std::string::npos) << saved;
  EXPECT_EQ(on_new_device({"state log " + other_}), "");
  EXPECT_NE(read_input(other_), saved) << "a new device has no members";
  EXPECT_EQ(on_new_device({"state restore " + saved_, "state log " + other_}), "");
  EXPECT_EQ(read_input(other_), saved);
}

TEST_F(StateTest, DocumentsThatAreNotJsonSayWhere) {
  const std::string at = "15: '" + saved_ + "': " + saved_;
  EXPECT_EQ(restore(""), at + ":1:1: this is not JSON");
  EXPECT_EQ(restore("{\n  \"clients\": [\n    {\"client\": oops}\n  ]\n}\n"),
            at + ":3:16: this is not JSON");
  EXPECT_EQ(restore("{}\n{}\n"), at + ":2:1: this is not JSON");
  EXPECT_EQ(restore("{\"clients\": []"), at + ":1:15: this is not JSON");
  EXPECT_EQ(restore(std::string("{}\0{}", 5)), at + ":1:4: this is not JSON");
  EXPECT_EQ(on_new_device({"state restore /nonexistent/state.json"}).substr(0, 25),
            "0: /nonexistent/state.jso");
}

// Documents of another shape are refused, or what is not understood is skipped.
TEST_F(StateTest, OtherDocumentsDoNoHarm) {
  EXPECT_EQ(restore("[1, 2]").substr(0, 5), "15: '");
  EXPECT_EQ(restore(R"({"clients": {}})").substr(0, 5), "15: '");
  const std::string library = R"({"clients": [{"client": "p4_pd_tessel_switch_pd", "state": )";
  EXPECT_EQ(on_new_device({"state log " + other_}), "");
  const std::string empty = read_input(other_);
  for (const char *state : {"{}", R"({"act_profs": 7})", R"({"act_profs": [null, {"name": 3}]})"}) {
    EXPECT_EQ(restore(library + state + "}]}"), "") << state;
    EXPECT_EQ(read_input(other_), empty) << state;
  }
}

}  // namespace
}  // namespace tesselctl
