// pdgen: reads the catalogue of a P4 program and writes its control-plane library's generated
// files. Usage errors and faults of the catalogue end with exit status 1 and write nothing.
#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "pdgen/check/check.hpp"
#include "pdgen/families/apply.hpp"
#include "pdgen/load/load.hpp"
#include "pdgen/text.hpp"

namespace {

constexpr const char *kUsage =
    "usage: pdgen --catalogue DIR [--header FILE] [--exports FILE] [--handles FILE]\n"
    "             [--build DIR] [--soname N] [--families DIR]\n"
    "  --catalogue DIR  folder of the program's .toml files\n"
    "  --header FILE    write the public header\n"
    "  --exports FILE   write the list of exported names\n"
    "  --handles FILE   write the list of handles with their objects\n"
    "  --build DIR      write all that is compiled: descriptors, wrappers, version script,\n"
    "                   layout test, soft SDK description, call table\n"
    "  --soname N       version of the shared object (1)\n"
    "  --families DIR   folder of the .family files that state the interface, if not those\n"
    "                   that pdgen was built with\n";

// The values of the options, by their names.
using Options = std::map<std::string, std::string>;

unsigned long soname(Options &options) {
  return std::strtoul(options["--soname"].c_str(), nullptr, 10);
}

bool parse(int argc, char **argv, Options &options) {
  for (int i = 1; i + 1 < argc; i += 2) {
    const auto option = options.find(argv[i]);
    if (option == options.end()) return false;
    option->second = argv[i + 1];
  }
  return argc % 2 == 1 && !options["--catalogue"].empty() && soname(options) > 0;
}

pdgen::Families load_families(const std::string &directory, pdgen::Diagnostics &diagnostics) {
  if (directory.empty()) return pdgen::load_families(pdgen::embedded_families(), diagnostics);
  auto files = pdgen::read_files(directory, ".family", diagnostics);
  std::ranges::move(pdgen::read_files(directory + "/outputs", ".output", diagnostics),
                    std::back_inserter(files));
  return pdgen::load_families(files, diagnostics);
}

// A file that is checked in has an option of its own, all others are for the build folder.
std::vector<pdgen::TextFile> output_files(const pdgen::Api &api, const pdgen::Families &families,
                                          Options &options) {
  std::vector<pdgen::TextFile> files;
  for (const pdgen::Output &output : families.outputs) {
    const bool has_option = !output.file_option.empty();
    const std::string path = options[has_option ? output.file_option : "--build"];
    if (path.empty()) continue;
    for (pdgen::TextFile &file : written(output, api)) {
      files.push_back({has_option ? path : path + "/" + file.path, std::move(file.text)});
    }
  }
  return files;
}

// What is wrong ends the run.
bool report(const std::string &faults) {
  fmt::print(stderr, "{}", faults);
  return !faults.empty();
}

}  // namespace

int main(int argc, char **argv) {
  Options options = {{"--catalogue", ""}, {"--header", ""},   {"--exports", ""}, {"--handles", ""},
                     {"--build", ""},     {"--families", ""}, {"--soname", "1"}};
  if (!parse(argc, argv, options)) return report(kUsage);
  const auto loaded = pdgen::load_program(options["--catalogue"]);
  if (report(loaded.diagnostics.text())) return 1;
  pdgen::Diagnostics diagnostics;
  const pdgen::Families families = load_families(options["--families"], diagnostics);
  if (report(diagnostics.text())) return 1;
  pdgen::Api api = pdgen::build_api(*loaded.program, families);
  api.soname = soname(options);
  // Two C names that are the same are a fault of the catalogue that shows only here.
  pdgen::check_distinct(api.names, "C name", diagnostics);
  if (report(diagnostics.text())) return 1;
  const std::string failed = pdgen::write_files(output_files(api, families, options));
  if (!failed.empty()) fmt::print(stderr, "pdgen: {}: cannot be written\n", failed);
  return failed.empty() ? 0 : 1;
}
