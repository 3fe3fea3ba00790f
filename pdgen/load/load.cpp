#include "pdgen/load/load.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#include "pdgen/check/check.hpp"
#include "pdgen/load/load_sections.hpp"
#include "pdgen/load/toml_reader.hpp"

namespace pdgen {

namespace {

struct Section {
  std::string_view file;
  bool required;
  void (*read)(RowReader &file);
};

// In the order of reading: where two rows clash, the fault is the later one's.
constexpr Section kSections[] = {
    {"program.toml", true, read_program},      {"actions.toml", true, read_actions},
    {"tables.toml", true, read_tables},        {"profiles.toml", false, read_profiles},
    {"stateful.toml", false, read_stateful},   {"hashes.toml", false, read_hashes},
    {"digests.toml", false, read_digests},     {"value_sets.toml", false, read_value_sets},
    {"fields.toml", false, read_fields},       {"labels.toml", false, read_labels},
    {"snapshots.toml", false, read_snapshots},
};

std::string file_name(const CatalogueFile &file) {
  return std::filesystem::path(file.path).filename().string();
}

const CatalogueFile *find_file(const std::vector<CatalogueFile> &files, std::string_view name) {
  const auto found = std::ranges::find_if(
      files, [&](const CatalogueFile &file) { return file_name(file) == name; });
  return found == files.end() ? nullptr : &*found;
}

void report_strange_files(const std::vector<CatalogueFile> &files, Diagnostics &diagnostics) {
  for (const CatalogueFile &file : files) {
    const bool known =
        std::any_of(std::begin(kSections), std::end(kSections),
                    [&](const Section &section) { return section.file == file_name(file); });
    if (!known) diagnostics.report({file.path, 1}, "file", "a catalogue has no file of this name");
  }
}

// Reads every file; false if one is missing or cannot be parsed, so that references into it must
// not be looked up.
bool read_sections(const std::vector<CatalogueFile> &files, const std::string &folder,
                   Reading &reading) {
  bool complete = true;
  for (const Section &section : kSections) {
    const CatalogueFile *file = find_file(files, section.file);
    if (file == nullptr) {
      if (!section.required) continue;
      const auto path = (std::filesystem::path(folder) / section.file).string();
      reading.diagnostics.report({path, 1}, "file", "a catalogue needs this file");
      complete = false;
      continue;
    }
    const TomlFile parsed = parse_toml(file->path, file->text, reading.diagnostics);
    complete = complete && parsed.parsed;
    if (!parsed.parsed) continue;
    NameScope none;
    RowReader root(parsed.root, {"", std::string(section.file), "", ""}, none, reading);
    section.read(root);
  }
  return complete;
}

LoadResult load(const std::vector<CatalogueFile> &files, const std::string &folder) {
  LoadResult result;
  Program program;
  Reading reading{program, result.diagnostics, {}, {}};
  report_strange_files(files, result.diagnostics);
  // Without tables or actions, whatever refers to them would be reported too.
  const bool complete = read_sections(files, folder, reading);
  if (!complete || program.tables.empty() || program.actions.empty()) return result;
  for (const auto &resolve : reading.references) resolve();
  check_program(program, result.diagnostics);
  if (!result.diagnostics.empty()) return result;
  for (const auto &[handle, holder] : reading.handles) {
    program.handles.push_back({handle, holder.object});
  }
  derive_facts(program);
  result.program = std::move(program);
  return result;
}

}  // namespace

std::vector<CatalogueFile> read_files(const std::string &directory, std::string_view ending,
                                      Diagnostics &diagnostics) {
  std::vector<CatalogueFile> files;
  std::error_code error;
  for (const auto &entry : std::filesystem::directory_iterator(directory, error)) {
    if (entry.path().extension() != ending) continue;
    std::ifstream stream(entry.path(), std::ios::binary);
    CatalogueFile file{entry.path().string(), {std::istreambuf_iterator<char>(stream), {}}};
    if (!stream) diagnostics.report({file.path, 1}, "file", "this file cannot be read");
    files.push_back(std::move(file));
  }
  if (error) {
    diagnostics.report({directory, 1}, "directory", "this directory cannot be read: {}",
                       error.message());
  }
  std::ranges::sort(files,
                    [](const CatalogueFile &a, const CatalogueFile &b) { return a.path < b.path; });
  return files;
}

LoadResult load_program(const std::string &directory) {
  LoadResult result;
  const std::vector<CatalogueFile> files = read_files(directory, ".toml", result.diagnostics);
  if (!result.diagnostics.empty()) return result;
  return load(files, directory);
}

LoadResult load_program(const std::vector<CatalogueFile> &files) {
  const std::filesystem::path first = files.empty() ? "" : files.front().path;
  return load(files, first.parent_path().string());
}

}  // namespace pdgen
