// The tool as a shell calls it: what is refused, scripts as transactions, help and completion.
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tesselctl/command/topic.hpp"
#include "tests/tool/tool_fixture.hpp"

namespace tesselctl {

namespace {

constexpr char kHop[] = "action=setNextHopDetails dmac=02:00:00:00:00:01 domain=1";

class CommandLineTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = ::testing::TempDir() + "tesselctl_line." + std::to_string(getpid());
    std::filesystem::create_directory(folder_);
    file("good", std::string("\xef\xbb\xbf# a mark before it\nadd nextHop nextHop=2 ") + kHop);
    file("bad", std::string("add nextHop nextHop=2 ") + kHop + "\nadd nextHop nextHop=2 " + kHop);
    file("saves", "save t.img\nsave new.img\ncount nextHop\n");
    sh("T --image t.img add nextHop nextHop=1 " + std::string(kHop));
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  void file(const char *name, const std::string &text) {
    std::ofstream(folder_ + "/" + name) << text;
  }
  // What a shell command prints, where T is the tool; its exit code is in code_.
  std::string sh(const std::string &command) {
    const std::string line =
        "cd " + folder_ + " && T() { " TOOL " \"$@\"; } && { " + command + "; } 2>&1 </dev/null";
    FILE *pipe = popen(line.c_str(), "r");
    std::string text;
    for (int c = 0; (c = fgetc(pipe)) != EOF;) text += static_cast<char>(c);
    const int status = pclose(pipe);
    code_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return text;
  }
  std::string hops() { return sh("T --image t.img --terse count nextHop"); }

