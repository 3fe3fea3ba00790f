// The faults of a catalogue, collected while it is read and checked, so that all of them are
// reported at once.
#pragma once

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "common/nearest.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

struct Fault {
  Place place;
  std::string key;      // path of the value at fault within its file: "table.key.width"
  std::string message;  // what is wrong: a full sentence that gives the value and the limit
};

// "; did you mean NAME?" if one of the names is near, else "".
template <typename Names>
std::string did_you_mean(std::string_view name, const Names &names) {
  const std::string near = common::nearest(name, names);
  return near.empty() ? "" : fmt::format("; did you mean {}?", near);
}

class Diagnostics {
 public:
  template <typename... Args>
  void report(const Place &place, std::string_view key, fmt::format_string<Args...> message,
              Args &&...args) {
    report({place, std::string(key), fmt::format(message, std::forward<Args>(args)...)});
  }
  void report(Fault fault) { faults_.push_back(std::move(fault)); }

  bool empty() const { return faults_.empty(); }

  // By file and line; faults of one line in the order in which they were found.
  std::vector<Fault> sorted() const {
    std::vector<Fault> faults = faults_;
    std::ranges::stable_sort(faults, {}, [](const Fault &fault) {
      return std::tie(fault.place.file, fault.place.line);
    });
    return faults;
  }

  // One line per fault, "file:line: key: message", in the order of sorted().
  std::string text() const {
    std::string lines;
    for (const auto &[place, key, message] : sorted()) {
      lines += fmt::format("{}:{}: {}: {}\n", place.file, place.line, key, message);
    }
    return lines;
  }

 private:
  std::vector<Fault> faults_;
};

}  // namespace pdgen
