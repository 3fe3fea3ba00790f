#include "pdgen/load/load.hpp"

#include <algorithm>
#include <filesystem>
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

// Reads every file; false if one is missing or cannot be parsed, so that references into it must
// not be looked up.
bool read_sections(const std::vector<TextFile> &files, const std::filesystem::path &folder,
                   Reading &reading) {
  bool complete = true;
  std::map<std::string_view, const TextFile *> unread = by_name(files);
  for (const Section &section : kSections) {
    const auto file = unread.extract(section.file);
    if (file.empty()) {
      if (!section.required) continue;
      reading.diagnostics.report({folder / section.file, 1}, "file", "a catalogue needs this file");
      complete = false;
      continue;
    }
    const auto parsed = parse_toml(file.mapped()->path, file.mapped()->text, reading.diagnostics);
    complete = complete && parsed;
    if (!parsed) continue;
    NameScope none;
    RowReader root(*parsed, {"", std::string(section.file), "", ""}, none, reading);
    section.read(root);
  }
  for (const auto &[name, file] : unread) {
    reading.diagnostics.report({file->path, 1}, "file", "a catalogue has no file of this name");
  }
  return complete;
}

void load(const std::vector<TextFile> &files, const std::filesystem::path &folder,
          LoadResult &result) {
  Program program;
  Reading reading{program, result.diagnostics, {}, {}};
  // Without tables or actions, whatever refers to them would be reported too.
  const bool complete = read_sections(files, folder, reading);
  if (!complete || program.tables.empty() || program.actions.empty()) return;
  for (const auto &resolve : reading.references) resolve();
  check_program(program, result.diagnostics);
  if (!result.diagnostics.empty()) return;
  for (auto &[handle, owner] : reading.handles) program.handles.push_back(std::move(owner));
  derive_facts(program);
  result.program = std::move(program);
}

}  // namespace

std::map<std::string_view, const TextFile *> by_name(const std::vector<TextFile> &files) {
  std::map<std::string_view, const TextFile *> names;
  for (const TextFile &file : files) {
    names[std::string_view(file.path).substr(file.path.rfind('/') + 1)] = &file;
  }
  return names;
}

std::vector<TextFile> read_files(const std::string &directory, std::string_view ending,
                                 Diagnostics &diagnostics) {
  std::vector<TextFile> files;
  std::error_code error;
  for (const auto &entry : std::filesystem::directory_iterator(directory, error)) {
    const std::string path = entry.path().string();
    if (!path.ends_with(ending)) continue;
    const auto text = read_file(path);
    if (!text) diagnostics.report({path, 1}, "file", "this file cannot be read");
    files.push_back({path, text.value_or("")});
  }
  if (error) {
    diagnostics.report({directory, 1}, "directory", "this directory cannot be read: {}",
                       error.message());
  }
  std::ranges::sort(files, {}, &TextFile::path);
  return files;
}

LoadResult load_program(const std::string &directory) {
  LoadResult result;
  const std::vector<TextFile> files = read_files(directory, ".toml", result.diagnostics);
  if (result.diagnostics.empty()) load(files, directory, result);
  return result;
}

LoadResult load_program(const std::vector<TextFile> &files) {
  LoadResult result;
  load(files, files.empty() ? "" : std::filesystem::path(files.front().path).parent_path(), result);
  return result;
}

}  // namespace pdgen
