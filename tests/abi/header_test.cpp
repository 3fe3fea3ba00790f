// The public header compiles by itself for every language and ABI that a host may have, and is what
// the generator makes of the catalogue.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "files.hpp"
#include "p4_pd_types.h"
#include "pdgen/families/apply.hpp"
#include "pdgen/load/load.hpp"

namespace pd_test {
namespace {

// A folder that is gone with the object.
class Scratch {
 public:
  Scratch() {
    char name[] = "/tmp/pd_header_XXXXXX";
    EXPECT_NE(mkdtemp(name), nullptr);
    path_ = name;
  }
  ~Scratch() { std::filesystem::remove_all(path_); }
  std::string write(const std::string &name, const std::string &text) const {
    std::ofstream(path_ / name) << text;
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

struct Dialect {
  const char *compiler;
  const char *language;
  const char *standard;
};
constexpr Dialect kDialects[] = {
    {"gcc", "c", "c99"},         {"gcc", "c", "c11"},     {"gcc", "c", "c17"},
    {"g++", "c++", "c++17"},     {"g++", "c++", "c++20"}, {"clang", "c", "c99"},
    {"clang", "c", "c11"},       {"clang", "c", "c17"},   {"clang++", "c++", "c++17"},
    {"clang++", "c++", "c++20"},
};

bool is_installed(const std::string &compiler) { return run("command -v " + compiler).status == 0; }

Outcome compile(const Dialect &dialect, const char *abi, const std::string &source) {
  return run(std::string(dialect.compiler) + " -x " + dialect.language +
             " -std=" + dialect.standard + " " + abi +
             " -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror"
             " -I" PD_SOURCE_DIR "/include -I" PD_SOURCE_DIR
             "/sdk/include"
             " -I" PD_SOURCE_DIR "/sdk/soft/include " +
             source);
}

// The names and numbers of constants, as the pattern finds them in a header.
std::vector<std::pair<std::string, uint32_t>> constants(const std::string &header,
                                                        const std::string &pattern) {
  const std::string text = read_file(PD_SOURCE_DIR + header);
  const std::regex wanted(pattern);
  std::vector<std::pair<std::string, uint32_t>> found;
  for (std::sregex_iterator at(text.begin(), text.end(), wanted), end; at != end; ++at) {
    found.emplace_back((*at)[1], std::stoul((*at)[2], nullptr, 0));
  }
  return found;
}

// A caller who handles each status by itself: those of the SDK, and those of the library that are
// not numbers of the SDK's too.
std::string status_switch() {
  std::string cases;
  size_t count = 0;
  const auto add = [&](const std::string &name) {
    cases += "    case " + name + ": return \"" + name + "\";\n";
    ++count;
  };
  for (const auto &[name, number] : constants("/sdk/include/bf_types.h", "  (BF_\\w+) = (\\w+)")) {
    add(name);
    EXPECT_EQ(p4_pd_describe_status(number).name != nullptr,
              number == 2 || number == 3 || number == 6 || number == 15)
        << name;
  }
  for (const auto &[name, number] :
       constants("/include/p4_pd_types.h", "#define (P4_PD_\\w+) (0x\\w+)u")) {
    add(name);
    EXPECT_EQ(p4_pd_describe_status(number).name, name);
    EXPECT_TRUE(std::string_view(p4_pd_describe_status(number).text).ends_with("."));
  }
  EXPECT_EQ(count, 20u + 7u);
  return "const char *name_of(p4_pd_status_t status);\n"
         "const char *name_of(p4_pd_status_t status) {\n"
         "  if (status == P4_PD_MEMBER_KEEPS_ACTION) return p4_pd_describe_status(status).name;\n"
         "  switch (status) {\n" +
         cases + "    default: return 0;\n  }\n}\n";
}

TEST(Header, CompilesByItselfEverywhere) {
  const Scratch scratch;
  const std::string source =
      scratch.write("alone.c", "#include \"p4_pd_tessel_switch.h\"\n" + status_switch());
  size_t compilers = 0;
  size_t checks = 0;
  std::string last;
  for (const Dialect &dialect : kDialects) {
    if (!is_installed(dialect.compiler)) continue;
    if (last != dialect.compiler) ++compilers;
    last = dialect.compiler;
    for (const char *abi : {"-m64", "-m32"}) {
      const Outcome outcome = compile(dialect, abi, source);
      EXPECT_EQ(outcome.status, 0)
          << dialect.compiler << " " << dialect.standard << " " << abi << "\n"
          << outcome.output.substr(0, 2000);
      ++checks;
    }
  }
  EXPECT_GE(compilers, 2u);
  // Three dialects of C and two of C++ by each family of compilers, on two ABIs.
  EXPECT_EQ(checks, compilers / 2 * 5 * 2);
}

// Each header of the contract stands on its own feet too.
TEST(Header, EveryOtherHeaderCompilesByItself) {
  const Scratch scratch;
  size_t checks = 0;
  for (const char *folder : {"/include", "/sdk/include", "/sdk/soft/include"}) {
    for (const auto &file :
         std::filesystem::directory_iterator(PD_SOURCE_DIR + std::string(folder))) {
      const std::string source =
          scratch.write("alone.c", "#include \"" + file.path().string() + "\"\nextern int end;\n");
      const bool is_c = file.path().extension() == ".h";
      for (const Dialect &dialect : {kDialects[is_c ? 0 : 3], kDialects[4]}) {
        const Outcome outcome = compile(dialect, "-m32", source);
        EXPECT_EQ(outcome.status, 0) << file.path() << "\n" << outcome.output.substr(0, 2000);
        ++checks;
      }
    }
  }
  EXPECT_GE(checks, 2u * 26);
}

TEST(Header, ALayoutThatTheRulesGive) {
  const Scratch scratch;
  const std::string generated = read_file(PD_GENERATED_DIR "/layout_test.c");
  for (const char *abi : {"-m64", "-m32"}) {
    const Outcome outcome = compile({"gcc", "c", "c11"}, abi, scratch.write("layout.c", generated));
    EXPECT_EQ(outcome.status, 0) << outcome.output.substr(0, 2000);
  }
}

// ---- Checked-in outputs of the generator ----

constexpr const char *kRenew = "\nThe catalogue or pdgen has changed: run scripts/generate.";

class CheckedIn : public testing::Test {
 protected:
  const pdgen::LoadResult loaded_ = pdgen::load_program(PD_SOURCE_DIR "/catalogue");
  const pdgen::Api api_ = pdgen::build_api(loaded_.program.value());
};

TEST_F(CheckedIn, FilesAreFresh) {
  const auto difference = [](const char *file, const std::string &fresh) {
    return first_difference(read_file(PD_SOURCE_DIR + std::string(file)), fresh);
  };
  EXPECT_EQ(difference("/include/p4_pd_tessel_switch.h", pdgen::written("header", api_)), "")
      << kRenew;
  EXPECT_EQ(difference("/abi/exports.txt", pdgen::written("exports", api_)), "") << kRenew;
  EXPECT_EQ(difference("/abi/handles.txt", pdgen::written("handles", api_)), "") << kRenew;
}

}  // namespace
}  // namespace pd_test
