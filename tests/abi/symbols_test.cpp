// The shared objects as the linker and their host see them: the library offers exactly the list of
// exports and asks for nothing but the SDK, cJSON and the C library; the soft SDK offers exactly
// what its headers declare.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "files.hpp"

namespace pd_test {
namespace {

using Names = std::set<std::string>;

// Names of the dynamic symbols that nm lists, without versions and parameters.
Names symbols(const std::string &options, const std::string &file = PD_LIBRARY) {
  const Outcome outcome = run("nm -DC " + options + " " + file);
  EXPECT_EQ(outcome.status, 0) << outcome.output;
  Names names;
  const std::regex entry("[0-9a-f ]* [A-Za-z] ([^[@(]+).*");
  std::smatch match;
  for (const std::string &line : lines_of(outcome.output)) {
    if (std::regex_match(line, match, entry)) names.insert(match[1]);
  }
  return names;
}

Names exports_listed() {
  const std::vector<std::string> lines = lines_of(read_file(PD_SOURCE_DIR "/abi/exports.txt"));
  return {lines.begin(), lines.end()};
}

// Every function that the C headers of a folder declare.
Names functions_in(const char *folder) {
  Names names;
  const std::regex declaration("\n[a-z][a-z0-9_ ]*[ *]([a-z0-9_]+)\\([^()]*\\);");
  for (const auto &file :
       std::filesystem::directory_iterator(PD_SOURCE_DIR + std::string(folder))) {
    if (file.path().extension() != ".h") continue;
    const std::string text = read_file(file.path());
    for (std::sregex_iterator at(text.begin(), text.end(), declaration), end; at != end; ++at) {
      names.insert((*at)[1]);
    }
  }
  return names;
}
Names sdk_functions() { return functions_in("/sdk/include"); }

bool may_be_undefined(const std::string &name) {
  static const Names sdk = sdk_functions();
  static const Names libc = {"inet_ntop",  "malloc",          "free",     "memcmp",   "memcpy",
                             "memmove",    "memset",          "snprintf", "sprintf",  "dprintf",
                             "strchr",     "strcmp",          "strcpy",   "strlen",   "strncmp",
                             "strncpy",    "strcat",          "write",    "vdprintf", "stpcpy",
                             "strcasecmp", "__errno_location"};
  // What the linker's start files ask for in every shared object.
  static const Names linker = {"_ITM_deregisterTMCloneTable", "_ITM_registerTMCloneTable",
                               "__cxa_finalize", "__gmon_start__"};
  return sdk.contains(name) || name.starts_with("cJSON_") || libc.contains(name) ||
         linker.contains(name);
}

TEST(Symbols, AreExactlyTheListedExports) {
  const Names listed = exports_listed();
  EXPECT_GE(listed.size(), 2750u);
  // The version of the exports is a symbol itself.
  Names defined = symbols("--defined-only");
  EXPECT_EQ(defined.erase("P4_PD_tessel_switch_1"), 1u);
  EXPECT_EQ(difference(listed, defined), "");
}

TEST(Symbols, OfTheSoftSdkAreItsContractAndItsControl) {
  Names declared = sdk_functions();
  EXPECT_GE(declared.size(), 120u);
  declared.merge(functions_in("/sdk/soft/include"));
  for (const char *name :
       {"journal::Call::argument", "journal::Call::result", "journal::start", "journal::stop",
        "journal::clear", "journal::calls", "faults::fail_call", "faults::fail_any_call",
        "faults::fail_allocation", "faults::clear", "faults::pending"}) {
    declared.insert("soft::" + std::string(name));
  }
  EXPECT_EQ(difference(declared, symbols("--defined-only", PD_SOFT_SDK)), "");
}

TEST(Symbols, AskForTheSdkAndTheCLibraryOnly) {
  if (PD_SANITIZED) GTEST_SKIP() << "a sanitizer brings its own";
  for (const std::string &name : symbols("--undefined-only")) {
    EXPECT_TRUE(may_be_undefined(name)) << name;
  }
}

TEST(Symbols, NeedNoCxxRunTime) {
  const Outcome outcome = run(std::string("readelf -d ") + PD_LIBRARY);
  ASSERT_EQ(outcome.status, 0) << outcome.output;
  Names needed;
  std::string soname;
  const std::regex entry("\\((NEEDED|SONAME)\\).*\\[([^\\]]+)\\]");
  for (const std::string &line : lines_of(outcome.output)) {
    std::smatch match;
    if (!std::regex_search(line, match, entry)) continue;
    if (match[1] == "SONAME") soname = match[2];
    if (match[1] == "NEEDED") needed.insert(match[2]);
  }
  EXPECT_EQ(soname, "libp4_pd_tessel_switch.so.1");
  if (PD_SANITIZED) return;
  EXPECT_EQ(difference({"libc.so.6", "libcjson.so.1"}, needed), "");
}

// Sessions of several threads have nothing in common in the library but a state a profile, the
// driver's handle and what the linker keeps.
TEST(Symbols, HoldNoVariablesThatThreadsWouldShare) {
  if (PD_SANITIZED) GTEST_SKIP() << "a sanitizer keeps more";
  const Outcome outcome = run(std::string("size -A ") + PD_LIBRARY);
  const std::regex section("\\.(t?data|t?bss) +([0-9]+) ");
  size_t sections = 0, bytes = 0;
  for (std::sregex_iterator at(outcome.output.begin(), outcome.output.end(), section), end;
       at != end; ++at) {
    bytes += std::stoul((*at)[2]);
    ++sections;
  }
  EXPECT_EQ(sections, 2u) << outcome.output;
  EXPECT_LE(bytes, 9 * sizeof(void *)) << outcome.output;
}

}  // namespace
}  // namespace pd_test
