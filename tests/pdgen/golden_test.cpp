// The interface of a program with one object of each kind, compared with a text that was read by a
// person: records, functions and the statements of their wrappers. What is made of it, wrappers,
// descriptors, version script and soft SDK description, is built and run as tiny and large.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "pdgen/families/api.hpp"
#include "pdgen/load/load.hpp"

namespace pdgen {
namespace {

const std::string kTests = std::string(PDGEN_SOURCE_DIR) + "/tests/pdgen";

std::string interface_text(const Api &api) {
  std::string text;
  for (const Group &group : api.groups) {
    text += "==== " + group.title + "\n" + group.declarations;
    for (const Function *function : group.functions) {
      text += declaration(*function) + " { " + function->statement + "; }  // " + function->family +
              " " + function->action + "\n";
    }
  }
  return text;
}

TEST(Golden, TheInterfaceIsAsRead) {
  const LoadResult loaded = load_program(kTests + "/fixtures/micro");
  ASSERT_TRUE(loaded.program) << loaded.diagnostics.text();
  std::istringstream made(interface_text(build_api(*loaded.program)));
  const std::string path = kTests + "/golden/interface.txt";
  if (std::getenv("PDGEN_RENEW_GOLDEN") != nullptr) std::ofstream(path) << made.str();
  std::ifstream golden(path);
  std::string is;
  std::string was;
  for (size_t number = 1; std::getline(made, is); ++number) {
    ASSERT_TRUE(std::getline(golden, was)) << "line " << number << " is new: " << is;
    ASSERT_EQ(was, is) << "line " << number
                       << ". If pdgen should write it now, run scripts/renew-golden.";
  }
  EXPECT_FALSE(std::getline(golden, was)) << was;
}

}  // namespace
}  // namespace pdgen
