// From the TOML files of a catalogue to a checked Program.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pdgen/check/diagnostics.hpp"
#include "pdgen/model.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

// A program if the catalogue has no fault, else the faults.
struct LoadResult {
  std::optional<Program> program;
  Diagnostics diagnostics;
};

// Reads the .toml files of a directory. program.toml, actions.toml and tables.toml must be there.
LoadResult load_program(const std::string &directory);

// The same from texts in memory; the last part of each path says what the file holds.
LoadResult load_program(const std::vector<TextFile> &files);

// The files of a directory whose names end so, sorted by name; faults of reading go to
// `diagnostics`.
std::vector<TextFile> read_files(const std::string &directory, std::string_view ending,
                                 Diagnostics &diagnostics);

// Files by the last part of their paths.
std::map<std::string_view, const TextFile *> by_name(const std::vector<TextFile> &files);

}  // namespace pdgen
