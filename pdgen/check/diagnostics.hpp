// The faults of a catalogue, collected while it is read and checked, so that all of them are
// reported at once.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pdgen/model.hpp"

namespace pdgen {

struct Fault {
  Place place;
  std::string key;      // path of the value at fault within its file: "table.key.width"
  std::string message;  // what is wrong: a full sentence that gives the value and the limit
};

class Diagnostics {
 public:
  void report(const Place &place, std::string_view key, std::string message);

  bool empty() const { return faults_.empty(); }

  // By file and line; faults of one line in the order in which they were found.
  std::vector<Fault> sorted() const;

  // One line per fault, "file:line: key: message", in the order of sorted().
  std::string text() const;

 private:
  std::vector<Fault> faults_;
};

}  // namespace pdgen
