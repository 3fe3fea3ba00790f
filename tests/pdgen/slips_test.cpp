// Faults of catalogues and families, compared with reports that were read by a person. What the
// generator makes is the checked-in header, and what is built and run: the library, tiny and large.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "pdgen/families/families.hpp"
#include "pdgen/load/load.hpp"

namespace pdgen {
namespace {

const std::string kTests = std::string(PDGEN_SOURCE_DIR) + "/tests/pdgen";

void expect_file(const std::string &name, const std::string &text) {
  const std::string path = kTests + "/slips/" + name;
  if (std::getenv("PDGEN_RENEW_SLIPS") != nullptr) std::ofstream(path) << text;
  std::ifstream file(path);
  std::istringstream made(text);
  std::string is;
  std::string was;
  for (size_t number = 1; std::getline(made, is); ++number) {
    ASSERT_TRUE(std::getline(file, was)) << "line " << number << " is new: " << is;
    ASSERT_EQ(was, is) << name << ":" << number
                       << ". If pdgen should write it now, run scripts/renew-slips.";
  }
  EXPECT_FALSE(std::getline(file, was)) << was;
}

std::string with_line_ends(std::string text) {
  for (size_t at; (at = text.find("\\n")) != std::string::npos;) text.replace(at, 2, "\n");
  return text;
}

// "> FILE: BEFORE => AFTER"
void edit(std::vector<TextFile> &files, const std::string &line) {
  const size_t colon = line.find(": ");
  const size_t arrow = line.find(" =>", colon);
  ASSERT_NE(arrow, std::string::npos) << line;
  const std::string name = "/" + line.substr(2, colon - 2);
  const std::string before = with_line_ends(line.substr(colon + 2, arrow - colon - 2));
  const std::string after = with_line_ends(line.substr(std::min(arrow + 4, line.size())));
  const auto file =
      std::ranges::find_if(files, [&](const auto &row) { return row.path.ends_with(name); });
  ASSERT_NE(file, files.end()) << line;
  const size_t at = file->text.find(before);
  ASSERT_NE(at, std::string::npos) << line;
  EXPECT_EQ(file->text.find(before, at + 1), std::string::npos) << "stands twice: " << line;
  file->text.replace(at, before.size(), after);
}

// A file of edits of the files, each with what report(edited files) says.
template <class Report>
void expect_slips(const std::string &name, const std::vector<TextFile> &files, Report report) {
  std::ifstream file(kTests + "/slips/" + name);
  std::string made;
  std::vector<TextFile> edited = files;
  const auto finish = [&](bool was_edit) {
    if (!was_edit) return;
    const std::string text = report(edited);
    EXPECT_NE(text, "") << made;
    made += text;
    edited = files;
  };
  bool was_edit = false;
  for (std::string line; std::getline(file, line);) {
    const bool is_edit = line.starts_with(">");
    if (!is_edit) finish(was_edit);
    if (is_edit) edit(edited, line);
    if (is_edit || line.starts_with("#")) made += line + "\n";
    was_edit = is_edit;
  }
  finish(was_edit);
  expect_file(name, made);
}

TEST(Slips, OfACatalogue) {
  Diagnostics none;
  std::vector<TextFile> files = read_files(kTests + "/fixtures/tiny", {".toml"}, none);
  for (TextFile &file : files) file.path = "tiny" + file.path.substr(file.path.rfind('/'));
  expect_slips("catalogue.txt", files, [](const std::vector<TextFile> &edited) {
    const LoadResult result = load_program(edited);
    EXPECT_FALSE(result.program);
    return result.diagnostics.text();
  });
}

TEST(Slips, OfTheFamilies) {
  Diagnostics none;
  EXPECT_EQ(load_families(embedded_families(), none).families.size(), 22u);
  EXPECT_EQ(none.text(), "");
  expect_slips("families.txt", embedded_families(), [](const std::vector<TextFile> &edited) {
    Diagnostics diagnostics;
    load_families(edited, diagnostics);
    return diagnostics.text();
  });
}

}  // namespace
}  // namespace pdgen
