// From the TOML files of a catalogue to a checked Program.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pdgen/check/diagnostics.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

// One file of a catalogue, or of the families; the path is what places name.
struct CatalogueFile {
  std::string path;
  std::string text;
};

// A program if the catalogue has no fault, else the faults.
struct LoadResult {
  std::optional<Program> program;
  Diagnostics diagnostics;
};

// Reads the .toml files of a directory. program.toml, actions.toml and tables.toml must be there.
LoadResult load_program(const std::string &directory);

// The same from texts in memory; the last part of each path says what the file holds.
LoadResult load_program(const std::vector<CatalogueFile> &files);

// The files of a directory whose names end so, sorted by name; faults of reading go to
// `diagnostics`.
std::vector<CatalogueFile> read_files(const std::string &directory, std::string_view ending,
                                      Diagnostics &diagnostics);

}  // namespace pdgen
