// pdgen: reads the catalogue of a P4 program and writes its control-plane library's generated
// files.
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "pdgen/check/check.hpp"
#include "pdgen/families/apply.hpp"
#include "pdgen/load/load.hpp"
#include "pdgen/text.hpp"

namespace {

// The options are read from here: a line for each, with its name and what it takes.
constexpr std::string_view kHelp =
    R"(usage: pdgen --catalogue DIR --check
       pdgen --catalogue DIR [--build DIR] [--header FILE] [--exports FILE]
             [--handles FILE] [--soname N]

Reads the catalogue of a P4 program and writes the sources of its control-plane
library. Files whose text does not change are left alone.

  --catalogue DIR  the folder of the program's .toml files
  --check          report the faults of the catalogue and write nothing
  --build DIR      write all that is compiled: descriptors, wrappers, version script,
                   layout test, soft SDK description, call table
  --header FILE    write the public header
  --exports FILE   write the list of exported names
  --handles FILE   write the list of handles with their objects
  --soname N       version of the shared object (1)
  --help           show this
  --version        show the version

A catalogue has program.toml, actions.toml and tables.toml and, where the program has
such things, profiles.toml, stateful.toml (counters, meters, registers), hashes.toml,
digests.toml, value_sets.toml, snapshots.toml, labels.toml and fields.toml (how tools
show fields).

Faults are shown as FILE:LINE: KEY: WHAT. Exit status: 0 when all is done; 1 after a
fault or a wrong option, and then nothing is written, or if a file cannot be written.

Example: pdgen --catalogue catalogue --build build/leaf --header include/p4_pd_leaf.h
)";

// What each option takes, "" if nothing, by its name.
std::map<std::string, std::string> known_options() {
  std::map<std::string, std::string> options;
  std::istringstream lines{std::string(kHelp)};
  for (std::string line; std::getline(lines, line);) {
    const std::vector<std::string> words = pdgen::words(line.substr(0, 18));
    if (line.starts_with("  --")) options[words[0]] = words.size() > 1 ? words[1] : "";
  }
  return options;
}

// The values of the options that are given, by their names.
using Options = std::map<std::string, std::string, std::less<>>;

// What is wrong with the arguments, "" if nothing is. Each is NAME, NAME VALUE or NAME=VALUE.
std::string parse(const std::vector<std::string> &arguments, Options &options) {
  const auto known = known_options();
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    std::string value = arguments[i];
    const std::string name = value.substr(0, value.find('='));
    value.erase(0, name.size());
    const auto option = known.find(name);
    if (option == known.end()) {
      return fmt::format(
          "{} is no option{}", name,
          name.starts_with("-")
              ? pdgen::did_you_mean(name, pdgen::projected(known, &Options::value_type::first))
              : "; did you mean --catalogue " + name + "?");
    }
    const bool takes_value = !option->second.empty();
    if (!value.empty() && !takes_value) return name + " takes no value";
    if (takes_value && value.empty() && ++i < arguments.size()) value = "=" + arguments[i];
    if (takes_value && value.size() < 2)
      return fmt::format("{} needs its {}", name, option->second);
    options[name] = takes_value ? value.substr(1) : "";
  }
  return "";
}

unsigned long soname(const Options &options) {
  const auto given = options.find("--soname");
  return given == options.end() ? 1 : std::strtoul(given->second.c_str(), nullptr, 10);
}

std::string fault_of(const Options &options) {
  if (!options.contains("--catalogue")) return "--catalogue DIR is missing";
  if (soname(options) == 0) return "--soname needs a number from 1 on";
  const bool has_work =
      std::ranges::any_of(std::array{"--check", "--build", "--header", "--exports", "--handles"},
                          [&](const char *name) { return options.contains(name); });
  return has_work ? ""
                  : "nothing to write: give --check, --build, --header, --exports or --handles";
}

// The files of each option that is given. A file that is checked in has an option of its own, all
// others are for the build folder.
std::map<std::string, std::vector<pdgen::TextFile>> output_files(const pdgen::Api &api,
                                                                 const pdgen::Families &families,
                                                                 const Options &options) {
  std::map<std::string, std::vector<pdgen::TextFile>> files;
  for (const pdgen::Output &output : families.outputs) {
    const bool has_option = !output.file_option.empty();
    const auto path = options.find(has_option ? output.file_option : "--build");
    if (path == options.end()) continue;
    for (pdgen::TextFile &file : written(output, api)) {
      const std::string name = has_option ? path->second : path->second + "/" + file.path;
      files[path->second].push_back({name, std::move(file.text)});
    }
  }
  return files;
}

// False after a fault.
bool write(const std::string &path, const std::vector<pdgen::TextFile> &files) {
  const auto [count, failed] = pdgen::write_files(files);
  if (!failed.empty()) {
    fmt::print(stderr, "pdgen: {}: cannot be written\n", failed);
  } else if (count == 0) {
    fmt::print("{} is up to date\n", path);
  } else if (files[0].path == path) {
    fmt::print("wrote {}\n", path);
  } else {
    fmt::print("wrote {} of {} files to {}\n", count, files.size(), path);
  }
  return failed.empty();
}

// What is wrong ends the run.
bool report(const std::string &faults) {
  fmt::print(stderr, "{}", faults);
  return !faults.empty();
}

// Reads, checks and writes what the options say.
int run(const Options &options) {
  const std::string &catalogue = options.find("--catalogue")->second;
  const auto loaded = pdgen::load_program(catalogue);
  if (report(loaded.diagnostics.text())) return 1;
  pdgen::Diagnostics diagnostics;
  const pdgen::Families families = pdgen::load_families(pdgen::embedded_families(), diagnostics);
  if (report(diagnostics.text())) return 1;
  pdgen::Api api = pdgen::build_api(*loaded.program, families);
  api.soname = soname(options);
  // Two C names that are the same are a fault of the catalogue that shows only here.
  pdgen::check_distinct(api.names, "C name", diagnostics);
  if (report(diagnostics.text())) return 1;
  if (options.contains("--check")) {
    fmt::print("{} has no fault: tables={} actions={} functions={}\n", catalogue,
               api.program.tables.size(), api.program.actions.size(), api.functions.size());
    return 0;
  }
  const auto outputs = output_files(api, families, options);
  return std::ranges::all_of(outputs,
                             [](const auto &output) { return write(output.first, output.second); })
             ? 0
             : 1;
}

}  // namespace

int main(int argc, char **argv) {
  Options options;
  std::string fault = parse({argv + 1, argv + argc}, options);
  if (fault.empty() && options.contains("--help")) {
    fmt::print("{}", kHelp);
    return 0;
  }
  if (fault.empty() && options.contains("--version")) {
    fmt::print("pdgen {}\n", PDGEN_VERSION);
    return 0;
  }
  if (fault.empty()) fault = fault_of(options);
  if (fault.empty()) return run(options);
  fmt::print(stderr, "pdgen: {}\nTry pdgen --help.\n", fault);
  return 1;
}
