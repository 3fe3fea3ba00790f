// The outputs for the tiny catalogue, compared with files that were read by a person.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "pdgen/emit.hpp"
#include "pdgen/load.hpp"

namespace pdgen {
namespace {

const std::string kTests = std::string(PDGEN_SOURCE_DIR) + "/tests/pdgen";

struct Golden {
  const char *file;
  std::function<std::string(const Api &)> emit;
};

void PrintTo(const Golden &golden, std::ostream *out) { *out << golden.file; }

class GoldenOutput : public testing::TestWithParam<Golden> {};

std::string read(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// The first line in which they differ.
std::string first_difference(const std::string &golden, const std::string &made) {
  std::istringstream left(golden);
  std::istringstream right(made);
  for (size_t number = 1;; ++number) {
    std::string in_golden;
    std::string in_made;
    const bool more = static_cast<bool>(std::getline(left, in_golden));
    const bool more_made = static_cast<bool>(std::getline(right, in_made));
    if (!more && !more_made) return golden == made ? "" : "the last line end";
    if (in_golden == in_made && more == more_made) continue;
    return "line " + std::to_string(number) + "\n- " + in_golden + "\n+ " + in_made;
  }
}

TEST_P(GoldenOutput, IsAsChecked) {
  const LoadResult loaded = load_program(kTests + "/fixtures/tiny");
  ASSERT_TRUE(loaded.program) << loaded.diagnostics.text();
  const std::string made = GetParam().emit(build_api(*loaded.program));
  const std::string path = kTests + "/golden/" + GetParam().file;
  if (std::getenv("PDGEN_RENEW_GOLDEN") != nullptr) std::ofstream(path, std::ios::binary) << made;
  EXPECT_EQ(first_difference(read(path), made), "")
      << "If this is what pdgen should write now, run scripts/renew-golden and read the diff.";
}

std::string file_name(const testing::TestParamInfo<Golden> &info) {
  std::string name = info.param.file;
  for (char &c : name) c = std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
  return name;
}

const Golden kGolden[] = {
    {"p4_pd_tiny.h", emit_header},
    {"exports.txt", emit_exports},
    {"exports.map", [](const Api &api) { return emit_version_script(api, 1); }},
    {"descriptors.hpp", [](const Api &api) { return emit_descriptors(api.program()); }},
    {"soft_program.cpp", [](const Api &api) { return emit_soft_program(api.program()); }},
};

INSTANTIATE_TEST_SUITE_P(Tiny, GoldenOutput, testing::ValuesIn(kGolden), file_name);

TEST(GoldenComparison, NamesTheLine) {
  EXPECT_EQ(first_difference("a\nb\n", "a\nb\n"), "");
  EXPECT_EQ(first_difference("a\nb\n", "a\nc\n"), "line 2\n- b\n+ c");
  EXPECT_EQ(first_difference("a\n", "a\nb\n"), "line 2\n- \n+ b");
  EXPECT_EQ(first_difference("a\n", "a"), "the last line end");
}

}  // namespace
}  // namespace pdgen
