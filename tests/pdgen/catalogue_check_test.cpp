// What a catalogue must hold, and how much it may.
#include <gtest/gtest.h>

#include "pdgen/families/apply.hpp"
#include "pdgen/load/load.hpp"

namespace pdgen {
namespace {

const std::string kSourceDir = PDGEN_SOURCE_DIR;

// A program of one table with these rows of a key, and one action with these parameters.
std::string faults_of(const std::string &params, const std::string &key) {
  return load_program(
             {{"a/program.toml", "name = \"least\""},
              {"a/actions.toml",
               "actions = [{ name = \"go\", value = 0, params = [" + params + "] }]"},
              {"a/tables.toml",
               "[[table]]\nname = \"only\"\nhandle = 0x01000001\nkey = [" + key +
                   "]\nactions = [{ action = \"go\", handle = 0x20000001, default = true }]"}})
      .diagnostics.text();
}

// Rows of `count` members of 32 bits.
std::string members(const char *key, int count) {
  std::string rows;
  for (int i = 0; i < count; ++i) {
    rows += "{ " + std::string(key) + " = \"x" + std::to_string(i) + "\", width = 32 }, ";
  }
  return rows;
}

TEST(CatalogueFaults, KeysAndActionDataHaveALargestSize) {
  EXPECT_EQ(faults_of(members("name", 1024), members("field", 1024)), "");
  EXPECT_EQ(faults_of(members("name", 1025), members("field", 1025)),
            "a/actions.toml:1: actions.params: the data of action go has 4100 bytes; at most 4096 "
            "can be\n"
            "a/tables.toml:2: table.key: the key of table only has 4100 bytes; at most 4096 can "
            "be\n");
}

TEST(CatalogueFaults, NeededFilesMustBeThereAndOthersMustBeKnown) {
  EXPECT_EQ(
      load_program(
          {{"a/program.toml", "name = \"none\"\nroutes = { action = \"go\", tables = [\"fib\"] }"},
           {"a/actions.toml", "actions = []"},
           {"a/table.toml", ""}})
          .diagnostics.text(),
      "a/actions.toml:1: actions: actions.toml lists nothing here\n"
      "a/table.toml:1: file: a catalogue has no file of this name; did you mean tables.toml?\n");
  EXPECT_EQ(load_program({{"a/program.toml", "name = \"none\""}, {"a/tables.toml", "[[tabel]]"}})
                .diagnostics.text(),
            "a/actions.toml:1: file: a catalogue needs this file: actions = [{ name = \"NAME\", "
            "value = 0 }, ...]\n"
            "a/tables.toml:1: tabel: tables.toml has no [[tabel]]; did you mean [[table]]?\n");
  EXPECT_EQ(load_program(kSourceDir + "/no_such_directory").diagnostics.text(),
            kSourceDir +
                "/no_such_directory:1: directory: this directory cannot be read: No such "
                "file or directory\n");
}

// The constant of an action and a function of the program.
TEST(CNames, MayNotBeMadeTwice) {
  const LoadResult result =
      load_program({{"a/program.toml", "name = \"least\""},
                    {"a/actions.toml", "actions = [{ name = \"init\", value = 0 }]"},
                    {"a/tables.toml",
                     "[[table]]\nname = \"only\"\nhandle = 0x01000001\n"
                     "actions = [{ action = \"init\", handle = 0x20000001, default = true }]"}});
  ASSERT_TRUE(result.program) << result.diagnostics.text();
  Diagnostics clashes;
  check_distinct(build_api(*result.program).names, "C name", clashes);
  EXPECT_EQ(clashes.text(),
            "a/actions.toml:1: name: init and the program at a/program.toml:1 make the same C name "
            "p4_pd_least_init\n");
}

}  // namespace
}  // namespace pdgen
