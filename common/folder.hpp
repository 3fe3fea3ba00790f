// What stands in a folder.
#pragma once

#include <dirent.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

namespace common {

// The sorted names in a folder, none where it cannot be read. The standard library's iterator ends
// the process where memory is short, instead of throwing.
inline std::vector<std::string> names_in(const std::string &folder, std::error_code &error) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR *)> opened(opendir(folder.c_str()), closedir);
  error = opened ? std::error_code() : std::error_code(errno, std::generic_category());
  while (const dirent *entry = opened ? readdir(opened.get()) : nullptr) {
    const std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(name);
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace common
