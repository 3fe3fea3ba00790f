// Any text as one of the files of a catalogue, beside the others of a small program: it is refused
// with file and line, or makes every generated file. The first byte chooses.
#include "fuzz/target.hpp"
#include "pdgen/check/check.hpp"
#include "pdgen/families/apply.hpp"
#include "pdgen/load/load.hpp"

using namespace pdgen;

void try_input(std::string_view input) {
  static Diagnostics none;
  static const std::vector<TextFile> kFiles = read_files(FUZZ_CATALOGUE, ".toml", none);
  static const Families kFamilies = load_families(embedded_families(), none);
  require(none.empty() && !kFiles.empty(), "there is a catalogue");
  std::vector<TextFile> files = kFiles;
  const uint64_t chosen = take_number(input, 1);
  files[chosen % files.size()].text = input;
  LoadResult loaded = load_program(files);
  require(loaded.program.has_value() == loaded.diagnostics.empty(), "a program or its faults");
  if (!loaded.program || chosen < 200) return;  // most of the time would be spent on what is made
  const Api api = build_api(*loaded.program, kFamilies);
  check_distinct(api.names, "C name", loaded.diagnostics);
  if (!loaded.diagnostics.empty()) return;
  for (const Output &output : kFamilies.outputs) written(output, api);
}
