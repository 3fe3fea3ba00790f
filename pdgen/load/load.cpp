#include "pdgen/load/load.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "common/folder.hpp"
#include "pdgen/check/check.hpp"
#include "pdgen/load/load_sections.hpp"
#include "pdgen/load/toml_reader.hpp"

namespace pdgen {

namespace {

struct Section {
  std::string_view file;
  const char *needed;  // what a catalogue must have there; null: nothing
  void (*read)(RowReader &file);
};

// In the order of reading: where two rows clash, the fault is the later one's.
constexpr Section kSections[] = {
    {"program.toml", "name = \"NAME\"", read_program},
    {"actions.toml", "actions = [{ name = \"NAME\", value = 0 }, ...]", read_actions},
    {"tables.toml", "a [[table]] for each table, with name, handle, key and actions", read_tables},
    {"profiles.toml", nullptr, read_profiles},
    {"stateful.toml", nullptr, read_stateful},
    {"hashes.toml", nullptr, read_hashes},
    {"digests.toml", nullptr, read_digests},
    {"value_sets.toml", nullptr, read_value_sets},
    {"fields.toml", nullptr, read_fields},
    {"labels.toml", nullptr, read_labels},
    {"snapshots.toml", nullptr, read_snapshots},
};

// Reads every file; false if one is missing or cannot be parsed, so that references into it must
// not be looked up.
bool read_sections(const std::vector<TextFile> &files, const std::filesystem::path &folder,
                   Reading &reading) {
  bool complete = true;
  std::map<std::string_view, const TextFile *> unread = by_name(files);
  std::vector<std::string_view> missing;
  for (const Section &section : kSections) {
    const auto file = unread.extract(section.file);
    if (file.empty()) {
      missing.push_back(section.file);
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
    const std::string near = common::nearest(name, missing);
    reading.diagnostics.report({file->path, 1}, "file", "a catalogue has no file of this name{}",
                               did_you_mean(name, missing));
    std::erase(missing, near);
  }
  for (const Section &section : kSections) {
    if (section.needed == nullptr || !std::ranges::count(missing, section.file)) continue;
    reading.diagnostics.report({folder / section.file, 1}, "file",
                               "a catalogue needs this file: {}", section.needed);
    complete = false;
  }
  return complete && unread.empty();
}

// Rules between rows are looked at when each row is right by itself.
void load(const std::vector<TextFile> &files, const std::filesystem::path &folder,
          LoadResult &result) {
  Program program;
  Reading reading{program, result.diagnostics, {}, {}, {}};
  if (read_sections(files, folder, reading)) resolve_references(reading);
  if (result.diagnostics.empty()) check_program(program, result.diagnostics);
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
  for (const std::string &name : common::names_in(directory, error)) {
    if (!name.ends_with(ending)) continue;
    const std::string path = std::filesystem::path(directory) / name;
    const auto text = read_file(path);
    if (!text) diagnostics.report({path, 1}, "file", "this file cannot be read");
    files.push_back({path, text.value_or("")});
  }
  if (error) {
    diagnostics.report({directory, 1}, "directory", "this directory cannot be read: {}",
                       error.message());
  }
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