  std::string folder_;
  int code_ = -1;
};

TEST_F(CommandLineTest, RefusesWhatItDoesNotKnowAndChangesNothing) {
  const std::string before = sh("cat t.img");
  struct Case {
    const char *line;
    const char *says;
  };
  static constexpr Case kCases[] = {
      {"run --check good", "'--check': no option has this name"},
      {"run good --foo", "'--foo': no option has this name"},
      {"run --raw good", "'--raw': run does not take this option"},
      {"run good good", "'good': nothing should stand here"},
      {"run", "the name of a script is missing"},
      {"run nowhere", "nowhere: No such file or directory"},
      {"serve --foo --socket s", "'--foo': no option has this name"},
      {"serve --atomic --socket s", "'--atomic': serve does not take this option"},
      {"serve x --socket s", "'x': nothing should stand here"},
      {"serve", "serve needs --socket PATH"},
      {"add --sort x nextHop nextHop=9", "'--sort': add does not take this option"},
      {"--foo count", "'--foo': no option has this name"},
      {"-x count", "'-x': no option has this name"},
      {"--pipes 9 count", "'9': the number of pipes is 1 to 8"},
      {"count --device", "'--device': --device needs N"},
      {"--no-color=1 count", "--no-color takes no value"},
      {"--verbose --count", "'--count': "},
      {"--image t.img --socket s count", "--image is for the server to choose"},
  };
  for (const Case &row : kCases) {
    const std::string text = sh("T --image t.img " + std::string(row.line));
    EXPECT_EQ(code_, 1) << row.line;
    EXPECT_NE(text.find(row.says), std::string::npos) << row.line << "\n" << text;
    EXPECT_TRUE(sh("cat t.img") == before) << row.line;
  }
  EXPECT_NE(sh("T --json run nowhere").find("\"command\":\"run nowhere\",\"rows\":[],\"error\":{"),
            std::string::npos);
}

TEST_F(CommandLineTest, ScriptsAreTriedOrDoneAsAWhole) {
  EXPECT_EQ(sh("T --image t.img run --dry-run good"),
            "good: 1 command, 0 faults; on a copy of the device, nothing is changed\n");
  EXPECT_EQ(hops(), "nextHop entries=1\n");
  const std::string before = sh("cat t.img");
  EXPECT_EQ(sh("T --image t.img run saves --terse --dry-run"),
            "nextHop entries=1\n"
            "saves: 3 commands, 0 faults; on a copy of the device, nothing is changed\n");
  EXPECT_EQ(sh("cat t.img && ls new.img"), before +
                                               "ls: cannot access 'new.img': No such file or "
                                               "directory\n");
  const std::string text = sh("T --image t.img run --atomic bad");
  EXPECT_EQ(code_, 1);
  EXPECT_TRUE(text.ends_with("bad: 2 commands, 1 fault; the device is as it was\n")) << text;
  EXPECT_EQ(sh("T --image t.img run -k --atomic bad && cat t.img"), text);
  EXPECT_EQ(hops(), "nextHop entries=1\n");
  EXPECT_EQ(sh("T --image t.img run --atomic good"), "good: 1 command, 0 faults\n");
  EXPECT_EQ(hops(), "nextHop entries=2\n");
  // A script runs others, but not without end.
  file("outer", "run good\n");
  file("self", "run self\n");
  EXPECT_EQ(sh("T run outer"), "good: 1 command, 0 faults\nouter: 1 command, 0 faults\n");
  EXPECT_NE(sh("T run self").find("too many"), std::string::npos);
}

TEST_F(CommandLineTest, AScriptOverASocketIsOneTransaction) {
  const std::string serve = TOOL
      " serve --socket s --image t.img & p=$!; until [ -S s ] || ! kill -0 $p; do sleep 0.01; "
      "done;";
  const std::string text =
      sh(serve +
         "T --socket s run --atomic bad; T --socket s --terse count nextHop;"
         "{ yes '#a comment that makes the script long' | head -40000; tail -1 good; } > long;"
         "T --socket s run --dry-run long; T --socket s --terse count nextHop;"
         "T --socket s run --atomic long; T --socket s --terse count nextHop; kill $p; wait");
  EXPECT_NE(text.find("bad: 2 commands, 1 fault; the device is as it was\n"
                      "nextHop entries=1\n"
                      "long: 1 command, 0 faults; on a copy of the device, nothing is changed\n"
                      "nextHop entries=1\n"
                      "long: 1 command, 0 faults\n"
                      "nextHop entries=2\n"),
            std::string::npos)
      << text;
  EXPECT_EQ(hops(), "nextHop entries=2\n");
}

// Each answer comes before the next line is written.
TEST_F(CommandLineTest, StandardInputIsRunLineByLine) {
  EXPECT_EQ(sh("mkfifo to from; T --terse < to > from & exec 8> to 9< from;"
               "echo count nextHop >&8; read line <&9; echo got $line;"
               "echo tables nextHop >&8; read line <&9; echo got ${line%% *}; exec 8>&-; cat <&9"),
            "got nextHop entries=0\ngot nextHop\nstandard input: 2 commands, 0 faults\n");
}

TEST_F(CommandLineTest, HelpExplainsEveryCommand) {
  EXPECT_TRUE(sh("T help run").starts_with("run FILE|-\n    runs a script"));
  EXPECT_EQ(sh("T run --help"), sh("T help run"));
  EXPECT_EQ(sh("T --image nowhere serve -h"), sh("T help serve"));
  EXPECT_EQ(sh("T group --help"), sh("T help group"));
  EXPECT_EQ(sh("echo 'add nextHop --help' | T run -"),
            sh("T help add") + "standard input: 1 command, 0 faults\n");
  const std::string page = sh("T manual " SHARE_DIR "/man/tesselctl.1.in");
  EXPECT_EQ(page.find("\n@"), std::string::npos);
  const std::string help = sh("T --help");
  EXPECT_EQ(code_, 0);
  for_each_shown_command([&](const Command &command) {
    EXPECT_NE(help.find("  " + std::string(command.name)), std::string::npos) << command.name;
    EXPECT_NE(page.find(".B " + std::string(command.name) + "\n"), std::string::npos)
        << command.name;
  });
}

// The words that a shell offers at the end of a line.
TEST_F(CommandLineTest, ShellsCompleteBehindGlobalOptions) {
  struct Case {
    const char *line;
    const char *words;
  };
  static constexpr Case kCases[] = {
      {"--image t.img delete nextHop entry=", "1"},
      {"--terse --image=t.img show nextHop entry=", "1"},
      {"--socket s show l2Lo", "l2LookupMiss l2Lookup"},
      {"--image t.i", "t.img"},
      {"--im", "--image"},
      {"--image t.img ru", "run"},
      {"serv", "serve"},
      {"run --a", "--atomic"},
      {"run --image t.img go", "good"},
      {"serve --soc", "--socket"},
  };
  const std::string bash =
      "bash -c '. " SHARE_DIR
      "/bash-completion/tesselctl; COMP_LINE=\"$0 $1\"; COMP_WORDS=($0);"
      "COMP_POINT=${#COMP_LINE}; compopt() { :; }; _tesselctl; echo \"${COMPREPLY[@]}\"' " TOOL " ";
  const std::string zsh =
      "zsh -fc 'LBUFFER=\"$0 $1\"; words=($0); compset() { :; }; _message() { :; };"
      "_describe() { print -r -- ${whole%%:*} ${more%%:*}; }; . " SHARE_DIR "/zsh/_tesselctl' " TOOL
      " ";
  for (const Case &row : kCases) {
    const std::string line = "\"" + std::string(row.line) + "\"";
    EXPECT_EQ(sh(bash + line), std::string(row.words) + "\n") << row.line;
    if (access("/usr/bin/zsh", X_OK) != 0) continue;
    EXPECT_EQ(sh(zsh + line), std::string(row.words) + "\n") << row.line;
  }
}

}  // namespace

}  // namespace tesselctl
