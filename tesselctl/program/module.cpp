#include "tesselctl/program/module.hpp"

#include <dlfcn.h>
#include <fmt/format.h>

#include <algorithm>

#include "common/folder.hpp"
#include "common/nearest.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/version.hpp"

namespace tesselctl {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".so";

std::string listed(const std::vector<std::string> &names) {
  return names.empty() ? "none" : fmt::format("{}", fmt::join(names, ", "));
}

bool is_file(std::string_view name) {
  return name.ends_with(kEnding) || name.find('/') != std::string_view::npos;
}

// The file of a program of that name. Throws Fault.
fs::path find_module(Word name) {
  const fs::path path = module_folder() / (std::string(name.text) + std::string(kEnding));
  std::error_code none;
  if (fs::exists(path, none)) return path;
  const std::vector<std::string> names = program_names();
  throw Fault(
      name,
      fmt::format("no program has this name; {} has {}", module_folder().string(), listed(names)),
      common::nearest(name.text, names));
}

// Images come from anywhere: what they say is a name, never a file to be loaded.
bool is_name(std::string_view text) {
  return !text.empty() && text.find_first_not_of(
                              "abcdefghijklmnopqrstuvwxyz"
                              "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_") == std::string_view::npos;
}

// The program of an image; empty where no image is or its first line does not say.
std::string program_of_image(const std::string &path) {
  std::error_code none;
  if (!fs::is_regular_file(path, none)) return {};
  try {
    FileLines lines(path);
    std::string_view first;
    constexpr std::string_view kBegin = "tesselctl image ";
    if (!lines.next(first) || !first.starts_with(kBegin)) return {};
    const size_t blank = first.find(' ', kBegin.size());
    if (blank == std::string_view::npos || !is_name(first.substr(blank + 1))) return {};
    return std::string(first.substr(blank + 1));
  } catch (const Fault &) {
    return {};  // whoever loads it reports it
  }
}

// The program that nobody names.
std::string default_program() {
  const std::vector<std::string> names = program_names();
  if (std::ranges::find(names, kDefaultProgram) != names.end()) return kDefaultProgram;
  if (names.size() == 1) return names[0];
  throw Fault(fmt::format("--program should name a program; {} has {}", module_folder().string(),
                          listed(names)));
}

fs::path path_of(const ProgramChoice &choice) {
  std::error_code none;
  const bool is_path = is_file(choice.name.text);
  if (is_path && !fs::exists(choice.name.text, none)) throw Fault(choice.name, "no such file");
  if (is_path) return choice.name.text;
  if (!choice.name.text.empty()) return find_module(choice.name);
  const std::string of_image = choice.image.empty() ? "" : program_of_image(choice.image);
  if (of_image.empty()) {
    const std::string usual = default_program();
    return find_module({usual, 0});
  }
  try {
    return find_module({of_image, 1});
  } catch (const Fault &fault) {
    throw Fault(fmt::format("{}:1: {}", choice.image, fault.sentence()));
  }
}

}  // namespace

std::string load_error() {
  const char *error = dlerror();
  return error != nullptr ? error : "there is no memory for it";
}

const bindings::Binding &open_module(const fs::path &path) {
  // A name without a folder would be looked for where libraries are. Thousands of functions are
  // looked up as they are called, for a quick start.
  void *module = dlopen(fs::absolute(path).c_str(), RTLD_LAZY | RTLD_LOCAL);
  if (module == nullptr) {
    throw Fault(fmt::format("{} is no module of a program: {}", path.string(), load_error()));
  }
  const auto *found = static_cast<const bindings::Binding *>(dlsym(module, "pd_binding"));
  if (found == nullptr) throw Fault(path.string() + " is no module of a program");
  if (found->layout == bindings::kLayout) return *found;
  throw Fault(path.string() +
              " was built with another version of the generator than this tool: build the program "
              "again");
}

fs::path module_folder() {
  std::error_code none;
  const fs::path tool = fs::read_symlink("/proc/self/exe", none);
  return (tool.parent_path() / kModuleFolder).lexically_normal();
}

std::vector<std::string> program_names() {
  std::vector<std::string> names;
  std::error_code none;
  for (const fs::path file : common::names_in(module_folder(), none)) {
    if (file.extension() == kEnding) names.push_back(file.stem());
  }
  return names;
}

void load_program(const ProgramChoice &choice) {
  if (has_program()) return;
  use_program(open_module(path_of(choice)));
}

}  // namespace tesselctl
